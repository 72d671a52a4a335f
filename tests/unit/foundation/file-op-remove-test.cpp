#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"
#include "support/unprivileged.h"

namespace fs = std::filesystem;
using test::FileOpLog;
using test::ReadFile;
using test::TempDir;
using test::WorkingFolder;
using test::WriteFile;
using ::testing::IsEmpty;

namespace {

/// Makes nested folders until the path of the innermost has this length, step by step, since no
/// system call accepts the whole path.
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
    // A slash and a name, the last one as soon as it fits.
    std::size_t const left = length - path.size();
    name = std::string(left > NAME_MAX ? NAME_MAX / 2 : left - 1, 'd');
  }
  close(at);
  return path.size() == length;
}

}  // namespace

TEST(FSRemove, RejectsAnEmptyPath) { EXPECT_EQ(FSRemove("", false), -1); }

TEST(FSRemove, SucceedsForAMissingPath) {
  TempDir folder;
  EXPECT_EQ(FSRemove(folder / "missing", false), 0);
}

TEST(FSRemove, FailsWhenStatFails) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_EQ(FSRemove(folder / "file/below", false), -1);
}

TEST(FSRemove, RemovesATreeWithEveryKindOfFile) {
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

TEST(FSRemove, RemovesSymlinksWithoutFollowingThem) {
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

TEST(FSRemove, AcceptsATrailingSlash) {
  TempDir folder;
  WriteFile(folder / "tree/file", "");
  EXPECT_EQ(FSRemove(folder / "tree/", false), 0);
  EXPECT_FALSE(fs::exists(folder / "tree"));
}

// Every kind of name that isn't in its composed form, for files, folders and symlinks, also next to
// their twins.
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
    // Some volumes treat the twins as the same name.
    if (!fs::is_symlink(fs::symlink_status(link))) fs::create_symlink(name, link);
  }
  FileOpLog const log;
  EXPECT_EQ(FSRemove(folder / "tree", false), 0);
  EXPECT_FALSE(fs::exists(folder / "tree"));
  EXPECT_THAT(log.Messages(), IsEmpty());
}

TEST(FSRemove, RemovesBelowADecomposedFolder) {
  TempDir folder;
  std::string const home = folder / "cafe\xCC\x81";
  WriteFile(home + "/tree/file", "bytes");
  EXPECT_EQ(FSRemove(home + "/tree", false), 0);
  EXPECT_FALSE(fs::exists(home + "/tree"));
  EXPECT_EQ(FSRemove(home + "/missing", false), 0);
}

// On this volume, the other form names another file: changes use the path as given.
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

TEST(FSRemove, FailsForANameInInvalidUtf8AndLeavesIt) {
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
  WorkingFolder const here(folder.path());
  EXPECT_EQ(FSRemove("tree", false), 0);
  EXPECT_FALSE(fs::exists(folder / "tree"));
}

TEST(FSRemove, RemovesThroughASymlinkAbove) {
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

TEST(FSRemove, LogsEachFolderBeforeItsEntries) {
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

TEST(FSRemove, FailsSilentlyWhereAPathIsTooLongForTheSystem) {
  constexpr std::size_t kTooLong = PATH_MAX;  // includes the terminator
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

TEST(FSRemove, FailsForAFileThatCannotBeRemoved) {
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

TEST(FSRemove, StopsAtTheFirstFileThatCannotBeRemoved) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can make files of two owners";
  constexpr int kFilesOfEach = 10;
  TempDir folder;
  test::GiveAway(folder.path().c_str());
  fs::create_directory(folder / "tree");
  for (int i = 0; i < kFilesOfEach; ++i) {
    WriteFile(folder / ("tree/roots-" + std::to_string(i)), "");
    std::string const own = folder / ("tree/own-" + std::to_string(i));
    WriteFile(own, "");
    test::GiveAway(own.c_str());
  }
  fs::permissions(folder / "tree", fs::perms(01777));  // in which users remove only their own files
  test::RunUnprivileged([&folder] { EXPECT_EQ(FSRemove(folder / "tree", false), -3); });
  auto const left =
      std::distance(fs::directory_iterator(folder / "tree"), fs::directory_iterator());
  EXPECT_GT(left, kFilesOfEach);
}

TEST(FSRemove, FailsForAnEntryThatCannotBeStatted) {
  TempDir folder;
  WriteFile(folder / "tree/file", "");
  test::GiveAway(folder.path().c_str());
  test::GiveAway((folder / "tree").c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder / "tree", fs::perms(0400));  // entries can be listed, but not statted
    EXPECT_EQ(FSRemove(folder / "tree", false), -3);
    fs::permissions(folder / "tree", fs::perms(0700));
  });
}

TEST(FSRemove, StopsAtTheFirstFolderThatCannotBeRemoved) {
  TempDir folder;
  test::GiveAway(folder.path().c_str());
  test::RunUnprivileged([&folder] {
    for (std::string const name : {"tree/a/inner", "tree/b/inner"}) {
      WriteFile(folder / (name + "/file"), "");
      fs::create_directories(folder / (name + "/closed"));
      fs::permissions(folder / (name + "/closed"),
                      fs::perms(0300));  // stays, and its folder with it
    }
    EXPECT_EQ(FSRemove(folder / "tree", false), -3);
    // The volume chooses which of the two comes first.
    EXPECT_NE(fs::exists(folder / "tree/a/inner/file"), fs::exists(folder / "tree/b/inner/file"));
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
