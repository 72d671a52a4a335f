// Only one launcher runs at a time.
#include <gmock/gmock.h>
#include <signal.h>

#include <memory>

#include "support/fifo-package.h"
#include "support/sandbox.h"

namespace fs = std::filesystem;

namespace {

using testing::Contains;

constexpr char kAlready[] = "[DEBUG] main(0): app has already launched, return";

class Instances : public testing::Test {
 protected:
  Instances() {
    box.LogEverything();
    box.Carry(100);
  }
  test::Sandbox box;
};

TEST_F(Instances, ASecondStartEndsAtOnceAndLeavesOneLine) {
  test::FifoPackage package(box);
  test::Process first(box.Start());
  package.FeedUntilHalfWritten(first.pid());
  size_t const lines = box.Log().size();

  test::Outcome const second = test::Run(box.Start());

  EXPECT_EQ(second.status, 0);
  ASSERT_EQ(box.Log().size(), lines + 1);
  EXPECT_EQ(box.Log().back(), kAlready);

  box.WriteLevelFile("launcher_debug=6\n");
  test::Run(box.Start());
  EXPECT_EQ(box.Log().size(), lines + 1) << "a record of level 7 passed at 6";
  package.FeedTheRest();
  EXPECT_EQ(first.Wait().status, 0);
  EXPECT_THAT(box.AwaitStarts(1), testing::ElementsAre("100"));
}

TEST_F(Instances, ASecondStartLogsNothingByDefault) {
  fs::remove(box.Bundle() + "/log/launcher.debug");
  test::FifoPackage package(box);
  test::Process first(box.Start());
  package.FeedUntilHalfWritten(first.pid());
  test::Outcome const second = test::Run(box.Start());
  EXPECT_EQ(second.status, 0);
  EXPECT_EQ(second.err.find("[DEBUG] main"), std::string::npos);
  EXPECT_EQ(box.RawLog(), "");
  package.FeedTheRest();
  EXPECT_EQ(first.Wait().status, 0);
}

TEST_F(Instances, OneOfFiftySimultaneousStartsInstalls) {
  test::FifoPackage package(box);
  std::vector<std::unique_ptr<test::Process>> starts;
  for (int i = 0; i < 50; ++i) starts.push_back(std::make_unique<test::Process>(box.Start()));
  // The admitted one waits for its package, so all others find it running.
  ASSERT_TRUE(test::WaitUntil([&] {
    auto const log = box.Log();
    return std::count(log.begin(), log.end(), kAlready) == 49;
  }));
  std::vector<pid_t> at_work;
  ASSERT_TRUE(test::WaitUntil([&] {
    at_work.clear();
    for (auto const& start : starts) {
      if (start->Running()) at_work.push_back(start->pid());
    }
    return at_work.size() == 1;
  }));
  package.FeedUntilHalfWritten(at_work.front());
  package.FeedTheRest();
  for (auto const& start : starts) EXPECT_EQ(start->Wait().status, 0);
  auto const log = box.Log();
  EXPECT_EQ(std::count(log.begin(), log.end(), "[DEBUG] launcher(0): running"), 1);
  EXPECT_THAT(box.AwaitStarts(1), testing::ElementsAre("100"));
}

TEST_F(Instances, AStartAfterAKilledOneIsAdmittedAtOnce) {
  {
    test::FifoPackage package(box);
    test::Process first(box.Start());
    package.FeedUntilHalfWritten(first.pid());
    first.Signal(SIGKILL);
    EXPECT_EQ(first.Wait().signal, SIGKILL);
  }
  box.Carry(100);
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_THAT(box.AwaitStarts(1), testing::ElementsAre("100"));
}

}  // namespace
