#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string>

#include "foundation/file-op-internal.h"
#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"
#include "support/normal-forms.h"
#include "support/unprivileged.h"

// makedev(), if <sys/types.h> doesn't declare it.
#if __has_include(<sys/sysmacros.h>)
#include <sys/sysmacros.h>
#endif

namespace fs = std::filesystem;
using test::FileOpLog;
using test::kComposed;
using test::kDecomposed;
using test::MakeSocket;
using test::TempDir;
using test::WorkingFolder;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::string Text(ustring const& s) { return s.c_str(); }

/// A record with a recognisable value in every field.
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

}  // namespace

TEST(ToNfc, NormalisesANameWithoutAnyAscii) {
  EXPECT_EQ(file_op::ToNfc("\xE2\x84\xAB"), "\xC3\x85");  // Angstrom sign
}

TEST(FSParentPath, IsEverythingBeforeTheLastSlash) {
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

TEST(FSBaseName, IsEverythingAfterTheLastSlash) {
  EXPECT_EQ(Text(FSBaseName("/a/b")), "b");
  EXPECT_EQ(Text(FSBaseName("b")), "b");
  EXPECT_EQ(Text(FSBaseName("/a/b/")), "");
  EXPECT_EQ(Text(FSBaseName("/")), "");
  EXPECT_EQ(Text(FSBaseName("")), "");
}

TEST(FSIsParentFolder, IsTrueForItselfAndBelow) {
  EXPECT_TRUE(FSIsParentFolder("/a/b", "/a/b"));
  EXPECT_TRUE(FSIsParentFolder("/a/b", "/a/b/c"));
  EXPECT_TRUE(FSIsParentFolder("", "/a"));
}

TEST(FSIsParentFolder, IsFalseInTheMiddleOfAName) {
  EXPECT_FALSE(FSIsParentFolder("/a/b", "/a/bc"));
  EXPECT_FALSE(FSIsParentFolder("/a/b", "/a"));
  EXPECT_FALSE(FSIsParentFolder("/a/b", "/a/c/d"));
}

TEST(FSIsParentFolder, IsFalseForAParentWithATrailingSlash) {
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

TEST(FileInfo, EqualityComparesSixFields) {
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

TEST(GetFileInfo, ReturnsTheType) {
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

TEST(GetFileInfo, ReturnsTheTypeOfABlockDevice) {
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

TEST(GetFileInfo, AcceptsThePathThatItFilledInBefore) {
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

TEST(GetFileInfo, AcceptsThePathInTheNameThatItFillsIn) {
  TempDir folder;
  WriteFile(folder / "file", "");
  _FILE_INFO_tag info;
  info.name = (folder / "file").c_str();
  EXPECT_EQ(GetFileInfo(info.name, info), 0);
  EXPECT_EQ(Text(info.path), folder / "file");
  EXPECT_EQ(Text(info.name), "file");
}

TEST(GetFileInfo, UsesTheUtf8WhateverTheUtf16Copy) {
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

TEST(IsFileExist, UsesTheAsciiWhateverTheUtf16Copy) {
  TempDir folder;
  WriteFile(folder / "y", "");
  ustring path((folder / "#").c_str());
  path.c_str_utf16();
  path.replace('#', 'y');
  EXPECT_TRUE(IsFileExist(path, false));
}

TEST(GetFileInfo, FailsBelowARegularFile) {
  TempDir folder;
  WriteFile(folder / "file", "");
  _FILE_INFO_tag info = Marked();
  EXPECT_EQ(GetFileInfo(folder / "file/below", info), -1);
  EXPECT_TRUE(IsMarked(info));
}

TEST(GetFileInfo, FailsInAFolderWithoutSearchPermission) {
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

TEST(GetFileInfo, KeepsWhatStatFoundIfThePathHasNoNormalForm) {
  TempDir folder;
  std::string const name = "\xFF";
  if (mkdir((folder / name).c_str(), 0700) != 0) GTEST_SKIP() << "the volume takes no such name";
  _FILE_INFO_tag info = Marked();
  testing::internal::CaptureStderr();  // of the conversion's warning
  EXPECT_EQ(GetFileInfo(folder / name, info), -1);
  testing::internal::GetCapturedStderr();
  EXPECT_TRUE(info.exists);
  EXPECT_EQ(Text(info.path), folder / name);
  EXPECT_EQ(Text(info.name), name);
  EXPECT_EQ(info.type, FILE_TYPE_DIRECTORY);
}

TEST(GetFileInfo, ResolvesTheFoldersAbove) {
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

TEST(GetFileInfo, LogsTheGivenAndTheResultingPath) {
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

// Queries the volume for the composed name, and also finds the file where the volume distinguishes
// the two forms.
TEST(GetFileInfo, FindsEitherNormalFormAndReturnsTheComposedOne) {
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

TEST(GetFileInfo, DescribesTheGivenNormalFormIfBothExist) {
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

TEST(IsFileExist, IsTrueIfAnythingExistsThere) {
  TempDir folder;
  fs::create_symlink("nothing", folder / "dangling");
  EXPECT_TRUE(IsFileExist(folder.path().c_str(), false));
  EXPECT_TRUE(IsFileExist(folder / "dangling", false));
  EXPECT_FALSE(IsFileExist(folder / "missing", false));
  EXPECT_FALSE(IsFileExist(folder / "dangling/below", false));
}

TEST(IsFileExist, IsFalseWhenStatFails) {
  TempDir folder;
  WriteFile(folder / "file", "");
  EXPECT_FALSE(IsFileExist(folder / "file/below", false));
}

TEST(IsFileExist, StrictRequiresTheVolumesSpelling) {
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
  WorkingFolder const here(folder.path());
  EXPECT_TRUE(IsFileExist("file", false));
  EXPECT_FALSE(IsFileExist("file", true));
}

TEST(IsFileExist, FindsEitherNormalFormByEither) {
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

TEST(IsFileExist, FindsAFileInTheFolderOfTheOtherNormalForm) {
  TempDir folder;
  fs::create_directory(folder / kComposed);
  WriteFile(folder / kDecomposed + "/file", "");
  EXPECT_TRUE(IsFileExist(folder / kDecomposed + "/file", false));
}

TEST(FSStat, RejectsAnEmptyPath) {
  _FILE_INFO_tag info = Marked();
  EXPECT_EQ(FSStat("", info, false), -1);
  EXPECT_TRUE(IsMarked(info));
}

TEST(FSStat, SetsOnlyExistsForAMissingFile) {
  TempDir folder;
  _FILE_INFO_tag info = Marked();
  EXPECT_EQ(FSStat(folder / "missing", info, false), 0);
  EXPECT_FALSE(info.exists);
  info.exists = true;
  EXPECT_TRUE(IsMarked(info));
}

TEST(FSStat, DescribesAFile) {
  TempDir folder;
  WriteFile(folder / "file", "12345");
  _FILE_INFO_tag info;
  EXPECT_EQ(FSStat(folder / "file", info, true), 0);
  EXPECT_TRUE(info.exists);
  EXPECT_EQ(info.size, 5);
}

TEST(FSStat, StrictTreatsAnotherSpellingAsMissing) {
  TempDir folder;
  WriteFile(folder / "real/file", "");
  fs::create_symlink("real", folder / "link");
  _FILE_INFO_tag info;
  EXPECT_EQ(FSStat(folder / "link/file", info, true), 0);
  EXPECT_FALSE(info.exists);
  EXPECT_EQ(FSStat(folder / "link/file", info, false), 0);
  EXPECT_TRUE(info.exists);
}
