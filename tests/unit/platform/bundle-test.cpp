#include "platform/bundle.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <malloc.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QString>

#include "support/files.h"
#include "support/process.h"

namespace fs = std::filesystem;

namespace {

/// The registration tool that this program is built with: a file in the working folder.
constexpr char kTool[] = "registration-tool";

class Bundle : public testing::Test {
 protected:
  Bundle() {
    // Spawned programs are reparented to this process, so that the test can wait for them.
    prctl(PR_SET_CHILD_SUBREAPER, 1);
  }

  void InstallTool(std::string const& script) {
    test::WriteFile(folder / kTool, script);
    chmod(kTool, 0755);
  }
  QString App() const { return QString::fromStdString(folder / "Some.app"); }
  void InstallClient(std::string const& script) {
    std::string const path = folder / "Some.app/Contents/MacOS/larkmoor-drive-ui";
    test::WriteFile(path, "#!/bin/sh\n" + script);
    chmod(path.c_str(), 0755);
  }
  std::string Await(std::string const& name) const {
    EXPECT_TRUE(test::WaitUntil([&] { return fs::exists(folder / name); })) << name;
    return fs::exists(folder / name) ? test::ReadFile(folder / name) : "";
  }

  test::TempDir folder;

 private:
  test::WorkingFolder const here_{folder.path()};
};

TEST_F(Bundle, CountsAsUnregisteredWithoutARegistrationTool) {
  EXPECT_EQ(platform::ForgetBundle(App()), 0);
}

TEST_F(Bundle, IsUnregisteredByTheTool) {
  InstallTool("#!/bin/sh\necho \"$#:$1:$2\" > arguments\n");
  EXPECT_EQ(platform::ForgetBundle(App()), 0);
  EXPECT_EQ(test::ReadFile(folder / "arguments"), "2:-u:" + App().toStdString() + "\n");
}

TEST_F(Bundle, ReportsTheToolsFailure) {
  InstallTool("#!/bin/sh\nexit 3\n");
  EXPECT_EQ(platform::ForgetBundle(App()), 3);
}

TEST_F(Bundle, ReportsAToolThatCrashes) {
  InstallTool("#!/bin/sh\nkill -SEGV $$\n");
  EXPECT_NE(platform::ForgetBundle(App()), 0);
}

TEST_F(Bundle, ReportsAToolThatCannotBeStarted) {
  InstallTool("#!/no/such/interpreter\n");
  EXPECT_NE(platform::ForgetBundle(App()), 0);
}

TEST_F(Bundle, IsNotOpenedWhenItsProgramIsMissing) { EXPECT_FALSE(platform::OpenBundle(App())); }

TEST_F(Bundle, IsNotOpenedWhenItsProgramIsNotExecutable) {
  InstallClient("");
  chmod((folder / "Some.app/Contents/MacOS/larkmoor-drive-ui").c_str(), 0644);
  EXPECT_FALSE(platform::OpenBundle(App()));
}

TEST_F(Bundle, StartsItsProgramWithoutArgumentsInItsOwnSession) {
  InstallClient("echo \"$# $$ $(cut -d' ' -f5,6 /proc/$$/stat) $(pwd)\" > '" + (folder / "part") +
                "'; mv '" + (folder / "part") + "' '" + (folder / "facts") + "'\n");
  ASSERT_TRUE(platform::OpenBundle(App()));
  std::string const facts = Await("facts");
  std::string const pid = facts.substr(2, facts.find(' ', 2) - 2);
  EXPECT_EQ(facts, "0 " + pid + " " + pid + " " + pid + " /\n");
  wait(nullptr);
}

TEST_F(Bundle, PassesNoDescriptorToItsProgram) {
  int const leaked = open(".", O_RDONLY);  // without close-on-exec, as a careless library may
  InstallClient("cd /proc/$$/fd; for f in *; do readlink $f; done > '" + (folder / "part") +
                "'; mv '" + (folder / "part") + "' '" + (folder / "open") + "'\n");
  bool const opened = platform::OpenBundle(App());
  close(leaked);
  ASSERT_TRUE(opened);
  std::string const open_files = Await("open");
  EXPECT_EQ(open_files.find(folder.path().string() + "\n"), std::string::npos) << open_files;
  EXPECT_EQ(open_files.find("pipe:"), std::string::npos) << open_files;
  EXPECT_THAT(open_files, testing::HasSubstr("/dev/null"));
  wait(nullptr);
}

TEST_F(Bundle, StartsItsProgramWithEachStandardDescriptorOnTheNullDevice) {
  InstallClient("readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2 | tee '" + (folder / "part") +
                "' > /dev/null; mv '" + (folder / "part") + "' '" + (folder / "standard") + "'\n");
  ASSERT_TRUE(platform::OpenBundle(App()));
  EXPECT_EQ(Await("standard"), "/dev/null\n/dev/null\n/dev/null\n");
  wait(nullptr);
}

TEST_F(Bundle, StartsItsProgramWithDefaultSignalHandling) {
  auto* const former = signal(SIGTERM, SIG_IGN);
  InstallClient("sed -n 's/^SigIgn:.//p' /proc/$$/status > '" + (folder / "part") + "'; mv '" +
                (folder / "part") + "' '" + (folder / "ignored") + "'\n");
  bool const opened = platform::OpenBundle(App());
  signal(SIGTERM, former);
  ASSERT_TRUE(opened);
  // One bit per signal; real-time signals belong to the C library.
  EXPECT_EQ(std::stoull(Await("ignored"), nullptr, 16) & 0x7FFFFFFF, 0U);
  wait(nullptr);
}

/// Leaves something other than 0 where the next call has its variables.
void DirtyTheStack() {
  volatile unsigned char bytes[1 << 14];
  for (auto& byte : bytes) byte = 0xFF;
}

TEST_F(Bundle, StartsItsProgramWithNoSignalBlocked) {
  // Read by the shell itself, which blocks signals while it starts a program.
  InstallClient("while read -r key value; do [ $key != SigBlk: ] || echo $value; done < " +
                ("/proc/$$/status > '" + (folder / "part")) + "'; mv '" + (folder / "part") +
                "' '" + (folder / "blocked") + "'\n");
  QString const app = App();
  sigset_t ours;
  sigset_t former;
  sigemptyset(&ours);
  sigaddset(&ours, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &ours, &former);
  platform::OpenBundle("none");  // now the library's functions are looked up, which takes stack
  DirtyTheStack();
  bool const opened = platform::OpenBundle(app);
  pthread_sigmask(SIG_SETMASK, &former, nullptr);
  ASSERT_TRUE(opened);
  EXPECT_EQ(std::stoull(Await("blocked"), nullptr, 16), 0U);
  wait(nullptr);
}

TEST_F(Bundle, LeavesNoMemoryBehind) {
  constexpr int kTimes = 100;
  constexpr std::size_t kLeast = 50;  // bytes that one leak takes at least
  QString const app = App();
  platform::OpenBundle(app);
  std::size_t const before = mallinfo2().uordblks;
  for (int i = 0; i < kTimes; ++i) platform::OpenBundle(app);
  EXPECT_LT(mallinfo2().uordblks, before + kTimes * kLeast);
}

TEST_F(Bundle, PassesItsEnvironmentOn) {
  setenv("LARKMOOR_TEST_MARK", "inherited", 1);
  InstallClient("echo $LARKMOOR_TEST_MARK > '" + (folder / "part") + "'; mv '" + (folder / "part") +
                "' '" + (folder / "mark") + "'\n");
  ASSERT_TRUE(platform::OpenBundle(App()));
  EXPECT_EQ(Await("mark"), "inherited\n");
  unsetenv("LARKMOOR_TEST_MARK");
  wait(nullptr);
}

}  // namespace
