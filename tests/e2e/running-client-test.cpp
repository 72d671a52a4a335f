// How an upgrade stops the running client.
#include <gmock/gmock.h>
#include <signal.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "support/sandbox.h"

namespace fs = std::filesystem;

namespace {

using test::Sandbox;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// An upgrade while the client may be running.
class RunningClient : public testing::Test {
 protected:
  RunningClient() {
    box.LogEverything();
    box.Carry(200);
    box.Install(100);
  }
  std::string PidFile() const { return box.UserRoot() + "/ui.pid"; }
  test::Process::Options Client(char const* manner) const {
    return {{LARKMOOR_TEST_CLIENT, PidFile(), manner}, {}, "", "", false};
  }
  void AwaitPidFile() const {
    ASSERT_TRUE(
        test::WaitUntil([this] { return fs::exists(PidFile()) && fs::file_size(PidFile()) > 0; }));
  }
  void ExpectUpgraded() { EXPECT_THAT(box.AwaitStarts(1), ElementsAre("200")); }

  Sandbox box;
};

TEST_F(RunningClient, IsAskedToEndBeforeItsFilesGo) {
  test::Process client(Client("obey"));
  AwaitPidFile();
  test::Process launcher(box.Start());
  // To the launcher, it has ended only once it is reaped.
  test::Outcome const ended = client.Wait();
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(launcher.Wait().status, 0);
  ExpectUpgraded();
  EXPECT_THAT(box.Log(), Not(Contains(HasSubstr("[ERROR]"))));
}

TEST_F(RunningClient, IsKilledWhenItIgnoresTheRequest) {
  test::Process client(Client("ignore"));
  AwaitPidFile();
  test::Process launcher(box.Start());
  EXPECT_EQ(client.Wait().signal, SIGKILL);
  EXPECT_EQ(launcher.Wait().status, 0);
  ExpectUpgraded();
}

TEST_F(RunningClient, IsNotSignalledWithoutAPidFile) {
  EXPECT_EQ(box.Launch().status, 0);
  ExpectUpgraded();
  EXPECT_THAT(box.Log(), Contains("[DEBUG] mac/mac-service(0): pid file '" + PidFile() +
                                  "' does not exist, no need to terminate"));
}

TEST_F(RunningClient, IsLeftAloneWhenThePidFileIsMalformed) {
  test::WriteFile(PidFile(), "[pid]\n");
  EXPECT_EQ(box.Launch().status, 0);
  ExpectUpgraded();
  EXPECT_THAT(box.Log(), Contains("[NOTE] mac/mac-service(0): Failed to read pid file '" +
                                  PidFile() + "', not exist ?"));
}

TEST_F(RunningClient, IsLeftAloneWhenThePidFileCannotBeRead) {
  // It exists, but nobody can open it, not even root.
  fs::create_symlink("nowhere", PidFile());
  EXPECT_EQ(box.Launch().status, 0);
  ExpectUpgraded();
  EXPECT_THAT(box.Log(), Contains("[NOTE] mac/mac-service(0): Failed to read pid file '" +
                                  PidFile() + "', not exist ?"));
}

TEST_F(RunningClient, IsNotSignalledWhenThePidFileHasNoPid) {
  test::WriteFile(PidFile(), "name=value\n");
  EXPECT_EQ(box.Launch().status, 0);
  ExpectUpgraded();
  EXPECT_THAT(box.Log(), Contains("[DEBUG] mac/mac-service(0): pid file '" + PidFile() +
                                  "' holds no pid, no need to terminate"));
}

TEST_F(RunningClient, IsNotWaitedForWhenItsPidIsStale) {
  test::Process gone({{"true"}, {}, "", "", false});
  pid_t const pid = gone.pid();
  gone.Wait();
  test::WriteFile(PidFile(), "pid=" + std::to_string(pid) + "\n");
  EXPECT_EQ(box.Launch().status, 0);
  ExpectUpgraded();
  EXPECT_THAT(box.Log(), Not(Contains(HasSubstr("mac/mac-service(0): kill"))));
}

TEST_F(RunningClient, IsNotTouchedByAPlainStart) {
  box.Carry(100);
  test::Process client(Client("obey"));
  AwaitPidFile();
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_TRUE(client.Running());
}

}  // namespace
