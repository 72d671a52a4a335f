#pragma once

#include <climits>
#include <shared_mutex>
#include <string>
#include <vector>

#include "support/process.h"

/// Runs a program under the eyes of a tracer that counts what it does to some folders, and that
/// kills it, or lets a call fail, at any one of these calls.
///
/// A tracer and not a preloaded library: the C library's own calls (remove, fopen, the streams) and
/// those that go through syscall() never pass a symbol that could be replaced. A filter in the
/// kernel picks the calls, so that all others run at full speed.
namespace test {

/// One system call that touched a watched folder.
struct SystemCall {
  std::string name;      ///< the kernel's name, without "at" variants told apart
  std::string path;      ///< below the watched folder's parent; that of the target for a rename
  bool changes = false;  ///< whether it changes the disk, or would if it succeeded
};

struct Injection {
  enum class Action {
    kNone,
    kKillBefore,  ///< SIGKILL before the call has done anything
    kKillAfter,   ///< SIGKILL when it is done, before its caller sees the result
    kFail,        ///< the call does nothing and gives `error`; a close closes nevertheless
    kShorten      ///< a write writes half; other calls are left alone, and are no hit
  };
  Action action = Action::kNone;
  unsigned at = 1;     ///< the first call that is hit, counted from 1
  unsigned count = 1;  ///< how many calls in a row, kOnwards for all
  int error = 0;
  /// Calls on what lies below this path, written as SystemCall::path is, are counted but not hit.
  std::string spared{};
  /// Counts only calls that change the disk.
  bool changes_only = false;

  static constexpr unsigned kOnwards = UINT_MAX;
};

struct TracedRun {
  Outcome outcome;
  std::vector<SystemCall> calls;  ///< all that were counted
  unsigned hits = 0;              ///< how many were killed or failed
  SystemCall hit;                 ///< the first of them
};

/// Runs a program to its end and that of everything it started. `roots` are the watched folders.
/// Only the program itself is counted and hit, not its children. A program that neither ends nor
/// uses its time is killed with SIGALRM, one that spins with SIGXCPU. Any thread may call this.
TracedRun Trace(Process::Options const& options, std::vector<std::string> const& roots,
                Injection const& injection);

/// Held while a child is made, which for a moment has open what other threads are writing: a
/// program that is written just then couldn't be started. Whoever writes one holds this shared.
std::shared_mutex& ForkLock();

/// Whether this system lets a program be traced. Says why not.
bool CanTrace(std::string& reason);

}  // namespace test
