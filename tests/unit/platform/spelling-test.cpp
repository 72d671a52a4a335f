// The stored spelling on a volume that ignores case. No such volume is available, so a folder with
// a faked type and a faked lstat represents it.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <linux/magic.h>
#include <linux/openat2.h>
#include <sys/syscall.h>  // IWYU pragma: keep
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>

#include "../foundation/system-calls.h"
#include "platform/core-services.h"
#include "platform/file-system-name.h"
#include "platform/spelling-posix.h"
#include "platform/volume-flush.h"
#include "platform/volume-lookup.h"
#include "support/files.h"

namespace fs = std::filesystem;

namespace {

/// The key of all names that are the same to the volume.
icu::UnicodeString Key(std::string const& name) {
  UErrorCode status = U_ZERO_ERROR;
  icu::UnicodeString const text = icu::UnicodeString::fromUTF8(name);
  return icu::Normalizer2::getNFCInstance(status)->normalize(text, status).foldCase();
}

/// A volume that is blind to case: a folder of another file system stands for it, whose type and
/// whose look at a name are replaced.
class StoredPath : public testing::Test {
 protected:
  StoredPath() {
    HasType(MSDOS_SUPER_MAGIC);
    calls.lstat = [](char const* path, struct stat* info) {
      if (test::LibraryLstat(path, info) == 0) return 0;
      fs::path const asked = path;
      if (!fs::is_directory(asked.parent_path())) return -1;
      for (fs::directory_entry const& entry : fs::directory_iterator(asked.parent_path())) {
        if (Key(entry.path().filename()) == Key(asked.filename())) {
          return test::LibraryLstat(entry.path().c_str(), info);
        }
      }
      errno = ENOENT;
      return -1;
    };
  }

  void HasType(long type) {
    calls.statfs = [type](char const*, struct statfs* info) {
      info->f_type = static_cast<decltype(info->f_type)>(type);
      return 0;
    };
  }
  /// The stored path of a file in the folder, relative to it.
  std::string Stored(std::string const& inside) const {
    std::string const path = platform::AsStored((folder / inside).c_str());
    std::string const above = folder / "";
    return path.rfind(above, 0) == 0 ? path.substr(above.size()) : path;
  }

  test::TempDir const folder;
  test::SystemCalls calls;
};

TEST_F(StoredPath, HasEachNameInTheStoredCase) {
  test::WriteFile(folder / "Kept/Some File.txt", "");
  test::WriteFile(folder / "Kept/Other", "");
  EXPECT_EQ(Stored("Kept/Some File.txt"), "Kept/Some File.txt");
  EXPECT_EQ(Stored("kept/some file.txt"), "Kept/Some File.txt");
  EXPECT_EQ(Stored("KEPT/SOME FILE.TXT"), "Kept/Some File.txt");
  EXPECT_EQ(Stored("kEPT"), "Kept");
}

TEST_F(StoredPath, HasNamesThatAreAllInOneCase) {
  test::WriteFile(folder / "lower", "");
  test::WriteFile(folder / "UPPER", "");
  EXPECT_EQ(Stored("LOWER"), "lower");
  EXPECT_EQ(Stored("upper"), "UPPER");
}

TEST_F(StoredPath, HasNamesOfOtherScriptsInTheStoredFormAndCase) {
  test::WriteFile(folder / "U\u0308ber \u0416", "");
  EXPECT_EQ(Stored("\u00FCBER \u0436"), "U\u0308ber \u0416");
}

TEST_F(StoredPath, OfANameWithoutLettersIsUnchanged) {
  test::WriteFile(folder / "2024-01", "");
  EXPECT_EQ(Stored("2024-01"), "2024-01");
}

TEST_F(StoredPath, OfInvalidUtf8IsUnchanged) {
  test::WriteFile(folder / "A\xFF", "");
  EXPECT_EQ(Stored("A\xFF"), "A\xFF");
}

TEST_F(StoredPath, OfTwoFilesThatDifferInCaseIsUnchanged) {
  calls.lstat = nullptr;
  test::WriteFile(folder / "twin", "");
  test::WriteFile(folder / "TWIN", "");
  EXPECT_EQ(Stored("twin"), "twin");
  EXPECT_EQ(Stored("TWIN"), "TWIN");
}

TEST_F(StoredPath, OfAFileWithBothNamesIsUnchanged) {
  calls.lstat = nullptr;
  test::WriteFile(folder / "link", "");
  fs::create_hard_link(folder / "link", folder / "LINK");
  EXPECT_EQ(Stored("link"), "link");
  EXPECT_EQ(Stored("LINK"), "LINK");
}

TEST_F(StoredPath, OfFilesOnTwoVolumesWithTheSameInodeIsUnchanged) {
  calls.lstat = [](char const* path, struct stat* info) {
    *info = {};
    info->st_ino = 2;
    info->st_dev = fs::path(path).filename() == "mount" ? 1 : 2;
    return 0;
  };
  test::WriteFile(folder / "MOUNT", "");
  EXPECT_EQ(platform::AsStored((folder / "mount").c_str()), folder / "mount");
}

TEST_F(StoredPath, OfAMissingFileIsUnchanged) {
  EXPECT_EQ(Stored("gone"), "gone");
  // One of its two cases is missing.
  calls.lstat = nullptr;
  test::WriteFile(folder / "here", "");
  EXPECT_EQ(Stored("HERE"), "HERE");
  EXPECT_EQ(Stored("here"), "here");
}

TEST_F(StoredPath, HasNoExtraSlashes) {
  test::WriteFile(folder / "Kept/file", "");
  EXPECT_EQ(Stored("kept//FILE/"), "Kept/file");
  EXPECT_EQ(platform::AsStored("/"), "/");
}

TEST_F(StoredPath, IsUnchangedIfTheVolumesTypeIsUnknown) {
  test::WriteFile(folder / "Kept", "");
  calls.statfs = [](char const*, struct statfs*) { return -1; };
  EXPECT_EQ(Stored("kept"), "kept");
}

TEST_F(StoredPath, IsSearchedOnlyOnVolumesThatMayIgnoreCase) {
  test::WriteFile(folder / "Kept", "");
  for (std::uint32_t const type : {0x4D44U, 0x2011BAB0U, 0x5346544EU, 0x7366746EU, 0x517BU,
                                   0xFE534D42U, 0xFF534D42U, 0x4244U, 0x482BU, 0x65735546U}) {
    HasType(type);
    EXPECT_EQ(Stored("kept"), "Kept") << std::hex << type;
    HasType(static_cast<std::int32_t>(type));  // signed, as in some C libraries
    EXPECT_EQ(Stored("kept"), "Kept") << std::hex << type;
    for (std::uint32_t const other : {type - 1, type + 1}) {
      HasType(other);
      EXPECT_EQ(Stored("kept"), "kept") << std::hex << other;
    }
  }
  HasType(0xEF53);  // ext4
  EXPECT_EQ(Stored("kept"), "kept");
}

TEST(FindByNormalForm, HasNoFormOfBytesThatAreNoText) {
  test::TempDir folder;
  std::string found = "before";
  EXPECT_FALSE(platform::FindByNormalForm((folder / "\xFF").c_str(), false, found));
  EXPECT_EQ(found, "before");
}

TEST(FindByNormalForm, SearchesEachFolderOnce) {
  test::TempDir folder;
  std::string deep = folder.path();
  for (int i = 0; i < 30; ++i) deep += "/K";  // with a second spelling, the Kelvin sign
  fs::create_directories(deep);
  std::string found;
  EXPECT_FALSE(platform::FindByNormalForm((deep + "/missing").c_str(), true, found));
}

TEST(FindByNormalForm, SearchesAFolderOfTheOtherFormOnce) {
  test::TempDir folder;
  std::string stands = folder.path();
  std::string asked = folder.path();
  for (int i = 0; i < 5; ++i) {
    stands += "/u\u0308";
    asked += "/\u00FC";
  }
  fs::create_directories(stands);
  if (fs::exists(asked)) GTEST_SKIP() << "the volume takes both forms for one name";
  test::SystemCalls calls;
  int searches = 0;
  calls.lstat = [&searches](char const* path, struct stat* info) {
    ++searches;
    return test::LibraryLstat(path, info);
  };
  std::string found;
  EXPECT_FALSE(platform::FindByNormalForm((asked + "/missing").c_str(), false, found));
  EXPECT_EQ(searches, 1);
}

TEST(FSPathMakeRef, TakesAResolvedPathInOneLookup) {
  test::TempDir folder;
  std::string const link = folder / "link";
  fs::create_symlink("nothing", link);
  open_how how = {};
  how.flags = O_PATH | O_CLOEXEC;
  long const root = syscall(SYS_openat2, AT_FDCWD, "/", &how, sizeof(how));
  if (root < 0) GTEST_SKIP() << "this system lacks the call, or denies it";
  close(static_cast<int>(root));
  test::SystemCalls calls;
  bool looked_again = false;
  calls.lstat = [&looked_again](char const* path, struct stat* info) {
    looked_again = true;
    return test::LibraryLstat(path, info);
  };
  calls.close = [](int file) { EXPECT_NE(fcntl(file, F_GETFD) & FD_CLOEXEC, 0); };
  FSRef ref;
  EXPECT_EQ(FSPathMakeRefWithOptions(reinterpret_cast<UInt8 const*>(link.c_str()),
                                     kFSPathMakeRefDoNotFollowLeafSymlink, &ref, nullptr),
            noErr);
  EXPECT_EQ(ref.path, link);
  EXPECT_FALSE(looked_again);
}

TEST(FSPathMakeRef, FailsIfTheFileDisappears) {
  test::TempDir folder;
  test::SystemCalls calls;
  calls.lstat = [](char const*, struct stat*) { return test::FailWith(ENOENT); };
  FSRef ref;
  Boolean is_directory = 7;
  EXPECT_EQ(
      FSPathMakeRef(reinterpret_cast<UInt8 const*>(folder.path().c_str()), &ref, &is_directory),
      fnfErr);
}

TEST(Lstat, FindsAnotherSpellingOnlyWhereNamesAreToBlame) {
  test::TempDir folder;
  std::string const composed = folder / "\u00FC";
  test::WriteFile(folder / "u\u0308", "");
  if (fs::exists(composed)) GTEST_SKIP() << "the volume takes both forms for one name";
  test::SystemCalls calls;
  int error = 0;
  calls.lstat = [&](char const* path, struct stat* info) {
    if (path != composed) return test::LibraryLstat(path, info);
    errno = error;
    return -1;
  };
  struct stat info;
  errno = EIO;
  EXPECT_EQ(platform::Lstat((folder / "u\u0308").c_str(), info), 0);
  for (int const of_names : {ENOENT, ENOTDIR, EACCES, ENAMETOOLONG}) {
    error = of_names;
    EXPECT_EQ(platform::Lstat(composed.c_str(), info), 0) << strerror(error);
  }
  for (int const of_disks : {EIO, ELOOP, ENOMEM}) {
    error = of_disks;
    EXPECT_EQ(platform::Lstat(composed.c_str(), info), -1) << strerror(error);
    EXPECT_EQ(errno, error);
  }
  // The search ends with another error than it began with.
  fs::remove(folder / "u\u0308");
  error = ENOTDIR;
  EXPECT_EQ(platform::Lstat(composed.c_str(), info), -1);
  EXPECT_EQ(errno, ENOTDIR);
}

TEST(Lstat, FindsADanglingSymlinkOfAnotherSpelling) {
  test::TempDir folder;
  fs::create_symlink("nothing", folder / "u\u0308");
  struct stat info = {};
  EXPECT_EQ(platform::Lstat((folder / "\u00FC").c_str(), info), 0);
  EXPECT_TRUE(S_ISLNK(info.st_mode));
}

TEST(FileSystemName, IsThatOfTheTypeOrEmpty) {
  static std::pair<long, char const*> const kNames[] = {
      {0x6969, "nfs"},       {0x517B, "smbfs"},    {0xFF534D42, "smbfs"},
      {0xFE534D42, "smbfs"}, {-0xACB2BE, "smbfs"}, {0x4D44, "msdos"},
      {0xEF53, ""},          {0x6968, ""},         {0x01021994, ""},
  };
  test::SystemCalls calls;
  for (auto const& [type, expected] : kNames) {
    calls.statfs = [type = type](char const*, struct statfs* info) {
      info->f_type = type;
      return 0;
    };
    std::string name = "before";
    EXPECT_EQ(platform::FileSystemName("/any", name), 0);
    EXPECT_EQ(name, expected) << std::hex << type;
  }
}

TEST(FlushVolume, FlushesWhatItOpensBehindTheVolume) {
  test::TempDir folder;
  test::SystemCalls calls;
  int flushed = 0;
  calls.fsync = [&flushed](int file) {
    EXPECT_NE(fcntl(file, F_GETFD) & FD_CLOEXEC, 0);
    ++flushed;
    return 0;
  };
  EXPECT_EQ(platform::FlushVolume(folder.path().c_str()), 0);
  EXPECT_EQ(flushed, 1);
}

TEST(FlushVolume, FailsWithTheErrorOfThatFlush) {
  test::TempDir folder;
  test::SystemCalls calls;
  calls.fsync = [](int) {
    errno = EIO;
    return -1;
  };
  calls.close = [](int) { errno = EINTR; };
  int const result = platform::FlushVolume(folder.path().c_str());
  int const error = errno;
  calls.close = nullptr;
  EXPECT_EQ(result, -1);
  EXPECT_EQ(error, EIO);
}

}  // namespace
