#include "platform/core-services.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "support/files.h"
#include "support/normal-forms.h"
#include "support/unprivileged.h"

namespace fs = std::filesystem;
using test::kComposed;
using test::kDecomposed;
using test::TempDir;
using test::WorkingFolder;
using test::WriteFile;

namespace {

enum class Leaf { kFollowed, kItself };

/// The path through both calls, or "status N".
std::string VolumePath(std::string const& path, Leaf leaf) {
  auto const* const text = reinterpret_cast<UInt8 const*>(path.c_str());
  FSRef ref;
  OSStatus status =
      leaf == Leaf::kFollowed
          ? FSPathMakeRef(text, &ref, nullptr)
          : FSPathMakeRefWithOptions(text, kFSPathMakeRefDoNotFollowLeafSymlink, &ref, nullptr);
  UInt8 buffer[4096] = {};
  if (status == noErr) status = FSRefMakePath(&ref, buffer, sizeof(buffer));
  if (status != noErr) return "status " + std::to_string(status);
  return reinterpret_cast<char const*>(buffer);
}

std::string Followed(std::string const& path) { return VolumePath(path, Leaf::kFollowed); }
std::string Itself(std::string const& path) { return VolumePath(path, Leaf::kItself); }

/// A folder with real/file, real/sub, link -> real, leaf -> real/file and dangling -> nothing.
struct Places : TempDir {
  Places() {
    WriteFile(*this / "real/file", "");
    fs::create_directory(*this / "real/sub");
    fs::create_symlink("real", *this / "link");
    fs::create_symlink("real/file", *this / "leaf");
    fs::create_symlink("nothing", *this / "dangling");
  }
};

// A partly decomposed syllable, and a letter without a composed form.
constexpr char kHangul[] = "\xEA\xB0\x81";
constexpr char kHalfHangul[] = "\xEA\xB0\x80\xE1\x86\xA8";
constexpr char kQa[] = "\xE0\xA4\x95\xE0\xA4\xBC";
constexpr char kOldQa[] = "\xE0\xA5\x98";

}  // namespace

TEST(VolumePath, OfAResolvedPathIsThePathItself) {
  Places const places;
  for (char const* const name : {"real", "real/file", "real/sub"}) {
    EXPECT_EQ(Followed(places / name), places / name);
    EXPECT_EQ(Itself(places / name), places / name);
  }
}

TEST(VolumePath, HasNoSymlinksInTheFoldersAbove) {
  Places const places;
  EXPECT_EQ(Followed(places / "link/file"), places / "real/file");
  EXPECT_EQ(Itself(places / "link/file"), places / "real/file");
  EXPECT_EQ(Itself(places / "link/sub"), places / "real/sub");
}

TEST(VolumePath, FollowsASymlinkAtTheEndOnlyOnRequest) {
  Places const places;
  EXPECT_EQ(Followed(places / "leaf"), places / "real/file");
  EXPECT_EQ(Itself(places / "leaf"), places / "leaf");
  EXPECT_EQ(Followed(places / "link"), places / "real");
  EXPECT_EQ(Itself(places / "link"), places / "link");
}

TEST(VolumePath, OfASymlinkBelowASymlinkIsInTheRealFolder) {
  Places const places;
  fs::create_symlink("file", places / "real/inner");
  EXPECT_EQ(Itself(places / "link/inner"), places / "real/inner");
  EXPECT_EQ(Followed(places / "link/inner"), places / "real/file");
}

TEST(VolumePath, OfADanglingSymlinkExistsUnlessFollowed) {
  Places const places;
  EXPECT_EQ(Itself(places / "dangling"), places / "dangling");
  EXPECT_EQ(Followed(places / "dangling"), "status -43");
}

TEST(VolumePath, OfAMissingFileDoesNotExist) {
  Places const places;
  for (char const* const name :
       {"none", "none/file", "real/file/below", "link/none", "dangling/a"}) {
    EXPECT_EQ(Itself(places / name), "status -43") << name;
    EXPECT_EQ(Followed(places / name), "status -43") << name;
  }
  EXPECT_EQ(Itself(""), "status -43");
  EXPECT_EQ(Followed(""), "status -43");
}

TEST(VolumePath, RemovesDotsAndExtraSlashes) {
  Places const places;
  fs::create_directory(places / "Mac OS X");
  for (auto const& look : {Followed, Itself}) {
    EXPECT_EQ(look(places / "Mac OS X/../real/file"), places / "real/file");
    EXPECT_EQ(look(places / "real/./file"), places / "real/file");
    EXPECT_EQ(look(places / "real/sub/../file"), places / "real/file");
    EXPECT_EQ(look(places / "real//file"), places / "real/file");
    EXPECT_EQ(look("/" + places / "real/file"), places / "real/file");
    EXPECT_EQ(look(places / "real/sub/."), places / "real/sub");
    EXPECT_EQ(look(places / "real/sub/.."), places / "real");
  }
}

TEST(VolumePath, KeepsNamesThatOnlyBeginWithDots) {
  Places const places;
  for (char const* const name : {".hidden", "..two", "...", "real/.a"}) {
    WriteFile(places / name, "");
    EXPECT_EQ(Itself(places / name), places / name);
    EXPECT_EQ(Followed(places / name), places / name);
  }
}

TEST(VolumePath, TreatsATrailingSlashAsAFolder) {
  Places const places;
  EXPECT_EQ(Itself(places / "real/"), places / "real");
  EXPECT_EQ(Followed(places / "real//"), places / "real");
  // Like lstat: the target of the symlink is meant.
  EXPECT_EQ(Itself(places / "link/"), places / "real");
  EXPECT_EQ(Itself(places / "real/file/"), "status -43");
}

TEST(VolumePath, OfTheRootAndItsEntries) {
  for (auto const& look : {Followed, Itself}) {
    EXPECT_EQ(look("/"), "/");
    EXPECT_EQ(look("//"), "/");
    EXPECT_EQ(look("/.."), "/");
    EXPECT_EQ(look("/dev"), "/dev");
    EXPECT_EQ(look("/dev/../dev"), "/dev");
  }
}

TEST(VolumePath, OfARelativePathIsAbsolute) {
  Places const places;
  WorkingFolder const here(places.path());
  EXPECT_EQ(Itself("leaf"), places / "leaf");
  EXPECT_EQ(Followed("leaf"), places / "real/file");
  EXPECT_EQ(Itself("./link/file"), places / "real/file");
  EXPECT_EQ(Itself("."), places.path());
  EXPECT_EQ(Itself(".."), places.path().parent_path());
}

TEST(VolumePath, FollowsAChangedSymlinkAtTheNextCall) {
  Places const places;
  WriteFile(places / "other/file", "");
  EXPECT_EQ(Itself(places / "link/file"), places / "real/file");
  fs::remove(places / "link");
  fs::create_symlink("other", places / "link");
  EXPECT_EQ(Itself(places / "link/file"), places / "other/file");
  fs::rename(places / "real", places / "moved");
  fs::create_symlink("moved", places / "real");
  EXPECT_EQ(Itself(places / "real/file"), places / "moved/file");
}

TEST(VolumePath, IsFoundByNormalFormAndSpelledAsStored) {
  struct Pair {
    std::string stands;
    std::string asked;
  };
  Pair const pairs[] = {
      {kDecomposed, kComposed},  {kComposed, kDecomposed}, {kHalfHangul, kHangul}, {kOldQa, kQa},
      {"10\xE2\x84\xAA", "10K"}, {"\u037E", ";"},          {"\u1FEF", "`"}};
  for (Pair const& pair : pairs) {
    TempDir const folder;
    WriteFile(folder / (pair.stands + "/" + pair.stands), "");
    fs::create_symlink(pair.stands, folder / ("link" + pair.stands));
    std::string const spelling = Itself(folder / (pair.asked + "/" + pair.asked));
    if (fs::exists(folder / (pair.asked + "/" + pair.asked)))
      continue;  // the volume finds it itself
    EXPECT_EQ(spelling, folder / (pair.stands + "/" + pair.stands));
    EXPECT_EQ(Followed(folder / pair.asked), folder / pair.stands);
    EXPECT_EQ(Itself(folder / ("link" + pair.asked)), folder / ("link" + pair.stands));
    EXPECT_EQ(Followed(folder / ("link" + pair.asked)), folder / pair.stands);
    EXPECT_EQ(Itself(folder / (pair.asked + "/none")), "status -43");
  }
}

TEST(VolumePath, IsThatOfTheGivenNameIfBothNormalFormsExist) {
  TempDir const folder;
  for (char const* const name : {kComposed, kDecomposed}) WriteFile(folder / name, "");
  for (char const* const name : {kComposed, kDecomposed}) {
    if (!fs::exists(folder / name)) GTEST_SKIP() << "the volume takes both forms for one name";
    EXPECT_EQ(Itself(folder / name), folder / name);
  }
}

TEST(VolumePath, LeadsThroughTheFolderOfEitherNormalFormThatContainsTheFile) {
  TempDir const folder;
  std::string const composed(kComposed);
  std::string const decomposed(kDecomposed);
  WriteFile(folder / (decomposed + "/file"), "");
  WriteFile(folder / (decomposed + "/sub/" + decomposed), "");
  if (fs::exists(folder / composed)) GTEST_SKIP() << "the volume takes both forms for one name";
  auto const expect_found = [&] {
    EXPECT_EQ(Itself(folder / (composed + "/file")), folder / (decomposed + "/file"));
    EXPECT_EQ(Itself(folder / (composed + "/sub/" + composed)),
              folder / (decomposed + "/sub/" + decomposed));
  };
  fs::create_directory(folder / composed);
  expect_found();
  fs::remove(folder / composed);
  WriteFile(folder / composed, "no folder");
  expect_found();
  fs::remove(folder / composed);
  fs::create_symlink(composed, folder / composed);
  expect_found();
  fs::remove(folder / composed);
  fs::create_symlink("nothing", folder / composed);
  expect_found();
}

TEST(VolumePath, ResolvesSlashesDotsAndSymlinksInAMatchByNormalForm) {
  TempDir const folder;
  std::string const decomposed(kDecomposed);
  WriteFile(folder / (decomposed + "/file"), "");
  fs::create_symlink(decomposed, folder / "link");
  std::string const composed(kComposed);
  EXPECT_EQ(Itself(folder / (composed + "//./file")), folder / (decomposed + "/file"));
  EXPECT_EQ(Itself(folder / ("link/../" + composed + "/file")), folder / (decomposed + "/file"));
  EXPECT_EQ(Itself(folder / (composed + "/")), folder / decomposed);
  EXPECT_EQ(Itself(folder / (composed + "/file/")), "status -43");
  WorkingFolder const here(folder.path());
  EXPECT_EQ(Itself(composed + "/file"), folder / (decomposed + "/file"));
}

TEST(VolumePath, IsFoundByANormalFormLongerThanANameMayBe) {
  TempDir const folder;
  std::string stands;
  std::string asked;
  for (int i = 0; i < 80; ++i) {
    stands += kOldQa;
    asked += kQa;
  }
  WriteFile(folder / stands, "");
  EXPECT_EQ(Itself(folder / asked), folder / stands);
}

TEST(VolumePath, IsNotFoundByInvalidUtf8) {
  TempDir const folder;
  std::string const decomposed(kDecomposed);
  if (mkdir((folder / "\xFF").c_str(), 0700) != 0) GTEST_SKIP() << "the volume takes no such name";
  WriteFile(folder / ("\xFF/" + decomposed), "");
  EXPECT_EQ(Itself(folder / "\xFF"), folder / "\xFF");
  EXPECT_EQ(Itself(folder / "\xFE"), "status -43");
  EXPECT_EQ(Itself(folder / "\xEF\xBF\xBD"), "status -43");
  WriteFile(folder / (decomposed + "\xFF"), "");
  EXPECT_EQ(Itself(folder / (std::string(kComposed) + "\xFF")), "status -43");
  // Entries below it are found nevertheless.
  EXPECT_EQ(Itself(folder / (std::string("\xFF/") + kComposed)), folder / ("\xFF/" + decomposed));
}

TEST(VolumePath, ReportsWhetherTheFileIsAFolder) {
  Places const places;
  auto const is_folder = [&places](char const* name, OptionBits options) {
    FSRef ref;
    Boolean folder = 7;
    std::string const path = places / name;
    EXPECT_EQ(FSPathMakeRefWithOptions(reinterpret_cast<UInt8 const*>(path.c_str()), options, &ref,
                                       &folder),
              noErr);
    return folder;
  };
  EXPECT_EQ(is_folder("real", 0), 1);
  EXPECT_EQ(is_folder("real/file", 0), 0);
  EXPECT_EQ(is_folder("link", 0), 1);
  EXPECT_EQ(is_folder("link", kFSPathMakeRefDoNotFollowLeafSymlink), 0);
}

TEST(VolumePath, ReturnsZeroForAFolderThatExists) {
  FSRef ref;
  EXPECT_EQ(FSPathMakeRef(reinterpret_cast<UInt8 const*>("/"), &ref, nullptr), 0);
}

TEST(VolumePath, DoesNotFitIntoABufferThatIsTooSmall) {
  Places const places;
  std::string const path = places / "real/file";
  FSRef ref;
  ASSERT_EQ(FSPathMakeRef(reinterpret_cast<UInt8 const*>(path.c_str()), &ref, nullptr), noErr);
  std::string buffer(path.size() + 2, '#');
  auto* const bytes = reinterpret_cast<UInt8*>(buffer.data());
  OSStatus const status = FSRefMakePath(&ref, bytes, static_cast<UInt32>(path.size()));
  EXPECT_NE(status, noErr);
#ifndef __APPLE__
  EXPECT_EQ(status, pathTooLongErr);
#endif
  EXPECT_NE(FSRefMakePath(&ref, bytes, 0), noErr);
  EXPECT_EQ(buffer.back(), '#');
  EXPECT_EQ(FSRefMakePath(&ref, bytes, static_cast<UInt32>(path.size() + 1)), noErr);
  EXPECT_EQ(buffer.c_str(), path);
  EXPECT_EQ(buffer.back(), '#');
}

#ifndef __APPLE__

TEST(VolumePath, ThatIsTooLongIsRejected) {
  Places const places;
  EXPECT_EQ(Itself("/" + std::string(4096, 'x')), "status -2110");
  EXPECT_EQ(Itself(places / std::string(300, 'x')), "status -2110");

  // The path fits, but its resolution doesn't.
  std::string deep = places / "real";
  std::string const part = "/" + std::string(200, 'd');
  WorkingFolder const here(places / "real");
  std::string const link = places / "deep";
  while (deep.size() + part.size() < 4094) {
    fs::create_directory(part.substr(1));
    fs::current_path(part.substr(1));
    deep += part;
  }
  fs::create_symlink(deep, link);
  fs::create_directory(std::string(250, 'e'));
  EXPECT_EQ(Itself(link), link);
  EXPECT_EQ(Itself(link + "/" + std::string(250, 'e')), "status -2110");
  WriteFile(std::string(250, 'e') + "/file", "");
  EXPECT_EQ(Itself(link + "/" + std::string(250, 'e') + "/file"), "status -2110");

  // The longest path that fits.
  std::string const longest = "/" + std::string(4095 - deep.size() - 1, 'f');
  WriteFile(longest.substr(1), "");
  EXPECT_EQ(Itself(deep + longest), deep + longest);
  EXPECT_EQ(Itself(link + longest), deep + longest);
}

TEST(VolumePath, SkipsAnUnreadableFolderOfTheOtherNormalForm) {
  Places const places;
  test::GiveAway(places.path().c_str());
  test::RunUnprivileged([&places] {
    std::string const decomposed(kDecomposed);
    WriteFile(places / (decomposed + "/file"), "");
    fs::create_directory(places / kComposed);
    fs::permissions(places / kComposed, fs::perms(0));
    EXPECT_EQ(Itself(places / (std::string(kComposed) + "/file")), places / (decomposed + "/file"));
    fs::permissions(places / kComposed, fs::perms(0700));
  });
}

TEST(VolumePath, OfASymlinkWithADotInAShortNameOrASingleLetterIsItsOwn) {
  Places const places;
  for (char const* const name : {"a", ".a", "a."}) {
    fs::create_symlink("real", places / name);
    EXPECT_EQ(Itself(places / name), places / name);
  }
}

TEST(VolumePath, IsFoundByListingTheWorkingFolder) {
  TempDir const folder;
  std::string const kelvin = "\u212A";
  // Other names, whatever order they are listed in.
  for (char const* const name : {"a", "b", "\u00FC", kelvin.c_str(), "c", "d", "\u00E4"}) {
    WriteFile(folder / name, "");
  }
  WorkingFolder const here(folder.path());
  EXPECT_EQ(Itself("K"), folder / kelvin);
}

TEST(VolumePath, IsFoundInAFolderThatCannotBeListed) {
  Places const places;
  test::GiveAway(places.path().c_str());
  test::RunUnprivileged([&places] {
    for (auto const& [asked, stands] :
         {std::pair(kComposed, kDecomposed), std::pair(kDecomposed, kComposed)}) {
      std::string const folder = places / ("only " + std::string(asked));
      WriteFile(fs::path(folder) / stands, "");
      fs::permissions(folder, fs::perms(0300));
      EXPECT_EQ(Itself(folder + "/" + asked), folder + "/" + stands);
      fs::permissions(folder, fs::perms(0700));
    }
  });
}

TEST(VolumePath, FailsInAFolderWithoutSearchPermission) {
  Places const places;
  test::GiveAway(places.path().c_str());
  test::RunUnprivileged([&places] {
    fs::permissions(places.path(), fs::perms(0600));
    EXPECT_EQ(Itself(places / "real"), "status -36");
    EXPECT_EQ(Followed(places / "real"), "status -36");
    fs::permissions(places.path(), fs::perms(0700));
  });
}

TEST(VolumePath, LeavesNoDescriptorOpen) {
  if (!fs::exists("/proc/self/fd")) GTEST_SKIP() << "open descriptors can't be listed";
  auto const count = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
  };
  Places const places;
  auto const before = count();
  EXPECT_EQ(Itself(places / "real/file"), places / "real/file");
  EXPECT_EQ(count(), before);
}

TEST(VolumePath, IsFoundWithoutAFreeDescriptor) {
  Places const places;
  rlimit former;
  getrlimit(RLIMIT_NOFILE, &former);
  rlimit const none = {0, former.rlim_max};
  setrlimit(RLIMIT_NOFILE, &none);
  std::string const plain = Itself(places / "real/file");
  std::string const linked = Itself(places / "link/file");
  setrlimit(RLIMIT_NOFILE, &former);
  EXPECT_EQ(plain, places / "real/file");
  EXPECT_EQ(linked, places / "real/file");
}

#endif
