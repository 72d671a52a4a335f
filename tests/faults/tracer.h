#pragma once

#include <climits>
#include <shared_mutex>
#include <string>
#include <vector>

#include "support/process.h"

/// Traces a program: counts its system calls on some folders, and kills it or makes a call fail at
/// any one of them.
///
/// A tracer and not a preloaded library, because the C library's own calls (remove, fopen, streams)
/// and those through syscall() use no symbol that could be replaced. A filter in the kernel selects
/// the calls, so that all others run at full speed.
namespace test {

/// One system call that touched a watched folder.
struct SystemCall {
  std::string name;      ///< without variants: "open" for openat
  std::string path;      ///< relative to the watched folder's parent; a rename's target
  bool changes = false;  ///< whether it changes the disk, or would if it succeeded
};

struct Injection {
  enum class Action {
    kNone,
    kKillBefore,  ///< SIGKILL before the call has done anything
    kKillAfter,   ///< SIGKILL after the call, before its caller sees the result
    kFail,        ///< the call does nothing and returns `error`; a close still closes
    kShorten      ///< a write writes half; other calls are unchanged, and not hit
  };
  Action action = Action::kNone;
  unsigned at = 1;     ///< the first call that is hit, counted from 1
  unsigned count = 1;  ///< how many consecutive calls, kOnwards for all
  int error = 0;
  /// Calls on this path and below it (in the form of SystemCall::path) are counted but not hit.
  std::string spared{};
  /// Counts only calls that change the disk.
  bool changes_only = false;

  static constexpr unsigned kOnwards = UINT_MAX;
};

struct TracedRun {
  Outcome outcome;
  std::vector<SystemCall> calls;  ///< all counted calls
  unsigned hits = 0;              ///< how many calls were hit
  SystemCall hit;                 ///< the first of them
};

/// Runs a program until it and all its descendants have exited. `roots` are the watched folders.
/// Counts and hits only the program's own calls, not those of its children. A program that hangs is
/// killed with SIGALRM, one that spins with SIGXCPU. Any thread may call this; throws if the
/// program can't be traced.
TracedRun Trace(Process::Options const& options, std::vector<std::string> const& roots,
                Injection const& injection);

/// Held exclusively during fork(), since the child briefly inherits the files that other threads
/// are writing: executing one of these would fail with ETXTBSY. Hold it shared while writing a
/// program.
std::shared_mutex& ForkLock();

/// Whether this system lets a program be traced; sets the reason if not.
bool CanTrace(std::string& reason);

}  // namespace test
