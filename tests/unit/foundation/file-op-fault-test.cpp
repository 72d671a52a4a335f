// The branches that a healthy file system doesn't take.

#include <gmock/gmock.h>
#include <linux/magic.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"
#include "system-calls.h"

namespace fs = std::filesystem;
using test::FileOpLog;
using test::ReadFile;
using test::ReadTree;
using test::SystemCalls;
using test::TempDir;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr std::size_t kCopyBlock = 33554432;

int FailWith(int code) {
  errno = code;
  return -1;
}

/// Makes every rename one across volumes.
void TakeVolumesForDifferent(SystemCalls& calls) {
  calls.rename = [](char const*, char const*) { return FailWith(EXDEV); };
}

/// Lets a listing fail in place of its entry number `at`.
void BreakListing(SystemCalls& calls, int at) {
  calls.readdir_r = [at, count = 0](DIR* dir, dirent* buffer, dirent** entry) mutable {
    return count++ == at ? EIO : test::LibraryReadDir(dir, buffer, entry);
  };
}

/// The result of `look` on a volume of a given type.
bool OnVolume(unsigned long type, bool (*look)(ustring const&)) {
  SystemCalls calls;
  calls.statfs = [type](char const*, struct statfs* info) {
    *info = {};
    info->f_type = static_cast<decltype(info->f_type)>(type);
    return 0;
  };
  return look("/any");
}

}  // namespace

TEST(GetFileInfoFault, FailsForAnObjectOfNoKnownType) {
  TempDir folder;
  WriteFile(folder / "file", "12345");
  SystemCalls calls;
  calls.lstat = [](char const* path, struct stat* info) {
    int const result = test::LibraryLstat(path, info);
    info->st_mode = 0150644;
    return result;
  };
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(folder / "file", info), -1);
}

TEST(GetFileInfoFault, SignExtendsTheDeviceNumberFrom32Bits) {
  TempDir folder;
  WriteFile(folder / "file", "");
  SystemCalls calls;
  calls.lstat = [](char const* path, struct stat* info) {
    int const result = test::LibraryLstat(path, info);
    info->st_dev = 0xFFFFFFFEU;
    return result;
  };
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(folder / "file", info), 0);
  EXPECT_EQ(info.dev, -2);
}

TEST(IsFileExistFault, AsksTheSystemNothingForAnEmptyPath) {
  SystemCalls calls;
  int looks = 0;
  calls.lstat = [&looks](char const* path, struct stat* info) {
    ++looks;
    return test::LibraryLstat(path, info);
  };
  EXPECT_FALSE(IsFileExist("", false));
  EXPECT_FALSE(IsFileExist("", true));
  EXPECT_EQ(looks, 0);
  EXPECT_TRUE(IsFileExist("/", false));
  EXPECT_EQ(looks, 1);
}

TEST(FSStatFault, TellsALookThatFailsTheSecondTime) {
  TempDir folder;
  WriteFile(folder / "Kelvin", "");  // a name that has other spellings, which are no way around
  SystemCalls calls;
  calls.lstat = [count = 0](char const* path, struct stat* info) mutable {
    return count++ == 1 ? FailWith(EIO) : test::LibraryLstat(path, info);
  };
  _FILE_INFO_tag info;
  EXPECT_EQ(FSStat(folder / "Kelvin", info, false), -2);
}

TEST(FSReadDirFault, LogsAListingThatBreaksOff) {
  TempDir folder;
  FileOpLog const log;
  DIR_HANDLE handle;
  ASSERT_EQ(FSOpenDir(folder.path().c_str(), 0, handle), 0);
  DIR_ENTRY entry;
  {
    SystemCalls calls;
    BreakListing(calls, 0);
    EXPECT_EQ(FSReadDir(handle, entry), -1);
  }
  FSCloseDir(handle);
  EXPECT_THAT(log.Lines(), ElementsAre("[ERROR] file-op(#): FSOpenDir: Failed to read directory '" +
                                       folder.path().string() + "'. " + strerror(EIO)));
}

TEST(FSReadDirFault, LogsAnEntryWhoseDetailsCannotBeHad) {
  TempDir folder;
  WriteFile(folder / "file", "");
  FileOpLog const log;
  DIR_HANDLE handle;
  ASSERT_EQ(FSOpenDir(folder.path().c_str(), 1, handle), 0);
  DIR_ENTRY entry;
  int result = 0;
  {
    SystemCalls calls;
    calls.readdir_r = [](DIR* dir, dirent* buffer, dirent** found) {
      do {
        if (int const error = test::LibraryReadDir(dir, buffer, found)) return error;
      } while (*found != nullptr && (*found)->d_name[0] == '.');
      return 0;
    };
    calls.lstat = [count = 0](char const* path, struct stat* info) mutable {
      return count++ == 1 ? FailWith(EIO) : test::LibraryLstat(path, info);
    };
    result = FSReadDir(handle, entry);
  }
  FSCloseDir(handle);
  EXPECT_EQ(result, -1);
  EXPECT_THAT(log.Messages(),
              ElementsAre("[ERROR] file-op(#): FSOpenDir: Failed to get info for '" +
                          folder / "file" + "'"));
}

TEST(FSReadDirFault, GivesNoTypeForAnEntryOfAnotherKind) {
  TempDir folder;
  DIR_HANDLE handle;
  ASSERT_EQ(FSOpenDir(folder.path().c_str(), 0, handle), 0);
  struct Case {
    unsigned char d_type;
    int type;
  };
  for (Case const& one : {Case{DT_UNKNOWN, 0}, Case{DT_BLK, 5}, Case{DT_CHR, 5}, Case{DT_WHT, 0}}) {
    SystemCalls calls;
    calls.readdir_r = [&one](DIR*, dirent* buffer, dirent** found) {
      std::strcpy(buffer->d_name, "name");
      buffer->d_type = one.d_type;
      *found = buffer;
      return 0;
    };
    DIR_ENTRY entry;
    EXPECT_EQ(FSReadDir(handle, entry), 1);
    EXPECT_EQ(entry.type, one.type);
  }
  FSCloseDir(handle);
}

TEST(IsMountPointFault, IsTrueForNetworkVolumesAlone) {
  EXPECT_TRUE(OnVolume(NFS_SUPER_MAGIC, isMountPoint));
  EXPECT_TRUE(OnVolume(SMB_SUPER_MAGIC, isMountPoint));
  EXPECT_TRUE(OnVolume(CIFS_SUPER_MAGIC, isMountPoint));
  EXPECT_TRUE(OnVolume(SMB2_SUPER_MAGIC, isMountPoint));
  EXPECT_FALSE(OnVolume(MSDOS_SUPER_MAGIC, isMountPoint));
  EXPECT_FALSE(OnVolume(TMPFS_MAGIC, isMountPoint));
  EXPECT_FALSE(OnVolume(EXT4_SUPER_MAGIC, isMountPoint));
}

TEST(IsMountPointFault, IsFalseForALocalMountPoint) { EXPECT_FALSE(isMountPoint("/proc")); }

TEST(IsMountPointFault, IsFalseAndLoggedWhenTheVolumeCannotBeAsked) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_FALSE(isMountPoint(folder / "none"));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[ERROR] file-op(#): isMountPoint: Failed to get file system info '" +
                          folder / "none" + "'. " + strerror(ENOENT)));
}

TEST(IsMSDOSFault, IsTrueAndLoggedForFat) {
  FileOpLog const log;
  EXPECT_TRUE(OnVolume(MSDOS_SUPER_MAGIC, IsMSDOS));
  EXPECT_THAT(log.Lines(),
              ElementsAre("[WARNING] file-op(#): Detect a MSDOS platform for path '/any'."));
}

TEST(IsMSDOSFault, IsFalseForOtherVolumes) {
  FileOpLog const log;
  EXPECT_FALSE(OnVolume(NFS_SUPER_MAGIC, IsMSDOS));
  EXPECT_FALSE(OnVolume(EXT4_SUPER_MAGIC, IsMSDOS));
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(IsMSDOSFault, IsFalseAndLoggedUnderAnotherNameWhenTheVolumeCannotBeAsked) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_FALSE(IsMSDOS(folder / "none"));
  EXPECT_THAT(
      log.Lines(),
      ElementsAre("[ERROR] file-op(#): IsSupportLargeFile: Failed to get file system info '" +
                  folder / "none" + "'. " + strerror(ENOENT)));
}

TEST(FSCopyFault, ReadsAFileOfExactlyOneBlockInTwoCalls) {
  TempDir folder;
  WriteFile(folder / "source", std::string(kCopyBlock, 'x'));
  SystemCalls calls;
  std::vector<std::size_t> asked;
  std::vector<ssize_t> got;
  calls.read = [&](int file, void* bytes, std::size_t count) {
    asked.push_back(count);
    got.push_back(test::LibraryRead(file, bytes, count));
    return got.back();
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  calls.read = nullptr;
  EXPECT_THAT(asked, ElementsAre(kCopyBlock, kCopyBlock));
  EXPECT_THAT(got, ElementsAre(static_cast<ssize_t>(kCopyBlock), 0));
  EXPECT_EQ(fs::file_size(folder / "target"), kCopyBlock);
}

TEST(FSCopyFault, ReadsAnEmptyFileOnceAndMakesAnEmptyTarget) {
  TempDir folder;
  WriteFile(folder / "source", "");
  SystemCalls calls;
  int reads = 0;
  calls.read = [&](int file, void* bytes, std::size_t count) {
    ++reads;
    return test::LibraryRead(file, bytes, count);
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  calls.read = nullptr;
  EXPECT_EQ(reads, 1);
  EXPECT_EQ(fs::file_size(folder / "target"), 0U);
}

TEST(FSCopyFault, ClosesTheSourceThenSyncsAndClosesTheTargetThenFreesTheBuffer) {
  TempDir folder;
  for (bool const is_refused : {false, true}) {
    for (bool const remove_source : {false, true}) {
      WriteFile(folder / "source", "bytes");
      std::vector<std::string> steps;
      int source = -1;
      int target = -1;
      void* buffer = nullptr;
      {
        SystemCalls calls;
        calls.read = [&](int file, void* bytes, std::size_t count) {
          source = file;
          buffer = bytes;
          return test::LibraryRead(file, bytes, count);
        };
        calls.write = [&](int file, void const* bytes, std::size_t count) -> ssize_t {
          target = file;
          return is_refused ? FailWith(ENOSPC) : test::LibraryWrite(file, bytes, count);
        };
        calls.fsync = [&](int file) {
          if (file == target) steps.push_back("sync the target");
          return 0;
        };
        calls.close = [&](int file) {
          if (file == source) steps.push_back("close the source");
          if (file == target) steps.push_back("close the target");
        };
        calls.free = [&](void* block) {
          if (block == buffer && block != nullptr) steps.push_back("free the buffer");
        };
        EXPECT_EQ(FSCopy(folder / "source", folder / "target", remove_source), is_refused ? -2 : 0);
      }
      EXPECT_THAT(steps, ElementsAre("close the source", "sync the target", "close the target",
                                     "free the buffer"));
    }
  }
}

TEST(FSCopyFault, GoesOnAfterShortReadsAndWrites) {
  TempDir folder;
  std::string bytes;
  for (int i = 0; i < 5000; ++i) bytes += std::to_string(i);
  WriteFile(folder / "source", bytes);
  SystemCalls calls;
  calls.read = [](int file, void* to, std::size_t count) {
    return test::LibraryRead(file, to, std::min(count, std::size_t{1000}));
  };
  calls.write = [](int file, void const* from, std::size_t count) {
    return test::LibraryWrite(file, from, std::min(count, std::size_t{7}));
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  calls.read = nullptr;
  calls.write = nullptr;
  EXPECT_EQ(ReadFile(folder / "target"), bytes);
}

TEST(FSCopyFault, TellsFullDiskAndQuotaFromOtherFailedWrites) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  auto const result_of = [&folder](ssize_t written, int code) {
    SystemCalls calls;
    calls.write = [written, code](int, void const*, std::size_t) {
      errno = code;
      return written;
    };
    return FSCopy(folder / "source", folder / "target", true);
  };
  EXPECT_EQ(result_of(-1, ENOSPC), -2);
  EXPECT_EQ(result_of(-1, EDQUOT), -2);
  EXPECT_EQ(result_of(-1, EIO), -1);
  EXPECT_EQ(result_of(0, 0), -1);
  EXPECT_TRUE(fs::exists(folder / "source"));
}

TEST(FSCopyFault, LogsTheReasonThatTheResultIsMadeOf) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  FileOpLog const log;
  SystemCalls calls;
  bool is_first = true;
  calls.write = [&is_first](int file, void const* bytes, std::size_t count) {
    bool const fails = is_first;
    is_first = false;  // the log's own writes come next
    return fails ? FailWith(EDQUOT) : test::LibraryWrite(file, bytes, count);
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), -2);
  EXPECT_THAT(log.Lines(), ElementsAre(std::string("[ERROR] file-op(#): CopyFile: write: ") +
                                       strerror(EDQUOT) + " (" + std::to_string(EDQUOT) + ")"));
}

TEST(FSCopyFault, SyncsTheTargetOnSuccessAndOnFailureAndIgnoresTheResult) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  SystemCalls calls;
  int syncs = 0;
  calls.fsync = [&syncs](int) {
    ++syncs;
    return FailWith(EIO);
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  EXPECT_EQ(syncs, 1);
  calls.read = [](int, void*, std::size_t) { return FailWith(EIO); };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), -1);
  EXPECT_EQ(syncs, 2);
  EXPECT_EQ(FSCopy(folder / "none", folder / "target", false), -1);
  EXPECT_EQ(syncs, 2);
}

TEST(FSCopyFault, FailsWithoutMemoryForItsBuffer) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "a sanitizer needs more address space than the test leaves";
#endif
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  FileOpLog const log;
  pid_t const child = fork();
  if (child == 0) {
    std::ifstream sizes("/proc/self/statm");
    rlim_t pages = 0;
    sizes >> pages;
    rlim_t const limit = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + (8U << 20);
    rlimit const space = {limit, limit};
    if (setrlimit(RLIMIT_AS, &space) != 0) _exit(2);
    _exit(FSCopy(folder / "source", folder / "target", true) == -1 ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(fs::exists(folder / "source"));
  EXPECT_THAT(log.Lines(),
              ElementsAre(std::string("[ERROR] file-op(#): FSCopy: malloc(33554432): ") +
                          strerror(ENOMEM) + " (" + std::to_string(ENOMEM) + ")"));
}

TEST(FSRenameFault, MovesAcrossVolumesWithAllThatIsInAFolder) {
  TempDir folder;
  WriteFile(folder / "source/file", "one");
  WriteFile(folder / "source/sub/deep/file", "two");
  auto const tree = ReadTree(folder / "source");
  SystemCalls calls;
  TakeVolumesForDifferent(calls);
  EXPECT_EQ(FSRename(folder / "source", folder / "made/target", true), 0);
  EXPECT_EQ(ReadTree(folder / "made/target"), tree);
  EXPECT_FALSE(fs::exists(folder / "source"));
}

TEST(FSRenameFault, SaysThatObjectsOfOtherKindsAreMovedAcrossVolumes) {
  TempDir folder;
  fs::create_symlink("text", folder / "link");
  ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
  SystemCalls calls;
  TakeVolumesForDifferent(calls);
  for (char const* const name : {"link", "fifo"}) {
    EXPECT_EQ(FSRename(folder / name, folder / "target", false), 0) << name;
    EXPECT_TRUE(fs::exists(fs::symlink_status(folder / name))) << name;
    EXPECT_FALSE(fs::exists(fs::symlink_status(folder / "target"))) << name;
  }
}

TEST(FSRenameFault, FailsInTheEndForATreeWithALinkAndLeavesTheRestMoved) {
  TempDir folder;
  WriteFile(folder / "source/file", "bytes");
  fs::create_symlink("file", folder / "source/link");
  SystemCalls calls;
  TakeVolumesForDifferent(calls);
  EXPECT_EQ(FSRename(folder / "source", folder / "target", false), -3);
  EXPECT_EQ(ReadFile(folder / "target/file"), "bytes");
  EXPECT_TRUE(fs::is_symlink(folder / "source/link"));
  EXPECT_FALSE(fs::exists(folder / "source/file"));
}

TEST(FSRenameFault, FoldsAFullDiskIntoItsFailure) {
  TempDir folder;
  WriteFile(folder / "file", "bytes");
  SystemCalls calls;
  TakeVolumesForDifferent(calls);
  calls.write = [](int, void const*, std::size_t) { return FailWith(ENOSPC); };
  EXPECT_EQ(FSRename(folder / "file", folder / "target", false), -3);
  EXPECT_TRUE(fs::exists(folder / "file"));
}

TEST(FSRenameFault, StopsAtTheFirstEntryThatFails) {
  TempDir folder;
  WriteFile(folder / "source/one", "bytes");
  WriteFile(folder / "source/two", "bytes");
  SystemCalls calls;
  TakeVolumesForDifferent(calls);
  int reads = 0;
  calls.read = [&reads](int, void*, std::size_t) {
    ++reads;
    return FailWith(EIO);
  };
  EXPECT_EQ(FSRename(folder / "source", folder / "target", false), -3);
  EXPECT_EQ(reads, 1);
}

TEST(FSRenameFault, TakesAListingThatBreaksOffForEnded) {
  TempDir folder;
  WriteFile(folder / "source/file", "bytes");
  SystemCalls calls;
  TakeVolumesForDifferent(calls);
  BreakListing(calls, 0);
  EXPECT_EQ(FSRename(folder / "source", folder / "target", false), -3);
  EXPECT_TRUE(fs::is_empty(folder / "target"));
  EXPECT_TRUE(fs::exists(folder / "source/file"));

  WriteFile(folder / "empty/file", "");
  fs::remove(folder / "empty/file");
  BreakListing(calls, 0);
  EXPECT_EQ(FSRename(folder / "empty", folder / "moved", false), 0);
  EXPECT_FALSE(fs::exists(folder / "empty"));
}

TEST(FSRenameFault, TellsTheReasonsOfRenameApart) {
  TempDir folder;
  WriteFile(folder / "file", "");
  auto const result_of = [&folder](int code) {
    SystemCalls calls;
    calls.rename = [code](char const*, char const*) { return FailWith(code); };
    return FSRename(folder / "file", folder / "target", false);
  };
  EXPECT_EQ(result_of(ENAMETOOLONG), -100);
  EXPECT_EQ(result_of(EACCES), -3);
  EXPECT_EQ(result_of(ENOSPC), -3);
}

TEST(FSRemoveFault, TakesAListingThatBreaksOffForEnded) {
  TempDir folder;
  WriteFile(folder / "tree/file", "");
  fs::create_directory(folder / "empty");
  SystemCalls calls;
  BreakListing(calls, 0);
  EXPECT_EQ(FSRemove(folder / "tree", false), -3);
  EXPECT_TRUE(fs::exists(folder / "tree/file"));
  BreakListing(calls, 0);
  EXPECT_EQ(FSRemove(folder / "empty", false), 0);
  EXPECT_FALSE(fs::exists(folder / "empty"));
}
