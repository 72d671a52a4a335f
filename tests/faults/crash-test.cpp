// Kills the launcher at every system call that changes the disk, in turn.
#include <gtest/gtest.h>
#include <signal.h>

#include <cctype>
#include <ostream>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "faults/sweep.h"

namespace {

using test::Beginning;
using test::Injection;
using test::SweepSandbox;
using test::TracedRun;

struct Scenario {
  char const* name;
  Beginning beginning;
  bool is_sound;
  size_t points;                 ///< the minimum; a fifth of it with a tiny client
  std::set<std::string> states;  ///< the states that a kill may leave
};

void PrintTo(Scenario const& scenario, std::ostream* out) { *out << scenario.name; }

Scenario const kScenarios[] = {
    {"first installation",
     Beginning::kNothing,
     true,
     190,
     {"nothing installed", "extracting, first installation", "stable, new tree"}},
    {"upgrade",
     Beginning::kFormer,
     true,
     250,
     {"stable, old tree", "moved aside", "extracting", "committing", "stable, new tree"}},
    {"upgrade over a stale backup",
     Beginning::kFormerAndStaleBackup,
     true,
     310,
     {"stable, old tree beside stale backups", "moved aside", "extracting", "committing",
      "stable, new tree"}},
    {"rollback", Beginning::kFormer, false, 140, {"stable, old tree", "moved aside", "extracting"}},
    {"rollback over a stale backup",
     Beginning::kFormerAndStaleBackup,
     false,
     140,
     {"stable, old tree beside stale backups", "moved aside", "extracting"}},
};

struct Point {
  unsigned call;
  bool after;
};

Injection KillAt(unsigned call, bool after) {
  Injection injection;
  injection.action = after ? Injection::Action::kKillAfter : Injection::Action::kKillBefore;
  injection.at = call;
  injection.changes_only = true;
  return injection;
}

Injection OnlyCount() {
  Injection injection;
  injection.changes_only = true;
  return injection;
}

std::string Describe(Point const& point, TracedRun const& run) {
  std::ostringstream text;
  text << "killed " << (point.after ? "after" : "before") << " call " << point.call << ", "
       << run.hit.name << " of " << run.hit.path;
  return text.str();
}

/// A tiny one if time is short and calls are slow.
test::SweepMaterial::Size SizeOfClient() {
  using Size = test::SweepMaterial::Size;
  return test::IsShort() && test::NameOfVolume() != nullptr ? Size::kTiny : Size::kSmall;
}

class CrashSweep : public testing::TestWithParam<Scenario> {
 protected:
  void SetUp() override {
    std::string reason;
    if (!test::CanTrace(reason)) GTEST_SKIP() << reason;
  }

  std::string const& Package() const {
    return scenario_.is_sound ? material_.sound : material_.damaged;
  }

  /// Every call of an uninterrupted run, and one more that must not exist.
  void CollectPoints() {
    SweepSandbox box(material_);
    box.Begin(scenario_.beginning);
    TracedRun const run = box.Launch(Package(), OnlyCount());
    ASSERT_EQ(run.outcome.status, 0);
    ASSERT_EQ(box.HoldsCarried(), scenario_.is_sound) << box.State();
    auto const calls = static_cast<unsigned>(run.calls.size());
    for (unsigned call = 1; call <= calls; ++call) {
      for (bool after : {false, true}) points_.push_back({call, after});
    }
    box.Begin(scenario_.beginning);
    EXPECT_EQ(box.Launch(Package(), KillAt(calls + 1, false)).hits, 0U);
  }

  /// Starts the launcher and kills it. Returns false, and fails the test, if it wasn't killed.
  bool Kill(SweepSandbox& box, std::string const& package, Point const& point, std::string& what) {
    TracedRun const run = box.Launch(package, KillAt(point.call, point.after));
    what += (what.empty() ? "" : "; then ") + Describe(point, run);
    bool const killed = run.hits == 1 && run.outcome.signal == SIGKILL;
    EXPECT_TRUE(killed) << what << ": ended with " << run.outcome.status;
    return killed;
  }

  /// A start with a valid package. Returns the number of calls that change the disk.
  unsigned ExpectMended(SweepSandbox& box, std::string const& what) {
    size_t const starts = box.Starts();
    TracedRun const run = box.Launch(material_.sound, OnlyCount());
    EXPECT_EQ(run.outcome.status, 0) << what;
    EXPECT_TRUE(box.HoldsCarried()) << what << ": then a sound start left " << box.State();
    EXPECT_EQ(box.Starts(), starts + 1) << what;
    return static_cast<unsigned>(run.calls.size());
  }

  /// A start with a damaged package.
  unsigned ExpectKept(SweepSandbox& box, bool new_is_enough, std::string const& what) {
    TracedRun const run = box.Launch(material_.damaged, OnlyCount());
    EXPECT_EQ(run.outcome.status, 0) << what;
    ExpectATree(box, new_is_enough, what + ": then a damaged start");
    return static_cast<unsigned>(run.calls.size());
  }

  /// The old tree exists under one of its names. With a valid package, the new tree may have
  /// replaced it.
  void ExpectATree(SweepSandbox const& box, bool new_is_enough, std::string const& what) const {
    if (scenario_.beginning == Beginning::kNothing) return;
    EXPECT_TRUE(box.HoldsFormer() || (new_is_enough && box.HoldsCarried()))
        << what << " left " << box.State();
  }

  void ExpectState(SweepSandbox const& box, std::string const& what, test::Tally& tally) {
    std::string const state = box.State();
    EXPECT_NE(state.rfind("no state", 0), 0U) << what << ": " << state;
    tally.Add(state);
  }

  /// A second kill at some call of the second start, then a third start.
  void KillOnceMore(SweepSandbox& box, Point const& first, std::string const& what, bool sound,
                    unsigned calls) {
    if (calls == 0) return;
    std::string const& package = sound ? material_.sound : material_.damaged;
    std::mt19937 random(first.call * 4 + (first.after ? 2 : 0) + (sound ? 1 : 0));
    Point const second = {1 + static_cast<unsigned>(random() % calls), random() % 2 == 0};
    box.PutBack();
    std::string both = what;
    if (!Kill(box, package, second, both)) return;
    ExpectState(box, both, twice_);
    bool const new_is_enough = sound || scenario_.is_sound;
    ExpectATree(box, new_is_enough, both);
    if (!sound) ExpectKept(box, new_is_enough, both);
    ExpectMended(box, both);
  }

  void Check(SweepSandbox& box, Point const& point) {
    std::string what;
    box.Begin(scenario_.beginning);
    if (!Kill(box, Package(), point, what)) return;
    std::string const state = box.State();
    EXPECT_EQ(scenario_.states.count(state), 1U) << what << ": " << state;
    once_.Add(state);
    ExpectATree(box, scenario_.is_sound, what);
    box.Keep();

    unsigned const sound_calls = ExpectMended(box, what);
    box.PutBack();
    unsigned const damaged_calls = ExpectKept(box, scenario_.is_sound, what);
    if (test::IsShort() && point.call % 4 != 0) return;
    // Alternates the packages: the second kill is at different calls anyway.
    bool const sound = (point.call + (point.after ? 1 : 0)) % 2 == 0;
    KillOnceMore(box, point, what, sound, sound ? sound_calls : damaged_calls);
  }

  test::SweepMaterial const material_{SizeOfClient()};
  Scenario const& scenario_ = GetParam();
  std::vector<Point> points_;
  test::Tally once_;
  test::Tally twice_;
};

void ReportStates(test::Tally const& tally) {
  for (auto const& [state, count] : tally.counts()) {
    test::Report("  " + state + ": " + std::to_string(count));
  }
}

TEST_P(CrashSweep, LeavesADocumentedStateAtEveryCallThatTheNextStartFixes) {
  CollectPoints();
  test::ForEachPoint(points_.size(), material_,
                     [&](SweepSandbox& box, size_t i) { Check(box, points_[i]); });

  std::string const name = scenario_.name;
  test::Report(name + ": " + std::to_string(once_.Sum()) + " points");
  ReportStates(once_);
  test::Report(name + ", killed once more in the next start: " + std::to_string(twice_.Sum()) +
               " points");
  ReportStates(twice_);
  EXPECT_EQ(once_.counts().size(), scenario_.states.size()) << "a state was never met";
  bool const is_tiny = material_.size == test::SweepMaterial::Size::kTiny;
  EXPECT_GE(once_.Sum(), is_tiny ? scenario_.points / 5 : scenario_.points);
}

/// "upgrade over a stale backup" is UpgradeOverAStaleBackup.
std::string InCamelCase(std::string const& words) {
  std::string name;
  std::istringstream in(words);
  for (std::string word; in >> word;) {
    word[0] = static_cast<char>(std::toupper(word[0]));
    name += word;
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(Scenarios, CrashSweep, testing::ValuesIn(kScenarios),
                         [](auto const& scenario) { return InCamelCase(scenario.param.name); });

}  // namespace
