#include "faults/tracer.h"

#include <errno.h>
#include <gmock/gmock.h>
#include <signal.h>

#include <algorithm>

#include "support/files.h"

namespace {

using test::Injection;
using testing::Contains;
using testing::HasSubstr;

class TracerTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string reason;
    if (!test::CanTrace(reason)) GTEST_SKIP() << reason;
  }

  test::TracedRun Shell(std::string const& script, Injection const& injection = {}) {
    test::Process::Options options;
    options.arguments = {"/bin/sh", "-c", script};
    options.folder = folder_.path();
    return test::Trace(options, {folder_ / "watched"}, injection);
  }
  static Injection Inject(Injection::Action action, unsigned at, int error = 0) {
    Injection injection;
    injection.action = action;
    injection.at = at;
    injection.error = error;
    injection.changes_only = true;
    return injection;
  }

  test::TempDir folder_;
};

// The shell itself opens, duplicates and writes; there are no children.
constexpr char kScript[] = "cd watched; echo one > file; echo two > ../elsewhere";

TEST_F(TracerTest, CountsOnlyCallsBelowTheFolder) {
  std::filesystem::create_directory(folder_ / "watched");
  test::TracedRun const run = Shell(kScript, Inject(Injection::Action::kNone, 1));
  std::vector<std::string> calls;
  for (test::SystemCall const& call : run.calls) calls.push_back(call.name + " " + call.path);
  EXPECT_EQ(run.outcome.status, 0);
  EXPECT_EQ(calls.front(), "open watched/file");
  EXPECT_THAT(calls, Contains("write watched/file"));
  EXPECT_TRUE(std::all_of(calls.begin(), calls.end(), [](std::string const& call) {
    return call.find("elsewhere") == std::string::npos;
  }));
  EXPECT_EQ(run.hits, 0U);
}

TEST_F(TracerTest, KillsBeforeTheCallTakesEffect) {
  std::filesystem::create_directory(folder_ / "watched");
  test::TracedRun const run = Shell(kScript, Inject(Injection::Action::kKillBefore, 1));
  EXPECT_EQ(run.outcome.signal, SIGKILL);
  EXPECT_EQ(run.hits, 1U);
  EXPECT_EQ(run.hit.name, "open");
  EXPECT_TRUE(test::ReadTree(folder_ / "watched").size() <= 1);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "watched/file"));
}

TEST_F(TracerTest, KillsAfterTheCallHasTakenEffect) {
  std::filesystem::create_directory(folder_ / "watched");
  test::TracedRun const run = Shell(kScript, Inject(Injection::Action::kKillAfter, 1));
  EXPECT_EQ(run.outcome.signal, SIGKILL);
  EXPECT_TRUE(std::filesystem::exists(folder_ / "watched/file"));
  EXPECT_EQ(test::ReadFile(folder_ / "watched/file"), "");
}

TEST_F(TracerTest, MakesACallFailWithTheError) {
  std::filesystem::create_directory(folder_ / "watched");
  test::TracedRun const run = Shell(kScript, Inject(Injection::Action::kFail, 1, EROFS));
  EXPECT_EQ(run.hits, 1U);
  EXPECT_THAT(run.outcome.err, HasSubstr("Read-only file system"));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "watched/file"));
  EXPECT_TRUE(std::filesystem::exists(folder_ / "elsewhere"));
}

TEST_F(TracerTest, HitsNoCallBeforeTheRequestedOne) {
  std::filesystem::create_directory(folder_ / "watched");
  test::TracedRun const run = Shell(kScript, Inject(Injection::Action::kFail, 1000, EROFS));
  EXPECT_EQ(run.hits, 0U);
  EXPECT_EQ(test::ReadFile(folder_ / "watched/file"), "one\n");
}

TEST_F(TracerTest, HitsNoCallOnASparedPath) {
  std::filesystem::create_directory(folder_ / "watched");
  Injection injection = Inject(Injection::Action::kFail, 1, EROFS);
  injection.count = Injection::kOnwards;
  injection.spared = "watched/file";
  test::TracedRun const run = Shell("cd watched; echo one > file; echo two > file2", injection);
  EXPECT_EQ(test::ReadFile(folder_ / "watched/file"), "one\n");
  EXPECT_FALSE(std::filesystem::exists(folder_ / "watched/file2"));
  EXPECT_EQ(run.hit.path, "watched/file2");
}

TEST_F(TracerTest, CountsNoCallsOfTheProgramsChildren) {
  std::filesystem::create_directory(folder_ / "watched");
  test::TracedRun const run =
      Shell("/bin/sh -c 'echo > watched/file'; exit 3", Inject(Injection::Action::kNone, 1));
  EXPECT_EQ(run.outcome.status, 3);
  EXPECT_TRUE(run.calls.empty());
  EXPECT_TRUE(std::filesystem::exists(folder_ / "watched/file"));
}

}  // namespace
