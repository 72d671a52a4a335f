#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <map>
#include <string>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"
#include "support/unprivileged.h"

// makedev(), where <sys/types.h> hasn't got it.
#if __has_include(<sys/sysmacros.h>)
#include <sys/sysmacros.h>
#endif

namespace fs = std::filesystem;
using test::FileOpLog;
using test::TempDir;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr char kComposed[] = "caf\xC3\xA9";
constexpr char kDecomposed[] = "cafe\xCC\x81";

std::string Text(ustring const& s) { return s.c_str(); }

std::string Reason(int code) {
  return "(code: " + std::to_string(code) + ", msg: " + strerror(code) + ")";
}

/// A record with nothing in it that a function leaves untouched by chance.
_FILE_INFO_tag Marked() {
  _FILE_INFO_tag info;
  info.path = "path before";
  info.name = "name before";
  info.type = 77;
  info.mtime = 77;
  info.size = 77;
  info.exists = true;
  info.uid = info.gid = info.mode = 77;
  info.dev = 77;
  return info;
}

bool IsMarked(_FILE_INFO_tag const& info) {
  return info == Marked() && info.uid == 77 && info.gid == 77 && info.mode == 77 && info.dev == 77;
}

int TypeOf(std::string const& path) {
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(path, info), 0) << path;
  return info.type;
}

void MakeSocket(std::string const& path) {
  int const number = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  ASSERT_LT(path.size(), sizeof(address.sun_path));
  std::strcpy(address.sun_path, path.c_str());
  ASSERT_EQ(bind(number, reinterpret_cast<sockaddr const*>(&address), sizeof(address)), 0);
  close(number);
}

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

TEST(FSParentPath, IsTheTextBeforeTheLastSlash) {
  EXPECT_EQ(Text(FSParentPath("/a/b")), "/a");
  EXPECT_EQ(Text(FSParentPath("a/b")), "a");
  EXPECT_EQ(Text(FSParentPath("a/b/")), "a/b");
  EXPECT_EQ(Text(FSParentPath("//a")), "/");
}

TEST(FSParentPath, IsTheRootWhereNothingIsLeft) {
  EXPECT_EQ(Text(FSParentPath("file")), "/");
  EXPECT_EQ(Text(FSParentPath("/file")), "/");
  EXPECT_EQ(Text(FSParentPath("/")), "/");
  EXPECT_EQ(Text(FSParentPath("")), "/");
}

TEST(FSBaseName, IsTheTextBehindTheLastSlash) {
  EXPECT_EQ(Text(FSBaseName("/a/b")), "b");
  EXPECT_EQ(Text(FSBaseName("b")), "b");
  EXPECT_EQ(Text(FSBaseName("/a/b/")), "");
  EXPECT_EQ(Text(FSBaseName("/")), "");
  EXPECT_EQ(Text(FSBaseName("")), "");
}

TEST(FSIsParentFolder, HoldsForItselfAndWhatIsBelow) {
  EXPECT_TRUE(FSIsParentFolder("/a/b", "/a/b"));
  EXPECT_TRUE(FSIsParentFolder("/a/b", "/a/b/c"));
  EXPECT_TRUE(FSIsParentFolder("", "/a"));
}

TEST(FSIsParentFolder, FailsInTheMiddleOfAName) {
  EXPECT_FALSE(FSIsParentFolder("/a/b", "/a/bc"));
  EXPECT_FALSE(FSIsParentFolder("/a/b", "/a"));
  EXPECT_FALSE(FSIsParentFolder("/a/b", "/a/c/d"));
}

TEST(FSIsParentFolder, FailsForAParentWithATrailingSlash) {
  EXPECT_FALSE(FSIsParentFolder("/a/b/", "/a/b/c"));
  EXPECT_FALSE(FSIsParentFolder("/", "/a"));
}

TEST(FSIsParentFolder, ComparesBytes) {
  EXPECT_FALSE(FSIsParentFolder("/A", "/a/b"));
  EXPECT_FALSE(FSIsParentFolder(ustring("/") + kComposed, ustring("/") + kDecomposed + "/b"));
}

TEST(FileInfo, StartsEmpty) {
  _FILE_INFO_tag const info;
  EXPECT_TRUE(info.path.empty() && info.name.empty());
  EXPECT_FALSE(info.exists);
  EXPECT_EQ(info.type, 0);
  EXPECT_EQ(info.mtime, 0);
  EXPECT_EQ(info.size, 0);
  EXPECT_EQ(info.uid, 0U);
  EXPECT_EQ(info.gid, 0U);
  EXPECT_EQ(info.mode, 0U);
  EXPECT_EQ(info.dev, 0);
}

TEST(FileInfo, EqualityLooksAtSixFields) {
  auto const differs_by = [](auto change) {
    _FILE_INFO_tag changed = Marked();
    change(changed);
    EXPECT_EQ(changed != Marked(), !(changed == Marked()));
    return changed != Marked();
  };
  EXPECT_FALSE(differs_by([](_FILE_INFO_tag&) {}));
  EXPECT_TRUE(differs_by([](_FILE_INFO_tag& info) { info.exists = false; }));
  EXPECT_TRUE(differs_by([](_FILE_INFO_tag& info) { info.size = 1; }));
  EXPECT_TRUE(differs_by([](_FILE_INFO_tag& info) { info.mtime = 1; }));
  EXPECT_TRUE(differs_by([](_FILE_INFO_tag& info) { info.type = 1; }));
  EXPECT_TRUE(differs_by([](_FILE_INFO_tag& info) { info.path = "other"; }));
  EXPECT_TRUE(differs_by([](_FILE_INFO_tag& info) { info.name = "other"; }));
}

TEST(FileInfo, EqualityIgnoresModeOwnerAndDevice) {
  _FILE_INFO_tag changed = Marked();
  changed.mode = changed.uid = changed.gid = 1;
  changed.dev = 1;
  EXPECT_TRUE(changed == Marked());
}

TEST(GetFileInfo, DescribesAFile) {
  TempDir folder;
  std::string const path = folder / "file";
  WriteFile(path, "12345");
  fs::permissions(path, fs::perms(0640));
  ASSERT_EQ(FSUTime(path, 1000, 2000), 0);
  struct stat expected;
  ASSERT_EQ(stat(path.c_str(), &expected), 0);

  _FILE_INFO_tag info = Marked();
  EXPECT_EQ(GetFileInfo(path, info), 0);
  EXPECT_EQ(Text(info.path), path);
  EXPECT_EQ(Text(info.name), "file");
  EXPECT_EQ(info.type, FILE_TYPE_REGULAR);
  EXPECT_EQ(info.mtime, 2000);
  EXPECT_EQ(info.size, 5);
  EXPECT_TRUE(info.exists);
  EXPECT_EQ(info.uid, getuid());
  EXPECT_EQ(info.gid, getgid());
  EXPECT_EQ(info.mode, S_IFREG | 0640U);
  EXPECT_EQ(info.dev, static_cast<std::int64_t>(expected.st_dev));
}

TEST(GetFileInfo, TellsTheTypes) {
  TempDir folder;
  WriteFile(folder / "file", "");
  fs::create_symlink("file", folder / "link");
  fs::create_symlink("nothing", folder / "dangling");
  ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
  MakeSocket(folder / "socket");
  EXPECT_EQ(TypeOf(folder / "file"), 1);
  EXPECT_EQ(TypeOf(folder.path()), 2);
  EXPECT_EQ(TypeOf(folder / "link"), 3);
  EXPECT_EQ(TypeOf(folder / "dangling"), 3);
  EXPECT_EQ(TypeOf("/dev/null"), 5);
  EXPECT_EQ(TypeOf(folder / "fifo"), 6);
  EXPECT_EQ(TypeOf(folder / "socket"), 7);
}

TEST(GetFileInfo, TellsABlockDevice) {
  TempDir folder;
  std::string const path = folder / "block";
  if (mknod(path.c_str(), S_IFBLK | 0600, makedev(7, 250)) != 0) {
    GTEST_SKIP() << "only root makes block devices: " << strerror(errno);
  }
  EXPECT_EQ(TypeOf(path), 5);
}

TEST(GetFileInfo, SucceedsForAMissingFileWithAllNumbersZero) {
  TempDir folder;
  _FILE_INFO_tag info = Marked();
  std::string const path = folder / "none/../missing";
  EXPECT_EQ(GetFileInfo(path, info), 0);
  EXPECT_FALSE(info.exists);
  EXPECT_EQ(Text(info.path), path);
  EXPECT_EQ(Text(info.name), "missing");
  EXPECT_EQ(info.type, 0);
  EXPECT_EQ(info.mtime, 0);
  EXPECT_EQ(info.size, 0);
  EXPECT_EQ(info.uid + info.gid + info.mode, 0U);
  EXPECT_EQ(info.dev, 0);
}

TEST(GetFileInfo, LooksAgainAtThePathThatItFilledInItself) {
  TempDir folder;
  std::string const path = folder / "file";
  WriteFile(path, "");
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(path, info), 0);
  EXPECT_EQ(GetFileInfo(info.path, info), 0);
  EXPECT_TRUE(info.exists);
  EXPECT_EQ(Text(info.path), path);

  fs::remove(path);
  EXPECT_EQ(GetFileInfo(info.path, info), 0);
  EXPECT_FALSE(info.exists);
  EXPECT_EQ(Text(info.path), path);
  EXPECT_EQ(Text(info.name), "file");
}

TEST(GetFileInfo, TakesItsPathFromTheNameThatItFillsIn) {
  TempDir folder;
  WriteFile(folder / "file", "");
  _FILE_INFO_tag info;
  info.name = (folder / "file").c_str();
  EXPECT_EQ(GetFileInfo(info.name, info), 0);
  EXPECT_EQ(Text(info.path), folder / "file");
  EXPECT_EQ(Text(info.name), "file");
}

TEST(GetFileInfo, LooksAtTheTextAsItIsWhateverUtf16WasMadeOfItBefore) {
  TempDir folder;
  WriteFile(folder / "\xC3\xA4y", "");
  ustring path((folder / "\xC3\xA4#").c_str());
  path.c_str_utf16();
  path.replace('#', 'y');
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(path, info), 0);
  EXPECT_TRUE(info.exists);
  EXPECT_EQ(Text(info.name), "\xC3\xA4y");
  EXPECT_EQ(FSRemove(path, false), 0);
  EXPECT_FALSE(fs::exists(folder / "\xC3\xA4y"));
}

TEST(GetFileInfo, FailsBelowARegularFile) {
  TempDir folder;
  WriteFile(folder / "file", "");
  _FILE_INFO_tag info = Marked();
  EXPECT_EQ(GetFileInfo(folder / "file/below", info), -1);
  EXPECT_TRUE(IsMarked(info));
}

TEST(GetFileInfo, FailsWhereTheFolderMayNotBeSearched) {
  TempDir folder;
  test::GiveAway(folder.path().c_str());
  test::RunUnprivileged([&folder] {
    fs::permissions(folder.path(), fs::perms(0600));
    _FILE_INFO_tag info = Marked();
    EXPECT_EQ(GetFileInfo(folder / "file", info), -1);
    EXPECT_TRUE(IsMarked(info));
    fs::permissions(folder.path(), fs::perms(0700));
  });
}

TEST(GetFileInfo, GivesThePathWithTheFoldersAboveResolved) {
  TempDir folder;
  WriteFile(folder / "real/sub/file", "");
  fs::create_symlink("file", folder / "real/sub/leaf");
  fs::create_symlink("real", folder / "link");
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(folder / "link/sub/../sub/./file", info), 0);
  EXPECT_EQ(Text(info.path), folder / "real/sub/file");
  EXPECT_EQ(GetFileInfo(folder / "link/sub/leaf", info), 0);
  EXPECT_EQ(Text(info.path), folder / "real/sub/leaf");
  EXPECT_EQ(Text(info.name), "leaf");
}

TEST(GetFileInfo, LogsThePathItLooksAtAndTheOneItGets) {
  TempDir folder;
  WriteFile(folder / "real/file", "");
  fs::create_symlink("real", folder / "link");
  FileOpLog const log;
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(folder / "link/file", info), 0);
  EXPECT_THAT(log.Lines(),
              ElementsAre("[DEBUG] file-op(#): Input file path = [" + folder / "link/file" + "].",
                          "[DEBUG] file-op(#): FSRefMakePath outTargetPath path = [" +
                              folder / "real/file" + "]."));
}

TEST(GetFileInfo, LogsNothingForAMissingFile) {
  TempDir folder;
  FileOpLog const log;
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(folder / "missing", info), 0);
  EXPECT_THAT(log.Lines(), IsEmpty());
}

// The volume is asked for the composed name, and finds the object also where it takes the
// decomposed one for another.
TEST(GetFileInfo, FindsEitherFormOfANameAndTellsTheComposedOne) {
  for (char const* const stands : {kComposed, kDecomposed}) {
    for (char const* const asked : {kComposed, kDecomposed}) {
      TempDir folder;
      WriteFile(folder / stands, "12345");
      FileOpLog const log;
      _FILE_INFO_tag info;
      EXPECT_EQ(GetFileInfo(folder / asked, info), 0);
      EXPECT_TRUE(info.exists);
      EXPECT_EQ(info.size, 5);
      EXPECT_EQ(Text(info.path), folder / kComposed);
      EXPECT_EQ(Text(info.name), kComposed);
      EXPECT_THAT(log.Lines(),
                  ElementsAre("[DEBUG] file-op(#): Input file path = [" + folder / kComposed + "].",
                              "[DEBUG] file-op(#): FSRefMakePath outTargetPath path = [" +
                                  folder / kComposed + "]."));
    }
  }
}

TEST(GetFileInfo, DescribesTheFormThatIsAskedForWhereBothStand) {
  TempDir folder;
  WriteFile(folder / kComposed, "1");
  WriteFile(folder / kDecomposed, "12345");
  if (test::ReadFile(folder / kComposed) != "1") {
    GTEST_SKIP() << "the volume takes both forms for one name";
  }
  _FILE_INFO_tag info;
  EXPECT_EQ(GetFileInfo(folder / kComposed, info), 0);
  EXPECT_EQ(info.size, 1);
  EXPECT_EQ(GetFileInfo(folder / kDecomposed, info), 0);
  EXPECT_EQ(info.size, 5);
}

TEST(IsFileExist, IsFalseForAnEmptyPath) {
  EXPECT_FALSE(IsFileExist("", false));
  EXPECT_FALSE(IsFileExist("", true));
}

TEST(IsFileExist, IsFalseForInvalidUtf8) {
  TempDir folder;
  std::string const path = folder / "\xFF";
  if (mkdir(path.c_str(), 0700) != 0) GTEST_SKIP() << "the volume takes no such name";
  testing::internal::CaptureStderr();  // of the conversion's warning
  EXPECT_FALSE(IsFileExist(path, false));
  testing::internal::GetCapturedStderr();
}

TEST(IsFileExist, TellsWhetherAnythingStandsThere) {
  TempDir folder;
  fs::create_symlink("nothing", folder / "dangling");
  EXPECT_TRUE(IsFileExist(folder.path().c_str(), false));
  EXPECT_TRUE(IsFileExist(folder / "dangling", false));
  EXPECT_FALSE(IsFileExist(folder / "missing", false));
  EXPECT_FALSE(IsFileExist(folder / "dangling/below", false));
}

TEST(IsFileExist, IsFalseWhenTheLookFails) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_FALSE(IsFileExist(folder / "file/below", false));
}

TEST(IsFileExist, StrictWantsTheVolumesSpelling) {
  TempDir folder;
  WriteFile(folder / "real/file", "");
  fs::create_symlink("real", folder / "link");
  EXPECT_TRUE(IsFileExist(folder / "real/file", true));
  EXPECT_TRUE(IsFileExist(folder / "link", true));
  EXPECT_FALSE(IsFileExist(folder / "missing", true));
  EXPECT_FALSE(IsFileExist(folder / "link/file", true));
  EXPECT_TRUE(IsFileExist(folder / "link/file", false));
  EXPECT_FALSE(IsFileExist(folder / "real//file", true));
  EXPECT_FALSE(IsFileExist(folder / "real/", true));
}

TEST(IsFileExist, StrictIsFalseForARelativePath) {
  TempDir folder;
  WriteFile(folder / "file", "");
  fs::path const former = fs::current_path();
  fs::current_path(folder.path());
  EXPECT_TRUE(IsFileExist("file", false));
  EXPECT_FALSE(IsFileExist("file", true));
  fs::current_path(former);
}

TEST(IsFileExist, FindsANameOfEitherFormByEitherForm) {
  for (char const* const stands : {kComposed, kDecomposed}) {
    TempDir folder;
    WriteFile(folder / stands + "/file", "");
    for (bool const strict : {false, true}) {
      for (char const* const asked : {kComposed, kDecomposed}) {
        EXPECT_TRUE(IsFileExist(folder / asked, strict));
        EXPECT_TRUE(IsFileExist(folder / asked + "/file", strict));
        EXPECT_FALSE(IsFileExist(folder / asked + "/missing", strict));
      }
    }
  }
}

TEST(IsFileExist, FindsWhatStandsInTheFolderOfTheOtherForm) {
  TempDir folder;
  fs::create_directory(folder / kComposed);
  WriteFile(folder / kDecomposed + "/file", "");
  EXPECT_TRUE(IsFileExist(folder / kDecomposed + "/file", false));
}

TEST(FSStat, RefusesAnEmptyPath) {
  _FILE_INFO_tag info = Marked();
  EXPECT_EQ(FSStat("", info, false), -1);
  EXPECT_TRUE(IsMarked(info));
}

TEST(FSStat, SetsNothingButExistsForAMissingFile) {
  TempDir folder;
  _FILE_INFO_tag info = Marked();
  EXPECT_EQ(FSStat(folder / "missing", info, false), 0);
  EXPECT_FALSE(info.exists);
  info.exists = true;
  EXPECT_TRUE(IsMarked(info));
}

TEST(FSStat, DescribesAnObject) {
  TempDir folder;
  WriteFile(folder / "file", "12345");
  _FILE_INFO_tag info;
  EXPECT_EQ(FSStat(folder / "file", info, true), 0);
  EXPECT_TRUE(info.exists);
  EXPECT_EQ(info.size, 5);
}

TEST(FSStat, StrictTakesAnotherSpellingForMissing) {
  TempDir folder;
  WriteFile(folder / "real/file", "");
  fs::create_symlink("real", folder / "link");
  _FILE_INFO_tag info;
  EXPECT_EQ(FSStat(folder / "link/file", info, true), 0);
  EXPECT_FALSE(info.exists);
  EXPECT_EQ(FSStat(folder / "link/file", info, false), 0);
  EXPECT_TRUE(info.exists);
}

TEST(FSOpenDir, LogsWhatCannotBeOpenedAndLeavesTheHandle) {
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

TEST(FSOpenDir, KeepsPathAndFlagsAndIsClosedInOtherPrograms) {
  TempDir folder;
  DIR_HANDLE handle;
  ASSERT_EQ(FSOpenDir(folder.path().c_str(), 1, handle), 0);
  EXPECT_EQ(Text(handle.path), folder.path());
  EXPECT_EQ(handle.flags, 1);
  EXPECT_NE(fcntl(dirfd(handle.dir), F_GETFD) & FD_CLOEXEC, 0);
  FSCloseDir(handle);
}

TEST(FSReadDir, TellsNamesAndTypesDotsIncluded) {
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

TEST(FSReadDir, TellsDevices) {
  auto const entries = ReadAll("/dev", 0);
  ASSERT_EQ(entries.count("null"), 1U);
  EXPECT_EQ(entries.at("null").type, 5);
}

TEST(FSReadDir, GivesNoDetailsUnasked) {
  TempDir folder;
  WriteFile(folder / "file", "12345");
  for (auto const& [name, entry] : ReadAll(folder.path(), 0)) {
    EXPECT_EQ(entry.mtime, 0) << name;
    EXPECT_EQ(entry.size, 0) << name;
  }
}

TEST(FSReadDir, GivesTimeAndSizeWhenAsked) {
  TempDir folder;
  WriteFile(folder / "file", "12345");
  ASSERT_EQ(FSUTime(folder / "file", 1000, 2000), 0);
  auto const entries = ReadAll(folder.path(), 1);
  EXPECT_EQ(entries.at("file").mtime, 2000);
  EXPECT_EQ(entries.at("file").size, 5);
}

TEST(FSReadDir, GivesZeroesForAnEntryOfAFolderThatIsSpelledOtherwise) {
  TempDir folder;
  WriteFile(folder / "real/file", "12345");
  fs::create_symlink("real", folder / "link");
  auto const entries = ReadAll(folder / "link", 1);
  ASSERT_EQ(entries.count("file"), 1U);
  EXPECT_EQ(entries.at("file").type, 1);
  EXPECT_EQ(entries.at("file").mtime, 0);
  EXPECT_EQ(entries.at("file").size, 0);
}

TEST(FSCloseDir, EmptiesTheHandleAndBearsAClosedOne) {
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

TEST(FSTimeEqual, HasNoTolerance) {
  EXPECT_TRUE(FSTimeEqual(1, 1));
  EXPECT_FALSE(FSTimeEqual(1, 2));
}

TEST(FSUTime, SetsTheTimesOfALinkItself) {
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

TEST(FSUTime, FailsInSilence) {
  TempDir folder;
  FileOpLog const log;
  EXPECT_EQ(FSUTime(folder / "missing", 1000, 2000), -1);
  EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST(FilePermission, IsLackingAndLockedOnlyWhereAccessIsRefused) {
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

TEST(FilePermission, OfAMissingFileIsNotLacking) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_FALSE(isFileLocked(folder / "missing", W_OK));
  EXPECT_TRUE(hasFilePermission(folder / "missing", W_OK));
  EXPECT_FALSE(isFileLocked(folder / "file/below", W_OK));
  EXPECT_TRUE(hasFilePermission(folder / "file/below", W_OK));
}

TEST(FSGetRealPath, FollowsAllLinks) {
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

TEST(FSGetRealPath, LeavesThePathOnFailure) {
  TempDir folder;
  fs::create_symlink("nothing", folder / "dangling");
  FileOpLog const log;
  ustring path = folder / "dangling";
  EXPECT_EQ(FSGetRealPath(path), -1);
  EXPECT_EQ(Text(path), folder / "dangling");
  EXPECT_THAT(log.Lines(),
              ElementsAre("[DEBUG] file-op(#):  org path [" + folder / "dangling" + "]"));
}

TEST(FSCreateSymbolicLink, MakesALinkWithTheTextGiven) {
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

TEST(FSReadSymbolicLink, GivesTheText) {
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

TEST(FSReadSymbolicLink, FailsForATextThatDoesNotFit) {
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

TEST(FSChown, ChangesALinkItself) {
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
