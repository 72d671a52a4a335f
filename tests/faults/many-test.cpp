// Many starts: simultaneous ones, and one after another of every kind.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "faults/sweep.h"

namespace fs = std::filesystem;

namespace {

using test::Injection;
using test::Sandbox;

size_t CountIn(std::string const& text, std::string const& part) {
  size_t count = 0;
  for (size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += part.size()) ++count;
  return count;
}

/// Processes whose executable or arguments are below a folder.
std::set<std::string> ProcessesOf(std::string const& folder) {
  std::set<std::string> found;
  for (auto const& entry : fs::directory_iterator("/proc")) {
    std::error_code ignored;
    std::string const exe = fs::read_symlink(entry.path() / "exe", ignored);
    std::ifstream in(entry.path() / "cmdline");
    // A process that has ended meanwhile can't be read, which throws unless a stream catches it.
    std::ostringstream line;
    line << in.rdbuf();
    if ((exe + " " + line.str()).find(folder) != std::string::npos)
      found.insert(entry.path().filename());
  }
  return found;
}

TEST(ManyStarts, TwoHundredAtOnceMakeOneUpgradeAndAllEndWell) {
  constexpr int kStarts = 200;
  Sandbox sandbox;
  sandbox.Install(100);
  // Enough work for all the others to arrive meanwhile.
  std::vector<test::Entry> entries = Sandbox::Client(200);
  for (int i = 0; i < 4000; ++i) {
    std::string const name = "Contents/Resources/many-" + std::to_string(i);
    entries.insert(entries.begin() + 3, test::Entry::File(name, name));
  }
  sandbox.CarryVersion(200);
  sandbox.CarryPackage(test::MakeArchive(entries, "gnutar", "gzip"));
  sandbox.LogEverything();
  test::Process::Options options = sandbox.Start();
  // A FIFO that releases all at once, with a line for each. It stays open until the end: a process
  // that opened it without a writer would block.
  std::string const gate = sandbox.folder() / "gate";
  ASSERT_EQ(mkfifo(gate.c_str(), 0600), 0);
  int const opener = open(gate.c_str(), O_RDWR | O_CLOEXEC);
  options.arguments = {"/bin/sh", "-c", "read line < \"$1\"; exec \"$2\"",
                       "start",   gate, sandbox.Bundle() + "/Contents/MacOS/launcher"};
  std::vector<std::unique_ptr<test::Process>> starts;
  for (int i = 0; i < kStarts; ++i) starts.push_back(std::make_unique<test::Process>(options));
  std::string const lines(kStarts, '\n');
  ASSERT_EQ(write(opener, lines.data(), lines.size()), kStarts);
  for (auto const& start : starts) EXPECT_EQ(start->Wait(std::chrono::minutes(4)).status, 0);
  close(opener);
  std::string const log = sandbox.RawLog();
  EXPECT_EQ(CountIn(log, "user installation is ready, removing backup app"), 1U);
  size_t const refused = CountIn(log, "app has already launched, return");
  size_t const plain = CountIn(log, "no need to upgrade");
  EXPECT_EQ(refused + plain + 1, static_cast<size_t>(kStarts)) << refused << " and " << plain;
  EXPECT_GT(refused, 0U);
  EXPECT_EQ(test::ReadTree(sandbox.App()).size(), entries.size());
  EXPECT_FALSE(fs::exists(sandbox.App() + "_tmp"));
  sandbox.AwaitStarts(plain + 1);
  EXPECT_TRUE(test::WaitUntil([&] { return ProcessesOf(sandbox.folder().path()).empty(); }));
}

/// The kinds of mixed runs.
enum class Mood { kGood, kDamaged, kKilled, kKilledWhileDamaged };

class MixedRuns : public testing::Test {
 protected:
  void SetUp() override {
    std::string reason;
    if (!test::CanTrace(reason)) GTEST_SKIP() << reason;
  }

  static Injection KillAtRandom(std::mt19937& random) {
    Injection injection;
    injection.action = Injection::Action::kKillBefore;
    injection.changes_only = true;
    injection.at = 1 + static_cast<unsigned>(random() % 60);
    return injection;
  }

  static int Backups(std::string const& app) {
    int count = 0;
    for (int i = 0; i < 10; ++i) {
      count += fs::exists(app + "_tmp" + (i == 0 ? "" : std::to_string(i))) ? 1 : 0;
    }
    return count;
  }

  /// A series of runs in one home. Each starts where the previous one ended.
  void Run(test::SweepSandbox& box, unsigned seed, int runs) {
    std::mt19937 random(seed);
    box.Begin(test::Beginning::kFormer);
    std::string const app = box.sandbox().App();
    int most = 0;
    for (int i = 0; i < runs; ++i) {
      auto const mood = static_cast<Mood>(random() % 4);
      bool const good = mood == Mood::kGood || mood == Mood::kKilled;
      bool const killed = mood == Mood::kKilled || mood == Mood::kKilledWhileDamaged;
      // The bundle always has a newer build: the installed one is the old one again.
      fs::remove(app + "/Contents/Resources/INFO");
      test::TracedRun const run = box.Launch(good ? material_.sound : material_.damaged,
                                             killed ? KillAtRandom(random) : Injection{});
      EXPECT_TRUE(run.outcome.status == 0 || (run.hits > 0 && run.outcome.signal == SIGKILL))
          << "seed " << seed << ", run " << i;
      EXPECT_NE(box.State().rfind("no state", 0), 0U)
          << "seed " << seed << ", run " << i << ": " << box.State();
      int const backups = Backups(app);
      most = std::max(most, backups);
      bool const full = box.sandbox().RawLog().find("at max retries") != std::string::npos;
      if (mood == Mood::kGood && !full) {
        EXPECT_TRUE(box.HoldsCarried()) << "seed " << seed << ", run " << i << ": " << box.State();
        after_success_.Add(std::to_string(backups) + " backups");
      }
    }
    most_.Add(std::to_string(most) + " backups at once");
    CheckWhatIsLeft(box, seed);
    ExpectNoLock(box);
  }

  /// A killed run leaves its lock file, which the next one takes over and removes.
  void ExpectNoLock(test::SweepSandbox& box) const {
    Sandbox const& sandbox = box.sandbox();
    test::TracedRun const run = test::Trace(sandbox.Start(), {"/dev", "/run", "/tmp"}, {});
    EXPECT_EQ(run.outcome.status, 0);
    auto const is_lock = [](test::SystemCall const& call) {
      return call.name == "open" && fs::path(call.path).extension() == ".lock";
    };
    auto const lock = std::find_if(run.calls.begin(), run.calls.end(), is_lock);
    ASSERT_NE(lock, run.calls.end());
    EXPECT_FALSE(fs::exists("/" + lock->path)) << lock->path;
  }

  static void CheckWhatIsLeft(test::SweepSandbox const& box, unsigned seed) {
    std::set<std::string> names;
    for (auto const& entry : fs::directory_iterator(box.sandbox().UserRoot())) {
      std::string const name = entry.path().filename();
      if (name.rfind("Larkmoor.app_tmp", 0) != 0) names.insert(name);
    }
    names.erase("Larkmoor.app");
    EXPECT_EQ(names, std::set<std::string>{"log"}) << "seed " << seed;
    // Standard streams, the shell's script and the folder it lists.
    EXPECT_EQ(box.DescriptorsOfClients(), std::set<std::string>{"5"}) << "seed " << seed;
    EXPECT_TRUE(ProcessesOf(box.sandbox().folder().path()).empty()) << "seed " << seed;
  }

  test::SweepMaterial const material_{test::SweepMaterial::Size::kTiny};
  test::Tally after_success_;
  test::Tally most_;
};

TEST_F(MixedRuns, AThousandLeaveOnlyDocumentedStates) {
  constexpr int kChains = 20;
  constexpr int kRunsEach = 50;
  size_t const descriptors = static_cast<size_t>(
      std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
  test::ForEachPoint(kChains, material_, [&](test::SweepSandbox& box, size_t i) {
    Run(box, static_cast<unsigned>(i), kRunsEach);
  });
  EXPECT_EQ(descriptors, static_cast<size_t>(std::distance(fs::directory_iterator("/proc/self/fd"),
                                                           fs::directory_iterator())));
  test::Report(std::to_string(kChains * kRunsEach) + " mixed runs; after a successful one stand");
  for (auto const& [name, count] : after_success_.counts()) {
    test::Report("  " + name + ": " + std::to_string(count) + " times");
  }
  test::Report("most at any time, by chain of " + std::to_string(kRunsEach) + " runs");
  for (auto const& [name, count] : most_.counts()) {
    test::Report("  " + name + ": " + std::to_string(count) + " chains");
  }
}

}  // namespace
