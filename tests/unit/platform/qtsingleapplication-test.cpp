#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "support/files.h"
#include "support/process.h"

namespace fs = std::filesystem;

namespace {

struct Pipe {
  Pipe() {
    if (pipe(ends) != 0) throw std::runtime_error("pipe");
    for (int const end : ends) fcntl(end, F_SETFD, FD_CLOEXEC);
  }
  int read_end() const { return ends[0]; }
  int write_end() const { return ends[1]; }
  int ends[2] = {};
};

/// A process that queries the guard; see guard-holder.cpp. Instances of the same executable share a
/// guard, so each test uses its own copy.
class Asker {
 public:
  /// The environment is added to ours.
  explicit Asker(std::string const& program,
                 std::map<std::string, std::string> const& environment = {}) {
    Pipe const in;
    Pipe const out;
    pid_ = fork();
    if (pid_ == 0) {
      dup2(in.read_end(), STDIN_FILENO);
      dup2(out.write_end(), STDOUT_FILENO);
      setenv("QT_QPA_PLATFORM", "offscreen", 1);
      for (auto const& [name, value] : environment) setenv(name.c_str(), value.c_str(), 1);
      execl(program.c_str(), program.c_str(), nullptr);
      _exit(127);
    }
    close(in.read_end());
    close(out.write_end());
    input_ = in.write_end();
    output_ = out.read_end();
  }
  ~Asker() {
    Kill();
    close(input_);
    close(output_);
  }
  Asker(Asker const&) = delete;
  Asker& operator=(Asker const&) = delete;

  /// Its output; waits for it.
  std::string Answer() {
    std::string answer;
    for (char c = 0; read(output_, &c, 1) == 1 && c != '\n';) answer += c;
    return answer;
  }
  void Kill() { End(SIGKILL); }
  void End(int signal) {
    if (pid_ <= 0) return;
    kill(pid_, signal);
    waitpid(pid_, nullptr, 0);
    pid_ = -1;
  }
  /// Lets it exit.
  void Release() {
    close(input_);
    input_ = -1;
    waitpid(pid_, nullptr, 0);
    pid_ = -1;
  }
  pid_t pid() const { return pid_; }
  /// The lock file that it has open.
  fs::path Lock() const {
    for (auto const& entry : fs::directory_iterator("/proc/" + std::to_string(pid_) + "/fd")) {
      fs::path const file = fs::read_symlink(entry.path());
      if (file.extension() == ".lock") return file;
    }
    throw std::runtime_error("no lock is open");
  }

 private:
  pid_t pid_ = -1;
  int input_ = -1;
  int output_ = -1;
};

class SingleInstance : public testing::Test {
 protected:
  SingleInstance() : program(folder / "guard-holder") {
    fs::copy_file(LARKMOOR_TEST_GUARD_HOLDER, program);
  }
  static void MakeOld(fs::path const& file, std::chrono::seconds age = std::chrono::hours(1)) {
    fs::last_write_time(file, fs::file_time_type::clock::now() - age);
  }
  test::TempDir folder;
  std::string program;
};

TEST_F(SingleInstance, AdmitsTheFirstButNotTheSecond) {
  Asker first(program);
  ASSERT_EQ(first.Answer(), "first");
  Asker second(program);
  EXPECT_EQ(second.Answer(), "second");
}

TEST_F(SingleInstance, IsFreeAfterItsHolderHasEnded) {
  Asker first(program);
  ASSERT_EQ(first.Answer(), "first");
  first.Release();
  Asker second(program);
  EXPECT_EQ(second.Answer(), "first");
}

TEST_F(SingleInstance, IsFreeAtOnceWhenItsHolderWasKilled) {
  for (int round = 0; round < 5; ++round) {
    Asker holder(program);
    ASSERT_EQ(holder.Answer(), "first") << round;
    holder.Kill();
  }
}

TEST_F(SingleInstance, IsHeldByAStoppedProcess) {
  Asker first(program);
  ASSERT_EQ(first.Answer(), "first");
  kill(first.pid(), SIGSTOP);
  Asker second(program);
  EXPECT_EQ(second.Answer(), "second");
}

TEST_F(SingleInstance, IsFreeAfterItsHolderWasKilledBeforeWritingItsPid) {
  if (!fs::exists("/proc/self/fd")) GTEST_SKIP() << "open descriptors can't be listed";
  fs::path lock;
  {
    Asker holder(program);
    ASSERT_EQ(holder.Answer(), "first");
    lock = holder.Lock();
  }
  fs::resize_file(lock, 0);
  MakeOld(lock, std::chrono::seconds(11));
  Asker next(program);
  EXPECT_EQ(next.Answer(), "first");
  next.Release();
}

TEST_F(SingleInstance, IsHeldWhateverTheAgeAndContentOfTheLock) {
  if (!fs::exists("/proc/self/fd")) GTEST_SKIP() << "open descriptors can't be listed";
  Asker first(program);
  ASSERT_EQ(first.Answer(), "first");
  MakeOld(first.Lock());
  Asker second(program);
  EXPECT_EQ(second.Answer(), "second");
  fs::resize_file(first.Lock(), 0);
  MakeOld(first.Lock());
  Asker third(program);
  EXPECT_EQ(third.Answer(), "second");
}

TEST_F(SingleInstance, AdmitsOneOfFiftySimultaneousStarts) {
  std::vector<std::unique_ptr<Asker>> askers;
  for (int i = 0; i < 50; ++i) askers.push_back(std::make_unique<Asker>(program));
  std::vector<std::string> answers;
  for (auto const& asker : askers) answers.push_back(asker->Answer());
  EXPECT_EQ(std::count(answers.begin(), answers.end(), "first"), 1);
  EXPECT_EQ(std::count(answers.begin(), answers.end(), "second"), 49);
}

TEST_F(SingleInstance, AdmitsOneOfFiftyOverTheLockOfAKilledHolder) {
  {
    Asker holder(program);
    ASSERT_EQ(holder.Answer(), "first");
  }
  std::vector<std::unique_ptr<Asker>> askers;
  for (int i = 0; i < 50; ++i) askers.push_back(std::make_unique<Asker>(program));
  int firsts = 0;
  for (auto const& asker : askers) firsts += asker->Answer() == "first" ? 1 : 0;
  EXPECT_EQ(firsts, 1);
}

TEST_F(SingleInstance, DistinguishesExecutables) {
  std::string const other = folder / "other";
  fs::copy_file(program, other);
  Asker first(program);
  ASSERT_EQ(first.Answer(), "first");
  Asker second(other);
  EXPECT_EQ(second.Answer(), "first");
}

TEST_F(SingleInstance, IsIndependentOfTheEnvironment) {
  Asker first(program);
  ASSERT_EQ(first.Answer(), "first");
  Asker second(program, {{"TMPDIR", folder.path()}, {"XDG_RUNTIME_DIR", folder.path()}});
  EXPECT_EQ(second.Answer(), "second");
}

// What a start finds after a boot: none of the folders that a lock can be in. Root may change the
// folders of a mount namespace of its own; anybody can be root in a user namespace.
TEST_F(SingleInstance, IsHeldByTheFirstStartThatMakesTheFolder) {
  std::string const prepare = "mount -t tmpfs none /dev/shm && mount -t tmpfs none /run";
  std::string const in_namespace = "exec unshare --user --map-root-user --mount sh -c ";
  if (test::Run({{"sh", "-c", in_namespace + "'" + prepare + "'"}, {}, "", "", false}).status !=
      0) {
    GTEST_SKIP() << "this system allows no user namespace, or no mount in one";
  }
  test::Process::Options options;
  options.folder = folder.path();
  options.environment = {{"QT_QPA_PLATFORM", "offscreen"}, {"PROGRAM", LARKMOOR_TEST_GUARD_HOLDER}};
  options.arguments = {"sh", "-c",
                       "mkfifo input output; " + in_namespace + "'" + prepare +
                           " && { \"$PROGRAM\" once < input > output & } && exec 3> input &&"
                           " read -r first < output && second=$(\"$PROGRAM\" once < /dev/null) &&"
                           " echo \"$first $second\"'"};
  EXPECT_EQ(test::Run(options).out, "first second\n");
}

/// Runs the program with these mounts of its own, which include one for /tmp. Returns what it
/// prints and the folder of its lock, or no string if the system allows no such mounts. The program
/// is found from its own folder, whatever is mounted above.
std::optional<std::string> LockWithMounts(std::string const& mounts) {
  std::string const in_namespace = "exec unshare --user --map-root-user --mount sh -c ";
  if (test::Run({{"sh", "-c", in_namespace + "'" + mounts + "'"}, {}, "", "", false}).status != 0) {
    return std::nullopt;
  }
  test::Process::Options options;
  options.folder = fs::path(LARKMOOR_TEST_GUARD_HOLDER).parent_path();
  // A sanitizer may not find its suppressions below the mounts.
  options.environment = {
      {"QT_QPA_PLATFORM", "offscreen"}, {"LSAN_OPTIONS", ""}, {"TSAN_OPTIONS", ""}};
  options.arguments = {"sh", "-c",
                       in_namespace + "'" + mounts +
                           " && mkfifo /tmp/input && ./guard-holder once < /tmp/input |"
                           " { exec 3> /tmp/input && read -r answer && echo \"$answer\" &&"
                           " find /run /dev/shm /tmp -name \"larkmoor-launcher-*[0-9a-f].lock\" "
                           "-printf \"%h\\n\"; }'"};
  return test::Run(options).out;
}

TEST_F(SingleInstance, IsHeldBesideTheTemporaryFilesWhereMemoryTakesNone) {
  auto const output = LockWithMounts(
      "mount -t tmpfs -o ro none /dev/shm && mount -t tmpfs none /run && mount -t tmpfs none /tmp");
  if (!output) GTEST_SKIP() << "this system allows no user namespace, or no mount in one";
  EXPECT_EQ(output, "first\n/tmp/larkmoor-launcher-0\n");
}

constexpr char kFreshFolders[] =
    "mount -t tmpfs none /dev/shm && mount -t tmpfs none /tmp && mount -t tmpfs none /run";

TEST_F(SingleInstance, IsHeldInMemory) {
  auto const output = LockWithMounts(kFreshFolders);
  if (!output) GTEST_SKIP() << "this system allows no user namespace, or no mount in one";
  EXPECT_EQ(output, "first\n/dev/shm/larkmoor-launcher-0\n");
}

TEST_F(SingleInstance, IsHeldInTheUsersRuntimeFolderIfThereIsOne) {
  auto const output =
      LockWithMounts(kFreshFolders + std::string(" && mkdir -p -m 700 /run/user/0"));
  if (!output) GTEST_SKIP() << "this system allows no user namespace, or no mount in one";
  EXPECT_EQ(output, "first\n/run/user/0\n");
}

TEST_F(SingleInstance, IsHeldInNoFolderThatOthersCanWriteTo) {
  for (char const* const mode : {"720", "702"}) {
    auto const output =
        LockWithMounts(kFreshFolders + std::string(" && mkdir -p -m ") + mode + " /run/user/0");
    if (!output) GTEST_SKIP() << "this system allows no user namespace, or no mount in one";
    EXPECT_EQ(output, "first\n/dev/shm/larkmoor-launcher-0\n") << mode;
  }
}

TEST_F(SingleInstance, AdmitsAStartThatFindsNoFolder) {
  auto const output =
      LockWithMounts(kFreshFolders + std::string(" && mkdir -m 777 /dev/shm/larkmoor-launcher-0"
                                                 " /tmp/larkmoor-launcher-0"));
  if (!output) GTEST_SKIP() << "this system allows no user namespace, or no mount in one";
  EXPECT_EQ(output, "first\n");
}

TEST_F(SingleInstance, AdmitsAStartThatCannotMakeItsLock) {
  auto const output = LockWithMounts(
      kFreshFolders + std::string(" && mkdir -p -m 700 /run/user/0 && mount -o remount,ro /run"));
  if (!output) GTEST_SKIP() << "this system allows no user namespace, or no mount in one";
  EXPECT_EQ(output, "first\n");
}

}  // namespace
