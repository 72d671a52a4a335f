#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "foundation/file-op.h"
#include "foundation/tmp-name-gen.h"
#include "support/file-op-log.h"
#include "support/files.h"
#include "support/unprivileged.h"

namespace fs = std::filesystem;
using test::FileOpLog;
using test::ReadFile;
using test::ReadTree;
using test::TempDir;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr unsigned short kUmaskMode = 65535;
constexpr std::size_t kCopyBlock = 33554432;

unsigned ModeOf(std::string const& path) {
  struct stat info;
  EXPECT_EQ(lstat(path.c_str(), &info), 0) << path;
  return info.st_mode & 07777U;
}

class Umask {
 public:
  explicit Umask(mode_t mask) : former_(umask(mask)) {}
  ~Umask() { umask(former_); }
  Umask(Umask const&) = delete;
  Umask& operator=(Umask const&) = delete;

 private:
  mode_t const former_;
};

mode_t CurrentUmask() {
  mode_t const mask = umask(0);
  umask(mask);
  return mask;
}

/// Makes a folder and folders in it, until the path of the innermost is that long. Step by step,
/// since no call takes the whole path.
bool MakeFoldersOfLength(std::string const& outermost, std::size_t length) {
  std::string path;
  std::string name = outermost;
  int at = open("/", O_RDONLY | O_CLOEXEC);
  while (mkdirat(at, name.c_str(), 0755) == 0) {
    int const below = openat(at, name.c_str(), O_RDONLY | O_CLOEXEC);
    close(at);
    at = below;
    path += path.empty() ? name : "/" + name;
    if (path.size() >= length) break;
    // A slash and a name, which is the last one as soon as it can be.
    std::size_t const left = length - path.size();
    name = std::string(left > NAME_MAX ? NAME_MAX / 2 : left - 1, 'd');
  }
  close(at);
  return path.size() == length;
}

/// A folder on another file system than the temporary folder, or an empty path.
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
    if (IsThere()) fs::remove_all(path_);
  }
  OtherVolume(OtherVolume const&) = delete;
  OtherVolume& operator=(OtherVolume const&) = delete;

  bool IsThere() const { return !path_.empty(); }
  std::string operator/(std::string const& inside) const { return (path_ / inside).string(); }

 private:
  fs::path path_;
};

}  // namespace

// ---- FSMKDirP ----

TEST(FSMKDirP, RefusesAnEmptyPath) { EXPECT_EQ(FSMKDirP("", nullptr, false, kUmaskMode), -1); }

TEST(FSMKDirP, MakesAllMissingFolders) {
  TempDir folder;
  EXPECT_EQ(FSMKDirP(folder / "a/b/c", nullptr, false, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "a/b/c"));
}

TEST(FSMKDirP, FindsTheRoot) {
  ustring const path = "/";
  char* stop = nullptr;
  EXPECT_EQ(FSMKDirP(path, &stop, false, kUmaskMode), 0);
  EXPECT_EQ(stop, path.c_str() + 1);
}

TEST(FSMKDirP, MakesRelativeFolders) {
  TempDir folder;
  fs::path const former = fs::current_path();
  fs::current_path(folder.path());
  EXPECT_EQ(FSMKDirP("a/b", nullptr, false, kUmaskMode), 0);
  fs::current_path(former);
  EXPECT_TRUE(fs::is_directory(folder / "a/b"));
}

TEST(FSMKDirP, StopsAtTheEndOfThePath) {
  TempDir folder;
  ustring const path = folder / "a/b";
  char* stop = nullptr;
  EXPECT_EQ(FSMKDirP(path, &stop, false, kUmaskMode), 0);
  EXPECT_EQ(stop, path.c_str() + path.length());
}

TEST(FSMKDirP, StopsAtATrailingSlash) {
  TempDir folder;
  ustring const path = folder / "a/b/";
  char* stop = nullptr;
  EXPECT_EQ(FSMKDirP(path, &stop, false, kUmaskMode), 0);
  EXPECT_STREQ(stop, "/");
  EXPECT_EQ(stop, path.c_str() + path.length() - 1);
  EXPECT_TRUE(fs::is_directory(folder / "a/b"));
}

TEST(FSMKDirP, BearsDoubledSlashes) {
  TempDir folder;
  EXPECT_EQ(FSMKDirP(folder / "a//b//", nullptr, false, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "a/b"));
}

TEST(FSMKDirP, StopsBehindTheComponentThatFailed) {
  TempDir folder;
  WriteFile(folder / "file", "");
  ustring const path = folder / "file/b/c";
  char* stop = nullptr;
  EXPECT_EQ(FSMKDirP(path, &stop, false, kUmaskMode), -1);
  EXPECT_EQ(errno, ENOTDIR);
  EXPECT_STREQ(stop, "/c");
}

TEST(FSMKDirP, AppliesTheUmaskToModeAllOnes) {
  TempDir folder;
  Umask const mask(027);
  EXPECT_EQ(FSMKDirP(folder / "a/b", nullptr, false, kUmaskMode), 0);
  EXPECT_EQ(ModeOf(folder / "a"), 0750U);
  EXPECT_EQ(ModeOf(folder / "a/b"), 0750U);
}

TEST(FSMKDirP, AppliesAnyOtherModeAsItIsAndRestoresTheUmask) {
  TempDir folder;
  Umask const mask(077);
  EXPECT_EQ(FSMKDirP(folder / "a/b", nullptr, false, 0775), 0);
  EXPECT_EQ(ModeOf(folder / "a/b"), 0775U);
  EXPECT_EQ(CurrentUmask(), 077U);
  WriteFile(folder / "file", "");
  EXPECT_EQ(FSMKDirP(folder / "file/b", nullptr, false, 0775), -1);
  EXPECT_EQ(CurrentUmask(), 077U);
}

TEST(FSMKDirP, FollowsLinksToFolders) {
  TempDir folder;
  fs::create_directory(folder / "real");
  fs::create_symlink("real", folder / "link");
  FileOpLog const log;
  EXPECT_EQ(FSMKDirP(folder / "link/a", nullptr, false, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "real/a"));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(FSMKDirP, RefusesAFileAtTheEnd) {
  TempDir folder;
  WriteFile(folder / "file", "text");
  FileOpLog const log;
  errno = 0;
  EXPECT_EQ(FSMKDirP(folder / "file", nullptr, false, kUmaskMode), -1);
  EXPECT_EQ(errno, EEXIST);
  EXPECT_THAT(log.Lines(), ElementsAre("[INFO] file-op(#): FSMKDirP: path: " + folder / "file" +
                                       " is existing file or symbolic link pointed to file"));
  EXPECT_EQ(ReadFile(folder / "file"), "text");
}

TEST(FSMKDirP, GoesOnBehindAFileAndFailsAtTheNextFolder) {
  TempDir folder;
  WriteFile(folder / "file", "text");
  FileOpLog const log;
  EXPECT_EQ(FSMKDirP(folder / "file/a/b", nullptr, false, kUmaskMode), -1);
  EXPECT_EQ(errno, ENOTDIR);
  EXPECT_THAT(log.Lines(), ElementsAre("[INFO] file-op(#): FSMKDirP: path: " + folder / "file" +
                                       " is symbolic link pointed to folder"));
}

TEST(FSMKDirP, ReplacesWhatStandsInTheWay) {
  TempDir folder;
  WriteFile(folder / "file", "text");
  EXPECT_EQ(FSMKDirP(folder / "file/a", nullptr, true, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "file/a"));
  WriteFile(folder / "last", "text");
  EXPECT_EQ(FSMKDirP(folder / "last", nullptr, true, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "last"));
}

TEST(FSMKDirP, FailsWhereWhatStandsInTheWayCannotBeRemoved) {
  TempDir folder;
  WriteFile(folder / "locked/file", "text");
  test::GiveAway(folder.path().c_str());
  test::GiveAway((folder / "locked").c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder / "locked", fs::perms(0500));
    EXPECT_EQ(FSMKDirP(folder / "locked/file", nullptr, true, kUmaskMode), -1);
    fs::permissions(folder / "locked", fs::perms(0700));
  });
}

TEST(FSMKDirP, DoesNotReplaceADanglingLink) {
  TempDir folder;
  fs::create_symlink("nothing", folder / "dangling");
  EXPECT_EQ(FSMKDirP(folder / "dangling", nullptr, true, kUmaskMode), -1);
  EXPECT_EQ(errno, EEXIST);
}

// ---- FSMKDir ----

TEST(FSMKDir, SucceedsForAFolderThatExists) {
  TempDir folder;
  EXPECT_EQ(FSMKDir(folder.path().c_str(), false), 0);
  EXPECT_EQ(FSMKDir(folder.path().c_str(), true), 0);
}

TEST(FSMKDir, RefusesAnEmptyPath) { EXPECT_EQ(FSMKDir("", true), -1); }

TEST(FSMKDir, MakesFoldersAboveOnlyWhenRecursive) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_EQ(FSMKDir(folder / "a/b", false), -2);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): path = " + folder / "a/b" +
                                       " errno : " + strerror(ENOENT)));
  EXPECT_FALSE(fs::exists(folder / "a"));
  EXPECT_EQ(FSMKDir(folder / "a/b", true), 0);
  EXPECT_EQ(FSMKDir(folder / "a/c", false), 0);
  EXPECT_TRUE(fs::is_directory(folder / "a/b"));
  EXPECT_TRUE(fs::is_directory(folder / "a/c"));
}

TEST(FSMKDir, AppliesTheUmask) {
  TempDir folder;
  Umask const mask(027);
  EXPECT_EQ(FSMKDir(folder / "one", false), 0);
  EXPECT_EQ(FSMKDir(folder / "two/three", true), 0);
  EXPECT_EQ(ModeOf(folder / "one"), 0750U);
  EXPECT_EQ(ModeOf(folder / "two/three"), 0750U);
}

TEST(FSMKDir, IsBlockedByAFile) {
  TempDir folder;
  WriteFile(folder / "file", "");
  FileOpLog const log;
  EXPECT_EQ(FSMKDir(folder / "file", true), -1);
  EXPECT_THAT(log.Messages(), ElementsAre("[ERROR] file-op(#): FSMKDir: Create a folder but local "
                                          "file system is not directory '" +
                                          folder / "file" + "' (1)"));
}

TEST(FSMKDir, IsBlockedByALinkToAFolder) {
  TempDir folder;
  fs::create_directory(folder / "real");
  fs::create_symlink("real", folder / "link");
  FileOpLog const log;
  EXPECT_EQ(FSMKDir(folder / "link", true), -1);
  EXPECT_THAT(log.Messages(), ElementsAre("[ERROR] file-op(#): FSMKDir: Create a folder but local "
                                          "file system is not directory '" +
                                          folder / "link" + "' (3)"));
}

TEST(FSMKDir, TakesAPathBelowAFileForABadOne) {
  TempDir folder;
  WriteFile(folder / "file", "");
  FileOpLog const log;
  EXPECT_EQ(FSMKDir(folder / "file/below", true), -1);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): FSMKDir: Failed to to file info '" +
                                       folder / "file/below" + "'"));
}

TEST(FSMKDir, TellsACreationThatIsRefusedApart) {
  TempDir folder;
  test::GiveAway(folder.path().c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder.path(), fs::perms(0500));
    EXPECT_EQ(FSMKDir(folder / "a", false), -2);
    EXPECT_EQ(FSMKDir(folder / "a/b", true), -2);
    fs::permissions(folder.path(), fs::perms(0700));
  });
}

TEST(FSMKDir, MakesAndFindsFoldersBelowOneThatIsDecomposed) {
  TempDir folder;
  std::string const home = folder / "cafe\xCC\x81";
  fs::create_directory(home);
  for (int time = 0; time < 2; ++time) EXPECT_EQ(FSMKDir(home + "/a/b", true), 0);
  EXPECT_TRUE(fs::is_directory(home + "/a/b"));
}

// ---- FSMKDirFromRoot ----

TEST(FSMKDirFromRoot, MakesOneFolderAfterTheOther) {
  TempDir folder;
  std::string const root = folder.path();
  FileOpLog const log;
  EXPECT_EQ(FSMKDirFromRoot(root + "/a/b", root), 0);
  EXPECT_TRUE(fs::is_directory(root + "/a/b"));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[DEBUG] file-op(#): FSMKDirFromRoot: create " + root + "/a",
                          "[DEBUG] file-op(#): FSMKDirFromRoot: create " + root + "/a/b"));
}

TEST(FSMKDirFromRoot, MakesNothingForTheRootItself) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_EQ(FSMKDirFromRoot(folder / "none", folder / "none"), 0);
  EXPECT_FALSE(fs::exists(folder / "none"));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(FSMKDirFromRoot, NeedsTheRootToStand) {
  TempDir folder;
  EXPECT_EQ(FSMKDirFromRoot(folder / "none/a", folder / "none"), -1);
  EXPECT_FALSE(fs::exists(folder / "none"));
}

TEST(FSMKDirFromRoot, RefusesARootLongerThanTheTarget) {
  FileOpLog const log;
  EXPECT_EQ(FSMKDirFromRoot("/a", "/a/b"), -1);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): Giving a root '/a/b' whose length is "
                                       "larger then target's '/a'."));
}

TEST(FSMKDirFromRoot, RefusesARootWithATrailingSlash) {
  FileOpLog const log;
  EXPECT_EQ(FSMKDirFromRoot("/a/b/c", "/a/b/"), -1);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): root '/a/b/' is not a parent folder of "
                                       "target '/a/b/c'"));
}

TEST(FSMKDirFromRoot, BearsATrailingSlashOfTheTarget) {
  TempDir folder;
  EXPECT_EQ(FSMKDirFromRoot(folder / "a/b/", folder.path().c_str()), 0);
  EXPECT_TRUE(fs::is_directory(folder / "a/b"));
}

TEST(FSMKDirFromRoot, StopsAtAFileInTheWay) {
  TempDir folder;
  WriteFile(folder / "a", "");
  EXPECT_EQ(FSMKDirFromRoot(folder / "a/b", folder.path().c_str()), -1);
  EXPECT_TRUE(fs::is_regular_file(folder / "a"));
}

// ---- FSCopy ----

TEST(FSCopy, CopiesTheBytes) {
  TempDir folder;
  std::string const bytes("one\0two\n\xFF", 9);
  WriteFile(folder / "source", bytes);
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  EXPECT_EQ(ReadFile(folder / "target"), bytes);
  EXPECT_EQ(ReadFile(folder / "source"), bytes);
}

TEST(FSCopy, CopiesMoreThanOneBlock) {
  TempDir folder;
  std::string bytes(kCopyBlock + 12345, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i)
    bytes[i] = static_cast<char>(i * 2654435761U >> 24);
  WriteFile(folder / "source", bytes);
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  EXPECT_TRUE(ReadFile(folder / "target") == bytes);
}

TEST(FSCopy, RemovesTheSourceOnDemand) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", true), 0);
  EXPECT_EQ(ReadFile(folder / "target"), "bytes");
  EXPECT_FALSE(fs::exists(folder / "source"));
}

TEST(FSCopy, FailsWhenTheSourceCannotBeRemovedAndKeepsTheCopy) {
  TempDir folder;
  WriteFile(folder / "locked/source", "bytes");
  test::GiveAway(folder.path().c_str());
  test::GiveAway((folder / "locked").c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder / "locked", fs::perms(0500));
    EXPECT_EQ(FSCopy(folder / "locked/source", folder / "target", true), -1);
    EXPECT_EQ(ReadFile(folder / "target"), "bytes");
    fs::permissions(folder / "locked", fs::perms(0700));
  });
}

TEST(FSCopy, GivesANewTargetTheUmasksModeAndNothingOfTheSource) {
  TempDir folder;
  Umask const mask(027);
  WriteFile(folder / "source", "bytes");
  fs::permissions(folder / "source", fs::perms(0755));
  ASSERT_EQ(FSUTime(folder / "source", 1000, 2000), 0);
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  EXPECT_EQ(ModeOf(folder / "target"), 0640U);
  struct stat info;
  ASSERT_EQ(stat((folder / "target").c_str(), &info), 0);
  EXPECT_GT(info.st_mtime, 2000);
}

TEST(FSCopy, TruncatesATargetThatExistsAndKeepsItsMode) {
  TempDir folder;
  WriteFile(folder / "source", "new");
  WriteFile(folder / "target", "something longer");
  fs::permissions(folder / "target", fs::perms(0600));
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  EXPECT_EQ(ReadFile(folder / "target"), "new");
  EXPECT_EQ(ModeOf(folder / "target"), 0600U);
}

TEST(FSCopy, OntoItselfEmptiesTheFile) {
  TempDir folder;
  WriteFile(folder / "file", "bytes");
  EXPECT_EQ(FSCopy(folder / "file", folder / "file", false), 0);
  EXPECT_EQ(ReadFile(folder / "file"), "");
}

TEST(FSCopy, FollowsALinkAsSource) {
  TempDir folder;
  WriteFile(folder / "file", "bytes");
  fs::create_symlink("file", folder / "link");
  EXPECT_EQ(FSCopy(folder / "link", folder / "target", false), 0);
  EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "target")));
  EXPECT_EQ(ReadFile(folder / "target"), "bytes");
}

TEST(FSCopy, LogsASourceThatCannotBeOpened) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_EQ(FSCopy(folder / "none", folder / "target", false), -1);
  EXPECT_FALSE(fs::exists(folder / "target"));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[ERROR] file-op(#): CopyFile: open(" + folder / "none" +
                          "): " + strerror(ENOENT) + " (" + std::to_string(ENOENT) + ")"));
}

TEST(FSCopy, LogsATargetThatCannotBeOpened) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  FileOpLog const log;
  EXPECT_EQ(FSCopy(folder / "source", folder / "none/target", true), -1);
  EXPECT_TRUE(fs::exists(folder / "source"));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[ERROR] file-op(#): CopyFile: open(" + folder / "none/target" +
                          "): " + strerror(ENOENT) + " (" + std::to_string(ENOENT) + ")"));
}

TEST(FSCopy, LogsASourceThatCannotBeRead) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_EQ(FSCopy(folder.path().c_str(), folder / "target", true), -1);
  EXPECT_TRUE(fs::exists(folder / "target"));
  EXPECT_THAT(log.Lines(), ElementsAre(std::string("[ERROR] file-op(#): CopyFile: read: ") +
                                       strerror(EISDIR) + " (" + std::to_string(EISDIR) + ")"));
}

TEST(FSCopy, TellsAFullDiskApart) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  FileOpLog const log;
  EXPECT_EQ(FSCopy(folder / "source", "/dev/full", true), -2);
  EXPECT_TRUE(fs::exists(folder / "source"));
  EXPECT_THAT(log.Lines(), ElementsAre(std::string("[ERROR] file-op(#): CopyFile: write: ") +
                                       strerror(ENOSPC) + " (" + std::to_string(ENOSPC) + ")"));
}

TEST(FSCopy, LeavesThePartialTargetOfAnyOtherFailedWrite) {
  TempDir folder;
  WriteFile(folder / "source", std::string(5000, 'x'));
  pid_t const child = fork();
  if (child == 0) {
    signal(SIGXFSZ, SIG_IGN);
    rlimit const limit = {1000, 1000};
    setrlimit(RLIMIT_FSIZE, &limit);
    _exit(FSCopy(folder / "source", folder / "target", true) == -1 ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(fs::file_size(folder / "target"), 1000U);
  EXPECT_EQ(fs::file_size(folder / "source"), 5000U);
}

// ---- FSRename ----

TEST(FSRename, MovesWhatIsDecomposedAsideAndBack) {
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

TEST(FSRename, RefusesEmptyPaths) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_EQ(FSRename("", folder / "a", false), -1);
  EXPECT_EQ(FSRename(folder / "file", "", false), -1);
}

TEST(FSRename, TellsAMissingSourceAndChangesNothing) {
  TempDir folder;
  WriteFile(folder / "target", "bytes");
  EXPECT_EQ(FSRename(folder / "missing", folder / "target", false), -2);
  EXPECT_EQ(ReadFile(folder / "target"), "bytes");
  EXPECT_EQ(FSRename(folder / "target/below", folder / "a", false), -2);
}

TEST(FSRename, TakesASourceSpelledOtherwiseForMissingWhenStrict) {
  TempDir folder;
  WriteFile(folder / "real/file", "");
  fs::create_symlink("real", folder / "link");
  EXPECT_EQ(FSRename(folder / "link/file", folder / "b", true), -2);
  EXPECT_EQ(FSRename(folder / "link/file", folder / "b", false), 0);
}

TEST(FSRename, RenamesALinkItself) {
  TempDir folder;
  fs::create_symlink("nothing", folder / "link");
  EXPECT_EQ(FSRename(folder / "link", folder / "other", true), 0);
  EXPECT_TRUE(fs::is_symlink(folder / "other"));
}

TEST(FSRename, TellsANameThatIsTooLong) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_EQ(FSRename(folder / "file", folder / std::string(256, 'x'), false), -100);
}

TEST(FSRename, FailsOntoAFolderWithSomethingInIt) {
  TempDir folder;
  WriteFile(folder / "a/file", "");
  WriteFile(folder / "b/file", "");
  EXPECT_EQ(FSRename(folder / "a", folder / "b", false), -3);
  EXPECT_EQ(FSRename(folder / "a", folder / "none/b", false), -3);
}

TEST(FSRename, MovesATreeToAnotherVolume) {
  OtherVolume other;
  if (!other.IsThere()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  WriteFile(folder / "source/file", "one");
  WriteFile(folder / "source/sub/deep/file", "two");
  fs::create_directory(folder / "source/empty");
  auto const tree = ReadTree(folder / "source");
  EXPECT_EQ(FSRename(folder / "source", other / "target", false), 0);
  EXPECT_EQ(ReadTree(other / "target"), tree);
  EXPECT_FALSE(fs::exists(folder / "source"));
}

TEST(FSRename, MovesAFileToAnotherVolumeAsBytesAlone) {
  OtherVolume other;
  if (!other.IsThere()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  Umask const mask(022);
  WriteFile(folder / "file", "bytes");
  fs::permissions(folder / "file", fs::perms(0700));
  EXPECT_EQ(FSRename(folder / "file", other / "file", true), 0);
  EXPECT_EQ(ReadFile(other / "file"), "bytes");
  EXPECT_EQ(ModeOf(other / "file"), 0644U);
  EXPECT_FALSE(fs::exists(folder / "file"));
}

TEST(FSRename, LeavesALinkWhereItIsAndSaysItIsMoved) {
  OtherVolume other;
  if (!other.IsThere()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  fs::create_symlink("text", folder / "link");
  EXPECT_EQ(FSRename(folder / "link", other / "link", false), 0);
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_FALSE(fs::exists(fs::symlink_status(other / "link")));
}

TEST(FSRename, FailsInTheEndForATreeWithALinkAndLeavesTheRestMoved) {
  OtherVolume other;
  if (!other.IsThere()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  WriteFile(folder / "source/file", "bytes");
  fs::create_symlink("file", folder / "source/link");
  EXPECT_EQ(FSRename(folder / "source", other / "target", false), -3);
  EXPECT_EQ(ReadFile(other / "target/file"), "bytes");
  EXPECT_TRUE(fs::is_symlink(folder / "source/link"));
  EXPECT_FALSE(fs::exists(folder / "source/file"));
}

TEST(FSRename, FailsToAnotherVolumeWhereAFileStandsInTheWay) {
  OtherVolume other;
  if (!other.IsThere()) GTEST_SKIP() << "there is no second file system to move to";
  TempDir folder;
  WriteFile(folder / "source/file", "bytes");
  WriteFile(other / "target", "");
  EXPECT_EQ(FSRename(folder / "source", other / "target/below", false), -3);
  EXPECT_TRUE(fs::exists(folder / "source/file"));
}

// ---- FSRemove ----

TEST(FSRemove, RefusesAnEmptyPath) { EXPECT_EQ(FSRemove("", false), -1); }

TEST(FSRemove, SucceedsForAMissingPath) {
  TempDir folder;
  EXPECT_EQ(FSRemove(folder / "missing", false), 0);
}

TEST(FSRemove, FailsWhereTheLookFails) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_EQ(FSRemove(folder / "file/below", false), -1);
}

TEST(FSRemove, RemovesATreeOfEveryKindOfObject) {
  for (bool const ignored : {false, true}) {
    TempDir folder;
    WriteFile(folder / "tree/file", "bytes");
    WriteFile(folder / "tree/sub/deep/.hidden", "bytes");
    fs::create_directory(folder / "tree/empty");
    fs::create_symlink("nothing", folder / "tree/sub/dangling");
    ASSERT_EQ(mkfifo((folder / "tree/fifo").c_str(), 0600), 0);
    WriteFile(folder / "other", "");
    EXPECT_EQ(FSRemove(folder / "tree", ignored), 0);
    EXPECT_FALSE(fs::exists(folder / "tree"));
    EXPECT_TRUE(fs::exists(folder / "other"));
  }
}

TEST(FSRemove, RemovesLinksWithoutFollowingThem) {
  TempDir folder;
  WriteFile(folder / "kept/file", "bytes");
  fs::create_directory(folder / "tree");
  fs::create_directory_symlink(folder / "kept", folder / "tree/link");
  fs::create_directory_symlink(folder / "kept", folder / "link");
  EXPECT_EQ(FSRemove(folder / "tree", false), 0);
  EXPECT_EQ(FSRemove(folder / "link", false), 0);
  EXPECT_FALSE(fs::exists(fs::symlink_status(folder / "link")));
  EXPECT_FALSE(fs::exists(folder / "tree"));
  EXPECT_TRUE(fs::exists(folder / "kept/file"));
}

TEST(FSRemove, BearsATrailingSlash) {
  TempDir folder;
  WriteFile(folder / "tree/file", "");
  EXPECT_EQ(FSRemove(folder / "tree/", false), 0);
  EXPECT_FALSE(fs::exists(folder / "tree"));
}

// Names of every kind that isn't its own composed form, files, folders and links, also beside their
// twins.
TEST(FSRemove, RemovesNamesThatAreNotComposed) {
  constexpr char const* kNames[] = {
      "cafe\xCC\x81",                          // decomposed
      "caf\xC3\xA9",                           // its composed twin
      "\xE1\x84\x80\xE1\x85\xA1\xE1\x86\xA8",  // a syllable in three parts
      "\xEA\xB0\x80\xE1\x86\xA8",              // the same in two
      "\xEA\xB0\x81",                          // and in one
      "\xE0\xA5\x98",                          // has no composed form
      "10\xE2\x84\xAA",                        // is composed to plain ASCII
      "10K",
  };
  TempDir folder;
  for (std::string const name : kNames) {
    WriteFile(folder / "tree/files/" + name, "bytes");
    WriteFile(folder / "tree/folders/" + name + "/of " + name, "bytes");
    WriteFile(folder / "tree/folders/" + name + "/sub/" + name, "bytes");
    fs::create_directories(folder / "tree/links");
    std::string const link = folder / "tree/links/" + name;
    // To some volumes the twins are one name.
    if (!fs::is_symlink(fs::symlink_status(link))) fs::create_symlink(name, link);
  }
  FileOpLog const log;
  EXPECT_EQ(FSRemove(folder / "tree", false), 0);
  EXPECT_FALSE(fs::exists(folder / "tree"));
  EXPECT_THAT(log.Messages(), IsEmpty());
}

TEST(FSRemove, RemovesBelowAFolderThatIsDecomposed) {
  TempDir folder;
  std::string const home = folder / "cafe\xCC\x81";
  WriteFile(home + "/tree/file", "bytes");
  EXPECT_EQ(FSRemove(home + "/tree", false), 0);
  EXPECT_FALSE(fs::exists(home + "/tree"));
  EXPECT_EQ(FSRemove(home + "/missing", false), 0);
}

// A file of the other form is another one, here: what changes the tree goes by the path as given.
TEST(FSRemove, LeavesTheTwinAlone) {
  TempDir folder;
  WriteFile(folder / "caf\xC3\xA9", "composed");
  WriteFile(folder / "cafe\xCC\x81", "decomposed");
  if (ReadFile(folder / "caf\xC3\xA9") != "composed") {
    GTEST_SKIP() << "the volume takes both forms for one name";
  }
  EXPECT_EQ(FSRemove(folder / "cafe\xCC\x81", false), 0);
  EXPECT_FALSE(fs::exists(folder / "cafe\xCC\x81"));
  EXPECT_EQ(ReadFile(folder / "caf\xC3\xA9"), "composed");
}

TEST(FSRemove, FailsForANameThatIsNoUtf8AndLeavesIt) {
  TempDir folder;
  fs::create_directory(folder / "tree");
  if (mkdir((folder / "tree/\xFF").c_str(), 0700) != 0) {
    GTEST_SKIP() << "the volume takes no such name";
  }
  testing::internal::CaptureStderr();  // of the conversion's warning
  EXPECT_EQ(FSRemove(folder / "tree", false), -3);
  testing::internal::GetCapturedStderr();
  EXPECT_TRUE(fs::exists(folder / "tree/\xFF"));
}

TEST(FSRemove, RemovesByARelativePath) {
  TempDir folder;
  WriteFile(folder / "tree/sub/file", "");
  fs::path const former = fs::current_path();
  fs::current_path(folder.path());
  EXPECT_EQ(FSRemove("tree", false), 0);
  fs::current_path(former);
  EXPECT_FALSE(fs::exists(folder / "tree"));
}

TEST(FSRemove, RemovesThroughALinkAbove) {
  TempDir folder;
  WriteFile(folder / "real/tree/file", "");
  fs::create_symlink("real", folder / "link");
  EXPECT_EQ(FSRemove(folder / "link/tree", false), 0);
  EXPECT_FALSE(fs::exists(folder / "real/tree"));
}

TEST(FSRemove, RemovesAsManyEntriesAsThereAre) {
  TempDir folder;
  for (int i = 0; i < 1500; ++i) WriteFile(folder / ("tree/file" + std::to_string(i)), "");
  EXPECT_EQ(FSRemove(folder / "tree", false), 0);
  EXPECT_FALSE(fs::exists(folder / "tree"));
}

TEST(FSRemove, TellsTheLookAtEachObjectBeforeItsEntries) {
  TempDir folder;
  WriteFile(folder / "tree/file", "");
  fs::create_directory_symlink(folder.path(), folder / "link");
  FileOpLog const log;
  EXPECT_EQ(FSRemove(folder / "link/tree", false), 0);
  std::vector<std::string> expected;
  std::string const given = folder / "link";
  std::string const real = fs::canonical(folder.path()).string();
  for (std::string const name : {"/tree", "/tree/file"}) {
    expected.push_back("[DEBUG] file-op(#): Input file path = [" + given + name + "].");
    expected.push_back("[DEBUG] file-op(#): FSRefMakePath outTargetPath path = [" + real + name +
                       "].");
  }
  EXPECT_EQ(log.Lines(), expected);
}

TEST(FSRemove, RemovesADeepTree) {
  TempDir folder;
  std::string path = folder / "tree";
  for (int depth = 0; depth < 150; ++depth) path += "/d";
  fs::create_directories(path);
  EXPECT_EQ(FSRemove(folder / "tree", false), 0);
  EXPECT_FALSE(fs::exists(folder / "tree"));
}

TEST(FSRemove, FailsWithoutAWordWhereAPathIsTooLongForTheSystem) {
  constexpr std::size_t kTooLong = PATH_MAX;  // which counts the terminator
  for (std::size_t const length : {kTooLong - 1, kTooLong, kTooLong + 1}) {
    TempDir folder;
    ASSERT_TRUE(MakeFoldersOfLength(folder / "tree", length));
    FileOpLog const log;
    bool const is_short_enough = length < kTooLong;
    EXPECT_EQ(FSRemove(folder / "tree", false), is_short_enough ? 0 : -3) << length;
    EXPECT_THAT(log.Messages(), IsEmpty());
    EXPECT_EQ(fs::exists(folder / "tree"), !is_short_enough);
  }
}

TEST(FSRemove, LeavesAnUnreadableFolderAndReportsSuccess) {
  TempDir folder;
  fs::create_directory(folder / "closed");
  test::GiveAway(folder.path().c_str());
  test::GiveAway((folder / "closed").c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder / "closed", fs::perms(0300));
    EXPECT_EQ(FSRemove(folder / "closed", false), 0);
    EXPECT_TRUE(fs::exists(folder / "closed"));
  });
}

TEST(FSRemove, FailsForTheFolderAboveAnUnreadableOne) {
  TempDir folder;
  fs::create_directories(folder / "tree/closed");
  WriteFile(folder / "tree/file", "");
  for (char const* const name : {"", "tree", "tree/closed", "tree/file"}) {
    test::GiveAway((folder / name).c_str());
  }
  test::RunUnprivileged([&folder] {
    fs::permissions(folder / "tree/closed", fs::perms(0300));
    EXPECT_EQ(FSRemove(folder / "tree", false), -3);
    EXPECT_FALSE(fs::exists(folder / "tree/file"));
    EXPECT_TRUE(fs::exists(folder / "tree/closed"));
  });
}

TEST(FSRemove, FailsWhereAnObjectCannotBeRemoved) {
  TempDir folder;
  WriteFile(folder / "locked/file", "");
  test::GiveAway(folder.path().c_str());
  test::GiveAway((folder / "locked").c_str());
  test::GiveAway((folder / "locked/file").c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder / "locked", fs::perms(0500));
    EXPECT_EQ(FSRemove(folder / "locked/file", false), -3);
    EXPECT_EQ(FSRemove(folder / "locked", false), -3);
    EXPECT_TRUE(fs::exists(folder / "locked/file"));
    fs::permissions(folder / "locked", fs::perms(0700));
  });
}

TEST(FSRemove, StopsAtTheFirstFolderThatCannotBeRemoved) {
  TempDir folder;
  test::GiveAway(folder.path().c_str());
  for (char const* const name : {"tree", "tree/a", "tree/b"}) {
    fs::create_directories(folder / name);
    test::GiveAway((folder / name).c_str());
  }
  test::RunUnprivileged([&folder] {
    for (std::string const name : {"tree/a", "tree/b"}) {
      WriteFile(folder / (name + "/file"), "");
      fs::create_directories(folder / (name + "/locked/empty"));
      fs::permissions(folder / (name + "/locked"), fs::perms(0500));
    }
    EXPECT_EQ(FSRemove(folder / "tree", false), -3);
    // Which of the two comes first is the volume's choice.
    EXPECT_TRUE(fs::exists(folder / "tree/a/file") || fs::exists(folder / "tree/b/file"));
    for (char const* const name : {"tree/a/locked", "tree/b/locked"}) {
      fs::permissions(folder / name, fs::perms(0700));
    }
  });
}

TEST(FSRemove, FailsWhereTheLookAtAnEntryFails) {
  TempDir folder;
  WriteFile(folder / "tree/file", "");
  test::GiveAway(folder.path().c_str());
  test::GiveAway((folder / "tree").c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder / "tree", fs::perms(0400));  // names can be listed, not looked at
    EXPECT_EQ(FSRemove(folder / "tree", false), -3);
    fs::permissions(folder / "tree", fs::perms(0700));
  });
}

TEST(FSRemove, LeavesNoDescriptorOpen) {
  if (!fs::exists("/proc/self/fd")) GTEST_SKIP() << "open descriptors can't be listed";
  auto const count = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
  };
  TempDir folder;
  WriteFile(folder / "tree/sub/file", "");
  auto const before = count();
  EXPECT_EQ(FSRemove(folder / "tree", false), 0);
  EXPECT_EQ(count(), before);
}

// ---- temporary files ----

TEST(FSMktemp, MakesAnEmptyFileOfMode0644) {
  TempDir folder;
  Umask const mask(077);
  ustring path;
  EXPECT_EQ(FSMktemp(folder.path().c_str(), path), 0);
  EXPECT_EQ(fs::path(path.c_str()).parent_path(), folder.path());
  EXPECT_EQ(fs::path(path.c_str()).filename().string().size(), 6U);
  EXPECT_EQ(fs::file_size(path.c_str()), 0U);
  EXPECT_EQ(ModeOf(path.c_str()), 0644U);
}

TEST(FSMktemp, LeavesNoDescriptorOpen) {
  if (!fs::exists("/proc/self/fd")) GTEST_SKIP() << "open descriptors can't be listed";
  auto const count = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
  };
  TempDir folder;
  auto const before = count();
  ustring path;
  EXPECT_EQ(FSMktemp(folder.path().c_str(), path), 0);
  EXPECT_EQ(count(), before);
}

TEST(FSMktemp, MakesANewFileEachTime) {
  TempDir folder;
  ustring one;
  ustring two;
  EXPECT_EQ(FSMktemp(folder.path().c_str(), one), 0);
  EXPECT_EQ(FSMktemp(folder.path().c_str(), two), 0);
  EXPECT_NE(one, two);
}

TEST(FSMktemp, LogsItsFailureAndLeavesThePath) {
  TempDir folder;
  FileOpLog const log;
  ustring path = "before";
  EXPECT_EQ(FSMktemp(folder / "none", path), -1);
  EXPECT_STREQ(path.c_str(), "before");
  EXPECT_THAT(log.Lines(),
              ElementsAre(testing::AllOf(
                  testing::StartsWith("[ERROR] file-op(#): mkstemp(" + folder / "none/"),
                  testing::EndsWith(std::string("): ") + strerror(ENOENT)))));
}

TEST(FSCreateTempPath, MakesUpAPathAndNothingElse) {
  TempDir folder;
  ustring path;
  EXPECT_EQ(FSCreateTempPath(folder.path().c_str(), path), 0);
  EXPECT_EQ(fs::path(path.c_str()).parent_path(), folder.path());
  EXPECT_EQ(fs::path(path.c_str()).filename().string().size(), 8U);
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(FSCreateTempPath, MakesUpAnotherPathEachTime) {
  std::set<std::string> paths;
  for (int i = 0; i < 1000; ++i) {
    ustring path;
    EXPECT_EQ(FSCreateTempPath("/tmp", path), 0);
    paths.insert(path.c_str());
  }
  EXPECT_EQ(paths.size(), 1000U);
}
