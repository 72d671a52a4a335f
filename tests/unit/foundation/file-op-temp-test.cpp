#include <gmock/gmock.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"

namespace fs = std::filesystem;
using test::FileOpLog;
using test::ModeOf;
using test::TempDir;
using test::Umask;
using ::testing::ElementsAre;

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

TEST(FSMktemp, MakesANewFileEachTime) {
  TempDir folder;
  ustring one;
  ustring two;
  EXPECT_EQ(FSMktemp(folder.path().c_str(), one), 0);
  EXPECT_EQ(FSMktemp(folder.path().c_str(), two), 0);
  EXPECT_NE(one, two);
}

TEST(FSMktemp, LogsAFailureAndLeavesThePathUnchanged) {
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

TEST(FSMktemp, TakesDescriptorZeroIfItIsFree) {
  TempDir folder;
  test::ClosedInput const closed;
  ustring path;
  EXPECT_EQ(FSMktemp(folder.path().c_str(), path), 0);
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

TEST(FSCreateTempPath, GeneratesAPathAndCreatesNothing) {
  TempDir folder;
  ustring path;
  EXPECT_EQ(FSCreateTempPath(folder.path().c_str(), path), 0);
  EXPECT_EQ(fs::path(path.c_str()).parent_path(), folder.path());
  EXPECT_EQ(fs::path(path.c_str()).filename().string().size(), 8U);
  EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(FSCreateTempPath, GeneratesAnotherPathEachTime) {
  std::set<std::string> paths;
  for (int i = 0; i < 1000; ++i) {
    ustring path;
    EXPECT_EQ(FSCreateTempPath("/tmp", path), 0);
    paths.insert(path.c_str());
  }
  EXPECT_EQ(paths.size(), 1000U);
}
