#include <gmock/gmock.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"

namespace fs = std::filesystem;
using test::ModeOf;
using test::ReadFile;
using test::ReadTree;
using test::TempDir;
using test::Umask;
using test::WriteFile;

namespace {

/// A folder on another file system than the temporary folder, if there is one.
class OtherVolume {
 public:
  OtherVolume() {
    struct stat here;
    struct stat there;
    if (stat(fs::temp_directory_path().c_str(), &here) != 0) return;
    if (stat("/dev/shm", &there) != 0 || here.st_dev == there.st_dev) return;
    char name[] = "/dev/shm/larkmoor-test-XXXXXX";
    if (mkdtemp(name) != nullptr) path_ = name;
  }
  ~OtherVolume() {
    if (Exists()) fs::remove_all(path_);
  }
  OtherVolume(OtherVolume const&) = delete;
  OtherVolume& operator=(OtherVolume const&) = delete;

  bool Exists() const { return !path_.empty(); }
  std::string operator/(std::string const& inside) const { return (path_ / inside).string(); }

 private:
  fs::path path_;
};

}  // namespace

TEST(FSRename, RenamesDecomposedNamesBackAndForth) {
  TempDir folder;
  std::string const home = folder / "cafe\xCC\x81";
  WriteFile(home + "/\xE0\xA5\x98/file", "bytes");
  for (bool const strict : {false, true}) {
    EXPECT_EQ(FSRename(home + "/\xE0\xA5\x98", home + "/aside", strict), 0);
    EXPECT_EQ(FSRename(home + "/aside", home + "/\xE0\xA5\x98", strict), 0);
  }
  EXPECT_EQ(ReadFile(home + "/\xE0\xA5\x98/file"), "bytes");
}

TEST(FSRename, RenamesFilesAndFolders) {
  TempDir folder;
  WriteFile(folder / "a/file", "bytes");
  EXPECT_EQ(FSRename(folder / "a", folder / "b", false), 0);
  EXPECT_EQ(FSRename(folder / "b/file", folder / "b/other", true), 0);
  EXPECT_EQ(ReadFile(folder / "b/other"), "bytes");
  EXPECT_FALSE(fs::exists(folder / "a"));
}

TEST(FSRename, RejectsEmptyPaths) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_EQ(FSRename("", folder / "a", false), -1);
  EXPECT_EQ(FSRename(folder / "file", "", false), -1);
}

TEST(FSRename, ReportsAMissingSourceAndChangesNothing) {
  TempDir folder;
  WriteFile(folder / "target", "bytes");
  EXPECT_EQ(FSRename(folder / "missing", folder / "target", false), -2);
  EXPECT_EQ(ReadFile(folder / "target"), "bytes");
  EXPECT_EQ(FSRename(folder / "target/below", folder / "a", false), -2);
}

TEST(FSRename, StrictTreatsASourceWithAnotherSpellingAsMissing) {
  TempDir folder;
  WriteFile(folder / "real/file", "");
  fs::create_symlink("real", folder / "link");
  EXPECT_EQ(FSRename(folder / "link/file", folder / "b", true), -2);
  EXPECT_EQ(FSRename(folder / "link/file", folder / "b", false), 0);
}

TEST(FSRename, RenamesASymlinkItself) {
  TempDir folder;
  fs::create_symlink("nothing", folder / "link");
  EXPECT_EQ(FSRename(folder / "link", folder / "other", true), 0);
  EXPECT_TRUE(fs::is_symlink(folder / "other"));
}

TEST(FSRename, ReturnsAnErrorOfItsOwnForANameThatIsTooLong) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_EQ(FSRename(folder / "file", folder / std::string(256, 'x'), false), -100);
}

TEST(FSRename, FailsOntoANonemptyFolder) {
  TempDir folder;
  WriteFile(folder / "a/file", "");
  WriteFile(folder / "b/file", "");
  EXPECT_EQ(FSRename(folder / "a", folder / "b", false), -3);
  EXPECT_EQ(FSRename(folder / "a", folder / "none/b", false), -3);
}

TEST(FSRename, MovesATreeToAnotherVolume) {
  OtherVolume other;
  if (!other.Exists()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  WriteFile(folder / "source/file", "one");
  WriteFile(folder / "source/sub/deep/file", "two");
  fs::create_directory(folder / "source/empty");
  auto const tree = ReadTree(folder / "source");
  EXPECT_EQ(FSRename(folder / "source", other / "target", false), 0);
  EXPECT_EQ(ReadTree(other / "target"), tree);
  EXPECT_FALSE(fs::exists(folder / "source"));
}

TEST(FSRename, MovesOnlyTheBytesOfAFileToAnotherVolume) {
  OtherVolume other;
  if (!other.Exists()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  Umask const mask(022);
  WriteFile(folder / "file", "bytes");
  fs::permissions(folder / "file", fs::perms(0700));
  EXPECT_EQ(FSRename(folder / "file", other / "file", true), 0);
  EXPECT_EQ(ReadFile(other / "file"), "bytes");
  EXPECT_EQ(ModeOf(other / "file"), 0644U);
  EXPECT_FALSE(fs::exists(folder / "file"));
}

TEST(FSRename, LeavesASymlinkInPlaceAndReportsSuccess) {
  OtherVolume other;
  if (!other.Exists()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  fs::create_symlink("text", folder / "link");
  EXPECT_EQ(FSRename(folder / "link", other / "link", false), 0);
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_FALSE(fs::exists(fs::symlink_status(other / "link")));
}

TEST(FSRename, FailsAtTheEndForATreeWithASymlinkAndLeavesTheRestMoved) {
  OtherVolume other;
  if (!other.Exists()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  WriteFile(folder / "source/file", "bytes");
  fs::create_symlink("file", folder / "source/link");
  EXPECT_EQ(FSRename(folder / "source", other / "target", false), -3);
  EXPECT_EQ(ReadFile(other / "target/file"), "bytes");
  EXPECT_TRUE(fs::is_symlink(folder / "source/link"));
  EXPECT_FALSE(fs::exists(folder / "source/file"));
}

TEST(FSRename, FailsToAnotherVolumeIfAFileIsInTheWay) {
  OtherVolume other;
  if (!other.Exists()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  WriteFile(folder / "source/file", "bytes");
  WriteFile(other / "target", "");
  EXPECT_EQ(FSRename(folder / "source", other / "target/below", false), -3);
  EXPECT_TRUE(fs::exists(folder / "source/file"));
}
