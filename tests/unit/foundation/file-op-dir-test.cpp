#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <map>
#include <string>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"

namespace fs = std::filesystem;
using test::FileOpLog;
using test::MakeSocket;
using test::TempDir;
using test::WriteFile;
using ::testing::ElementsAre;

namespace {

std::string Text(ustring const& s) { return s.c_str(); }

std::map<std::string, DIR_ENTRY> ReadAll(std::string const& path, int flags) {
  std::map<std::string, DIR_ENTRY> entries;
  DIR_HANDLE handle;
  EXPECT_EQ(FSOpenDir(path, flags, handle), 0);
  DIR_ENTRY entry;
  int result;
  while ((result = FSReadDir(handle, entry)) == 1) entries[Text(entry.name)] = entry;
  EXPECT_EQ(result, 0);
  FSCloseDir(handle);
  return entries;
}

}  // namespace

TEST(DirHandle, IsEmptyAtFirstLikeAnEntry) {
  DIR_HANDLE const handle;
  EXPECT_EQ(handle.dir, nullptr);
  EXPECT_EQ(handle.flags, 0);
  DIR_ENTRY const entry;
  EXPECT_EQ(entry.type, 0);
  EXPECT_EQ(entry.mtime, 0);
  EXPECT_EQ(entry.size, 0);
}

TEST(FSOpenDir, LogsAFailureAndLeavesTheHandleUnchanged) {
  TempDir folder;
  FileOpLog const log;
  DIR_HANDLE handle;
  EXPECT_EQ(FSOpenDir(folder / "none", 1, handle), -1);
  EXPECT_EQ(handle.dir, nullptr);
  EXPECT_TRUE(handle.path.empty());
  EXPECT_EQ(handle.flags, 0);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): FSOpenDir: Failed to open directory '" +
                                       folder / "none" + "'. " + strerror(ENOENT)));
}

TEST(FSOpenDir, StoresPathAndFlagsAndIsClosedOnExec) {
  TempDir folder;
  DIR_HANDLE handle;
  ASSERT_EQ(FSOpenDir(folder.path().c_str(), 1, handle), 0);
  EXPECT_EQ(Text(handle.path), folder.path());
  EXPECT_EQ(handle.flags, 1);
  EXPECT_NE(fcntl(dirfd(handle.dir), F_GETFD) & FD_CLOEXEC, 0);
  FSCloseDir(handle);
}

TEST(FSReadDir, ReturnsNamesAndTypesIncludingDots) {
  TempDir folder;
  std::string const path = folder / "listed";
  WriteFile(folder / "listed/file", "");
  fs::create_directory(path + "/folder");
  fs::create_symlink("file", path + "/link");
  ASSERT_EQ(mkfifo((path + "/fifo").c_str(), 0600), 0);
  MakeSocket(path + "/socket");
  std::map<std::string, int> types;
  for (auto const& [name, entry] : ReadAll(path, 0)) types[name] = entry.type;
  std::map<std::string, int> const expected = {
      {".", 2}, {"..", 2}, {"file", 1}, {"folder", 2}, {"link", 3}, {"fifo", 6}, {"socket", 7}};
  EXPECT_EQ(types, expected);
}

TEST(FSReadDir, ReturnsTheTypeOfDevices) {
  auto const entries = ReadAll("/dev", 0);
  ASSERT_EQ(entries.count("null"), 1U);
  EXPECT_EQ(entries.at("null").type, 5);
}

TEST(FSReadDir, ReturnsNoDetailsByDefault) {
  TempDir folder;
  WriteFile(folder / "file", "12345");
  for (auto const& [name, entry] : ReadAll(folder.path(), 0)) {
    EXPECT_EQ(entry.mtime, 0) << name;
    EXPECT_EQ(entry.size, 0) << name;
  }
}

TEST(FSReadDir, ReturnsTimeAndSizeOnRequest) {
  TempDir folder;
  WriteFile(folder / "file", "12345");
  ASSERT_EQ(FSUTime(folder / "file", 1000, 2000), 0);
  auto const entries = ReadAll(folder.path(), 1);
  EXPECT_EQ(entries.at("file").mtime, 2000);
  EXPECT_EQ(entries.at("file").size, 5);
}

TEST(FSReadDir, ReturnsZerosForAnEntryOfAFolderWithAnotherSpelling) {
  TempDir folder;
  WriteFile(folder / "real/file", "12345");
  fs::create_symlink("real", folder / "link");
  auto const entries = ReadAll(folder / "link", 1);
  ASSERT_EQ(entries.count("file"), 1U);
  EXPECT_EQ(entries.at("file").type, 1);
  EXPECT_EQ(entries.at("file").mtime, 0);
  EXPECT_EQ(entries.at("file").size, 0);
}

TEST(FSCloseDir, EmptiesTheHandleAndIsSafeOnAClosedOne) {
  TempDir folder;
  DIR_HANDLE handle;
  ASSERT_EQ(FSOpenDir(folder.path().c_str(), 0, handle), 0);
  int const descriptor = dirfd(handle.dir);
  FSCloseDir(handle);
  EXPECT_EQ(fcntl(descriptor, F_GETFD), -1) << "the folder is still open";
  EXPECT_EQ(handle.dir, nullptr);
  EXPECT_TRUE(handle.path.empty());
  FSCloseDir(handle);
  EXPECT_EQ(handle.dir, nullptr);
}
