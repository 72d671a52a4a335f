#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// Real processes for tests. Nothing here outlives its test: what still runs is killed.
namespace test {

/// How long anything may take before a test gives up on it.
constexpr std::chrono::seconds kDeadline{60};

/// Polls until `condition` holds. False when the deadline passed first.
bool WaitUntil(std::function<bool()> const& condition, std::chrono::milliseconds limit = kDeadline);

/// What became of a process.
struct Outcome {
  int status = -1;  ///< exit status, or -1 when a signal ended it
  int signal = 0;   ///< the signal that ended it, or 0
  long peak_kib = 0;
  double cpu_seconds = 0;
  std::string out;
  std::string err;
};

/// A child process with its output captured to files.
class Process {
 public:
  struct Options {
    std::vector<std::string> arguments;              ///< argv, the name it is told included
    std::map<std::string, std::string> environment;  ///< set on top of our own
    std::string program;                             ///< path to run; arguments[0] when empty
    std::string folder;                              ///< working folder; ours when empty
    bool own_group = false;                          ///< leads a process group of its own
  };

  explicit Process(Options options);
  ~Process();
  Process(Process const&) = delete;
  Process& operator=(Process const&) = delete;

  pid_t pid() const { return pid_; }
  void Signal(int number) const;
  /// Whether it still runs. A zombie does not.
  bool Running();
  /// What it has written to standard output so far.
  std::string Output() const;
  /// Waits for its end and reaps it. Throws, after killing it, when the deadline passes first.
  Outcome Wait(std::chrono::milliseconds limit = kDeadline);

 private:
  bool Reap(int flags);

  pid_t pid_ = -1;
  bool reaped_ = false;
  Outcome outcome_;
  std::string out_path_;
  std::string err_path_;
};

/// Runs to the end.
Outcome Run(Process::Options options);

}  // namespace test
