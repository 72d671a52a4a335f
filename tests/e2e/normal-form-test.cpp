// Upgrades of clients, and in homes, with names that aren't in composed normal form.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "support/normal-forms.h"
#include "support/sandbox.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using test::kComposed;
using test::kDecomposed;
using test::MakeArchive;
using test::ReadTree;
using test::Sandbox;
using testing::ElementsAre;

constexpr int kBuilds = 13;  // more than there are names for backups

constexpr size_t kTwins = 2;

/// A client with files, folders and symlinks of such names and two twins: a file and a folder.
std::vector<Entry> Client(int build) {
  std::vector<Entry> entries = Sandbox::Client(build);
  auto const add = [&entries](Entry entry) { entries.insert(entries.end() - 2, std::move(entry)); };
  // A word, a syllable and a letter without a composed form.
  for (std::string const name :
       {kDecomposed, "\xE1\x84\x80\xE1\x85\xA1\xE1\x86\xA8", "\xE0\xA5\x98"}) {
    add(Entry::File("Contents/Resources/" + name, name + std::to_string(build)));
    add(Entry::Folder("Contents/Resources/in " + name));
    add(Entry::Folder("Contents/Resources/in " + name + "/" + name));
    add(Entry::File("Contents/Resources/in " + name + "/" + name + "/file", "1"));
    add(Entry::Link("Contents/Resources/to " + name, "in " + name));
  }
  add(Entry::File("Contents/Resources/" + std::string(kComposed), "twin"));
  add(Entry::Folder("Contents/Resources/in " + std::string(kComposed)));
  add(Entry::File("Contents/Resources/in " + std::string(kComposed) + "/other", "1"));
  return entries;
}

/// Whether the temporary folder distinguishes normal forms, which macOS volumes don't. There, a
/// twin replaces the equivalent file, and is the same as the equivalent folder.
bool FormsAreApart() {
  test::TempDir folder;
  test::WriteFile(folder / kDecomposed, "");
  return !fs::exists(folder / kComposed);
}

class NormalForm : public testing::TestWithParam<char const*> {
 protected:
  NormalForm() : box(LARKMOOR_TEST_LAUNCHER, GetParam()) {}
  void Carry(int build) {
    box.CarryVersion(build);
    box.CarryPackage(MakeArchive(Client(build), "gnutar", "gzip"));
  }
  std::vector<std::string> Installed() const {
    std::vector<std::string> names;
    for (auto const& entry : fs::directory_iterator(box.UserRoot())) {
      names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  bool const apart = FormsAreApart();
  Sandbox box;
};

TEST_P(NormalForm, OfNamesInAClientLeavesNoBackupOfBuildAfterBuild) {
  size_t const merged = apart ? 0 : kTwins;
  for (int build = 1; build <= kBuilds; ++build) {
    Carry(build);
    ASSERT_EQ(box.Launch().status, 0);
    ASSERT_EQ(box.AwaitStarts(static_cast<size_t>(build)).back(), std::to_string(build));
    ASSERT_EQ(ReadTree(box.App()).size(), Client(build).size() - merged) << box.RawLog();
    ASSERT_THAT(Installed(), ElementsAre("Larkmoor.app", "log"));
  }
  std::string const resources = box.App() + "/Contents/Resources/";
  EXPECT_EQ(test::ReadFile(resources + kDecomposed),
            apart ? kDecomposed + std::to_string(kBuilds) : "twin");
  EXPECT_EQ(test::ReadFile(resources + kComposed), "twin");
  EXPECT_EQ(fs::exists(resources + "in " + kDecomposed + "/other"), !apart);
  EXPECT_EQ(box.RawLog(), "");
}

TEST_P(NormalForm, OfNamesInAClientDoesNotMakeAPlainStartAnUpgrade) {
  box.LogEverything();
  Carry(1);
  ASSERT_EQ(box.Launch().status, 0);
  box.ForgetLog();
  ASSERT_EQ(box.Launch().status, 0);
  EXPECT_THAT(box.RawLog(), testing::Not(testing::HasSubstr("extract package")));
  EXPECT_THAT(box.AwaitStarts(2), ElementsAre("1", "1"));
}

TEST_P(NormalForm, OfNamesInADamagedPackageAllowsTheRollback) {
  Carry(1);
  ASSERT_EQ(box.Launch().status, 0);
  test::Tree const old = ReadTree(box.App());
  std::vector<Entry> entries = Client(2);
  entries.insert(entries.end() - 2, Entry::File("Contents/Resources/../damage", ""));
  box.CarryVersion(2);
  box.CarryPackage(MakeArchive(entries, "gnutar", "gzip"));
  ASSERT_EQ(box.Launch().status, 0);
  EXPECT_EQ(ReadTree(box.App()), old) << box.RawLog();
  EXPECT_THAT(box.AwaitStarts(2), ElementsAre("1", "1"));
  EXPECT_THAT(Installed(), ElementsAre("Larkmoor.app", "log"));
}

// Impossible on macOS volumes.
class BytesThatAreNoUtf8 : public testing::Test {
 protected:
  void SetUp() override {
    if (mkdir((box.folder() / "\xFF").c_str(), 0700) != 0) {
      GTEST_SKIP() << "the volume takes no such name";
    }
  }
  /// A client with such a name and more entries after it.
  static std::vector<Entry> Client(int build) {
    std::vector<Entry> entries = Sandbox::Client(build);
    entries.insert(entries.begin(), Entry::File("Contents/Resources/\xFF", "1"));
    return entries;
  }
  Sandbox box;
};

TEST_F(BytesThatAreNoUtf8, AreInstalledAndLeaveTheBackupOfTheNextUpgrade) {
  for (int build = 1; build <= 2; ++build) {
    box.CarryVersion(build);
    box.CarryPackage(MakeArchive(Client(build), "gnutar", "gzip"));
    ASSERT_EQ(box.Launch().status, 0);
    EXPECT_EQ(ReadTree(box.App()).size(), Client(build).size()) << box.RawLog();
  }
  EXPECT_THAT(box.AwaitStarts(2), ElementsAre("1", "2"));
  EXPECT_TRUE(fs::exists(box.App() + "_tmp/Contents/Resources/\xFF"));
}

TEST_F(BytesThatAreNoUtf8, LeaveTheOldTreeInItsBackupWhenThePackageIsDamagedBehindThem) {
  box.Install(1);
  test::Tree const old = ReadTree(box.App());
  std::vector<Entry> entries = Client(2);
  entries.insert(entries.end() - 2, Entry::File("Contents/Resources/../damage", ""));
  box.CarryVersion(2);
  box.CarryPackage(MakeArchive(entries, "gnutar", "gzip"));
  ASSERT_EQ(test::Run(box.Start()).status, 0);
  EXPECT_EQ(ReadTree(box.App() + "_tmp"), old) << box.RawLog();
  EXPECT_TRUE(fs::exists(box.App() + "/Contents/Resources/\xFF"));
}

INSTANTIATE_TEST_SUITE_P(Homes, NormalForm, testing::Values("home", kDecomposed),
                         [](auto const& home) {
                           return std::string(home.param == kDecomposed ? "Decomposed" : "Plain");
                         });

}  // namespace
