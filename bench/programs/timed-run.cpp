// Runs a command with its standard output discarded and prints what it used, children included:
// wall time, user time and system time in microseconds, peak memory in KiB.
//
// usage: timed-run COMMAND ARGUMENT...
//
// A separate program, because a child's peak memory starts at that of the process that forked it,
// and this one is smaller than anything worth measuring.

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

long long Microseconds(timeval const& time) { return time.tv_sec * 1000000LL + time.tv_usec; }

[[noreturn]] void Become(char** command) {
  int const sink = open("/dev/null", O_WRONLY | O_CLOEXEC);
  dup2(sink, STDOUT_FILENO);
  execvp(command[0], command);
  std::perror(command[0]);
  _exit(127);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  using Clock = std::chrono::steady_clock;
  Clock::time_point const begin = Clock::now();
  pid_t const child = fork();
  if (child < 0) return 2;
  if (child == 0) Become(argv + 1);
  int status = 0;
  rusage usage = {};
  if (wait4(child, &status, 0, &usage) != child) return 2;
  auto const wall = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin);
  std::printf("%lld %lld %lld %ld\n", static_cast<long long>(wall.count()),
              Microseconds(usage.ru_utime), Microseconds(usage.ru_stime), usage.ru_maxrss);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
