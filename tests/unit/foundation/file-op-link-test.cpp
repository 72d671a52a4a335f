#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <string>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"
#include "support/normal-forms.h"
#include "support/unprivileged.h"

namespace fs = std::filesystem;
using test::FileOpLog;
using test::kComposed;
using test::kDecomposed;
using test::TempDir;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::string Text(ustring const& s) { return s.c_str(); }

std::string Reason(int code) {
  return "(code: " + std::to_string(code) + ", msg: " + strerror(code) + ")";
}

}  // namespace

TEST(FSTimeEqual, HasNoTolerance) {
  EXPECT_TRUE(FSTimeEqual(1, 1));
  EXPECT_FALSE(FSTimeEqual(1, 2));
}

TEST(FSUTime, SetsTheTimesOfASymlinkItself) {
  TempDir folder;
  WriteFile(folder / "file", "");
  fs::create_symlink("file", folder / "link");
  EXPECT_EQ(FSUTime(folder / "link", 1000, 2000), 0);
  struct stat link;
  struct stat file;
  ASSERT_EQ(lstat((folder / "link").c_str(), &link), 0);
  ASSERT_EQ(stat((folder / "file").c_str(), &file), 0);
  EXPECT_EQ(link.st_mtime, 2000);
  EXPECT_GT(file.st_mtime, 2000);
}

TEST(FSUTime, SetsBothTimes) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_EQ(FSUTime(folder / "file", 1000, 2000), 0);
  struct stat file;
  ASSERT_EQ(stat((folder / "file").c_str(), &file), 0);
  EXPECT_EQ(file.st_atime, 1000);
  EXPECT_EQ(file.st_mtime, 2000);
  auto const written = fs::last_write_time(folder / "file").time_since_epoch();
  EXPECT_EQ((written % std::chrono::seconds(1)).count(), 0);
}

TEST(FSUTime, LogsNoFailure) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_EQ(FSUTime(folder / "missing", 1000, 2000), -1);
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(FilePermission, IsLockedOnlyIfAccessIsDenied) {
  TempDir folder;
  WriteFile(folder / "file", "");
  test::GiveAway(folder.path().c_str());
  test::GiveAway((folder / "file").c_str());
  test::RunUnprivileged([path = folder / "file"] {
    fs::permissions(path, fs::perms(0400));
    EXPECT_TRUE(isFileLocked(path, W_OK));
    EXPECT_FALSE(hasFilePermission(path, W_OK));
    EXPECT_FALSE(isFileLocked(path, R_OK));
    EXPECT_TRUE(hasFilePermission(path, R_OK));
  });
}

TEST(FilePermission, IsNotLockedIfTheFileIsMissing) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_FALSE(isFileLocked(folder / "missing", W_OK));
  EXPECT_TRUE(hasFilePermission(folder / "missing", W_OK));
  EXPECT_FALSE(isFileLocked(folder / "file/below", W_OK));
  EXPECT_TRUE(hasFilePermission(folder / "file/below", W_OK));
}

TEST(FSGetRealPath, FollowsAllSymlinks) {
  TempDir folder;
  WriteFile(folder / "real/file", "");
  fs::create_symlink("real", folder / "link");
  fs::create_symlink("file", folder / "real/leaf");
  FileOpLog const log;
  ustring path = folder / "link/leaf";
  EXPECT_EQ(FSGetRealPath(path), 0);
  EXPECT_EQ(Text(path), folder / "real/file");
  EXPECT_THAT(log.Lines(),
              ElementsAre("[DEBUG] file-op(#):  org path [" + folder / "link/leaf" + "]",
                          "[DEBUG] file-op(#):  get full path [" + folder / "real/file" + "]"));
}

TEST(FSGetRealPath, DoesNotNormalise) {
  TempDir folder;
  WriteFile(folder / kDecomposed, "");
  if (fs::exists(folder / kComposed)) GTEST_SKIP() << "the volume takes both forms for one name";
  ustring path = folder / kDecomposed;
  EXPECT_EQ(FSGetRealPath(path), 0);
  EXPECT_EQ(Text(path), folder / kDecomposed);
}

TEST(FSGetRealPath, LeavesThePathUnchangedOnFailure) {
  TempDir folder;
  fs::create_symlink("nothing", folder / "dangling");
  FileOpLog const log;
  ustring path = folder / "dangling";
  EXPECT_EQ(FSGetRealPath(path), -1);
  EXPECT_EQ(Text(path), folder / "dangling");
  EXPECT_THAT(log.Lines(),
              ElementsAre("[DEBUG] file-op(#):  org path [" + folder / "dangling" + "]"));
}

TEST(FSCreateSymbolicLink, StoresTheTargetAsGiven) {
  TempDir folder;
  EXPECT_EQ(FSCreateSymbolicLink("any/text", folder / "link"), 0);
  EXPECT_EQ(fs::read_symlink(folder / "link"), "any/text");
}

TEST(FSCreateSymbolicLink, LogsItsFailure) {
  TempDir folder;
  WriteFile(folder / "file", "");
  FileOpLog const log;
  EXPECT_EQ(FSCreateSymbolicLink("text", folder / "file"), -1);
  EXPECT_THAT(log.Lines(),
              ElementsAre("[ERROR] file-op(#): FSCreateSymbolicLink: Failed to create symbolic "
                          "link 'text' -> '" +
                          folder / "file" + "' " + Reason(EEXIST)));
}

TEST(FSReadSymbolicLink, ReturnsTheTarget) {
  TempDir folder;
  std::string const longest(1023, 'x');
  fs::create_symlink("a/b", folder / "short");
  fs::create_symlink(longest, folder / "long");
  ustring target;
  EXPECT_EQ(FSReadSymbolicLink(folder / "short", target), 0);
  EXPECT_EQ(Text(target), "a/b");
  EXPECT_EQ(FSReadSymbolicLink(folder / "long", target), 0);
  EXPECT_EQ(Text(target), longest);
}

TEST(FSReadSymbolicLink, FailsForATargetThatDoesNotFit) {
  TempDir folder;
  for (unsigned const length : {1024U, 1025U, 2000U}) {
    std::string const link = folder / ("link" + std::to_string(length));
    fs::create_symlink(std::string(length, 'x'), link);
    ustring target = "before";
    FileOpLog const log;
    EXPECT_EQ(FSReadSymbolicLink(link, target), -1);
    EXPECT_EQ(Text(target), "before");
    EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): FSReadSymbolicLink: Failed to read "
                                         "symbolic link '" +
                                         link + "' " + Reason(ENAMETOOLONG)));
  }
}

TEST(FSReadSymbolicLink, LogsItsFailure) {
  TempDir folder;
  WriteFile(folder / "file", "");
  FileOpLog const log;
  ustring target = "before";
  EXPECT_EQ(FSReadSymbolicLink(folder / "file", target), -1);
  EXPECT_EQ(Text(target), "before");
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): FSReadSymbolicLink: Failed to read "
                                       "symbolic link '" +
                                       folder / "file" + "' " + Reason(EINVAL)));
}

TEST(FSChown, ChangesASymlinkItself) {
  if (geteuid() != 0) GTEST_SKIP() << "only root gives files away";
  TempDir folder;
  WriteFile(folder / "file", "");
  fs::create_symlink("file", folder / "link");
  EXPECT_EQ(FSChown(folder / "link", 12, 34), 0);
  struct stat link;
  struct stat file;
  ASSERT_EQ(lstat((folder / "link").c_str(), &link), 0);
  ASSERT_EQ(stat((folder / "file").c_str(), &file), 0);
  EXPECT_EQ(link.st_uid, 12U);
  EXPECT_EQ(link.st_gid, 34U);
  EXPECT_EQ(file.st_uid, 0U);
}

TEST(FSChown, LogsItsFailure) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_EQ(FSChown(folder / "missing", 1, 1), -1);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): FSChown: Failed to chown '" +
                                       folder / "missing" + "' " + Reason(ENOENT)));
}
