// The dialog on a real X server: what the user sees, and how it reacts to the user.
#include <gmock/gmock.h>
#include <signal.h>
#include <unistd.h>

#include <memory>
#include <sstream>

#include "support/fifo-package.h"
#include "support/sandbox.h"
#include "support/x-server.h"

namespace fs = std::filesystem;

namespace {

/// Runs an X tool and returns its output.
std::string Tool(std::vector<std::string> const& words, std::string const& display) {
  test::Process::Options options;
  options.arguments = words;
  options.environment = {{"DISPLAY", display}};
  return test::Run(options).out;
}

bool IsInstalled(std::string const& tool) {
  return test::Run({{"sh", "-c", "command -v " + tool}, {}, "", "", false}).status == 0;
}

class Window : public testing::Test {
 protected:
  void SetUp() override {
    for (char const* tool : {"Xvfb", "xdotool", "import"}) {
      if (!IsInstalled(tool)) GTEST_SKIP() << tool << " is not installed (scripts/setup does it)";
    }
    server = std::make_unique<test::XServer>();
    display = server->Display();
    box.LogEverything();
    box.Carry(100);
  }

  test::Process::Options Start() const {
    test::Process::Options options = box.Start();
    options.environment["QT_QPA_PLATFORM"] = "xcb";
    options.environment["DISPLAY"] = display;
    return options;
  }
  /// The number of the dialog's window on the screen; empty if there is none.
  std::string FindDialog() const {
    std::istringstream found(
        Tool({"xdotool", "search", "--onlyvisible", "--name", "^Larkmoor Drive$"}, display));
    std::string id;
    found >> id;
    return id;
  }
  std::string AwaitDialog() const {
    std::string id;
    EXPECT_TRUE(test::WaitUntil([&] { return !(id = FindDialog()).empty(); }));
    return id;
  }

  test::Sandbox box;
  std::unique_ptr<test::XServer> server;
  std::string display;
};

TEST_F(Window, ShowsTheDialogDuringAnUpgradeAndHidesItAtTheEnd) {
  std::vector<test::Entry> entries = test::Sandbox::Client(100);
  for (int i = 0; i < 60; ++i) {
    entries.push_back(
        test::Entry::File("Contents/Resources/" + std::to_string(i), std::string(2000, 'x')));
  }
  box.CarryPackage(test::MakeArchive(entries));
  test::FifoPackage package(box);
  test::Process launcher(Start());
  package.FeedUntilHalfWritten(launcher.pid());
  std::string const dialog = AwaitDialog();

  EXPECT_THAT(Tool({"xdotool", "getwindowgeometry", "--shell", dialog}, display),
              testing::HasSubstr("WIDTH=400\n"));
  // The picture has more colours than an empty window.
  std::string const picture = box.folder() / "dialog.png";
  ASSERT_TRUE(test::WaitUntil([&] {
    Tool({"import", "-window", dialog, picture}, display);
    std::string const colours = Tool({"identify", "-format", "%k", picture}, display);
    return !colours.empty() && std::stoi(colours) > 20;
  }));
  if (char const* keep = getenv("LARKMOOR_TEST_PICTURES")) {
    fs::copy_file(picture, fs::path(keep) / "dialog.png", fs::copy_options::overwrite_existing);
  }

  package.FeedTheRest();
  EXPECT_EQ(launcher.Wait().status, 0);
  EXPECT_EQ(FindDialog(), "");
  EXPECT_THAT(box.AwaitStarts(1), testing::ElementsAre("100"));
}

TEST_F(Window, DoesNotAppearWhenThereIsNothingToDo) {
  box.Install(100);
  EXPECT_EQ(test::Run(Start()).status, 0);
  EXPECT_EQ(FindDialog(), "");
}

TEST_F(Window, KeepsWorkingAfterTheEscapeKey) {
  test::FifoPackage package(box);
  test::Process launcher(Start());
  package.FeedUntilHalfWritten(launcher.pid());
  std::string const dialog = AwaitDialog();
  ASSERT_TRUE(test::WaitUntil([&] {
    Tool({"xdotool", "windowfocus", "--sync", dialog, "key", "Escape"}, display);
    return FindDialog().empty();
  }));
  ASSERT_TRUE(launcher.Running()) << launcher.Wait().err;
  package.FeedTheRest();
  EXPECT_EQ(launcher.Wait().status, 0);
  EXPECT_THAT(box.AwaitStarts(1), testing::ElementsAre("100"));
}

TEST_F(Window, KeepsWorkingWhenTheWindowManagerClosesIt) {
  test::FifoPackage package(box);
  test::Process launcher(Start());
  package.FeedUntilHalfWritten(launcher.pid());
  std::string const dialog = AwaitDialog();
  Tool({LARKMOOR_TEST_CLOSE_WINDOW, dialog}, display);
  EXPECT_TRUE(test::WaitUntil([this] { return FindDialog().empty(); }));
  ASSERT_TRUE(launcher.Running()) << launcher.Wait().err;
  package.FeedTheRest();
  EXPECT_EQ(launcher.Wait().status, 0);
  EXPECT_THAT(box.AwaitStarts(1), testing::ElementsAre("100"));
}

TEST_F(Window, IsInTheLanguageOfTheSystem) {
  for (auto const& [locale, catalogue] :
       std::map<std::string, std::string>{{"de_AT", "deu"}, {"pt_PT", "ptg"}, {"fi_FI", "enu"}}) {
    test::Process::Options start = Start();
    start.environment["LC_ALL"] = locale + ".UTF-8";
    EXPECT_THAT(test::Run(start).err, testing::HasSubstr("[:/" + catalogue + ".qm]"));
  }
}

}  // namespace
