#include "support/process.h"

#include <fcntl.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <utility>

#include "support/files.h"

namespace test {
namespace {

std::string EmptyFile() {
  std::string name = (std::filesystem::temp_directory_path() / "larkmoor-output-XXXXXX").string();
  int const fd = mkstemp(name.data());
  if (fd < 0) throw std::system_error(errno, std::generic_category(), "mkstemp");
  close(fd);
  return name;
}

[[noreturn]] void Exec(Process::Options const& options, std::string const& out,
                       std::string const& err) {
  int const nothing = open("/dev/null", O_RDONLY);
  dup2(nothing, STDIN_FILENO);
  dup2(open(out.c_str(), O_WRONLY | O_APPEND), STDOUT_FILENO);
  dup2(open(err.c_str(), O_WRONLY | O_APPEND), STDERR_FILENO);
  for (int fd = STDERR_FILENO + 1; fd < 256; ++fd) close(fd);
  if (options.own_group) setpgid(0, 0);
  for (auto const& [name, value] : options.environment) setenv(name.c_str(), value.c_str(), 1);
  if (!options.folder.empty() && chdir(options.folder.c_str()) != 0) _exit(126);
  std::vector<char*> arguments;
  for (std::string const& argument : options.arguments) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  std::string const& program = options.program.empty() ? options.arguments[0] : options.program;
  execvp(program.c_str(), arguments.data());
  _exit(127);
}

}  // namespace

bool WaitUntil(std::function<bool()> const& condition, std::chrono::milliseconds limit) {
  auto const end = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

Process::Process(Options options) : out_path_(EmptyFile()), err_path_(EmptyFile()) {
  pid_ = fork();
  if (pid_ < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (pid_ == 0) Exec(options, out_path_, err_path_);
}

Process::~Process() {
  if (!reaped_) {
    Signal(SIGKILL);
    Reap(0);
  }
  unlink(out_path_.c_str());
  unlink(err_path_.c_str());
}

void Process::Signal(int number) const {
  if (!reaped_) kill(pid_, number);
}

bool Process::Reap(int flags) {
  if (reaped_) return true;
  int status = 0;
  rusage usage{};
  if (wait4(pid_, &status, flags, &usage) != pid_) return false;
  reaped_ = true;
  if (WIFEXITED(status)) outcome_.status = WEXITSTATUS(status);
  if (WIFSIGNALED(status)) outcome_.signal = WTERMSIG(status);
  outcome_.peak_kib = usage.ru_maxrss;
  for (timeval const& time : {usage.ru_utime, usage.ru_stime}) {
    outcome_.cpu_seconds +=
        static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  }
  return true;
}

bool Process::Running() { return !Reap(WNOHANG); }

std::string Process::Output() const { return ReadFile(out_path_); }

Outcome Process::Wait(std::chrono::milliseconds limit) {
  if (!WaitUntil([this] { return !Running(); }, limit)) {
    Signal(SIGKILL);
    Reap(0);
    throw std::runtime_error("process did not end in time; it said: " + ReadFile(err_path_));
  }
  outcome_.out = ReadFile(out_path_);
  outcome_.err = ReadFile(err_path_);
  return outcome_;
}

Outcome Run(Process::Options options) { return Process(std::move(options)).Wait(); }

}  // namespace test
