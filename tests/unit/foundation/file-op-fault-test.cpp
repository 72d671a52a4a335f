// Branches that a healthy file system doesn't reach.

#include <gmock/gmock.h>
#include <linux/magic.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

#include "foundation/file-op.h"
#include "platform/core-services.h"
#include "support/file-op-log.h"
#include "support/files.h"
#include "support/unprivileged.h"
#include "system-calls.h"

namespace fs = std::filesystem;
using test::FailWith;
using test::FileOpLog;
using test::ReadFile;
using test::ReadTree;
using test::SystemCalls;
using test::TempDir;
using test::WriteFile;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// Makes every rename cross volumes.
void MakeRenamesCrossVolumes(SystemCalls& calls) {
  calls.rename = [](char const*, char const*) { return FailWith(EXDEV); };
}

/// The buffer size of the last FSRefMakePath that failed, as each does while `ref_has_no_path` is
/// set.
UInt32 refused_size = 0;
bool ref_has_no_path = false;

/// The type of every volume, unless null.
char const* volume_type = nullptr;

/// Makes reading a folder fail at entry number `at`.
void BreakListing(SystemCalls& calls, int at) {
  calls.readdir_r = [at, count = 0](DIR* dir, dirent* buffer, dirent** entry) mutable {
    return count++ == at ? EIO : test::LibraryReadDir(dir, buffer, entry);
  };
}

/// The result of `query` on a volume of a given type.
bool OnVolume(unsigned long type, bool (*query)(ustring const&)) {
  SystemCalls calls;
  calls.statfs = [type](char const*, struct statfs* info) {
    *info = {};
    info->f_type = static_cast<decltype(info->f_type)>(type);
    return 0;
  };
  return query("/any");
}

}  // namespace

// Functions of the platform layer, through --wrap.
extern "C" {
int __real__ZN8platform14FileSystemNameEPKcRNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE(
    char const* path, std::string& name);
int __wrap__ZN8platform14FileSystemNameEPKcRNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE(
    char const* path, std::string& name);
int __wrap__ZN8platform14FileSystemNameEPKcRNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE(
    char const* path, std::string& name) {
  int const result =
      __real__ZN8platform14FileSystemNameEPKcRNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE(
          path, name);
  if (volume_type != nullptr) name = volume_type;
  return result;
}

OSStatus __real__Z13FSRefMakePathPK5FSRefPhj(FSRef const* ref, UInt8* path, UInt32 max_path_size);
OSStatus __wrap__Z13FSRefMakePathPK5FSRefPhj(FSRef const* ref, UInt8* path, UInt32 max_path_size);
OSStatus __wrap__Z13FSRefMakePathPK5FSRefPhj(FSRef const* ref, UInt8* path, UInt32 max_path_size) {
  if (!ref_has_no_path) return __real__Z13FSRefMakePathPK5FSRefPhj(ref, path, max_path_size);
  refused_size = max_path_size;
  return pathTooLongErr;
}
}

TEST(FSReadSymbolicLinkFault, AcceptsAnEmptyTarget) {
  SystemCalls calls;
  calls.readlink = [](char const*, char*, std::size_t) { return ssize_t{0}; };
  ustring target = "before";
  EXPECT_EQ(FSReadSymbolicLink("/any", target), 0);
  EXPECT_TRUE(target.empty());
}

TEST(FSUTimeFault, SetsWholeSeconds) {
  SystemCalls calls;
  calls.lutimes = [](char const*, timeval const* times) {
    EXPECT_EQ(times[0].tv_sec, 1000);
    EXPECT_EQ(times[0].tv_usec, 0);
    EXPECT_EQ(times[1].tv_sec, 2000);
    EXPECT_EQ(times[1].tv_usec, 0);
    return 0;
  };
  EXPECT_EQ(FSUTime("/any", 1000, 2000), 0);
}

TEST(FSMKDirPFault, FailsWithoutMemory) {
  TempDir folder;
  SystemCalls calls;
  calls.strdup = [](char const*) { return static_cast<char*>(nullptr); };
  EXPECT_EQ(FSMKDirP(folder / "new", nullptr, false, 0755), -1);
}

TEST(GetFileInfoFault, FailsForAFileOfUnknownType) {
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

TEST(GetFileInfoFault, FailsForAFileThatVanishesAfterItsStat) {
  TempDir folder;
  WriteFile(folder / "file", "");
  FileOpLog const log;
  SystemCalls calls;
  calls.lstat = [](char const* path, struct stat* info) {
    int const result = test::LibraryLstat(path, info);
    unlink(path);
    return result;
  };
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(folder / "file", info), -1);
  EXPECT_THAT(log.Lines(), Contains("[ERROR] file-op(#): FSPathMakeRef: -43"));
}

TEST(GetFileInfoFault, FailsLikeFSGetRealPathIfTheStoredPathIsTooLong) {
  TempDir folder;
  WriteFile(folder / "file", "");
  FileOpLog const log;
  _FILE_INFO_tag info;
  ref_has_no_path = true;
  EXPECT_EQ(GetFileInfo(folder / "file", info), -1);
  ustring path = folder / "file";
  EXPECT_EQ(FSGetRealPath(path), -1);
  EXPECT_FALSE(IsFileExist(path, false));
  ref_has_no_path = false;
  EXPECT_EQ(refused_size, 4096);
  EXPECT_THAT(log.Lines(), Contains("[ERROR] file-op(#): FSPathMakeRef: -2110"));
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

TEST(IsFileExistFault, MakesNoSystemCallForAnEmptyPath) {
  SystemCalls calls;
  int stats = 0;
  calls.lstat = [&stats](char const* path, struct stat* info) {
    ++stats;
    return test::LibraryLstat(path, info);
  };
  EXPECT_FALSE(IsFileExist("", false));
  EXPECT_FALSE(IsFileExist("", true));
  EXPECT_EQ(stats, 0);
  EXPECT_TRUE(IsFileExist("/", false));
  EXPECT_EQ(stats, 1);
}

TEST(FSStatFault, ReportsAnErrorOfTheSecondStat) {
  TempDir folder;
  WriteFile(folder / "Kelvin", "");  // has other spellings, which must not hide the error
  SystemCalls calls;
  calls.lstat = [count = 0](char const* path, struct stat* info) mutable {
    return count++ == 1 ? FailWith(EIO) : test::LibraryLstat(path, info);
  };
  _FILE_INFO_tag info;
  EXPECT_EQ(FSStat(folder / "Kelvin", info, false), -2);
}

TEST(FSReadDirFault, LogsAReadError) {
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

TEST(FSReadDirFault, LogsAnEntryThatCannotBeStatted) {
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

TEST(FSReadDirFault, ReturnsNoTypeForAnEntryOfAnotherKind) {
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

TEST(IsMountPointFault, IsTrueOnlyForNetworkVolumes) {
  EXPECT_TRUE(OnVolume(NFS_SUPER_MAGIC, isMountPoint));
  EXPECT_TRUE(OnVolume(SMB_SUPER_MAGIC, isMountPoint));
  EXPECT_TRUE(OnVolume(CIFS_SUPER_MAGIC, isMountPoint));
  EXPECT_TRUE(OnVolume(SMB2_SUPER_MAGIC, isMountPoint));
  EXPECT_FALSE(OnVolume(MSDOS_SUPER_MAGIC, isMountPoint));
  EXPECT_FALSE(OnVolume(TMPFS_MAGIC, isMountPoint));
  EXPECT_FALSE(OnVolume(EXT4_SUPER_MAGIC, isMountPoint));
}

TEST(IsMountPointFault, IsTrueForAFileServerOfAMac) {
  volume_type = "afpfs";
  EXPECT_TRUE(isMountPoint("/"));
  volume_type = "apfs";
  EXPECT_FALSE(isMountPoint("/"));
  volume_type = nullptr;
}

TEST(IsMountPointFault, IsFalseForALocalMountPoint) { EXPECT_FALSE(isMountPoint("/proc")); }

TEST(IsMountPointFault, IsFalseAndLoggedWhenStatfsFails) {
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

TEST(IsMSDOSFault, IsFalseAndLoggedUnderAnotherNameWhenStatfsFails) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_FALSE(IsMSDOS(folder / "none"));
  EXPECT_THAT(
      log.Lines(),
      ElementsAre("[ERROR] file-op(#): IsSupportLargeFile: Failed to get file system info '" +
                  folder / "none" + "'. " + strerror(ENOENT)));
}

TEST(FSRenameFault, MovesAFolderWithItsContentAcrossVolumes) {
  TempDir folder;
  WriteFile(folder / "source/file", "one");
  WriteFile(folder / "source/sub/deep/file", "two");
  auto const tree = ReadTree(folder / "source");
  SystemCalls calls;
  MakeRenamesCrossVolumes(calls);
  EXPECT_EQ(FSRename(folder / "source", folder / "made/target", true), 0);
  EXPECT_EQ(ReadTree(folder / "made/target"), tree);
  EXPECT_FALSE(fs::exists(folder / "source"));
}

TEST(FSRenameFault, FailsForAnUnreadableFolderAcrossVolumes) {
  TempDir folder;
  fs::create_directory(folder / "closed");
  test::GiveAway(folder.path().c_str());
  test::GiveAway((folder / "closed").c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder / "closed", fs::perms(0300));
    SystemCalls calls;
    MakeRenamesCrossVolumes(calls);
    EXPECT_EQ(FSRename(folder / "closed", folder / "target", false), -3);
    EXPECT_TRUE(fs::exists(folder / "closed"));
  });
}

TEST(FSRenameFault, FailsForAFolderAndAFileAcrossVolumes) {
  TempDir folder;
  fs::create_directory(folder / "source");
  WriteFile(folder / "target", "bytes");
  SystemCalls calls;
  MakeRenamesCrossVolumes(calls);
  EXPECT_EQ(FSRename(folder / "source", folder / "target", false), -3);
  EXPECT_TRUE(fs::exists(folder / "source"));
  EXPECT_EQ(ReadFile(folder / "target"), "bytes");
}

TEST(FSRenameFault, ReportsSuccessForOtherKindsAcrossVolumesWithoutMovingThem) {
  TempDir folder;
  fs::create_symlink("text", folder / "link");
  ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
  SystemCalls calls;
  MakeRenamesCrossVolumes(calls);
  for (char const* const name : {"link", "fifo"}) {
    EXPECT_EQ(FSRename(folder / name, folder / "target", false), 0) << name;
    EXPECT_TRUE(fs::exists(fs::symlink_status(folder / name))) << name;
    EXPECT_FALSE(fs::exists(fs::symlink_status(folder / "target"))) << name;
  }
}

TEST(FSRenameFault, FailsAtTheEndForATreeWithASymlinkAndLeavesTheRestMoved) {
  TempDir folder;
  WriteFile(folder / "source/file", "bytes");
  fs::create_symlink("file", folder / "source/link");
  SystemCalls calls;
  MakeRenamesCrossVolumes(calls);
  EXPECT_EQ(FSRename(folder / "source", folder / "target", false), -3);
  EXPECT_EQ(ReadFile(folder / "target/file"), "bytes");
  EXPECT_TRUE(fs::is_symlink(folder / "source/link"));
  EXPECT_FALSE(fs::exists(folder / "source/file"));
}

TEST(FSRenameFault, DoesNotDistinguishAFullDisk) {
  TempDir folder;
  WriteFile(folder / "file", "bytes");
  SystemCalls calls;
  MakeRenamesCrossVolumes(calls);
  calls.write = [](int, void const*, std::size_t) { return FailWith(ENOSPC); };
  EXPECT_EQ(FSRename(folder / "file", folder / "target", false), -3);
  EXPECT_TRUE(fs::exists(folder / "file"));
}

TEST(FSRenameFault, StopsAtTheFirstEntryThatFails) {
  TempDir folder;
  WriteFile(folder / "source/one", "bytes");
  WriteFile(folder / "source/two", "bytes");
  SystemCalls calls;
  MakeRenamesCrossVolumes(calls);
  int reads = 0;
  calls.read = [&reads](int, void*, std::size_t) {
    ++reads;
    return FailWith(EIO);
  };
  EXPECT_EQ(FSRename(folder / "source", folder / "target", false), -3);
  EXPECT_EQ(reads, 1);
}

TEST(FSRenameFault, TreatsAReadErrorAsTheEndOfTheListing) {
  TempDir folder;
  WriteFile(folder / "source/file", "bytes");
  SystemCalls calls;
  MakeRenamesCrossVolumes(calls);
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

TEST(FSRenameFault, DistinguishesTheErrorsOfRename) {
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

TEST(FSRemoveFault, PassesOverAnEntryThatVanishes) {
  TempDir folder;
  WriteFile(folder / "tree/file", "");
  SystemCalls calls;
  calls.fstatat = [&](int, char const*, struct stat*, int) {
    fs::remove(folder / "tree/file");
    return FailWith(ENOENT);
  };
  EXPECT_EQ(FSRemove(folder / "tree", false), 0);
  calls.fstatat = nullptr;
  EXPECT_FALSE(fs::exists(folder / "tree"));
}

TEST(FSRemoveFault, FailsForAnEntryThatVanishesAfterItsStat) {
  TempDir folder;
  WriteFile(folder / "tree/file", "");
  SystemCalls calls;
  calls.fstatat = [](int at, char const* name, struct stat* info, int flags) {
    int const result = test::LibraryFstatat(at, name, info, flags);
    unlinkat(at, name, 0);
    return result;
  };
  EXPECT_EQ(FSRemove(folder / "tree", false), -3);
}

TEST(FSRemoveFault, StopsAtTheFirstEntryThatCannotBeStatted) {
  TempDir folder;
  for (char const* const name : {"1", "2", "3"}) WriteFile(folder / "tree" + "/" + name, "");
  SystemCalls calls;
  int stats = 0;
  calls.fstatat = [&stats](int, char const*, struct stat*, int) {
    ++stats;
    return FailWith(EIO);
  };
  EXPECT_EQ(FSRemove(folder / "tree", false), -3);
  EXPECT_EQ(stats, 1);
}

TEST(FSRemoveFault, TreatsAReadErrorAsTheEndOfTheListing) {
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
