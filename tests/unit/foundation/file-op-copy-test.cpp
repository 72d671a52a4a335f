#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <filesystem>
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
using test::WriteFile;
using ::testing::ElementsAre;

namespace {

constexpr std::size_t kCopyBlock = 33554432;

}  // namespace

TEST(FSCopy, TakesDescriptorZeroIfItIsFree) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  {
    test::ClosedInput const closed;
    EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  }
  EXPECT_EQ(ReadFile(folder / "target"), "bytes");
}

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

TEST(FSCopy, RemovesTheSourceOnRequest) {
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

TEST(FSCopy, CreatesTheTargetWithTheUmasksModeAndNoMetadataOfTheSource) {
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

TEST(FSCopy, TruncatesAnExistingTargetAndKeepsItsMode) {
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

TEST(FSCopy, FollowsASymlinkAsSource) {
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

TEST(FSCopy, ReturnsAnErrorOfItsOwnForAFullDisk) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  FileOpLog const log;
  EXPECT_EQ(FSCopy(folder / "source", "/dev/full", true), -2);
  EXPECT_TRUE(fs::exists(folder / "source"));
  EXPECT_THAT(log.Lines(), ElementsAre(std::string("[ERROR] file-op(#): CopyFile: write: ") +
                                       strerror(ENOSPC) + " (" + std::to_string(ENOSPC) + ")"));
}

TEST(FSCopy, LeavesAPartialTargetOnAnyOtherWriteError) {
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
