// A window that receives far more notifications than it can paint.
#include <gmock/gmock.h>

#include "support/sandbox.h"
#include "support/x-server.h"

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define LARKMOOR_TEST_SANITIZED 1
#else
#define LARKMOOR_TEST_SANITIZED 0
#endif

namespace {

constexpr int kFlood = 100000;
/// A generous bound for one queued call with two numbers.
constexpr long kQueuedCallBytes = 400;

/// Installs this many entries on a stack too small for one nested call per notification.
test::Outcome Install(int files, std::map<std::string, std::string> const& environment) {
  test::PreferMemory();
  test::Sandbox box;
  box.CarryVersion(100);
  box.CarryPackage(test::MakeArchive(test::Sandbox::ClientWithFiles(100, files), "gnutar", "gzip"));
  test::Process::Options start = box.Start();
  for (auto const& [name, value] : environment) start.environment[name] = value;
  start.arguments = {"sh", "-c", "ulimit -s 1024; exec \"$0\"", start.arguments[0]};
  test::Outcome const run = test::Run(start);
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.signal, 0);
  EXPECT_EQ(box.AwaitStarts(1).front(), "100");
  return run;
}

void ExpectNoGrowthBeyondTheQueue(std::map<std::string, std::string> const& environment) {
  if (LARKMOOR_TEST_SANITIZED) GTEST_SKIP() << "a sanitizer's memory is not the program's";
  long const few = Install(1000, environment).peak_kib;
  long const many = Install(kFlood, environment).peak_kib;
  EXPECT_LT(many - few, kFlood * kQueuedCallBytes / 1024);
  printf("peak memory: %ld KiB with 1,000 entries, %ld KiB with 100,000\n", few, many);
}

TEST(Flood, GrowsNeitherStackNorMemoryOffscreen) { ExpectNoGrowthBeyondTheQueue({}); }

TEST(Flood, GrowsNeitherStackNorMemoryOnAScreen) {
  if (!test::XServer::IsInstalled()) GTEST_SKIP() << "Xvfb is not installed";
  test::XServer const server;
  ExpectNoGrowthBeyondTheQueue({{"QT_QPA_PLATFORM", "xcb"}, {"DISPLAY", server.Display()}});
}

}  // namespace
