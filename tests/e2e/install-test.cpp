// What a run leaves on disk and what it starts, with valid and with bad input.
#include <dlfcn.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

#include "support/sandbox.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using test::MakeArchive;
using test::ReadTree;
using test::Sandbox;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr char kFailed[] = "[ERROR] launcher(0): Failed to upgrade package";

/// The tree that a package of this build unpacks to.
test::Tree ClientTree(int build) {
  Sandbox box;
  box.Install(build);
  return ReadTree(box.App());
}

/// The names in a folder; none if it doesn't exist.
std::vector<std::string> Names(std::string const& folder) {
  std::vector<std::string> names;
  if (!fs::exists(folder)) return names;
  for (auto const& entry : fs::directory_iterator(folder)) {
    names.push_back(entry.path().filename());
  }
  return names;
}

class Install : public testing::Test {
 protected:
  Install() { box.LogEverything(); }
  Sandbox box;
};

TEST_F(Install, PutsTheWholeTreeInPlaceAndStartsIt) {
  box.Carry(100);
  test::Outcome const run = box.Launch();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(ReadTree(box.App()), ClientTree(100));
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("100"));
}

TEST_F(Install, PrintsOneLineToStandardOutput) {
  box.Carry(100);
  EXPECT_EQ(box.Launch().out, "lib path = '" + box.Bundle() + "/Contents/Frameworks/plugins'\n");
}

TEST_F(Install, LooksForPluginsInTheBundleAndNowhereElse) {
  box.Carry(100);
  fs::remove_all(box.Bundle() + "/Contents/Frameworks");
  test::Outcome const run = test::Run(box.Start());
  EXPECT_EQ(run.signal, SIGABRT);
  EXPECT_THAT(run.err, HasSubstr("no Qt platform plugin could be initialized"));
  EXPECT_FALSE(fs::exists(box.App()));
}

TEST_F(Install, LeavesTheInstalledTreeAloneOnAPlainStart) {
  box.Carry(100);
  box.Install(100);
  test::WriteFile(box.App() + "/Contents/the user's own", "kept");
  test::Tree const before = ReadTree(box.App());
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_EQ(ReadTree(box.App()), before);
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("100"));
}

TEST_F(Install, LeavesTheBackupOfACrashedRunAloneOnAPlainStart) {
  box.Carry(100);
  box.Install(100);
  test::WriteFile(box.App() + "_tmp/Contents/old", "1");
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_TRUE(fs::exists(box.App() + "_tmp/Contents/old"));
}

TEST_F(Install, NeverDowngrades) {
  box.Carry(99);
  box.Install(100);
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("100"));
}

TEST_F(Install, ReplacesAnOlderTreeCompletely) {
  box.Carry(200);
  box.Install(100);
  test::WriteFile(box.App() + "/Contents/gone", "with the old tree");
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_EQ(ReadTree(box.App()), ClientTree(200));
  EXPECT_FALSE(fs::exists(box.App() + "_tmp"));
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("200"));
}

TEST_F(Install, InstallsAnOlderBuildWhenTheExecutableIsMissing) {
  box.Carry(50);
  box.Install(100);
  fs::remove(box.App() + "/Contents/MacOS/larkmoor-drive-ui");
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_EQ(ReadTree(box.App()), ClientTree(50));
}

TEST_F(Install, RepeatsOnEveryStartWhenThePackageIsOlderThanItsBundleSays) {
  box.Carry(100);
  box.CarryVersion(101);
  for (size_t start = 1; start <= 3; ++start) {
    box.ForgetLog();
    EXPECT_EQ(box.Launch().status, 0);
    EXPECT_THAT(box.Log(), Contains(HasSubstr("user installation is ready")));
    EXPECT_EQ(box.AwaitStarts(start).size(), start);
  }
}

TEST_F(Install, RemovesTheAgedFolderOnEveryStart) {
  box.Carry(100);
  box.Install(100);
  test::WriteFile(box.UserRoot() + "/app/old", "1");
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_FALSE(fs::exists(box.UserRoot() + "/app"));
}

TEST_F(Install, RunsFromABundleOfAnyNameAndIgnoresArguments) {
  box.Carry(100);
  test::Process::Options start = box.Start();
  for (char const* extra : {"--version", "install", "-x"}) start.arguments.emplace_back(extra);
  EXPECT_EQ(test::Run(start).status, 0);
  EXPECT_EQ(ReadTree(box.App()), ClientTree(100));
}

TEST_F(Install, RunsInEnglishWhenTheCataloguesAreMissing) {
  Sandbox without(LARKMOOR_TEST_LAUNCHER_WITHOUT_TEXTS);
  without.Carry(100);
  test::Process::Options start = without.Start();
  start.environment["LC_ALL"] = "de_DE.UTF-8";
  test::Outcome const run = test::Run(start);
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.err, HasSubstr("qPrintable(qstrDef)=[enu"));
  EXPECT_THAT(run.err, Not(HasSubstr("qPrintable(qstrLangFileName)")));
  EXPECT_EQ(ReadTree(without.App()), ClientTree(100));
}

TEST_F(Install, DerivesThePluginPathFromARelativeName) {
  box.Carry(100);
  test::Process::Options start = box.Start();
  start.program = start.arguments[0];
  struct {
    char const* name;
    char const* folder;
    char const* path;
  } const cases[] = {{"launcher", "/Contents/MacOS", "../Frameworks/plugins"},
                     {".", "/Contents/Resources/package", "../../Frameworks/plugins"}};
  for (auto const& [name, folder, path] : cases) {
    start.arguments = {name};
    start.folder = box.Bundle() + folder;
    test::Outcome const run = test::Run(start);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "lib path = '" + std::string(path) + "'\n");
  }
}

TEST_F(Install, WritesNothingOutsideTheUsersRoot) {
  box.Carry(100);
  test::Tree const bundle = ReadTree(box.Bundle());
  box.Launch();
  EXPECT_EQ(ReadTree(box.Bundle()), bundle);
  EXPECT_THAT(Names(box.Home()),
              testing::UnorderedElementsAre(".Larkmoor", "starts", "client-descriptors",
                                            "client-session", "client-folder", "client-arguments"));
  // fontconfig may cache the window's fonts; nothing else is cached.
  EXPECT_THAT(Names(box.Caches()), testing::AnyOf(IsEmpty(), ElementsAre("fontconfig")));
  EXPECT_THAT(Names(box.Runtime()), IsEmpty());
}

TEST_F(Install, StartsTheClientIndependentOfTheLauncher) {
  box.Carry(100);
  box.Launch();
  std::string const descriptors = test::ReadFile(box.Home() + "/client-descriptors");
  EXPECT_THAT(descriptors, HasSubstr("/dev/null"));
  EXPECT_THAT(descriptors, Not(HasSubstr("launcher.log")));
  EXPECT_THAT(descriptors, Not(HasSubstr("socket:")));
  EXPECT_EQ(test::ReadFile(box.Home() + "/client-arguments"), "0\n");
  // It leads its own group and session, so both have the same number.
  std::string const session = test::ReadFile(box.Home() + "/client-session");
  EXPECT_EQ(session.substr(0, session.find(' ')),
            session.substr(session.find(' ') + 1, session.size() - session.find(' ') - 2));
}

TEST_F(Install, InstallsNonAsciiNamesInTheCLocale) {
  std::vector<Entry> entries = Sandbox::Client(100);
  std::string const name = "Contents/Resources/\xE6\x97\xA5\xE6\x9C\xAC e\xCC\x81";
  entries.insert(entries.begin(), Entry::File(name, "1"));
  box.CarryVersion(100);
  box.CarryPackage(MakeArchive(entries, "gnutar"));
  test::Process::Options start = box.Start();
  start.environment["LC_ALL"] = "C";
  EXPECT_EQ(test::Run(start).status, 0);
  EXPECT_EQ(test::ReadFile(box.App() + "/" + name), "1");
}

TEST_F(Install, UnpacksAnAbsolutePathInsideTheAppFolder) {
  std::vector<Entry> entries = Sandbox::Client(100);
  entries.insert(entries.begin(), Entry::File(box.folder() / "absolute", "1"));
  box.CarryVersion(100);
  box.CarryPackage(MakeArchive(entries));
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_FALSE(fs::exists(box.folder() / "absolute"));
  EXPECT_EQ(test::ReadFile(box.App() + (box.folder() / "absolute")), "1");
}

/// A package that can't be installed, and part of the log line about it.
struct BadPackage {
  char const* name;
  std::function<void(Sandbox&)> carry;
  char const* words;
};

void PrintTo(BadPackage const& bad, std::ostream* out) { *out << bad.name; }

std::string SoundPackage() { return MakeArchive(Sandbox::Client(200), "gnutar", "gzip"); }

std::string Damaged() {
  std::string bytes = SoundPackage();
  for (size_t i = bytes.size() / 2; i < bytes.size() / 2 + 8; ++i) bytes[i] ^= '\x55';
  return bytes;
}

BadPackage const kBadPackages[] = {
    {"Missing", [](Sandbox&) {}, "archive_read_open_filename failed: 'Failed to open"},
    {"Empty", [](Sandbox& box) { box.CarryPackage(""); }, "Failed to calculate total file numbers"},
    {"NoArchive", [](Sandbox& box) { box.CarryPackage(std::string(3000, 'x')); },
     "Failed to calculate total file numbers"},
    {"WithoutEntries", [](Sandbox& box) { box.CarryPackage(MakeArchive({})); },
     "Failed to calculate total file numbers, ret: 0"},
    {"Truncated",
     [](Sandbox& box) {
       std::string const whole = MakeArchive(Sandbox::Client(200));
       box.CarryPackage(whole.substr(0, whole.size() / 2));
     },
     "extractor(0): archive_read_"},
    {"TruncatedInItsCompression",
     [](Sandbox& box) {
       std::string const whole = SoundPackage();
       box.CarryPackage(whole.substr(0, whole.size() / 2));
     },
     "extractor(0): archive_read_"},
    {"Damaged", [](Sandbox& box) { box.CarryPackage(Damaged()); }, "extractor(0): "},
    {"Climbing",
     [](Sandbox& box) {
       std::vector<Entry> entries = Sandbox::Client(200);
       entries.insert(entries.begin() + 4, Entry::File("Contents/../../climbed", "1"));
       box.CarryPackage(MakeArchive(entries));
     },
     "archive_read_extract2 failed: 'Path contains '..''"},
    {"AFolder", [](Sandbox& box) { fs::create_directories(box.Package()); }, "extractor(0): "},
};

class BadPackages : public testing::TestWithParam<BadPackage> {
 protected:
  BadPackages() {
    box.LogEverything();
    box.CarryVersion(200);
    GetParam().carry(box);
  }
  Sandbox box;
};

TEST_P(BadPackages, LeaveTheOldTreeByteForByteAndTheClientStartsFromIt) {
  box.Install(100);
  test::Tree const before = ReadTree(box.App());

  EXPECT_EQ(box.Launch().status, 0);

  EXPECT_EQ(ReadTree(box.App()), before);
  EXPECT_FALSE(fs::exists(box.App() + "_tmp"));
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("100"));
  EXPECT_THAT(box.Log(), Contains(HasSubstr(GetParam().words)));
  EXPECT_THAT(box.Log(), Contains(kFailed));
  EXPECT_FALSE(fs::exists(box.UserRoot() + "/climbed"));
}

TEST_P(BadPackages, EndAFirstInstallationWithStatusZero) {
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_THAT(box.Log(), Contains("[ERROR] larkmoor-service(0): Failed to extract package, and no "
                                  "old installation to rollback"));
  EXPECT_FALSE(fs::exists(box.UserRoot() + "/climbed"));
}

INSTANTIATE_TEST_SUITE_P(Install, BadPackages, testing::ValuesIn(kBadPackages),
                         [](auto const& bad) { return std::string(bad.param.name); });

using BadInput = Install;

TEST_F(BadInput, TreatsABundleWithoutVersionFileAsBuildZero) {
  box.CarryPackage(SoundPackage());
  box.Install(100);
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("100"));
  EXPECT_THAT(box.Log(), Contains("[INFO] larkmoor-service(0): target_version = (, , , )"));
}

TEST_F(BadInput, TreatsAnInstallationWithoutVersionFileAsBuildZero) {
  box.Carry(1);
  box.Install(100);
  fs::remove(box.App() + "/Contents/Resources/INFO");
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("1"));
}

TEST_F(BadInput, UsesTheLeadingNumberOfAMalformedBuild) {
  box.Carry(200);
  box.Install(100);
  for (char const* info : {"\x01\x02[[[\n=", "build_version=300\n",
                           "[Version]\nbuild_version=abc\n", "[Version]\nbuild_version=99zzz\n"}) {
    test::WriteFile(box.Bundle() + "/Contents/Resources/INFO", info);
    EXPECT_EQ(box.Launch().status, 0);
  }
  EXPECT_THAT(box.AwaitStarts(4), ElementsAre("100", "100", "100", "100"));
}

TEST_F(BadInput, InstallsOverAnUnreadableVersionFileOfTheUsers) {
  box.Carry(200);
  box.Install(100);
  std::string const info = box.App() + "/Contents/Resources/INFO";
  fs::remove(info);
  fs::create_directory(info);  // not even root can read it as a file
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("200"));
}

TEST_F(BadInput, KeepsItsThresholdsWhenTheLevelFileIsMalformed) {
  box.WriteLevelFile("launcher_debug=7\nservice_debug=7\n[section]\n");
  box.Carry(200);
  box.Install(100);
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_EQ(box.RawLog(), "");
  EXPECT_THAT(box.AwaitStarts(1), ElementsAre("200"));
}

TEST_F(BadInput, ContinuesWithAReadOnlyHome) {
  box.Carry(100);
  test::WriteFile(box.folder() / "file", "");
  test::Process::Options start = box.Start();
  start.environment["HOME"] = box.folder() / "file/home";
  test::Outcome const run = test::Run(start);
  EXPECT_EQ(run.status, 0);
  // The log stays on standard error, with the default thresholds.
  EXPECT_THAT(run.err, HasSubstr("failed to create folder: '"));
  EXPECT_THAT(run.err, HasSubstr("Failed to upgrade package"));
  EXPECT_THAT(run.err, HasSubstr("Failed to launch Larkmoor UI"));
  EXPECT_THAT(run.err, Not(HasSubstr("[DEBUG] launcher")));
}

TEST_F(BadInput, InstallsWithALogFolderThatIsBlockedByAFile) {
  box.Carry(100);
  test::WriteFile(box.UserRoot() + "/log", "in the way");
  test::Outcome const run = box.Launch();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(ReadTree(box.App()), ClientTree(100));
  EXPECT_EQ(test::ReadFile(box.UserRoot() + "/log"), "in the way");
  EXPECT_THAT(run.err, Not(HasSubstr("[ERROR]")));
}

TEST_F(BadInput, InstallsWithALogFileThatCannotBeOpened) {
  box.Carry(100);
  fs::create_directories(box.LogFile());
  EXPECT_EQ(box.Launch().status, 0);
  EXPECT_EQ(ReadTree(box.App()), ClientTree(100));
}

/// An upgrade is due, and the dynamic linker finds another libarchive.
class OtherLibarchive : public Install {
 protected:
  OtherLibarchive() {
    box.Carry(200);
    box.Install(100);
    box.ForgetLog();
  }
  /// The system's own libarchive.
  static std::string Path() {
    Dl_info found = {};
    if (dladdr(dlsym(RTLD_DEFAULT, "archive_read_new"), &found) == 0) {
      throw std::runtime_error("libarchive isn't linked");
    }
    return found.dli_fname;
  }
  void ExpectNothingTouched(std::string const& library, std::string const& reason) {
    test::WriteFile(box.folder() / ("lib/" + fs::path(Path()).filename().string()), library);
    test::Process::Options start = box.Start();
    start.environment["LD_LIBRARY_PATH"] = box.folder() / "lib";
    test::Tree const before = ReadTree(box.Home());
    test::Outcome const run = test::Run(start);
    EXPECT_THAT(run.err, HasSubstr(reason));
    EXPECT_EQ(ReadTree(box.Home()), before);
  }
};

TEST_F(OtherLibarchive, ThatCannotBeLoadedEndsTheStartBeforeAnyChange) {
  ExpectNothingTouched("no library", Path().substr(Path().rfind('/')));
}

TEST_F(OtherLibarchive, ThatLacksAFunctionEndsTheStartBeforeAnyChange) {
  // Not called until the old tree has been renamed aside, and not used by libarchive itself.
  std::string const wanted = "archive_read_support_compression_all";
  std::string library = test::ReadFile(Path());
  size_t const at = library.find(wanted);
  ASSERT_NE(at, std::string::npos);
  library[at + wanted.size() - 1] = '_';
  ExpectNothingTouched(library, "undefined symbol: " + wanted);
}

}  // namespace
