#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <string>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"
#include "support/unprivileged.h"

namespace fs = std::filesystem;
using test::FileOpLog;
using test::ModeOf;
using test::ReadFile;
using test::TempDir;
using test::Umask;
using test::WorkingFolder;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr unsigned short kUmaskMode = 65535;

mode_t CurrentUmask() {
  mode_t const mask = umask(0);
  umask(mask);
  return mask;
}

}  // namespace

TEST(FSMKDirP, RejectsAnEmptyPath) { EXPECT_EQ(FSMKDirP("", nullptr, false, kUmaskMode), -1); }

TEST(FSMKDirP, MakesAllMissingFolders) {
  TempDir folder;
  EXPECT_EQ(FSMKDirP(folder / "a/b/c", nullptr, false, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "a/b/c"));
}

TEST(FSMKDirP, AcceptsTheRoot) {
  ustring const path = "/";
  char* stop = nullptr;
  EXPECT_EQ(FSMKDirP(path, &stop, false, kUmaskMode), 0);
  EXPECT_EQ(stop, path.c_str() + 1);
}

TEST(FSMKDirP, MakesRelativeFolders) {
  TempDir folder;
  WorkingFolder const here(folder.path());
  EXPECT_EQ(FSMKDirP("a/b", nullptr, false, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "a/b"));
}

TEST(FSMKDirP, CutsAtNoOtherCharacterThanASlash) {
  TempDir folder;
  std::string name;
  for (char c = ' '; c <= '~'; ++c) {
    if (c != '/') name += c;
  }
  EXPECT_EQ(FSMKDirP(folder / (name + "/sub"), nullptr, false, kUmaskMode), 0);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
  EXPECT_TRUE(fs::is_directory(folder / (name + "/sub")));
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

TEST(FSMKDirP, AcceptsDoubleSlashes) {
  TempDir folder;
  EXPECT_EQ(FSMKDirP(folder / "a//b//", nullptr, false, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "a/b"));
}

TEST(FSMKDirP, StopsAfterTheComponentThatFailed) {
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

TEST(FSMKDirP, AppliesAnyOtherModeExactlyAndRestoresTheUmask) {
  TempDir folder;
  Umask const mask(077);
  EXPECT_EQ(FSMKDirP(folder / "a/b", nullptr, false, 0775), 0);
  EXPECT_EQ(ModeOf(folder / "a/b"), 0775U);
  EXPECT_EQ(CurrentUmask(), 077U);
  WriteFile(folder / "file", "");
  EXPECT_EQ(FSMKDirP(folder / "file/b", nullptr, false, 0775), -1);
  EXPECT_EQ(CurrentUmask(), 077U);
}

TEST(FSMKDirP, FollowsSymlinksToFolders) {
  TempDir folder;
  fs::create_directory(folder / "real");
  fs::create_symlink("real", folder / "link");
  FileOpLog const log;
  EXPECT_EQ(FSMKDirP(folder / "link/a", nullptr, false, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "real/a"));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(FSMKDirP, RejectsAFileAtTheEnd) {
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

TEST(FSMKDirP, ContinuesPastAFileAndFailsAtTheNextFolder) {
  TempDir folder;
  WriteFile(folder / "file", "text");
  FileOpLog const log;
  EXPECT_EQ(FSMKDirP(folder / "file/a/b", nullptr, false, kUmaskMode), -1);
  EXPECT_EQ(errno, ENOTDIR);
  EXPECT_THAT(log.Lines(), ElementsAre("[INFO] file-op(#): FSMKDirP: path: " + folder / "file" +
                                       " is symbolic link pointed to folder"));
}

TEST(FSMKDirP, ReplacesWhatIsInTheWay) {
  TempDir folder;
  WriteFile(folder / "file", "text");
  EXPECT_EQ(FSMKDirP(folder / "file/a", nullptr, true, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "file/a"));
  WriteFile(folder / "last", "text");
  EXPECT_EQ(FSMKDirP(folder / "last", nullptr, true, kUmaskMode), 0);
  EXPECT_TRUE(fs::is_directory(folder / "last"));
}

TEST(FSMKDirP, FailsIfWhatIsInTheWayCannotBeRemoved) {
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

TEST(FSMKDirP, DoesNotReplaceADanglingSymlink) {
  TempDir folder;
  fs::create_symlink("nothing", folder / "dangling");
  EXPECT_EQ(FSMKDirP(folder / "dangling", nullptr, true, kUmaskMode), -1);
  EXPECT_EQ(errno, EEXIST);
}

TEST(FSMKDir, SucceedsForAFolderThatExists) {
  TempDir folder;
  EXPECT_EQ(FSMKDir(folder.path().c_str(), false), 0);
  EXPECT_EQ(FSMKDir(folder.path().c_str(), true), 0);
}

TEST(FSMKDir, RejectsAnEmptyPath) { EXPECT_EQ(FSMKDir("", true), -1); }

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
  for (mode_t const mask : {mode_t{027}, mode_t{0}}) {
    Umask const set(mask);
    std::string const path = folder / std::to_string(mask);
    EXPECT_EQ(FSMKDir(path, false), 0);
    EXPECT_EQ(ModeOf(path), 0777U & ~unsigned{mask});
    EXPECT_EQ(FSMKDir(path + "-above/inside", true), 0);
    EXPECT_EQ(ModeOf(path + "-above/inside"), 0777U & ~unsigned{mask});
  }
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

TEST(FSMKDir, IsBlockedByASymlinkToAFolder) {
  TempDir folder;
  fs::create_directory(folder / "real");
  fs::create_symlink("real", folder / "link");
  FileOpLog const log;
  EXPECT_EQ(FSMKDir(folder / "link", true), -1);
  EXPECT_THAT(log.Messages(), ElementsAre("[ERROR] file-op(#): FSMKDir: Create a folder but local "
                                          "file system is not directory '" +
                                          folder / "link" + "' (3)"));
}

TEST(FSMKDir, RejectsAPathBelowAFile) {
  TempDir folder;
  WriteFile(folder / "file", "");
  FileOpLog const log;
  EXPECT_EQ(FSMKDir(folder / "file/below", true), -1);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): FSMKDir: Failed to to file info '" +
                                       folder / "file/below" + "'"));
}

TEST(FSMKDir, ReturnsAnErrorOfItsOwnWhenMkdirFails) {
  TempDir folder;
  test::GiveAway(folder.path().c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder.path(), fs::perms(0500));
    EXPECT_EQ(FSMKDir(folder / "a", false), -2);
    EXPECT_EQ(FSMKDir(folder / "a/b", true), -2);
    fs::permissions(folder.path(), fs::perms(0700));
  });
}

TEST(FSMKDir, MakesAndFindsFoldersBelowADecomposedOne) {
  TempDir folder;
  std::string const home = folder / "cafe\xCC\x81";
  fs::create_directory(home);
  for (int time = 0; time < 2; ++time) EXPECT_EQ(FSMKDir(home + "/a/b", true), 0);
  EXPECT_TRUE(fs::is_directory(home + "/a/b"));
}

TEST(FSMKDirFromRoot, MakesOneFolderAfterAnother) {
  TempDir folder;
  std::string const root = folder.path();
  FileOpLog const log;
  EXPECT_EQ(FSMKDirFromRoot(root + "/a/b", root), 0);
  EXPECT_TRUE(fs::is_directory(root + "/a/b"));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[DEBUG] file-op(#): FSMKDirFromRoot: create " + root + "/a",
                          "[DEBUG] file-op(#): FSMKDirFromRoot: create " + root + "/a/b"));
}

TEST(FSMKDirFromRoot, StopsAtEachOfTwoSlashes) {
  TempDir folder;
  std::string const root = folder.path();
  FileOpLog const log;
  EXPECT_EQ(FSMKDirFromRoot(root + "/a//b", root), 0);
  EXPECT_THAT(log.Messages(), IsEmpty());
  EXPECT_THAT(log.Lines(),
              testing::Contains("[DEBUG] file-op(#): FSMKDirFromRoot: create " + root + "/a/"));
}

TEST(FSMKDirFromRoot, MakesNothingForTheRootItself) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_EQ(FSMKDirFromRoot(folder / "none", folder / "none"), 0);
  EXPECT_FALSE(fs::exists(folder / "none"));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(FSMKDirFromRoot, RequiresAnExistingRoot) {
  TempDir folder;
  EXPECT_EQ(FSMKDirFromRoot(folder / "none/a", folder / "none"), -1);
  EXPECT_FALSE(fs::exists(folder / "none"));
}

TEST(FSMKDirFromRoot, RejectsARootLongerThanTheTarget) {
  FileOpLog const log;
  EXPECT_EQ(FSMKDirFromRoot("/a", "/a/b"), -1);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): Giving a root '/a/b' whose length is "
                                       "larger then target's '/a'."));
}

TEST(FSMKDirFromRoot, RejectsARootWithATrailingSlash) {
  FileOpLog const log;
  EXPECT_EQ(FSMKDirFromRoot("/a/b/c", "/a/b/"), -1);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): root '/a/b/' is not a parent folder of "
                                       "target '/a/b/c'"));
}

TEST(FSMKDirFromRoot, AcceptsATrailingSlashOfTheTarget) {
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
