#include "faults/tracer.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <linux/seccomp.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <set>
#include <stdexcept>
#include <system_error>

#include "faults/system-calls.h"
#include "support/files.h"

extern char** environ;

namespace fs = std::filesystem;

namespace test {
namespace {

constexpr unsigned kSecondsToHang = 60;
constexpr rlim_t kCpuSeconds = 20;

std::system_error Failure(char const* what) { return {errno, std::generic_category(), what}; }

/// Everything that a child needs between fork and exec, allocated before the fork: another thread
/// may hold the heap's lock at that moment.
class ChildSetup {
 public:
  ChildSetup(Process::Options const& options, int output, bool changes_only)
      : folder_(options.folder), output_(output), filter_(CallFilter(changes_only)) {
    strings_ = options.arguments;
    size_t const arguments = strings_.size();
    for (char** entry = environ; *entry != nullptr; ++entry) {
      std::string const name(*entry, strcspn(*entry, "="));
      if (options.environment.count(name) == 0) strings_.emplace_back(*entry);
    }
    for (auto const& [name, value] : options.environment) strings_.push_back(name + "=" + value);
    for (std::string& string : strings_) {
      (arguments_.size() < arguments ? arguments_ : variables_).push_back(string.data());
    }
    arguments_.push_back(nullptr);
    variables_.push_back(nullptr);
  }

  [[noreturn]] void Exec() {
    int const null_device = open("/dev/null", O_RDWR);
    dup2(null_device, STDIN_FILENO);
    dup2(null_device, STDOUT_FILENO);
    dup2(output_, STDERR_FILENO);
    syscall(SYS_close_range, STDERR_FILENO + 1, UINT_MAX, 0);
    rlimit const cpu = {kCpuSeconds, kCpuSeconds};
    setrlimit(RLIMIT_CPU, &cpu);
    alarm(kSecondsToHang);
    if (!folder_.empty() && chdir(folder_.c_str()) != 0) _exit(126);
    sock_fprog program = {static_cast<unsigned short>(filter_.size()), filter_.data()};
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(125);
    raise(SIGSTOP);
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) _exit(124);
    if (prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0) _exit(123);
    execve(arguments_[0], arguments_.data(), variables_.data());
    _exit(127);
  }

 private:
  std::string folder_;
  int output_;
  std::vector<std::string> strings_;
  std::vector<char*> arguments_;
  std::vector<char*> variables_;
  std::vector<sock_filter> filter_;
};

/// A thread of the program, stopped at the entry of a call.
class Stop {
 public:
  explicit Stop(pid_t thread) : thread_(thread) {
    if (ptrace(PTRACE_GETREGS, thread, nullptr, &registers_) != 0) throw Failure("PTRACE_GETREGS");
  }

  long number() const { return static_cast<long>(registers_.orig_rax); }
  unsigned long Argument(int index) const {
    unsigned long long const all[] = {registers_.rdi, registers_.rsi, registers_.rdx,
                                      registers_.r10, registers_.r8,  registers_.r9};
    return all[index];
  }
  int Descriptor(int index) const { return static_cast<int>(Argument(index)); }

  std::string String(int index) const {
    std::string string;
    char block[256];
    for (unsigned long at = Argument(index);; at += sizeof(block)) {
      size_t const size = Peek(at, block, sizeof(block));
      size_t const length = strnlen(block, size);
      string.append(block, length);
      if (length < sizeof(block)) return string;
    }
  }
  size_t Peek(unsigned long address, void* buffer, size_t size) const {
    iovec const local = {buffer, size};
    iovec const remote = {reinterpret_cast<void*>(address), size};
    ssize_t const count = process_vm_readv(thread_, &local, 1, &remote, 1, 0);
    if (count >= 0) return static_cast<size_t>(count);
    // The block may run into an unmapped page although the string doesn't.
    return size > 1 ? Peek(address, buffer, size / 2) : 0;
  }

  /// The path of a descriptor of the program; empty if it isn't open.
  std::string PathOf(int descriptor) const {
    std::error_code ignored;
    std::string const name = descriptor == AT_FDCWD ? "/cwd" : "/fd/" + std::to_string(descriptor);
    return fs::read_symlink("/proc/" + std::to_string(thread_) + name, ignored).string();
  }
  bool IsForWriting(int descriptor) const {
    std::ifstream in("/proc/" + std::to_string(thread_) + "/fdinfo/" + std::to_string(descriptor));
    for (std::string word; in >> word;) {
      if (word != "flags:") continue;
      in >> word;
      return (std::stol(word, nullptr, 8) & O_ACCMODE) != O_RDONLY;
    }
    return false;
  }

  /// Skips the call, which then returns the error.
  void Fail(int error) {
    registers_.orig_rax = ~0ULL;
    SetResult(-static_cast<long>(error));
  }
  void SetResult(long result) {
    registers_.rax = static_cast<unsigned long long>(result);
    Store();
  }
  void HalveThirdArgument() {
    registers_.rdx = (registers_.rdx + 1) / 2;
    Store();
  }

 private:
  void Store() const {
    if (ptrace(PTRACE_SETREGS, thread_, nullptr, &registers_) != 0) throw Failure("PTRACE_SETREGS");
  }

  pid_t thread_;
  user_regs_struct registers_{};
};

bool IsBelow(std::string const& root, std::string const& path) {
  return path.compare(0, root.size(), root) == 0 &&
         (path.size() == root.size() || path[root.size()] == '/');
}

class Tracer {
 public:
  Tracer(std::vector<std::string> const& roots, Injection const& injection)
      : roots_(roots), injection_(injection) {}

  TracedRun Run(Process::Options const& options) {
    int const output = memfd_create("stderr", MFD_CLOEXEC);
    if (output < 0) throw Failure("memfd_create");
    ChildSetup setup(options, output, injection_.changes_only);
    Attach(Start(setup));
    Follow();
    run_.outcome.err = ReadFile("/proc/self/fd/" + std::to_string(output));
    close(output);
    return std::move(run_);
  }

 private:
  /// Returns when the child has stopped itself, before it executes its program.
  static pid_t Start(ChildSetup& setup) {
    std::unique_lock<std::shared_mutex> const guard(ForkLock());
    pid_t const pid = fork();
    if (pid < 0) throw Failure("fork");
    if (pid == 0) setup.Exec();
    int status = 0;
    if (waitpid(pid, &status, __WALL) != pid || !WIFSTOPPED(status)) {
      throw std::runtime_error("the program can't be traced");
    }
    return pid;
  }

  void Attach(pid_t pid) {
    process_ = pid;
    own_.insert(pid);
    known_.insert(pid);
    long const options = PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACESECCOMP |
                         PTRACE_O_TRACECLONE | PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK |
                         PTRACE_O_TRACEEXEC;
    if (ptrace(PTRACE_SETOPTIONS, pid, nullptr, options) != 0) throw Failure("PTRACE_SETOPTIONS");
    Resume(pid, 0);
  }

  void Follow() {
    int status = 0;
    rusage usage{};
    // Only this thread's children: another thread may be tracing as well.
    for (pid_t pid; (pid = wait4(-1, &status, __WALL | __WNOTHREAD, &usage)) > 0;) {
      if (WIFSTOPPED(status)) {
        HandleStop(pid, status);
      } else if (pid == process_) {
        SetOutcome(status, usage);
      }
    }
  }

  void SetOutcome(int status, rusage const& usage) {
    if (WIFEXITED(status)) run_.outcome.status = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) run_.outcome.signal = WTERMSIG(status);
    run_.outcome.peak_kib = usage.ru_maxrss;
  }

  void HandleStop(pid_t pid, int status) {
    int const signal = WSTOPSIG(status);
    int const event = status >> 16;
    if (event == PTRACE_EVENT_SECCOMP) {
      HandleCall(pid);
    } else if (event == PTRACE_EVENT_CLONE) {
      if (own_.count(pid) != 0) own_.insert(NewThread(pid));
      Resume(pid, 0);
    } else if (event != 0) {
      Resume(pid, 0);
    } else if (awaited_.count(pid) != 0 && signal == (SIGTRAP | 0x80)) {
      HandleEnd(pid);
    } else {
      // The first stop of a new task comes from the tracing.
      bool const is_first = known_.insert(pid).second;
      Resume(pid, is_first && signal == SIGSTOP ? 0 : signal);
    }
  }

  static pid_t NewThread(pid_t parent) {
    unsigned long thread = 0;
    ptrace(PTRACE_GETEVENTMSG, parent, nullptr, &thread);
    return static_cast<pid_t>(thread);
  }

  static void Resume(pid_t pid, int signal) {
    ptrace(PTRACE_CONT, pid, nullptr, static_cast<long>(signal));
  }

  void HandleCall(pid_t pid) {
    if (own_.count(pid) == 0) return Resume(pid, 0);
    Stop stop(pid);
    CallShape const* const shape = FindCallShape(stop.number());
    SystemCall call;
    if (shape == nullptr || !Describe(stop, *shape, call)) return Resume(pid, 0);
    if (injection_.changes_only && !call.changes) return Resume(pid, 0);
    run_.calls.push_back(call);
    size_t const number = run_.calls.size();
    bool const is_due = number >= injection_.at && number - injection_.at < injection_.count &&
                        (injection_.spared.empty() || !IsBelow(injection_.spared, call.path));
    if (!is_due || injection_.action == Injection::Action::kNone) return Resume(pid, 0);
    Inject(pid, stop, *shape, call);
  }

  void Inject(pid_t pid, Stop& stop, CallShape const& shape, SystemCall const& call) {
    bool const is_write = shape.number == SYS_write || shape.number == SYS_pwrite64;
    if (injection_.action == Injection::Action::kShorten && !is_write) return Resume(pid, 0);
    if (run_.hits++ == 0) run_.hit = call;
    switch (injection_.action) {
      case Injection::Action::kNone:
        break;
      case Injection::Action::kKillBefore:
        kill(process_, SIGKILL);
        return;
      case Injection::Action::kKillAfter:
        return AwaitEnd(pid);
      case Injection::Action::kFail:
        // A close that returns an error has still closed the descriptor.
        if (shape.kind == CallKind::kClose) return AwaitEnd(pid);
        stop.Fail(injection_.error);
        break;
      case Injection::Action::kShorten:
        stop.HalveThirdArgument();
        break;
    }
    Resume(pid, 0);
  }

  /// Lets the thread run to the end of its call.
  void AwaitEnd(pid_t pid) {
    awaited_.insert(pid);
    ptrace(PTRACE_SYSCALL, pid, nullptr, 0L);
  }

  void HandleEnd(pid_t pid) {
    awaited_.erase(pid);
    if (injection_.action == Injection::Action::kKillAfter) {
      kill(process_, SIGKILL);
    } else {
      Stop(pid).SetResult(-static_cast<long>(injection_.error));
      Resume(pid, 0);
    }
  }

  /// Fills in the call; false if it doesn't count.
  bool Describe(Stop const& stop, CallShape const& shape, SystemCall& call) const {
    call.name = shape.name;
    std::string const path = PathIn(stop, shape.folder, shape.path);
    std::string const other = shape.other_path == kNoArgument
                                  ? std::string()
                                  : PathIn(stop, shape.other_folder, shape.other_path);
    for (std::string const& root : roots_) {
      if (!IsBelow(root, path) && (other.empty() || !IsBelow(root, other))) continue;
      std::string const& target = other.empty() ? path : other;
      call.path = target.substr(std::min(target.size(), root.rfind('/') + 1));
      call.changes = Changes(stop, shape);
      return shape.kind != CallKind::kClose || call.changes;
    }
    return false;
  }

  static bool Changes(Stop const& stop, CallShape const& shape) {
    switch (shape.kind) {
      case CallKind::kOpen:
        return IsWriting(stop.Argument(shape.path + 1));
      case CallKind::kOpenHow: {
        open_how how{};
        stop.Peek(stop.Argument(2), &how, sizeof(how));
        return IsWriting(how.flags);
      }
      case CallKind::kClose:
        return stop.IsForWriting(stop.Descriptor(0));
      case CallKind::kChange:
        return true;
      case CallKind::kReadOnly:
        return false;
    }
    return false;
  }

  static bool IsWriting(unsigned long flags) {
    return (flags & kWritingFlags) != 0 && (flags & O_PATH) == 0;
  }

  static std::string PathIn(Stop const& stop, int folder, int path) {
    if (path == kNoArgument) return stop.PathOf(stop.Descriptor(folder));
    std::string const given = stop.String(path);
    if (!given.empty() && given[0] == '/') return fs::path(given).lexically_normal().string();
    std::string const base =
        stop.PathOf(folder == kNoArgument ? AT_FDCWD : stop.Descriptor(folder));
    return given.empty() ? base : (fs::path(base) / given).lexically_normal().string();
  }

  std::vector<std::string> const& roots_;
  Injection const& injection_;
  TracedRun run_;
  pid_t process_ = 0;
  std::set<pid_t> awaited_;  ///< threads that stop again at the end of their call
  std::set<pid_t> own_;      ///< the program's threads
  std::set<pid_t> known_;    ///< all tasks that have stopped at least once
};

}  // namespace

TracedRun Trace(Process::Options const& options, std::vector<std::string> const& roots,
                Injection const& injection) {
  return Tracer(roots, injection).Run(options);
}

std::shared_mutex& ForkLock() {
  static std::shared_mutex lock;
  return lock;
}

bool CanTrace(std::string& reason) {
  Process::Options options;
  options.arguments = {"/bin/true"};
  Outcome const outcome = Trace(options, {"/"}, {}).outcome;
  if (outcome.status == 0) return true;
  reason = "programs can't be traced here: /bin/true exited with " + std::to_string(outcome.status);
  return false;
}

}  // namespace test
