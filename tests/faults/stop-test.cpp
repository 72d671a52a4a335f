// Stops real client processes that react in every way.
#include <errno.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>

#include "faults/nobody.h"
#include "faults/sweep.h"
#include "support/sandbox.h"

namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;
using std::chrono::steady_clock;
using test::Sandbox;

/// Five probes at intervals of a second, plus the rest of an upgrade on a busy machine.
constexpr milliseconds kWholeWait{5000};
constexpr milliseconds kSlack{3000};

/// A client that records the signals it receives. `script` runs in a shell with `notes` as $1.
class Client {
 public:
  Client(std::string const& script, std::string const& notes)
      : notes_(notes), process_(Make(script)) {
    if (!test::WaitUntil([&] { return Notes().find("ready\n") == 0; })) {
      ADD_FAILURE() << "the client didn't come up";
    }
  }

  pid_t pid() const { return process_.pid(); }
  test::Process& process() { return process_; }
  std::string Notes() const {
    return std::filesystem::exists(notes_) ? test::ReadFile(notes_) : "";
  }

 private:
  test::Process::Options Make(std::string const& script) const {
    test::Process::Options options;
    options.arguments = {"/bin/sh", "-c", script, "client", notes_};
    return options;
  }

  std::string notes_;
  test::Process process_;
};

// A shell handles traps between commands, so it waits in short steps.
constexpr char kObedient[] =
    "trap 'echo TERM >> \"$1\"; exit 0' TERM; echo ready >> \"$1\"; while :; do sleep 0.05; done";
constexpr char kDeaf[] =
    "trap 'echo TERM >> \"$1\"' TERM; echo ready >> \"$1\"; while :; do sleep 0.05; done";

class StopMatrix : public testing::Test {
 protected:
  StopMatrix() {
    sandbox_.Install(100);
    sandbox_.Carry(200);
    sandbox_.LogEverything();
  }

  void WritePidFile(std::string const& value) {
    test::WriteFile(sandbox_.UserRoot() + "/ui.pid", "pid=\"" + value + "\"\n");
  }
  std::string NotesFile() const { return sandbox_.folder() / "notes"; }

  /// Runs an upgrade and returns how long it took.
  milliseconds Upgrade() {
    test::Process::Options options = sandbox_.Start();
    options.own_group = true;
    return Finish(options);
  }
  milliseconds Finish(test::Process::Options const& options) {
    auto const begin = steady_clock::now();
    outcome_ = test::Process(options).Wait();
    auto const took = duration_cast<milliseconds>(steady_clock::now() - begin);
    test::Report(std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) + ": " +
                 std::to_string(took.count()) + " ms");
    return took;
  }
  void ExpectUpgraded() {
    EXPECT_EQ(outcome_.status, 0);
    EXPECT_EQ(sandbox_.AwaitStarts(1).back(), "200");
  }

  Sandbox sandbox_;
  test::Outcome outcome_;
};

TEST_F(StopMatrix, AClientThatEndsOnSigtermGetsOneAndEndsWithinASecond) {
  Client client(kObedient, NotesFile());
  WritePidFile(std::to_string(client.pid()));
  // A parent reaps its client at once, like the desktop.
  test::Outcome end;
  std::thread reaper([&] { end = client.process().Wait(); });
  milliseconds const took = Upgrade();
  reaper.join();
  EXPECT_LT(took, milliseconds(1000) + kSlack);
  EXPECT_EQ(end.status, 0);
  EXPECT_EQ(client.Notes(), "ready\nTERM\n");
  ExpectUpgraded();
}

TEST_F(StopMatrix, AClientThatIgnoresSigtermGetsOneAndIsKilledAfterFiveSeconds) {
  Client client(kDeaf, NotesFile());
  WritePidFile(std::to_string(client.pid()));
  milliseconds const took = Upgrade();
  EXPECT_GE(took, kWholeWait);
  EXPECT_LT(took, kWholeWait + kSlack);
  EXPECT_EQ(client.process().Wait().signal, SIGKILL);
  EXPECT_EQ(client.Notes(), "ready\nTERM\n");
  ExpectUpgraded();
}

TEST_F(StopMatrix, AStoppedClientNeverHandlesSigtermAndIsKilledAfterFiveSeconds) {
  Client client(kObedient, NotesFile());
  client.process().Signal(SIGSTOP);
  WritePidFile(std::to_string(client.pid()));
  milliseconds const took = Upgrade();
  EXPECT_GE(took, kWholeWait);
  EXPECT_LT(took, kWholeWait + kSlack);
  EXPECT_EQ(client.process().Wait().signal, SIGKILL);
  EXPECT_EQ(client.Notes(), "ready\n");
  ExpectUpgraded();
}

TEST_F(StopMatrix, AZombieCountsAsRunningAndTakesTheWholeWait) {
  pid_t const zombie = fork();
  if (zombie == 0) _exit(0);
  siginfo_t info;
  ASSERT_EQ(waitid(P_PID, static_cast<id_t>(zombie), &info, WEXITED | WNOWAIT), 0);
  WritePidFile(std::to_string(zombie));
  milliseconds const took = Upgrade();
  EXPECT_GE(took, kWholeWait);
  EXPECT_LT(took, kWholeWait + kSlack);
  int status = 0;
  ASSERT_EQ(waitpid(zombie, &status, 0), zombie);
  EXPECT_TRUE(WIFEXITED(status)) << "a zombie can't be killed once more";
  ExpectUpgraded();
}

TEST_F(StopMatrix, AClientThatEndsDuringTheThirdProbeIsNotKilled) {
  // Two and a half seconds after the signal is between the third and the fourth probe.
  Client client(
      "trap 'echo TERM >> \"$1\"; sleep 2.5; echo saved >> \"$1\"; exit 7' TERM; "
      "echo ready >> \"$1\"; while :; do sleep 0.05; done",
      NotesFile());
  WritePidFile(std::to_string(client.pid()));
  test::Outcome end;
  std::thread reaper([&] { end = client.process().Wait(); });
  milliseconds const took = Upgrade();
  reaper.join();
  EXPECT_GE(took, milliseconds(2500));
  EXPECT_LT(took, milliseconds(3000) + kSlack);
  EXPECT_EQ(end.status, 7);
  EXPECT_EQ(client.Notes(), "ready\nTERM\nsaved\n");
  ExpectUpgraded();
}

TEST_F(StopMatrix, AStalePidCausesNoWaitAndNoLogLine) {
  pid_t const gone = fork();
  if (gone == 0) _exit(0);
  waitpid(gone, nullptr, 0);
  WritePidFile(std::to_string(gone));
  EXPECT_LT(Upgrade(), milliseconds(1000) + kSlack);
  EXPECT_EQ(sandbox_.RawLog().find("kill:"), std::string::npos);
  ExpectUpgraded();
}

TEST_F(StopMatrix, TheProcessOfAnotherUserCannotBeSignalledAndIsWaitedFor) {
  if (!test::CanBecomeNobody()) GTEST_SKIP() << "only root can start a launcher as another user";
  Client client(kObedient, NotesFile());
  WritePidFile(std::to_string(client.pid()));
  milliseconds const took = Finish(test::StartAsNobody(sandbox_));
  EXPECT_GE(took, kWholeWait);
  EXPECT_LT(took, kWholeWait + kSlack);
  EXPECT_NE(sandbox_.RawLog().find("kill: Operation not permitted (1)"), std::string::npos);
  EXPECT_TRUE(client.process().Running());
  EXPECT_EQ(client.Notes(), "ready\n");
  ExpectUpgraded();
}

TEST_F(StopMatrix, APidThatIsNotANumberSignalsTheLaunchersOwnGroup) {
  Client bystander(kObedient, NotesFile());
  WritePidFile("abc");
  EXPECT_LT(Upgrade(), milliseconds(1000) + kSlack);
  EXPECT_EQ(outcome_.signal, SIGTERM) << "the launcher is a member of its own group";
  EXPECT_TRUE(bystander.process().Running()) << "another group's process was signalled";
  EXPECT_EQ(bystander.Notes(), "ready\n");
  EXPECT_EQ(test::ReadFile(sandbox_.App() + "/Contents/Resources/INFO").find("build_version=200"),
            std::string::npos)
      << "the old tree is untouched";
}

TEST_F(StopMatrix, OfTwoClientsOnlyTheOneInThePidFileIsStopped) {
  Client named(kObedient, NotesFile());
  Client other(kObedient, sandbox_.folder() / "other-notes");
  WritePidFile(std::to_string(named.pid()));
  std::thread reaper([&] { named.process().Wait(); });
  EXPECT_LT(Upgrade(), milliseconds(1000) + kSlack);
  reaper.join();
  EXPECT_EQ(named.Notes(), "ready\nTERM\n");
  EXPECT_TRUE(other.process().Running());
  EXPECT_EQ(other.Notes(), "ready\n");
  ExpectUpgraded();
}

TEST_F(StopMatrix, AClientThatRestartsItselfIsStoppedOnceAndItsSuccessorKeepsRunning) {
  std::string const successor = sandbox_.folder() / "successor";
  Client client(
      "trap 'echo TERM >> \"$1\"; "
      "setsid sh -c \"echo \\$\\$ > " +
          successor +
          "; exec sleep 600\" & exit 0' TERM; "
          "echo ready >> \"$1\"; while :; do sleep 0.05; done",
      NotesFile());
  WritePidFile(std::to_string(client.pid()));
  std::thread reaper([&] { client.process().Wait(); });
  EXPECT_LT(Upgrade(), milliseconds(1000) + kSlack);
  reaper.join();
  ASSERT_TRUE(test::WaitUntil(
      [&] { return std::filesystem::exists(successor) && !test::ReadFile(successor).empty(); }));
  pid_t const pid = std::stoi(test::ReadFile(successor));
  EXPECT_EQ(kill(pid, 0), 0) << "nothing looks for a successor";
  kill(pid, SIGKILL);
  EXPECT_EQ(client.Notes(), "ready\nTERM\n");
  ExpectUpgraded();
}

}  // namespace
