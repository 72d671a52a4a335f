#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// Processes for tests. None outlives its test: those still running are killed.
namespace test {

/// The deadline of everything a test waits for.
constexpr std::chrono::seconds kDeadline{60};

/// Polls until `condition` holds. Returns false at the deadline.
bool WaitUntil(std::function<bool()> const& condition, std::chrono::milliseconds limit = kDeadline);

/// How a process ended.
struct Outcome {
  int status = -1;  ///< exit status, or -1 if a signal ended it
  int signal = 0;   ///< the signal that ended it, or 0
  long peak_kib = 0;
  double cpu_seconds = 0;
  std::string out;
  std::string err;
};

/// A child process with its output captured in files.
class Process {
 public:
  struct Options {
    std::vector<std::string> arguments;              ///< argv, including argv[0]
    std::map<std::string, std::string> environment;  ///< added to ours
    std::string program;                             ///< path to run; arguments[0] if empty
    std::string folder;                              ///< working folder; ours if empty
    bool own_group = false;                          ///< leads its own process group
  };

  explicit Process(Options options);
  ~Process();
  Process(Process const&) = delete;
  Process& operator=(Process const&) = delete;

  pid_t pid() const { return pid_; }
  void Signal(int number) const;
  /// Whether it is running. A zombie isn't.
  bool Running();
  /// Its standard output so far.
  std::string Output() const;
  /// Waits until it ends and reaps it. At the deadline, kills it and throws.
  Outcome Wait(std::chrono::milliseconds limit = kDeadline);

 private:
  bool Reap(int flags);

  pid_t pid_ = -1;
  bool reaped_ = false;
  Outcome outcome_;
  std::string out_path_;
  std::string err_path_;
};

/// Spawns a process and waits for it.
Outcome Run(Process::Options options);

}  // namespace test
