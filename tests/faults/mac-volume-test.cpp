// Upgrades and file operations on a volume that, like a Mac's, ignores case and normal form.
#ifdef LARKMOOR_TEST_MAC_VOLUME_FS
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "faults/volume-fixture.h"
#include "foundation/file-op.h"
#include "support/sandbox.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using test::Sandbox;
using test::Tree;
using test::Volume;

class MacVolume : public Volume {
 protected:
  void SetUp() override {
    fs::create_directories(Behind());
    test::Process::Options options;
    options.arguments = {LARKMOOR_TEST_MAC_VOLUME_FS, Behind(), sandbox_.Home()};
    server_ = std::make_unique<test::Process>(options);
    struct stat behind;
    ASSERT_EQ(stat(Behind().c_str(), &behind), 0);
    bool const up = test::WaitUntil([&] {
      struct stat shown;
      return !server_->Running() ||
             (stat(sandbox_.Home().c_str(), &shown) == 0 && shown.st_dev != behind.st_dev);
    });
    if (!up || !server_->Running()) {
      GTEST_SKIP() << "no FUSE here: " << server_->Wait(std::chrono::seconds(5)).err;
    }
  }
  void TearDown() override { umount2(sandbox_.Home().c_str(), MNT_DETACH); }
  /// The folder that stores the volume.
  std::string Behind() const { return sandbox_.folder() / "behind"; }

  std::unique_ptr<test::Process> server_;
};

TEST_F(MacVolume, IsUpgradedLikeAnyOther) {
  sandbox_.Install(100);
  sandbox_.Carry(200);
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_TRUE(HasBuild(200)) << sandbox_.RawLog();
  EXPECT_EQ(test::ReadTree(sandbox_.App()).size(), Sandbox::Client(200).size());
  EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp"));
}

TEST_F(MacVolume, AnOldTreeInAnotherSpellingIsReplacedByOneInTheLaunchers) {
  sandbox_.Install(100);
  fs::rename(Behind() + "/.Larkmoor/Larkmoor.app", Behind() + "/.Larkmoor/LARKMOOR.APP");
  sandbox_.Carry(200);
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_TRUE(HasBuild(200)) << sandbox_.RawLog();
  EXPECT_TRUE(fs::exists(Behind() + "/.Larkmoor/Larkmoor.app"));
  EXPECT_FALSE(fs::exists(Behind() + "/.Larkmoor/LARKMOOR.APP"));
}

TEST_F(MacVolume, ADamagedPackageIsRolledBack) {
  sandbox_.Install(100);
  Tree const old = test::ReadTree(sandbox_.App());
  sandbox_.Carry(200);
  std::string const package = test::ReadFile(sandbox_.Package());
  sandbox_.CarryPackage(package.substr(0, package.size() / 2));
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_EQ(test::ReadTree(sandbox_.App()), old) << sandbox_.RawLog();
}

TEST_F(MacVolume, TheLaterOfTwoEntriesThatDifferInCaseRemains) {
  std::vector<Entry> entries = Sandbox::Client(200);
  entries.insert(entries.begin() + 3, {Entry::File("Contents/Resources/TWIN", "first"),
                                       Entry::File("Contents/Resources/twin", "second")});
  Carry(entries);
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_EQ(test::ReadFile(sandbox_.App() + "/Contents/Resources/TWIN"), "second");
  EXPECT_TRUE(fs::exists(Behind() + "/.Larkmoor/Larkmoor.app/Contents/Resources/twin"));
  EXPECT_FALSE(fs::exists(Behind() + "/.Larkmoor/Larkmoor.app/Contents/Resources/TWIN"));
}

TEST_F(MacVolume, FSRenameChangesOnlyTheCase) {
  test::WriteFile(sandbox_.Home() + "/name", "bytes");
  std::string const home = sandbox_.Home();
  EXPECT_EQ(FSRename(ustring(home + "/name"), ustring(home + "/NAME"), false), 0);
  EXPECT_TRUE(fs::exists(Behind() + "/NAME"));
  EXPECT_FALSE(fs::exists(Behind() + "/name"));
}

TEST_F(MacVolume, IgnoresCaseAndNormalFormAndPreservesBoth) {
  test::WriteFile(sandbox_.Home() +
                      "/Stra\xC3\x9F"
                      "e cafe\xCC\x81",
                  "bytes");
  EXPECT_EQ(test::ReadFile(sandbox_.Home() + "/STRASSE CAF\xC3\x89"), "bytes");
  EXPECT_TRUE(fs::exists(Behind() + "/Stra\xC3\x9F"
                                    "e cafe\xCC\x81"));
}

TEST_F(MacVolume, RejectsInvalidUtf8InNames) {
  std::string const home = sandbox_.Home();
  EXPECT_NE(mkdir((home + "/\xFF").c_str(), 0700), 0);
  EXPECT_EQ(errno, EILSEQ);
  EXPECT_LT(open((home + "/\xFF").c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600), 0);
  EXPECT_EQ(errno, EILSEQ);
  test::WriteFile(home + "/name", "bytes");
  EXPECT_NE(rename((home + "/name").c_str(), (home + "/\xFF").c_str()), 0);
  EXPECT_EQ(errno, EILSEQ);
  EXPECT_EQ(FSRename(ustring(home + "/name"), ustring(home + "/\xFF"), false), -3);
}

TEST_F(MacVolume, APackageWithANameInInvalidUtf8IsRolledBack) {
  sandbox_.Install(100);
  Tree const old = test::ReadTree(sandbox_.App());
  std::vector<Entry> entries = Sandbox::Client(200);
  entries.insert(entries.begin() + 3, Entry::File("Contents/Resources/\xFF", "bytes"));
  Carry(entries);
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_EQ(test::ReadTree(sandbox_.App()), old) << sandbox_.RawLog();
  EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp"));
}

/// A path below the home as stored, and other spellings of it.
constexpr char kStored[] = "/Users/\u00C9mile/Stra\u00DFe/Foo";
constexpr char kDecomposed[] = "/Users/E\u0301mile/Stra\u00DFe/Foo";
char const* const kInAnotherCase[] = {
    "/Users/\u00C9mile/Stra\u00DFe/foo", "/users/\u00C9mile/Stra\u00DFe/Foo",
    "/Users/\u00E9mile/Stra\u00DFe/Foo", "/Users/e\u0301mile/Stra\u00DFe/Foo",
    "/Users/\u00C9mile/STRASSE/Foo",
};

TEST_F(MacVolume, IsFileExistWithStrictRequiresTheStoredCase) {
  std::string const home = sandbox_.Home();
  test::WriteFile(home + kStored, "bytes");
  for (char const* const name : {kStored, kDecomposed}) {
    EXPECT_TRUE(IsFileExist(ustring(home + name), false)) << name;
    EXPECT_TRUE(IsFileExist(ustring(home + name), true)) << name;
  }
  for (char const* const name : kInAnotherCase) {
    EXPECT_TRUE(IsFileExist(ustring(home + name), false)) << name;
    EXPECT_FALSE(IsFileExist(ustring(home + name), true)) << name;
  }
  EXPECT_FALSE(IsFileExist(ustring(home + "/Users/none"), false));
}

TEST_F(MacVolume, FSStatWithStrictRequiresTheStoredCase) {
  std::string const home = sandbox_.Home();
  test::WriteFile(home + kStored, "bytes");
  for (char const* const name : kInAnotherCase) {
    _FILE_INFO_tag info;
    EXPECT_EQ(FSStat(ustring(home + name), info, true), 0);
    EXPECT_FALSE(info.exists) << name;
    EXPECT_EQ(FSStat(ustring(home + name), info, false), 0);
    EXPECT_TRUE(info.exists) << name;
  }
}

TEST_F(MacVolume, PathsAreReportedInTheStoredCase) {
  std::string const home = sandbox_.Home();
  test::WriteFile(home + kStored, "bytes");
  for (char const* const name : kInAnotherCase) {
    _FILE_INFO_tag info;
    EXPECT_EQ(GetFileInfo(ustring(home + name), info), 0);
    EXPECT_EQ(info.path, ustring(home + kStored));
    ustring real(home + name);
    EXPECT_EQ(FSGetRealPath(real), 0);
    EXPECT_EQ(real, ustring(home + kStored));
  }
}

TEST_F(MacVolume, FSRenameWithStrictFailsForASourceInAnotherCase) {
  std::string const home = sandbox_.Home();
  for (char const* const name : kInAnotherCase) {
    test::WriteFile(home + kStored, "bytes");
    EXPECT_EQ(FSRename(ustring(home + name), ustring(home + "/other"), true), -2) << name;
    EXPECT_TRUE(fs::exists(Behind() + kStored)) << name;
    EXPECT_EQ(FSRename(ustring(home + name), ustring(home + "/other"), false), 0) << name;
    EXPECT_FALSE(fs::exists(Behind() + kStored)) << name;
  }
}

TEST_F(MacVolume, FSRenameWithStrictMovesASourceSpelledAsStored) {
  std::string const home = sandbox_.Home();
  test::WriteFile(home + "/Foo/cafe\xCC\x81", "bytes");
  EXPECT_EQ(FSRename(ustring(home + "/Foo/caf\xC3\xA9"), ustring(home + "/Foo/Bar"), true), 0);
  EXPECT_EQ(FSRename(ustring(home + "/Foo"), ustring(home + "/foo"), true), 0);
  EXPECT_EQ(test::ReadFile(Behind() + "/foo/Bar"), "bytes");
}

TEST_F(MacVolume, FSRemoveRemovesATreeInAnySpelling) {
  std::string const home = sandbox_.Home();
  for (char const* const name : {"/Tree/cafe\xCC\x81/file", "/Tree/B/C", "/Tree/\xE0\xA5\x98"}) {
    test::WriteFile(home + name, "bytes");
  }
  EXPECT_EQ(FSRemove(ustring(home + "/TREE/CAF\xC3\x89"), false), 0);
  EXPECT_FALSE(fs::exists(Behind() + "/Tree/cafe\xCC\x81"));
  EXPECT_EQ(FSRemove(ustring(home + "/tree"), false), 0);
  EXPECT_FALSE(fs::exists(Behind() + "/Tree"));
}

}  // namespace
#endif
