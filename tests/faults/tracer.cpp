#include "faults/tracer.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/openat2.h>
#include <linux/seccomp.h>
#include <signal.h>
#include <stddef.h>
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

#include "support/files.h"

extern char** environ;

namespace fs = std::filesystem;

namespace test {
namespace {

constexpr unsigned kSecondsToHang = 60;
constexpr rlim_t kCpuSeconds = 20;
constexpr int kNone = -1;

/// What a call does, as far as counting goes.
enum class Kind { kOpen, kOpen2, kChange, kClose, kLook };

/// Where a call's arguments name the object: a descriptor, or a path below a folder's descriptor.
struct Shape {
  long number;
  char const* name;
  Kind kind;
  int folder;
  int path;
  int other_folder = kNone;
  int other_path = kNone;
};

/// A descriptor instead of a path stands in `folder` with no `path`.
constexpr Shape kShapes[] = {
    {SYS_open, "open", Kind::kOpen, kNone, 0},
    {SYS_openat, "open", Kind::kOpen, 0, 1},
    {SYS_openat2, "open", Kind::kOpen2, 0, 1},
    {SYS_creat, "open", Kind::kChange, kNone, 0},
    {SYS_write, "write", Kind::kChange, 0, kNone},
    {SYS_pwrite64, "write", Kind::kChange, 0, kNone},
    {SYS_writev, "writev", Kind::kChange, 0, kNone},
    {SYS_close, "close", Kind::kClose, 0, kNone},
    {SYS_rename, "rename", Kind::kChange, kNone, 0, kNone, 1},
    {SYS_renameat, "rename", Kind::kChange, 0, 1, 2, 3},
    {SYS_renameat2, "rename", Kind::kChange, 0, 1, 2, 3},
    {SYS_mkdir, "mkdir", Kind::kChange, kNone, 0},
    {SYS_mkdirat, "mkdir", Kind::kChange, 0, 1},
    {SYS_unlink, "unlink", Kind::kChange, kNone, 0},
    {SYS_unlinkat, "unlink", Kind::kChange, 0, 1},
    {SYS_rmdir, "rmdir", Kind::kChange, kNone, 0},
    {SYS_link, "link", Kind::kChange, kNone, 0, kNone, 1},
    {SYS_linkat, "link", Kind::kChange, 0, 1, 2, 3},
    {SYS_symlink, "symlink", Kind::kChange, kNone, 1},
    {SYS_symlinkat, "symlink", Kind::kChange, 1, 2},
    {SYS_mknod, "mknod", Kind::kChange, kNone, 0},
    {SYS_mknodat, "mknod", Kind::kChange, 0, 1},
    {SYS_chmod, "chmod", Kind::kChange, kNone, 0},
    {SYS_fchmod, "chmod", Kind::kChange, 0, kNone},
    {SYS_fchmodat, "chmod", Kind::kChange, 0, 1},
    {SYS_truncate, "truncate", Kind::kChange, kNone, 0},
    {SYS_ftruncate, "truncate", Kind::kChange, 0, kNone},
    {SYS_fallocate, "fallocate", Kind::kChange, 0, kNone},
    {SYS_read, "read", Kind::kLook, 0, kNone},
    {SYS_pread64, "read", Kind::kLook, 0, kNone},
    {SYS_syncfs, "syncfs", Kind::kLook, 0, kNone},
    {SYS_fsync, "fsync", Kind::kLook, 0, kNone},
    {SYS_getdents64, "readdir", Kind::kLook, 0, kNone},
    {SYS_stat, "stat", Kind::kLook, kNone, 0},
    {SYS_lstat, "stat", Kind::kLook, kNone, 0},
    {SYS_fstat, "stat", Kind::kLook, 0, kNone},
    {SYS_newfstatat, "stat", Kind::kLook, 0, 1},
    {SYS_statx, "stat", Kind::kLook, 0, 1},
    {SYS_access, "access", Kind::kLook, kNone, 0},
    {SYS_faccessat, "access", Kind::kLook, 0, 1},
    {SYS_faccessat2, "access", Kind::kLook, 0, 1},
    {SYS_readlink, "readlink", Kind::kLook, kNone, 0},
    {SYS_readlinkat, "readlink", Kind::kLook, 0, 1},
};

Shape const* FindShape(long number) {
  auto const* const found = std::find_if(std::begin(kShapes), std::end(kShapes),
                                         [&](Shape const& s) { return s.number == number; });
  return found == std::end(kShapes) ? nullptr : found;
}

constexpr unsigned kWritingFlags = O_ACCMODE | O_CREAT | O_TRUNC;

constexpr sock_filter Load(size_t offset) {
  return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<unsigned>(offset));
}

/// A filter that stops for the tracer at the calls of the table and lets all others pass, those
/// that only look as well where nobody asks for them.
std::vector<sock_filter> Filter(bool changes_only) {
  constexpr sock_filter kTrace = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE);
  constexpr sock_filter kPass = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW);
  std::vector<sock_filter> filter = {Load(offsetof(seccomp_data, nr))};
  for (Shape const& shape : kShapes) {
    auto const number = static_cast<unsigned>(shape.number);
    if (changes_only && shape.kind == Kind::kLook) continue;
    if (changes_only && shape.kind == Kind::kOpen) {
      size_t const flags = static_cast<size_t>(shape.path) + 1;
      filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 4));
      filter.push_back(Load(offsetof(seccomp_data, args) + flags * sizeof(__u64)));
      filter.push_back(BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, kWritingFlags, 0, 1));
      filter.push_back(kTrace);
      filter.push_back(kPass);
    } else {
      filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 1));
      filter.push_back(kTrace);
    }
  }
  filter.push_back(kPass);
  return filter;
}

std::system_error Failure(char const* what) { return {errno, std::generic_category(), what}; }

/// Everything that a child needs between fork and exec, made before: another thread may hold the
/// heap's lock at the fork.
class Plan {
 public:
  Plan(Process::Options const& options, int output, bool changes_only)
      : folder_(options.folder), output_(output), filter_(Filter(changes_only)) {
    text_ = options.arguments;
    size_t const arguments = text_.size();
    for (char** entry = environ; *entry != nullptr; ++entry) {
      std::string const name(*entry, strcspn(*entry, "="));
      if (options.environment.count(name) == 0) text_.emplace_back(*entry);
    }
    for (auto const& [name, value] : options.environment) text_.push_back(name + "=" + value);
    for (std::string& text : text_) {
      (arguments_.size() < arguments ? arguments_ : variables_).push_back(text.data());
    }
    arguments_.push_back(nullptr);
    variables_.push_back(nullptr);
  }

  [[noreturn]] void Become() {
    int const nothing = open("/dev/null", O_RDWR);
    dup2(nothing, STDIN_FILENO);
    dup2(nothing, STDOUT_FILENO);
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
  std::vector<std::string> text_;
  std::vector<char*> arguments_;
  std::vector<char*> variables_;
  std::vector<sock_filter> filter_;
};

/// A stopped thread of the program at the entry of a call.
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

  std::string Text(int index) const {
    std::string text;
    char block[256];
    for (unsigned long at = Argument(index);; at += sizeof(block)) {
      size_t const size = Peek(at, block, sizeof(block));
      size_t const length = strnlen(block, size);
      text.append(block, length);
      if (length < sizeof(block)) return text;
    }
  }
  size_t Peek(unsigned long address, void* buffer, size_t size) const {
    iovec const here = {buffer, size};
    iovec const there = {reinterpret_cast<void*>(address), size};
    ssize_t const count = process_vm_readv(thread_, &here, 1, &there, 1, 0);
    if (count >= 0) return static_cast<size_t>(count);
    // The block may run into an unmapped page although the text doesn't.
    return size > 1 ? Peek(address, buffer, size / 2) : 0;
  }

  /// What a descriptor of the program stands for; empty when it isn't open.
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

  /// The call isn't made and gives the error.
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
    Plan plan(options, output, injection_.changes_only);
    Attach(Start(plan));
    Follow();
    run_.outcome.err = ReadFile("/proc/self/fd/" + std::to_string(output));
    close(output);
    return std::move(run_);
  }

 private:
  /// Returns when the child has stopped itself ahead of its program.
  static pid_t Start(Plan& plan) {
    std::unique_lock<std::shared_mutex> const guard(ForkLock());
    pid_t const pid = fork();
    if (pid < 0) throw Failure("fork");
    if (pid == 0) plan.Become();
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
    // Only what this thread has started: another one may be tracing as well.
    for (pid_t pid; (pid = wait4(-1, &status, __WALL | __WNOTHREAD, &usage)) > 0;) {
      if (WIFSTOPPED(status)) {
        HandleStop(pid, status);
      } else if (pid == process_) {
        Keep(status, usage);
      }
    }
  }

  void Keep(int status, rusage const& usage) {
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
      // The first stop of a new task is the tracer's own affair.
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
    Shape const* const shape = FindShape(stop.number());
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

  void Inject(pid_t pid, Stop& stop, Shape const& shape, SystemCall const& call) {
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
        // A close that reports an error has closed all the same.
        if (shape.kind == Kind::kClose) return AwaitEnd(pid);
        stop.Fail(injection_.error);
        break;
      case Injection::Action::kShorten:
        stop.HalveThirdArgument();
        break;
    }
    Resume(pid, 0);
  }

  /// Lets the thread go on to the end of its call.
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

  /// Fills in what the call is about; false when it doesn't count.
  bool Describe(Stop const& stop, Shape const& shape, SystemCall& call) const {
    call.name = shape.name;
    std::string const path = PathIn(stop, shape.folder, shape.path);
    std::string const other = shape.other_path == kNone
                                  ? std::string()
                                  : PathIn(stop, shape.other_folder, shape.other_path);
    for (std::string const& root : roots_) {
      if (!IsBelow(root, path) && (other.empty() || !IsBelow(root, other))) continue;
      std::string const& named = other.empty() ? path : other;
      call.path = named.substr(std::min(named.size(), root.rfind('/') + 1));
      call.changes = Changes(stop, shape);
      return shape.kind != Kind::kClose || call.changes;
    }
    return false;
  }

  static bool Changes(Stop const& stop, Shape const& shape) {
    switch (shape.kind) {
      case Kind::kOpen:
        return IsWriting(stop.Argument(shape.path + 1));
      case Kind::kOpen2: {
        open_how how{};
        stop.Peek(stop.Argument(2), &how, sizeof(how));
        return IsWriting(how.flags);
      }
      case Kind::kClose:
        return stop.IsForWriting(stop.Descriptor(0));
      case Kind::kChange:
        return true;
      case Kind::kLook:
        return false;
    }
    return false;
  }

  static bool IsWriting(unsigned long flags) {
    return (flags & kWritingFlags) != 0 && (flags & O_PATH) == 0;
  }

  static std::string PathIn(Stop const& stop, int folder, int path) {
    if (path == kNone) return stop.PathOf(stop.Descriptor(folder));
    std::string const text = stop.Text(path);
    if (!text.empty() && text[0] == '/') return fs::path(text).lexically_normal().string();
    std::string const base = stop.PathOf(folder == kNone ? AT_FDCWD : stop.Descriptor(folder));
    return text.empty() ? base : (fs::path(base) / text).lexically_normal().string();
  }

  std::vector<std::string> const& roots_;
  Injection const& injection_;
  TracedRun run_;
  pid_t process_ = 0;
  std::set<pid_t> awaited_;  ///< threads that stop once more, at the end of their call
  std::set<pid_t> own_;      ///< the program's threads
  std::set<pid_t> known_;    ///< every task that has stopped once
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
  reason = "no program can be traced here: it ended with " + std::to_string(outcome.status);
  return false;
}

}  // namespace test
