// Lets every system call of an upgrade fail, in turn.
#include <errno.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "faults/sweep.h"

namespace {

using test::Injection;
using test::SweepSandbox;
using test::TracedRun;

struct Fault {
  char const* name;
  Injection::Action action;
  int error;
  bool in_short;  ///< also in the short form: one for each way in which errors are told apart
};

constexpr Fault kFaults[] = {
    {"ENOSPC", Injection::Action::kFail, ENOSPC, true},
    {"EDQUOT", Injection::Action::kFail, EDQUOT, false},
    {"EACCES", Injection::Action::kFail, EACCES, false},
    {"EROFS", Injection::Action::kFail, EROFS, false},
    {"EIO", Injection::Action::kFail, EIO, true},
    {"EMFILE", Injection::Action::kFail, EMFILE, false},
    {"EINTR", Injection::Action::kFail, EINTR, true},
    {"short", Injection::Action::kShorten, 0, true},
};

/// Calls that are made again after EINTR would be for ever if it never ended.
constexpr unsigned kInterruptions = 25;

/// Which calls fail.
enum class Spread {
  kOnce,
  kOnwards,
  kOnwardsButTheLog  ///< as if the log lay elsewhere, so that it can tell of all the failures
};

struct Point {
  bool sound;
  test::SystemCall call;
  unsigned number;
  Fault const* fault;
  Spread spread;
};

/// What a call that fails has to leave in the log. Where `lines` is empty nothing is logged,
/// for the reason given; otherwise one of them is, but for the `unless` where there is one. The
/// first rule that fits holds.
struct Rule {
  char const* calls;
  char const* path;
  std::vector<std::string> lines;
  char const* unless;
};

constexpr char kLogFolder[] = ".Larkmoor/log";

constexpr char kLog[] = "the log can't tell of its own failure";
constexpr char kIcon[] = "the dialog goes without its icon";
constexpr char kTarget[] = "an unreadable carried version counts as 0, so there is no upgrade";
constexpr char kSource[] = "an unreadable installed version counts as 0, so there is an upgrade";
constexpr char kPid[] = "an unreadable pid file counts as absent";
constexpr char kBackup[] = "the results of removing a backup are ignored";
constexpr char kRollback[] = "the results of a rollback are ignored";
constexpr char kAged[] = "the results of removing the aged folder are ignored";
constexpr char kClose[] = "the archive library ignores the result of close";
constexpr char kAgain[] = "made again after EINTR, or behind the last entry";
constexpr char kNotThere[] =
    "an application folder that can't be looked at counts as absent, or isn't flushed";
constexpr char kFlush[] = "a volume that can't be flushed is installed to all the same";
constexpr char kFirstLook[] = "mkdir decides, not the look ahead of it";

Rule const kRules[] = {
    {".*", "\\.Larkmoor/log.*", {}, kLog},
    {"mkdir", "\\.Larkmoor", {}, kLog},
    {"syncfs|fsync", ".*", {}, kFlush},
    {"open", "\\.Larkmoor", {}, kFlush},
    {".*", "Resources/images/.*", {}, kIcon},
    {".*", "Resources/INFO", {}, kTarget},
    {".*", "\\.Larkmoor/ui\\.pid", {}, kPid},
    {"rename", ".*app_tmp", {"failed to backup app from"}, nullptr},
    {"rename", ".*app", {}, kRollback},
    {".*", ".*app_tmp.*", {}, kBackup},
    {".*", "\\.Larkmoor/app", {}, kAged},
    {"read",
     ".*lpk",
     {"archive_read_open_filename failed", "Failed to read file", "next_header failed: 'Error"},
     kAgain},
    {".*", ".*lpk", {"archive_read_open_filename failed", "Failed to read file"}, nullptr},
    {"mkdir", ".*app", {"failed to create folder"}, nullptr},
    {"access|stat|open|read", ".*INFO", {"archive_read_extract2 failed"}, kSource},
    {"access", ".*larkmoor-drive-ui", {}, kSource},
    {"close", ".*", {}, kClose},
    {"stat|open", ".*app", {"failed to backup app from", "failed to create folder"}, kNotThere},
    {"stat", "\\.Larkmoor", {"failed to create folder"}, kFirstLook},
    {"mkdir|symlink|write|chmod", ".*app/.*", {"archive_read_extract2 failed"}, nullptr},
    {"open|unlink|stat", ".*app/.*", {"archive_read_extract2 failed"}, kRollback},
    {"readdir|rmdir|unlink", ".*app.*", {}, kRollback},
};

Rule const* RuleFor(test::SystemCall const& call) {
  auto const* const found =
      std::find_if(std::begin(kRules), std::end(kRules), [&](Rule const& rule) {
        return std::regex_match(call.name, std::regex(rule.calls)) &&
               std::regex_match(call.path, std::regex(rule.path));
      });
  return found == std::end(kRules) ? nullptr : found;
}

std::string Describe(Point const& point) {
  return std::string(point.sound ? "upgrade" : "rollback") + ": " + point.call.name + " " +
         point.call.path + " [" + point.fault->name +
         (point.spread == Spread::kOnce ? "" : " onwards") +
         (point.spread == Spread::kOnwardsButTheLog ? " but for the log]" : "]");
}

class FaultSweep : public testing::Test {
 protected:
  void SetUp() override {
    std::string reason;
    if (!test::CanTrace(reason)) GTEST_SKIP() << reason;
  }
  std::string const& Package(bool sound) const {
    return sound ? material_.sound : material_.damaged;
  }

  void CollectPoints(bool sound) {
    SweepSandbox box(material_);
    box.Begin(test::Beginning::kFormer);
    TracedRun const run = box.Launch(Package(sound), {});
    ASSERT_EQ(run.outcome.status, 0);
    // Ahead of the last entry that can be counted, and ahead of the backup's removal.
    EXPECT_EQ(std::count_if(run.calls.begin(), run.calls.end(),
                            [](auto const& call) { return call.name == "syncfs"; }),
              sound ? 2 : 1);
    for (unsigned i = 0; i < run.calls.size(); ++i) {
      for (Fault const& fault : kFaults) {
        if (test::IsShort() && !fault.in_short) continue;
        if (fault.action == Injection::Action::kShorten && run.calls[i].name != "write") continue;
        for (Spread spread : {Spread::kOnce, Spread::kOnwards, Spread::kOnwardsButTheLog}) {
          bool const spared = run.calls[i].path.rfind(kLogFolder, 0) == 0;
          if (spread == Spread::kOnwardsButTheLog && spared) continue;
          points_.push_back({sound, run.calls[i], i + 1, &fault, spread});
        }
      }
    }
  }

  static Injection InjectionOf(Point const& point) {
    Injection injection;
    injection.action = point.fault->action;
    injection.error = point.fault->error;
    injection.at = point.number;
    if (point.spread == Spread::kOnwardsButTheLog) injection.spared = kLogFolder;
    if (point.spread != Spread::kOnce) {
      injection.count = point.fault->error == EINTR ? kInterruptions : Injection::kOnwards;
    }
    return injection;
  }

  void Check(SweepSandbox& box, Point const& point) {
    box.Begin(test::Beginning::kFormer);
    TracedRun const run = box.Launch(Package(point.sound), InjectionOf(point));
    std::string const what = Describe(point);
    EXPECT_GE(run.hits, 1U) << what;
    EXPECT_EQ(run.outcome.status, 0) << what << ", signal " << run.outcome.signal;
    ExpectATree(box, point, what);
    ExpectStarted(box, what);
    if (point.spread == Spread::kOnwards) {
      onwards_.Add(box.State());
    } else {
      std::string const log = box.sandbox().RawLog() + run.outcome.err;
      ExpectLine(box, point, log, what);
    }
  }

  void ExpectATree(SweepSandbox const& box, Point const& point, std::string const& what) {
    if (box.HoldsFormer() || box.HoldsCarried()) return;
    // The one way to lose the old tree: it can't be looked at just when it is to be moved aside,
    // the package turns out to be damaged, and it has been unpacked into the old tree.
    bool const known = !point.sound && point.spread == Spread::kOnce && point.call.name == "stat" &&
                       point.call.path == ".Larkmoor/Larkmoor.app";
    EXPECT_TRUE(known) << what << ": " << box.State();
    lost_.Add(kNotThere);
  }

  static void ExpectStarted(SweepSandbox const& box, std::string const& what) {
    std::string const client = box.sandbox().App() + "/Contents/MacOS/larkmoor-drive-ui";
    // What the fault has left empty can't run.
    bool const stands = std::filesystem::exists(client) && !test::ReadFile(client).empty();
    EXPECT_EQ(box.Starts(), stands ? 1U : 0U) << what;
  }

  void ExpectLine(SweepSandbox const& box, Point const& point, std::string const& log,
                  std::string const& what) {
    Rule const* const rule = RuleFor(point.call);
    ASSERT_NE(rule, nullptr) << what << ": nothing says what this call has to log; it logged "
                             << log;
    auto const has = [&](std::string const& line) { return log.find(line) != std::string::npos; };
    bool const told = std::any_of(rule->lines.begin(), rule->lines.end(), has);
    bool const shortened = point.fault->action == Injection::Action::kShorten;
    bool const undone = !box.HoldsCarried();
    test::Tally& tally = point.spread == Spread::kOnce ? once_ : spared_;
    if (box.Starts() == 0 && rule->unless != kLog) {
      EXPECT_TRUE(has("Failed to launch Larkmoor UI")) << what << ": " << log;
    }
    if (undone && rule->unless != kTarget && rule->unless != kLog) {
      EXPECT_TRUE(has("Failed to upgrade package")) << what << ": " << log;
    }
    if (told) {
      tally.Add("told in the log");
    } else if (shortened) {
      EXPECT_EQ(undone, !point.sound) << what << ": " << log;
      tally.Add("not told: the rest of a short write is written");
    } else if (rule->unless != nullptr) {
      tally.Add(std::string("not told: ") + rule->unless);
    } else {
      ADD_FAILURE() << what << " logged " << log;
    }
  }

  test::SweepMaterial const material_{test::SweepMaterial::Size::kTiny};
  std::vector<Point> points_;
  test::Tally once_;
  test::Tally onwards_;
  test::Tally spared_;
  test::Tally lost_;
};

TEST_F(FaultSweep, EndsWithATreeAndALineAtEveryCall) {
  for (bool sound : {true, false}) CollectPoints(sound);
  test::ForEachPoint(points_.size(), material_,
                     [&](SweepSandbox& box, size_t i) { Check(box, points_[i]); });
  auto const report = [](char const* title, test::Tally const& tally) {
    test::Report(std::string(title) + ": " + std::to_string(tally.Sum()) + " points");
    for (auto const& [name, count] : tally.counts()) {
      test::Report("  " + name + ": " + std::to_string(count));
    }
  };
  report("failing once", once_);
  report("failing from then on, by what is left", onwards_);
  report("failing from then on, but for the log", spared_);
  report("the old tree spoilt", lost_);
  // One call, whatever its error.
  EXPECT_EQ(lost_.Sum(), test::IsShort() ? 3U : 7U);
}

}  // namespace
