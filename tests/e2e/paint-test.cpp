// What the user sees of a run, by paint events and by the pixels of the screen.
#include <gmock/gmock.h>

#include <sstream>

#include "support/sandbox.h"
#include "support/x-server.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr char kReady[] = "paint 100 Larkmoor Drive is ready.";

/// A screen to paint on: in memory or on an X server.
class Painting : public testing::TestWithParam<char const*> {
 protected:
  void SetUp() override {
    test::PreferMemory();
    if (GetParam() == std::string("offscreen")) return;
    if (!test::XServer::IsInstalled()) GTEST_SKIP() << "Xvfb is not installed";
    server = std::make_unique<test::XServer>();
  }

  /// The records of the witness in the launcher for one run.
  std::vector<std::string> Run(test::Sandbox const& box,
                               std::string const& locale = "en_US.UTF-8") const {
    test::Process::Options start = box.Start();
    start.environment["LC_ALL"] = locale;
    start.environment["LARKMOOR_TEST_WITNESS"] = box.folder() / "witness";
    if (char const* keep = getenv("LARKMOOR_TEST_PICTURES")) {
      start.environment["LARKMOOR_TEST_WITNESS_PICTURE"] =
          std::string(keep) + "/last-" + GetParam() + ".png";
    }
    if (server != nullptr) {
      start.environment["QT_QPA_PLATFORM"] = "xcb";
      start.environment["DISPLAY"] = server->Display();
    }
    EXPECT_EQ(test::Run(start).status, 0);
    std::vector<std::string> seen;
    if (!std::filesystem::exists(box.folder() / "witness")) return seen;
    std::istringstream lines(test::ReadFile(box.folder() / "witness"));
    for (std::string line; std::getline(lines, line);) seen.push_back(line);
    return seen;
  }

  /// Runs once on each, always a first installation.
  void ExpectReadyBeforeTheWindowGoes(int files) const {
    char const* const wanted = getenv("LARKMOOR_TEST_PAINT_RUNS");
    int const runs = wanted == nullptr ? kRuns : atoi(wanted);
    std::string const package =
        test::MakeArchive(test::Sandbox::ClientWithFiles(100, files), "gnutar", "gzip");
    for (int run = 0; run < runs; ++run) {
      test::Sandbox box(LARKMOOR_TEST_LAUNCHER_WITH_WITNESS);
      box.CarryVersion(100);
      box.CarryPackage(package);
      std::vector<std::string> const seen = Run(box);
      EXPECT_THAT(seen, Contains(kReady)) << "run " << run;
      ASSERT_THAT(seen, Not(IsEmpty()));
      EXPECT_EQ(seen.back(), "hide shown") << "run " << run;
      EXPECT_THAT(box.AwaitStarts(1), ElementsAre("100"));
    }
  }

  static constexpr int kRuns = 4;
  std::unique_ptr<test::XServer> server;
};

/// Needs an X server: in memory, a window always appears.
class PaintingOnAScreen : public Painting {};

TEST_P(Painting, ShowsTheReadyTextBeforeHidingForASmallPackage) {
  ExpectReadyBeforeTheWindowGoes(60);
}

TEST_P(Painting, ShowsTheReadyTextBeforeHidingForALargePackage) {
  ExpectReadyBeforeTheWindowGoes(3000);
}

TEST_P(Painting, ShowsNothingWhenThereIsNothingToDo) {
  test::Sandbox box(LARKMOOR_TEST_LAUNCHER_WITH_WITNESS);
  box.Carry(100);
  box.Install(100);
  EXPECT_THAT(Run(box), IsEmpty());
}

TEST_P(Painting, NeverShowsTheReadyTextAfterAFailure) {
  test::Sandbox box(LARKMOOR_TEST_LAUNCHER_WITH_WITNESS);
  box.CarryVersion(100);
  std::vector<test::Entry> entries = test::Sandbox::ClientWithFiles(100, 60);
  entries.push_back(test::Entry::File("../climbs", "1"));
  box.CarryPackage(test::MakeArchive(entries));
  std::vector<std::string> const seen = Run(box);
  EXPECT_THAT(seen, Contains("show"));
  EXPECT_THAT(seen, Contains(StartsWith("hide")));
  EXPECT_THAT(seen, Not(Contains(testing::HasSubstr("ready"))));
  EXPECT_THAT(seen, Not(Contains(StartsWith("paint 100"))));
}

TEST_P(Painting, ShowsTheTextsInTheLanguageOfTheSystem) {
  test::Sandbox box(LARKMOOR_TEST_LAUNCHER_WITH_WITNESS);
  box.Carry(100);
  std::vector<std::string> const seen = Run(box, "de_DE.UTF-8");
  EXPECT_THAT(seen, Contains("paint 100 Larkmoor Drive ist bereit."));
  EXPECT_THAT(seen, Contains("hide shown"));
}

TEST_P(PaintingOnAScreen, EndsEvenIfTheWindowNeverAppears) {
  test::Process::Options manager;
  manager.arguments = {LARKMOOR_TEST_HOLD_WINDOWS};
  manager.environment = {{"DISPLAY", server->Display()}};
  test::Process const holding(manager);
  ASSERT_TRUE(test::WaitUntil([&] { return !holding.Output().empty(); }));
  test::Sandbox box(LARKMOOR_TEST_LAUNCHER_WITH_WITNESS);
  box.Carry(100);
  EXPECT_THAT(Run(box), ElementsAre("show", "hide stale"));
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("100"));
}

INSTANTIATE_TEST_SUITE_P(Screens, Painting, testing::Values("offscreen", "xcb"),
                         [](auto const& screen) { return std::string(screen.param); });
INSTANTIATE_TEST_SUITE_P(Screens, PaintingOnAScreen, testing::Values("xcb"),
                         [](auto const& screen) { return std::string(screen.param); });

}  // namespace
