// The complete log of each kind of run.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "support/sandbox.h"
#include "support/unprivileged.h"

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

class WholeLog : public testing::Test {
 protected:
  WholeLog() { box.LogEverything(); }

  static void Append(Lines& lines, Lines const& more) {
    lines.insert(lines.end(), more.begin(), more.end());
  }
  /// The log of statting an existing file.
  static Lines Looked(std::string const& path) {
    return {"[DEBUG] file-op(0): Input file path = [" + path + "].",
            "[DEBUG] file-op(0): FSRefMakePath outTargetPath path = [" + path + "]."};
  }
  /// FSStat stats twice: for existence, and for the metadata.
  static Lines Stated(std::string const& path) {
    Lines lines = Looked(path);
    Append(lines, Looked(path));
    return lines;
  }
  Lines Running(std::string const& source, std::string const& target) const {
    Lines lines = {"[DEBUG] launcher(0): running",
                   "[INFO] larkmoor-service(0): target_version = (3, 1, " + target + ", 12)"};
    if (source.empty()) {
      lines.push_back("[INFO] larkmoor-service(0): source does not exist");
    } else {
      Append(lines, Looked(box.App() + "/Contents/Resources/INFO"));
      lines.push_back("[INFO] larkmoor-service(0): source_version = (3, 1, " + source + ", 12)");
    }
    Append(lines, {"[DEBUG] mac/mac-service(0): Source version: ('" + source + "', '" +
                       (source.empty() ? "" : "12") + "')",
                   "[DEBUG] mac/mac-service(0): Target version: ('" + target + "', '12')",
                   "[DEBUG] mac/mac-service(0): source version = " +
                       (source.empty() ? "0" : source) + ", target version = " + target});
    return lines;
  }
  Lines Unpacking() const {
    return {"[INFO] larkmoor-service(0): extract package: '" + box.Package() + "' -> '" +
                box.App() + "'",
            "[DEBUG] extractor(0): decompress from '" + box.Package() + "' to '" + box.App() + "'"};
  }
  /// The log of stopping a client without a pid file, and of renaming the old tree aside.
  Lines MovingAside() const {
    Lines lines = {"[DEBUG] mac/mac-service(0): local appdata exist",
                   "[DEBUG] mac/mac-service(0): pid file '" + box.UserRoot() +
                       "/ui.pid' does not exist, no need to terminate"};
    Append(lines, Looked(box.App()));
    Append(lines, Stated(box.App()));
    return lines;
  }
  Lines Ending() const {
    return {"[INFO] larkmoor-service(0): removing aged app folder " + box.UserRoot() + "/app",
            "[DEBUG] launcher(0): done"};
  }
  /// The log of removing a tree, in the file system's order.
  static Lines RemovalOf(std::string const& root, test::Tree const& tree) {
    Lines lines = Looked(root);
    for (auto const& [path, node] : tree) Append(lines, Looked(root + "/" + path));
    return lines;
  }
  /// The log of an upgrade from build 100 to build 200.
  void ExpectUpgrade(Lines const& log, test::Tree const& old_tree) const {
    Lines before = Running("100", "200");
    Append(before, MovingAside());
    Append(before, Unpacking());
    Append(before, {"[INFO] larkmoor-service(0): user installation is ready, removing backup app"});
    Lines const removal = RemovalOf(box.App() + "_tmp", old_tree);
    ASSERT_EQ(log.size(), before.size() + removal.size() + Ending().size());
    auto const removed = log.begin() + static_cast<std::ptrdiff_t>(before.size());
    auto const ended = removed + static_cast<std::ptrdiff_t>(removal.size());
    EXPECT_EQ(Lines(log.begin(), removed), before);
    // Two lines per file; the file system determines the order.
    EXPECT_EQ(*removed, removal.front());
    Lines sorted(removed, ended);
    Lines expected = removal;
    std::sort(sorted.begin(), sorted.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(sorted, expected);
    EXPECT_EQ(Lines(ended, log.end()), Ending());
  }
  /// The records on standard error; Qt and the choice of language write there too.
  static Lines Records(test::Outcome const& outcome) {
    std::istringstream in(outcome.err);
    std::string records;
    for (std::string line; std::getline(in, line);) {
      if (line.substr(0, 17).rfind(" [") == 15) records += line + "\n";  // after a time stamp
    }
    return test::NormaliseLog(records);
  }
  /// Creates the files that a rotation without a path would rename and remove.
  void MakeGenerationsOfNothing() const {
    for (char const* name : kGenerations) test::WriteFile(box.Home() + "/" + name, name);
  }
  void ExpectNothingRotated() const {
    for (char const* name : kGenerations) EXPECT_EQ(test::ReadFile(box.Home() + "/" + name), name);
    EXPECT_FALSE(fs::exists(box.Home() + "/_2"));
    EXPECT_FALSE(fs::exists(box.LogFile() + "_0"));
  }

  static constexpr char const* kGenerations[] = {"_0", "_1", "_49"};
  test::Sandbox box;
};

TEST_F(WholeLog, OfAFirstInstall) {
  box.Carry(100);

  EXPECT_EQ(box.Launch().status, 0);

  Lines expected = Running("", "100");
  Append(expected, Unpacking());
  Append(expected, {"[INFO] larkmoor-service(0): user installation is ready, removing backup app"});
  Append(expected, Ending());
  EXPECT_EQ(box.Log(), expected);
}

TEST_F(WholeLog, OfAPlainStart) {
  box.Carry(100);
  box.Install(100);

  EXPECT_EQ(box.Launch().status, 0);

  Lines expected = Running("100", "100");
  Append(expected, {"[DEBUG] launcher(0): no need to upgrade"});
  Append(expected, Ending());
  EXPECT_EQ(box.Log(), expected);
}

TEST_F(WholeLog, OfAnUpgrade) {
  box.Carry(200);
  box.Install(100);
  test::Tree const old_tree = test::ReadTree(box.App());

  EXPECT_EQ(box.Launch().status, 0);

  ExpectUpgrade(box.Log(), old_tree);
}

TEST_F(WholeLog, OfARollback) {
  box.CarryVersion(200);
  box.CarryPackage(
      test::MakeArchive({test::Entry::File("only", "1"), test::Entry::File("../climbs", "2")}));
  box.Install(100);

  EXPECT_EQ(box.Launch().status, 0);

  Lines expected = Running("100", "200");
  Append(expected, MovingAside());
  Append(expected, Unpacking());
  Append(expected,
         {"[ERROR] extractor(0): archive_read_extract2 failed: 'Path contains '..''",
          "[ERROR] larkmoor-service(0): Failed to extract package, rollback to old installation"});
  Append(expected, Looked(box.App()));
  Append(expected, Looked(box.App() + "/only"));
  Append(expected, Stated(box.App() + "_tmp"));
  Append(expected, {"[ERROR] launcher(0): Failed to upgrade package"});
  Append(expected, Ending());
  EXPECT_EQ(box.Log(), expected);
}

TEST_F(WholeLog, ContainsEachRecordFromTheLevelOfItsTagOn) {
  box.CarryVersion(200);
  box.CarryPackage(
      test::MakeArchive({test::Entry::File("only", "1"), test::Entry::File("../climbs", "2")}));
  box.Install(100);
  box.Launch();  // rolls back, so the next start finds the same state
  Lines const all = box.Log();
  std::vector<std::string> const tags = {"[ERROR] ", "[WARNING] ", "[NOTE] ", "[INFO] ",
                                         "[DEBUG] "};
  Lines expected;
  for (int threshold = 2; threshold <= 7; ++threshold) {
    std::string levels;
    for (char const* component : {"launcher", "service", "extractor", "file_op"}) {
      levels += std::string(component) + "_debug=" + std::to_string(threshold) + "\n";
    }
    box.WriteLevelFile(levels);
    box.ForgetLog();
    box.Launch();
    expected.clear();
    for (std::string const& line : all) {
      for (int number = 3; number <= threshold; ++number) {
        if (line.rfind(tags.at(static_cast<size_t>(number - 3)), 0) == 0) expected.push_back(line);
      }
    }
    EXPECT_EQ(box.Log(), expected) << "threshold " << threshold;
  }
  EXPECT_EQ(expected, all);
}

TEST_F(WholeLog, OfARunWithoutLevelFileIsEmpty) {
  fs::remove(box.Bundle() + "/log/launcher.debug");
  box.Carry(100);
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_EQ(box.RawLog(), "");
}

TEST_F(WholeLog, KeepsFortyNineOldFilesBesidesTheLiveOne) {
  box.Carry(200);
  box.Install(100);
  // Each removed file logs its path twice: enough of them fill a log file.
  for (int i = 0; i < 2500; ++i) {
    test::WriteFile(box.App() + "/Contents/" + std::string(200, 'n') + std::to_string(i), "");
  }
  test::WriteFile(box.LogFile() + "_47", "47");
  test::WriteFile(box.LogFile() + "_48", "48");

  EXPECT_EQ(box.Launch().status, 0);

  EXPECT_TRUE(fs::exists(box.LogFile() + "_0"));
  EXPECT_EQ(test::ReadFile(box.LogFile() + "_48"), "47");
  EXPECT_FALSE(fs::exists(box.LogFile() + "_49"));
}

TEST_F(WholeLog, GoesToStandardErrorIfAFolderIsInTheWay) {
  box.Carry(200);
  box.Install(100);
  test::Tree const old_tree = test::ReadTree(box.App());
  fs::create_directories(box.LogFile());
  MakeGenerationsOfNothing();

  test::Outcome const outcome = box.Launch();

  EXPECT_EQ(outcome.status, 0);
  ExpectUpgrade(Records(outcome), old_tree);
  ExpectNothingRotated();
  EXPECT_TRUE(fs::is_empty(box.LogFile()));
}

TEST_F(WholeLog, GoesToStandardErrorIfAnotherUserOwnsTheFile) {
  box.Carry(200);
  box.Install(100);
  test::Tree const old_tree = test::ReadTree(box.App());
  test::WriteFile(box.LogFile(), "of a start as root\n");
  // Only root can create a file of root's; otherwise, one that nobody may open does.
  chmod(box.LogFile().c_str(), geteuid() == 0 ? 0600 : 0);
  MakeGenerationsOfNothing();
  test::GiveAway(box.folder().path().c_str());
  for (auto const& entry : fs::recursive_directory_iterator(box.folder().path())) {
    if (entry.path() != box.LogFile() && !entry.is_symlink()) {
      test::GiveAway(entry.path().c_str());
    }
  }

  test::RunUnprivileged([&] {
    test::Outcome const outcome = box.Launch();
    EXPECT_EQ(outcome.status, 0);
    ExpectUpgrade(Records(outcome), old_tree);
  });

  ExpectNothingRotated();
  chmod(box.LogFile().c_str(), 0600);
  EXPECT_EQ(box.RawLog(), "of a start as root\n");
}

TEST_F(WholeLog, OnStandardErrorIsNotRotated) {
  box.Carry(200);
  box.Install(100);
  for (int i = 0; i < 2000; ++i) {
    test::WriteFile(box.App() + "/Contents/" + std::string(200, 'n') + std::to_string(i), "");
  }
  fs::create_directories(box.LogFile());
  MakeGenerationsOfNothing();

  test::Outcome const outcome = box.Launch();

  EXPECT_EQ(outcome.status, 0);
  EXPECT_GT(outcome.err.size(), 1100000U);
  EXPECT_THAT(outcome.err, testing::EndsWith("): done\n"));
  ExpectNothingRotated();
}

TEST_F(WholeLog, BeginsEachRecordWithAStamp) {
  box.Carry(100);
  box.Launch();
  EXPECT_THAT(box.RawLog(),
              testing::ContainsRegex("^[A-Z][a-z][a-z] [0-9][0-9] [0-9][0-9]:[0-9][0-9]:[0-9][0-9] "
                                     "\\[DEBUG\\] launcher\\([0-9]+\\): running\n"));
}

}  // namespace
