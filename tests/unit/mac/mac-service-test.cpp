#include "mac/mac-service.h"

#include <gmock/gmock.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <functional>
#include <utility>
#include <vector>

#include "support/files.h"
#include "support/log-capture.h"
#include "support/process.h"

namespace fs = std::filesystem;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// Records the service's system calls and fakes the system's answers. A pass of the wait is a probe
/// and a sleep; sleeping takes no time here.
struct System {
  std::vector<std::pair<pid_t, int>> signals;
  std::vector<unsigned> sleeps;
  /// The error of sending this signal, or 0.
  std::function<int(int signal)> answer = [](int) { return 0; };
} the_system;

}  // namespace

// These replace the C library's in the whole program.
extern "C" int kill(pid_t pid, int signal) {
  the_system.signals.emplace_back(pid, signal);
  int const error = the_system.answer(signal);
  errno = error != 0 ? error : ESRCH;  // after a success, errno means nothing
  return error != 0 ? -1 : 0;
}

extern "C" unsigned sleep(unsigned seconds) {
  the_system.sleeps.push_back(seconds);
  return 0;
}

namespace {

/// Makes members accessible to the tests.
class ProbedService : public MacService {
 public:
  using Service::app_path;
  using Service::source_build_version;
  using Service::target_build_version;
  using Service::timeout;

  void StopService() override {
    steps.push_back("stop");
    MacService::StopService();
  }
  int PrepareUserEnv() override {
    steps.push_back("prepare");
    return prepared;
  }

  std::vector<std::string> steps;
  int prepared = 0;
};

class Home : public test::TempDir {
 public:
  Home() { setenv("HOME", path().c_str(), 1); }
};

class MacServiceTest : public testing::Test {
 protected:
  MacServiceTest() { the_system = System(); }

  std::string App() const { return home / ".Larkmoor/Larkmoor.app"; }
  std::string Executable() const { return App() + "/Contents/MacOS/larkmoor-drive-ui"; }
  std::string PidFile() const { return home / ".Larkmoor/ui.pid"; }
  void InstallExecutable() { test::WriteFile(Executable(), "#!/bin/sh\n"); }
  bool NeedsUpgrade(char const* source, char const* target) {
    service.source_build_version = source;
    service.target_build_version = target;
    return service.IsNeedUpgrade();
  }

  Home home;
  test::LogCapture log;
  ProbedService service;
};

TEST_F(MacServiceTest, KnowsTheUsersBundleAndItsTimeout) {
  EXPECT_EQ(service.app_path.c_str(), App());
  EXPECT_EQ(service.timeout, 10000);
}

TEST_F(MacServiceTest, HasOneInstanceForCallersWithoutAnObject) {
  EXPECT_NE(MacService::GetInstace(), nullptr);
  EXPECT_EQ(MacService::GetInstace(), MacService::GetInstace());
}

TEST_F(MacServiceTest, FindsTheExecutableWhateverItsKind) {
  EXPECT_FALSE(service.PerUserBinPathExist());
  fs::create_directories(fs::path(Executable()).parent_path());
  EXPECT_FALSE(service.PerUserBinPathExist());
  test::WriteFile(Executable(), "not executable");
  EXPECT_TRUE(service.PerUserBinPathExist());
  fs::remove(Executable());
  fs::create_directory(Executable());
  EXPECT_TRUE(service.PerUserBinPathExist());
}

using PreUpgrade = MacServiceTest;

TEST_F(PreUpgrade, LoadsTheTargetFirstAndLogsBoth) {
  test::WriteFile(App() + "/Contents/Resources/INFO",
                  "[Version]\nbuild_version=100\nicon_overlay_version=7\n");
  service.PreUpgrade();
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[INFO] larkmoor-service(0): target_version = (, , , )",
                          "[INFO] larkmoor-service(0): source_version = (, , 100, 7)",
                          "[DEBUG] mac/mac-service(0): Source version: ('100', '7')",
                          "[DEBUG] mac/mac-service(0): Target version: ('', '')"));
}

TEST_F(PreUpgrade, LoadsEachVersionSeparately) {
  service.LoadTargetVerInfo();
  service.LoadSourceVerInfo();
  EXPECT_THAT(log.OwnLines(), ElementsAre("[INFO] larkmoor-service(0): target_version = (, , , )",
                                          "[INFO] larkmoor-service(0): source does not exist"));
}

using IsNeedUpgrade = MacServiceTest;

TEST_F(IsNeedUpgrade, IsTrueOnlyForANewerBuildIfTheExecutableExists) {
  InstallExecutable();
  EXPECT_FALSE(NeedsUpgrade("100", "100"));
  EXPECT_FALSE(NeedsUpgrade("100", "99"));
  EXPECT_TRUE(NeedsUpgrade("99", "100"));
}

TEST_F(IsNeedUpgrade, IsTrueForAnOlderBuildIfTheExecutableIsMissing) {
  EXPECT_TRUE(NeedsUpgrade("100", "0"));
  EXPECT_TRUE(NeedsUpgrade("100", ""));
}

TEST_F(IsNeedUpgrade, CountsAnEmptyBuildAsZero) {
  InstallExecutable();
  EXPECT_TRUE(NeedsUpgrade("", "1"));
  EXPECT_FALSE(NeedsUpgrade("", "0"));
  EXPECT_FALSE(NeedsUpgrade("", ""));
  EXPECT_FALSE(NeedsUpgrade("1", ""));
}

TEST_F(IsNeedUpgrade, UsesTheLeadingNumberOfAMalformedBuild) {
  InstallExecutable();
  EXPECT_FALSE(NeedsUpgrade("100", "one hundred and one"));
  EXPECT_TRUE(NeedsUpgrade("99abc", "100xyz"));
  EXPECT_TRUE(NeedsUpgrade("9", "10"));
}

TEST_F(IsNeedUpgrade, LogsBothNumbersEvenIfTheExecutableDecides) {
  EXPECT_TRUE(NeedsUpgrade("100", "7"));
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[DEBUG] mac/mac-service(0): source version = 100, target version = 7"));
}

TEST_F(IsNeedUpgrade, ComparesTwoEmptyVersionsBeforePreUpgrade) {
  InstallExecutable();
  EXPECT_FALSE(service.IsNeedUpgrade());
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[DEBUG] mac/mac-service(0): source version = 0, target version = 0"));
}

using StopService = MacServiceTest;

TEST_F(StopService, SignalsNobodyWithoutAPidFile) {
  service.StopService();
  EXPECT_THAT(the_system.signals, IsEmpty());
  EXPECT_THAT(log.OwnLines(), ElementsAre("[DEBUG] mac/mac-service(0): pid file '" + PidFile() +
                                          "' does not exist, no need to terminate"));
}

TEST_F(StopService, SignalsNobodyWhenThePidFileIsMalformed) {
  test::WriteFile(PidFile(), "pid=123\noops\n");
  service.StopService();
  EXPECT_THAT(the_system.signals, IsEmpty());
  EXPECT_THAT(log.OwnLines(), ElementsAre("[NOTE] mac/mac-service(0): Failed to read pid file '" +
                                          PidFile() + "', not exist ?"));
}

TEST_F(StopService, SignalsNobodyWhenThePidFileHoldsNoPid) {
  std::string const line =
      "[DEBUG] mac/mac-service(0): pid file '" + PidFile() + "' holds no pid, no need to terminate";
  for (char const* text : {"", "other=1\n", "pid=''\n"}) {
    test::WriteFile(PidFile(), text);
    service.StopService();
  }
  EXPECT_THAT(the_system.signals, IsEmpty());
  EXPECT_THAT(log.OwnLines(), ElementsAre(line, line, line));
}

TEST_F(StopService, FindsAPidFileBehindASymlink) {
  test::WriteFile(PidFile(), "pid=4711\n");
  fs::create_directory_symlink(".", home / "link");
  setenv("HOME", (home / "link").c_str(), 1);
  the_system.answer = [](int) { return ESRCH; };
  service.StopService();
  EXPECT_THAT(the_system.signals, ElementsAre(Pair(4711, SIGTERM)));
}

TEST_F(StopService, ReturnsAtOnceAndSilentlyForAStalePid) {
  test::WriteFile(PidFile(), "pid=4711\n");
  the_system.answer = [](int) { return ESRCH; };
  service.StopService();
  EXPECT_THAT(the_system.signals, ElementsAre(Pair(4711, SIGTERM)));
  EXPECT_THAT(the_system.sleeps, IsEmpty());
  EXPECT_THAT(log.OwnLines(), IsEmpty());
}

TEST_F(StopService, ReturnsWithoutWaitingWhenTheClientEnds) {
  test::WriteFile(PidFile(), "pid=\"4711\"\n");
  the_system.answer = [](int signal) { return signal == 0 ? ESRCH : 0; };
  service.StopService();
  EXPECT_THAT(the_system.signals, ElementsAre(Pair(4711, SIGTERM), Pair(4711, 0)));
  EXPECT_THAT(the_system.sleeps, IsEmpty());
}

TEST_F(StopService, DoesNotKillAClientThatEndsDuringTheThirdPass) {
  test::WriteFile(PidFile(), "pid=4711\n");
  int probes = 0;
  the_system.answer = [&](int signal) { return signal == 0 && ++probes == 3 ? ESRCH : 0; };
  service.StopService();
  EXPECT_THAT(the_system.signals,
              ElementsAre(Pair(4711, SIGTERM), Pair(4711, 0), Pair(4711, 0), Pair(4711, 0)));
  EXPECT_THAT(the_system.sleeps, ElementsAre(1U, 1U));
}

TEST_F(StopService, KillsAfterFiveOneSecondPasses) {
  test::WriteFile(PidFile(), "pid=4711\n");
  service.StopService();
  EXPECT_THAT(the_system.signals,
              ElementsAre(Pair(4711, SIGTERM), Pair(4711, 0), Pair(4711, 0), Pair(4711, 0),
                          Pair(4711, 0), Pair(4711, 0), Pair(4711, SIGKILL)));
  EXPECT_THAT(the_system.sleeps, ElementsAre(1U, 1U, 1U, 1U, 1U));
  EXPECT_THAT(log.OwnLines(), IsEmpty());
}

TEST_F(StopService, LogsASignalThatFailsAndContinues) {
  test::WriteFile(PidFile(), "pid=1\n");
  the_system.answer = [](int) { return EPERM; };
  service.StopService();
  EXPECT_EQ(the_system.signals.size(), 7U);
  EXPECT_EQ(the_system.signals.back(), std::make_pair(1, SIGKILL));
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[ERROR] mac/mac-service(0): kill: Operation not permitted (1)"));
}

TEST_F(StopService, SignalsItsOwnGroupForAPidThatIsNotANumber) {
  test::WriteFile(PidFile(), "pid=\"abc\"\n");
  the_system.answer = [](int) { return ESRCH; };
  service.StopService();
  EXPECT_THAT(the_system.signals, ElementsAre(Pair(0, SIGTERM)));
}

using HandlePackageUpgrade = MacServiceTest;

TEST_F(HandlePackageUpgrade, StopsTheClientBeforeItReplacesIt) {
  InstallExecutable();
  EXPECT_EQ(service.HandlePackageUpgrade(), 0);
  EXPECT_THAT(service.steps, ElementsAre("stop", "prepare"));
  EXPECT_EQ(log.OwnLines().front(), "[DEBUG] mac/mac-service(0): local appdata exist");
}

TEST_F(HandlePackageUpgrade, SignalsNobodyOnAFirstInstallation) {
  test::WriteFile(PidFile(), "pid=4711\n");
  EXPECT_EQ(service.HandlePackageUpgrade(), 0);
  EXPECT_THAT(service.steps, ElementsAre("prepare"));
  EXPECT_THAT(the_system.signals, IsEmpty());
}

TEST_F(HandlePackageUpgrade, ReturnsTheResultOfPrepareUserEnv) {
  for (int result : {0, -1, 7}) {
    service.prepared = result;
    EXPECT_EQ(service.HandlePackageUpgrade(), result);
  }
}

/// This program is built with a registration tool in the working folder.
class PostUpgrade : public MacServiceTest {
 protected:
  void InstallTool(std::string const& script) {
    test::WriteFile(home / "registration-tool", script);
    chmod((home / "registration-tool").c_str(), 0755);
  }
  void InstallClient() {
    test::WriteFile(Executable(), "#!/bin/sh\ntouch '" + (home / "started") + "'\n");
    chmod(Executable().c_str(), 0755);
  }
  bool ClientStarts() {
    return test::WaitUntil([this] { return fs::exists(home / "started"); });
  }
  std::string CannotUnregister() const {
    return "[ERROR] mac/mac-service(0): Cannot unregister bundle, " + App();
  }

 private:
  test::WorkingFolder const here_{home.path()};
};

TEST_F(PostUpgrade, OpensTheUsersBundleAndLogsNothing) {
  InstallClient();
  service.PostUpgrade();
  EXPECT_TRUE(ClientStarts());
  EXPECT_THAT(log.OwnLines(), IsEmpty());
}

TEST_F(PostUpgrade, UnregistersTheBundleBeforeItOpensIt) {
  InstallClient();
  InstallTool("#!/bin/sh\ntest -e started && exit 9\necho \"$@\" > arguments\n");
  EXPECT_EQ(MacService::LaunchPerUserBin(), 0);
  EXPECT_EQ(test::ReadFile(home / "arguments"), "-u " + App() + "\n");
  EXPECT_TRUE(ClientStarts());
  EXPECT_THAT(log.OwnLines(), IsEmpty());
}

TEST_F(PostUpgrade, OpensTheBundleEvenIfTheToolFailsCrashesOrCannotStart) {
  InstallClient();
  for (char const* tool :
       {"#!/bin/sh\nexit 1\n", "#!/bin/sh\nkill -SEGV $$\n", "#!/no/such/interpreter\n"}) {
    InstallTool(tool);
    fs::remove(home / "started");
    EXPECT_EQ(MacService::LaunchPerUserBin(), 0);
    EXPECT_TRUE(ClientStarts()) << tool;
  }
  // The format has no line break: the next record follows on the same line.
  EXPECT_THAT(log.OwnLines(), ElementsAre(CannotUnregister() + "<stamp>" + CannotUnregister() +
                                          "<stamp>" + CannotUnregister()));
}

TEST_F(PostUpgrade, LogsABundleThatCannotBeOpened) {
  service.PostUpgrade();
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[ERROR] mac/mac-service(0): Failed to launch Larkmoor UI"));
}

}  // namespace
