// Makes each system call of an upgrade fail in turn.
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
  bool in_short;  ///< also in the short form: one for each way that errors are distinguished
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

/// A call that is retried after EINTR would loop forever if EINTR were permanent.
constexpr unsigned kInterruptions = 25;

/// Which calls fail.
enum class Spread {
  kOnce,
  kOnwards,
  kOnwardsExceptLog  ///< as if the log were on another disk, so that it records all failures
};

struct Point {
  bool sound;
  test::SystemCall call;
  unsigned number;
  Fault const* fault;
  Spread spread;
};

/// What the log must contain after a failed call: one of `lines`, unless there is a reason `unless`
/// for which it may contain none. The first rule that matches applies.
struct Rule {
  char const* calls;
  char const* path;
  std::vector<std::string> lines;
  char const* unless;
};

constexpr char kLogFolder[] = ".Larkmoor/log";

constexpr char kLog[] = "the log can't report its own failure";
constexpr char kIcon[] = "the dialog has no icon";
constexpr char kTarget[] = "an unreadable carried version counts as 0, so there is no upgrade";
constexpr char kSource[] = "an unreadable installed version counts as 0, so there is an upgrade";
constexpr char kPid[] = "an unreadable pid file counts as absent";
constexpr char kBackup[] = "the results of removing a backup are ignored";
constexpr char kRollback[] = "the results of a rollback are ignored";
constexpr char kAged[] = "the results of removing the aged folder are ignored";
constexpr char kClose[] = "the archive library ignores the result of close";
constexpr char kRepeated[] = "repeated after EINTR, or after the last entry";
constexpr char kNotStatted[] =
    "an application folder that can't be statted counts as absent, or isn't flushed";
constexpr char kFlush[] = "a volume that can't be flushed is still installed to";
constexpr char kFirstStat[] = "mkdir decides, not the stat before it";

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
     kRepeated},
    {".*", ".*lpk", {"archive_read_open_filename failed", "Failed to read file"}, nullptr},
    {"mkdir", ".*app", {"failed to create folder"}, nullptr},
    {"access|stat|open|read", ".*INFO", {"archive_read_extract2 failed"}, kSource},
    {"access", ".*larkmoor-drive-ui", {}, kSource},
    {"close", ".*", {}, kClose},
    {"stat|open", ".*app", {"failed to backup app from", "failed to create folder"}, kNotStatted},
    {"stat", "\\.Larkmoor", {"failed to create folder"}, kFirstStat},
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
         (point.spread == Spread::kOnwardsExceptLog ? " except for the log]" : "]");
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
    // Before the last entry is written, and before the backup is removed.
    EXPECT_EQ(std::count_if(run.calls.begin(), run.calls.end(),
                            [](auto const& call) { return call.name == "syncfs"; }),
              sound ? 2 : 1);
    for (unsigned i = 0; i < run.calls.size(); ++i) {
      for (Fault const& fault : kFaults) {
        if (test::IsShort() && !fault.in_short) continue;
        if (fault.action == Injection::Action::kShorten && run.calls[i].name != "write") continue;
        for (Spread spread : {Spread::kOnce, Spread::kOnwards, Spread::kOnwardsExceptLog}) {
          bool const spared = run.calls[i].path.rfind(kLogFolder, 0) == 0;
          if (spread == Spread::kOnwardsExceptLog && spared) continue;
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
    if (point.spread == Spread::kOnwardsExceptLog) injection.spared = kLogFolder;
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
    ExpectTree(box, point, what);
    ExpectStarted(box, what);
    if (point.spread == Spread::kOnwards) {
      onwards_.Add(box.State());
    } else {
      std::string const log = box.sandbox().RawLog() + run.outcome.err;
      ExpectLine(box, point, log, what);
    }
  }

  void ExpectTree(SweepSandbox const& box, Point const& point, std::string const& what) {
    if (box.HoldsFormer() || box.HoldsCarried()) return;
    // The one way to lose the old tree: its stat fails, so it isn't renamed aside, and a damaged
    // package is unpacked over it.
    bool const known = !point.sound && point.spread == Spread::kOnce && point.call.name == "stat" &&
                       point.call.path == ".Larkmoor/Larkmoor.app";
    EXPECT_TRUE(known) << what << ": " << box.State();
    lost_.Add(kNotStatted);
  }

  static void ExpectStarted(SweepSandbox const& box, std::string const& what) {
    std::string const client = box.sandbox().App() + "/Contents/MacOS/larkmoor-drive-ui";
    // The fault may leave the executable empty.
    bool const can_run = std::filesystem::exists(client) && !test::ReadFile(client).empty();
    EXPECT_EQ(box.Starts(), can_run ? 1U : 0U) << what;
  }

  void ExpectLine(SweepSandbox const& box, Point const& point, std::string const& log,
                  std::string const& what) {
    Rule const* const rule = RuleFor(point.call);
    ASSERT_NE(rule, nullptr) << what << ": no rule says what this call must log; it logged " << log;
    auto const has = [&](std::string const& line) { return log.find(line) != std::string::npos; };
    bool const logged = std::any_of(rule->lines.begin(), rule->lines.end(), has);
    bool const shortened = point.fault->action == Injection::Action::kShorten;
    bool const failed = !box.HoldsCarried();
    test::Tally& tally = point.spread == Spread::kOnce ? once_ : spared_;
    if (box.Starts() == 0 && rule->unless != kLog) {
      EXPECT_TRUE(has("Failed to launch Larkmoor UI")) << what << ": " << log;
    }
    if (failed && rule->unless != kTarget && rule->unless != kLog) {
      EXPECT_TRUE(has("Failed to upgrade package")) << what << ": " << log;
    }
    if (logged) {
      tally.Add("logged");
    } else if (shortened) {
      EXPECT_EQ(failed, !point.sound) << what << ": " << log;
      tally.Add("not logged: the rest of a short write is written");
    } else if (rule->unless != nullptr) {
      tally.Add(std::string("not logged: ") + rule->unless);
    } else {
      ADD_FAILURE() << what << " must log a line that is missing here: " << log;
    }
  }

  test::SweepMaterial const material_{test::SweepMaterial::Size::kTiny};
  std::vector<Point> points_;
  test::Tally once_;
  test::Tally onwards_;
  test::Tally spared_;
  test::Tally lost_;
};

TEST_F(FaultSweep, EveryFailedCallLeavesATreeAndALogLine) {
  for (bool sound : {true, false}) CollectPoints(sound);
  test::ForEachPoint(points_.size(), material_,
                     [&](SweepSandbox& box, size_t i) { Check(box, points_[i]); });
  auto const report = [](char const* title, test::Tally const& tally) {
    test::Report(std::string(title) + ": " + std::to_string(tally.Sum()) + " points");
    for (auto const& [name, count] : tally.counts()) {
      test::Report("  " + name + ": " + std::to_string(count));
    }
  };
  report("one failure", once_);
  report("permanent failure, by the state left", onwards_);
  report("permanent failure except for the log", spared_);
  report("the old tree lost", lost_);
  // One call, with each error.
  EXPECT_EQ(lost_.Sum(), test::IsShort() ? 3U : 7U);
}

}  // namespace
