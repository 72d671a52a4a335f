#include "service/larkmoor-service.h"

#include <gmock/gmock.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <functional>

#include "localisation/str-table.h"
#include "support/archive-builder.h"
#include "support/files.h"
#include "support/log-capture.h"
#include "support/volume-flushes.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using test::ReadTree;
using test::WriteFile;
using testing::ElementsAre;
using testing::IsEmpty;

/// A Service with nothing of a platform in it, whose unpacking can be replaced.
class PlainService : public Service {
 public:
  PlainService() { app_path = GetUserLarkmoorAppInstallPath(); }

  void StopService() override {}
  int HandlePackageUpgrade() override { return PrepareUserEnv(); }
  void PostUpgrade() override {}
  void PreUpgrade() override {}
  bool IsNeedUpgrade() override { return true; }
  int ExtractPackage() override { return unpack ? unpack() : Service::ExtractPackage(); }

  std::function<int()> unpack;

  using Service::app_path;
  using Service::source_build_version;
  using Service::source_icon_overlay_version;
  using Service::source_major_version;
  using Service::source_minor_version;
  using Service::target_build_version;
  using Service::target_icon_overlay_version;
  using Service::target_major_version;
  using Service::target_minor_version;
};

/// A home folder of its own, in force from its construction on.
class Home : public test::TempDir {
 public:
  Home() { setenv("HOME", path().c_str(), 1); }
};

class ServiceTest : public testing::Test {
 protected:
  ServiceTest() {
    StrTable::InitStrTable();
    fs::remove_all(Resources());
  }
  ~ServiceTest() override { fs::remove_all(Resources()); }

  std::string Root() const { return Service::GetRootLarkmoorInstallPath().c_str(); }
  std::string Resources() const { return Root() + "/Contents/Resources"; }
  std::string UserRoot() const { return home / ".Larkmoor"; }
  std::string App() const { return UserRoot() + "/Larkmoor.app"; }
  std::string Backup(int index) const {
    return App() + "_tmp" + (index == 0 ? "" : std::to_string(index));
  }
  std::string UserInfo() const { return App() + "/Contents/Resources/INFO"; }

  /// The line of a backup that could not be made.
  std::string RefusedBackup(int index, std::string const& end = "") const {
    return "[ERROR] larkmoor-service(0): failed to backup app from '" + App() + "' -> '" +
           Backup(index) + "'" + end;
  }

  void CarryPackage(std::vector<Entry> const& entries) {
    WriteFile(Resources() + "/package/larkmoor.lpk", test::MakeArchive(entries));
  }

  Home home;
  test::LogCapture log;
  test::VolumeFlushes flushes;
  PlainService service;
};

constexpr char kReady[] =
    "[INFO] larkmoor-service(0): user installation is ready, removing backup app";
constexpr char kRolledBack[] =
    "[ERROR] larkmoor-service(0): Failed to extract package, rollback to old installation";
constexpr char kNothingToRollBack[] =
    "[ERROR] larkmoor-service(0): Failed to extract package, and no old installation to rollback";

using ServicePaths = ServiceTest;

TEST_F(ServicePaths, FollowTheHomeDirectoryWhetherOrNotAnythingExists) {
  setenv("HOME", "/home/u", 1);
  EXPECT_STREQ(Service::GetUserInstallPath().c_str(), "/home/u");
  EXPECT_STREQ(Service::GetUserLarkmoorInstallPath().c_str(), "/home/u/.Larkmoor");
  EXPECT_STREQ(Service::GetUserLarkmoorAppInstallPath().c_str(), "/home/u/.Larkmoor/Larkmoor.app");
  EXPECT_STREQ(Service::GetUserLarkmoorDataInstallPath().c_str(), "/home/u/.Larkmoor/data");
}

TEST_F(ServicePaths, KeepNamesOutsideAscii) {
  setenv("HOME", "/home/Jos\xC3\xA9", 1);
  EXPECT_STREQ(Service::GetUserLarkmoorInstallPath().c_str(), "/home/Jos\xC3\xA9/.Larkmoor");
}

TEST_F(ServicePaths, PutTheBundleRootTwoLevelsAboveTheExecutableWhateverItIsCalled) {
  std::string const executable = QCoreApplication::applicationDirPath().toStdString();
  EXPECT_EQ(Root() + "/Contents/MacOS", executable);
  EXPECT_EQ(Root().substr(Root().rfind('/')), "/Test.app");
  EXPECT_EQ(Service::GetRootLarkmoorResourceInstallPath().c_str(), Root() + "/Contents/Resources");
}

TEST_F(ServiceTest, StartsWithEmptyVersions) {
  for (ustring const& version :
       {service.source_major_version, service.source_minor_version, service.source_build_version,
        service.source_icon_overlay_version, service.target_major_version,
        service.target_minor_version, service.target_build_version,
        service.target_icon_overlay_version}) {
    EXPECT_TRUE(version.empty());
  }
}

TEST_F(ServiceTest, SetTimeoutChangesNothingThatCanBeObserved) {
  service.unpack = [] { return 0; };
  for (int value : {-1, 0, 1, 1000000}) {
    service.SetTimeout(value);
    EXPECT_EQ(service.PrepareUserEnv(), 0);
  }
}

using VersionLoading = ServiceTest;

TEST_F(VersionLoading, SaysThatAFirstInstallationHasNoSource) {
  service.LoadSourceVersion();
  EXPECT_THAT(log.OwnLines(), ElementsAre("[INFO] larkmoor-service(0): source does not exist"));
  EXPECT_TRUE(service.source_build_version.empty());
}

TEST_F(VersionLoading, ReadsTheFourValuesOfTheUsersInstallation) {
  WriteFile(UserInfo(),
            "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=100\n"
            "icon_overlay_version=7\n");
  service.LoadSourceVersion();
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[INFO] larkmoor-service(0): source_version = (3, 1, 100, 7)"));
  EXPECT_STREQ(service.source_major_version.c_str(), "3");
  EXPECT_STREQ(service.source_minor_version.c_str(), "1");
  EXPECT_STREQ(service.source_build_version.c_str(), "100");
  EXPECT_STREQ(service.source_icon_overlay_version.c_str(), "7");
  EXPECT_TRUE(service.target_build_version.empty());
}

TEST_F(VersionLoading, LeavesTheFieldsOfAbsentKeysAsTheyWere) {
  WriteFile(UserInfo(), "[Version]\nbuild_version=100\n");
  service.source_minor_version = "kept";
  service.LoadSourceVersion();
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[INFO] larkmoor-service(0): source_version = (, kept, 100, )"));
}

TEST_F(VersionLoading, LeavesTheOtherFieldsEmptyWhenThereIsOnlyABuild) {
  WriteFile(UserInfo(), "[Version]\nbuild_version=100\n");
  service.LoadSourceVersion();
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[INFO] larkmoor-service(0): source_version = (, , 100, )"));
}

TEST_F(VersionLoading, TakesAnEmptyValueAsItStands) {
  WriteFile(UserInfo(), "[Version]\nbuild_version=\n");
  service.source_build_version = "old";
  service.LoadSourceVersion();
  EXPECT_TRUE(service.source_build_version.empty());
}

TEST_F(VersionLoading, ReadsTheTargetFromTheBundle) {
  WriteFile(Resources() + "/INFO",
            "[Version]\nmajor_version=4\nminor_version=0\nbuild_version=200\n"
            "icon_overlay_version=8\n");
  service.LoadTargetVersion();
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[INFO] larkmoor-service(0): target_version = (4, 0, 200, 8)"));
  EXPECT_STREQ(service.target_build_version.c_str(), "200");
  EXPECT_TRUE(service.source_build_version.empty());
}

TEST_F(VersionLoading, LogsFourEmptyValuesForABundleWithoutVersionFile) {
  service.LoadTargetVersion();
  EXPECT_THAT(log.OwnLines(), ElementsAre("[INFO] larkmoor-service(0): target_version = (, , , )"));
}

TEST_F(VersionLoading, HandsOnAValueThatIsNoNumberUnchanged) {
  WriteFile(UserInfo(), "[Version]\nbuild_version=123abc\n");
  service.LoadSourceVersion();
  EXPECT_STREQ(service.source_build_version.c_str(), "123abc");
}

// Only the log shows it: a build number is ASCII.
TEST_F(VersionLoading, DecodesAVersionOutsideAsciiAsItsQtDoes) {
  WriteFile(UserInfo(), "[Version]\nmajor_version=3\xC3\xBC\nbuild_version=100\n");
  service.LoadSourceVersion();
  bool const is_latin1 = QLibraryInfo::version().majorVersion() == 5;
  EXPECT_STREQ(service.source_major_version.c_str(), is_latin1 ? "3Ã¼" : "3ü");
  EXPECT_STREQ(service.source_build_version.c_str(), "100");
}

TEST_F(VersionLoading, IgnoresOtherGroupsAndKeysAtTopLevel) {
  WriteFile(UserInfo(), "build_version=1\n[Other]\nbuild_version=2\n");
  service.LoadSourceVersion();
  EXPECT_TRUE(service.source_build_version.empty());
}

TEST_F(VersionLoading, TakesAMalformedFileAsEmptyAndDoesNotWriteToIt) {
  std::string const noise = std::string(
      "\x7F"
      "ELF[[[\0\xFF=\n]",
      12);
  WriteFile(UserInfo(), noise);
  service.LoadSourceVersion();
  EXPECT_THAT(log.OwnLines(), ElementsAre("[INFO] larkmoor-service(0): source_version = (, , , )"));
  EXPECT_EQ(test::ReadFile(UserInfo()), noise);
}

using PrepareUserEnv = ServiceTest;

TEST_F(PrepareUserEnv, InstallsForTheFirstTimeWithoutABackup) {
  CarryPackage({Entry::File("Contents/new", "1")});
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_EQ(ReadTree(UserRoot()).size(), 3U);
  EXPECT_EQ(test::ReadFile(App() + "/Contents/new"), "1");
}

TEST_F(PrepareUserEnv, LogsWhereThePackageGoes) {
  CarryPackage({Entry::File("new", "1")});
  service.PrepareUserEnv();
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[INFO] larkmoor-service(0): extract package: '" + Resources() +
                              "/package/larkmoor.lpk' -> '" + App() + "'",
                          "[DEBUG] extractor(0): decompress from '" + Resources() +
                              "/package/larkmoor.lpk' to '" + App() + "'",
                          kReady));
}

TEST_F(PrepareUserEnv, ReplacesTheOldTreeAndLeavesNoBackup) {
  WriteFile(App() + "/old", "1");
  CarryPackage({Entry::File("new", "1")});
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_THAT(ReadTree(UserRoot()),
              ElementsAre(testing::Key("Larkmoor.app"), testing::Key("Larkmoor.app/new")));
}

TEST_F(PrepareUserEnv, MovesTheOldTreeAsideBeforeItUnpacks) {
  WriteFile(App() + "/old", "1");
  service.unpack = [this] {
    EXPECT_FALSE(fs::exists(App()));
    EXPECT_TRUE(fs::exists(Backup(0) + "/old"));
    return 0;
  };
  EXPECT_EQ(service.PrepareUserEnv(), 0);
}

TEST_F(PrepareUserEnv, FlushesTheUsersVolumeBeforeAnyBackupIsRemoved) {
  WriteFile(App() + "/live", "1");
  WriteFile(Backup(0) + "/stale", "1");
  service.unpack = [this] {
    WriteFile(App() + "/new", "1");
    return 0;
  };
  std::vector<std::string> flushed;
  flushes.seen = [&](std::string const& path) {
    flushed.push_back(path);
    EXPECT_TRUE(fs::exists(App() + "/new"));
    EXPECT_TRUE(fs::exists(Backup(0) + "/stale"));
    EXPECT_TRUE(fs::exists(Backup(1) + "/live"));
  };
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_THAT(flushed, ElementsAre(UserRoot()));
}

TEST_F(PrepareUserEnv, FlushesForAFirstInstallationBeforeTheLastEntryAndBehindIt) {
  CarryPackage({Entry::File("first", "1"), Entry::File("last", "2")});
  std::vector<std::string> flushed;
  flushes.seen = [&](std::string const& path) {
    flushed.push_back(path);
    EXPECT_TRUE(fs::exists(App() + "/first"));
    EXPECT_EQ(fs::exists(App() + "/last"), flushed.size() == 2);
  };
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_THAT(flushed, ElementsAre(App(), UserRoot()));
}

TEST_F(PrepareUserEnv, InstallsAllTheSameOnAVolumeThatCannotBeFlushed) {
  WriteFile(App() + "/old", "1");
  CarryPackage({Entry::File("new", "1")});
  flushes.fail = true;
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_EQ(log.OwnLines().back(), kReady);
  EXPECT_FALSE(fs::exists(Backup(0)));
}

TEST_F(PrepareUserEnv, FlushesNothingWhenItRollsBack) {
  WriteFile(App() + "/old", "1");
  service.unpack = [] { return -1; };
  flushes.seen = [](std::string const&) { ADD_FAILURE(); };
  EXPECT_EQ(service.PrepareUserEnv(), -1);
}

TEST_F(PrepareUserEnv, GetsPastAStaleBackupAndRemovesBothInTheEnd) {
  WriteFile(App() + "/live", "1");
  WriteFile(Backup(0) + "/stale", "1");
  service.unpack = [this] {
    EXPECT_TRUE(fs::exists(Backup(1) + "/live"));
    fs::create_directory(App());
    return 0;
  };
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_THAT(log.OwnLines(), ElementsAre(RefusedBackup(0), kReady));
  EXPECT_THAT(ReadTree(UserRoot()), ElementsAre(testing::Key("Larkmoor.app")));
}

TEST_F(PrepareUserEnv, TakesTheNameOfAnEmptyFolderWithoutAnError) {
  WriteFile(App() + "/live", "1");
  fs::create_directory(Backup(0));
  service.unpack = [] { return 0; };
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_THAT(log.OwnLines(), ElementsAre(kReady));
  EXPECT_FALSE(fs::exists(Backup(0)));
}

TEST_F(PrepareUserEnv, ClimbsToTheNinthNumberAndRemovesAllBelow) {
  WriteFile(App() + "/live", "1");
  for (int i = 0; i < 9; ++i) WriteFile(Backup(i) + "/stale", "1");
  service.unpack = [this] {
    EXPECT_TRUE(fs::exists(Backup(9) + "/live"));
    return 0;
  };
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_EQ(log.OwnLines().size(), 10U);
  EXPECT_EQ(log.OwnLines()[7], RefusedBackup(7));
  EXPECT_THAT(ReadTree(UserRoot()), IsEmpty());
}

TEST_F(PrepareUserEnv, ChangesNothingWhenAllTenNamesAreTaken) {
  WriteFile(App() + "/live", "1");
  for (int i = 0; i < 10; ++i) WriteFile(Backup(i) + "/stale", "1");
  test::Tree const before = ReadTree(UserRoot());
  service.unpack = []() -> int {
    ADD_FAILURE() << "nothing may be unpacked";
    return 0;
  };

  EXPECT_EQ(service.PrepareUserEnv(), -1);

  EXPECT_EQ(ReadTree(UserRoot()), before);
  std::vector<std::string> expected;
  for (int i = 0; i < 10; ++i) expected.push_back(RefusedBackup(i));
  expected.push_back(RefusedBackup(9, " at max retries, exiting"));
  EXPECT_EQ(log.OwnLines(), expected);
}

TEST_F(PrepareUserEnv, PutsTheOldTreeBackWhenThePackageIsMissing) {
  WriteFile(App() + "/old", "1");
  test::Tree const before = ReadTree(UserRoot());
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(ReadTree(UserRoot()), before);
  EXPECT_EQ(log.OwnLines().back(), kRolledBack);
}

TEST_F(PrepareUserEnv, PutsTheOldTreeBackOverAHalfWrittenNewOne) {
  WriteFile(App() + "/old", "1");
  test::Tree const before = ReadTree(UserRoot());
  CarryPackage({Entry::File("new", "1"), Entry::File("../bad", "2")});
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(ReadTree(UserRoot()), before);
}

TEST_F(PrepareUserEnv, LeavesWhatWasUnpackedWhenThereIsNothingToPutBack) {
  CarryPackage({Entry::File("new", "1"), Entry::File("../bad", "2")});
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_TRUE(fs::exists(App() + "/new"));
  EXPECT_EQ(log.OwnLines().back(), kNothingToRollBack);
}

TEST_F(PrepareUserEnv, KeepsTheBackupOfACrashedRunWhenAFirstInstallationFails) {
  WriteFile(Backup(0) + "/old", "1");
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_TRUE(fs::exists(Backup(0) + "/old"));
  EXPECT_EQ(log.OwnLines().back(), kNothingToRollBack);
}

TEST_F(PrepareUserEnv, RemovesTheBackupOfACrashedRunAfterAFirstInstallation) {
  WriteFile(Backup(0) + "/old", "1");
  service.unpack = [] { return 0; };
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_FALSE(fs::exists(Backup(0)));
}

TEST_F(PrepareUserEnv, LeavesBackupsAboveItsOwnNumberAlone) {
  WriteFile(App() + "/live", "1");
  WriteFile(Backup(3) + "/stale", "1");
  service.unpack = [] { return 0; };
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  EXPECT_TRUE(fs::exists(Backup(3) + "/stale"));
}

TEST_F(PrepareUserEnv, PutsBackThePartialTreeOfACrashedRunAndLeavesTheOldOneAside) {
  WriteFile(App() + "/partial", "1");
  WriteFile(Backup(0) + "/old", "1");
  test::Tree const before = ReadTree(UserRoot());
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(ReadTree(UserRoot()), before);
  EXPECT_EQ(log.OwnLines().front(), RefusedBackup(0));
  EXPECT_EQ(log.OwnLines().back(), kRolledBack);
}

TEST_F(PrepareUserEnv, CountsAnyResultOfUnpackingButZeroAsAFailure) {
  WriteFile(App() + "/old", "1");
  service.unpack = [] { return 7; };
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_TRUE(fs::exists(App() + "/old"));
}

TEST_F(PrepareUserEnv, ReportsARollbackThatCannotBeMadeNoFurther) {
  WriteFile(App() + "/old", "1");
  service.unpack = [this] {
    fs::rename(Backup(0), home / "elsewhere");
    return -1;
  };
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(log.OwnLines().back(), kRolledBack);
}

TEST_F(PrepareUserEnv, RollsBackWhenTheDestinationCannotBeMade) {
  WriteFile(App() + "/old", "1");
  service.unpack = [this] {
    WriteFile(App(), "a file in the way");
    return service.Service::ExtractPackage();
  };
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[ERROR] larkmoor-service(0): failed to create folder: '" + App() + "'",
                          kRolledBack));
  EXPECT_TRUE(fs::exists(App() + "/old"));
}

TEST_F(ServiceTest, ExtractPackageFailsWhereAFileStandsInTheFoldersPlace) {
  CarryPackage({Entry::File("a", "1")});
  WriteFile(App(), "a file in the way");
  EXPECT_EQ(service.Service::ExtractPackage(), -1);
  EXPECT_EQ(test::ReadFile(App()), "a file in the way");
}

using RemoveAgedFolders = ServiceTest;

TEST_F(RemoveAgedFolders, RemovesTheOneFixedFolderAndNoBackup) {
  WriteFile(UserRoot() + "/app/Contents/old", "1");
  WriteFile(UserRoot() + "/application/kept", "1");
  WriteFile(Backup(0) + "/kept", "1");
  service.RemoveAgedFolders();
  EXPECT_FALSE(fs::exists(UserRoot() + "/app"));
  EXPECT_TRUE(fs::exists(UserRoot() + "/application/kept"));
  EXPECT_TRUE(fs::exists(Backup(0) + "/kept"));
}

TEST_F(RemoveAgedFolders, LogsItsLineEvenWhenThereIsNothing) {
  service.RemoveAgedFolders();
  EXPECT_THAT(log.OwnLines(), ElementsAre("[INFO] larkmoor-service(0): removing aged app folder " +
                                          UserRoot() + "/app"));
}

class FSCopyPathTest : public ServiceTest {
 protected:
  int Copy() { return service.FSCopyPath(From().c_str(), To().c_str()); }
  std::string From() const { return home / "from"; }
  std::string To() const { return home / "to"; }
  std::string CopyLine(std::string const& inside = "") const {
    return "[DEBUG] larkmoor-service(0): copy from '" + From() + inside + "' to '" + To() + inside +
           "'";
  }
};

TEST_F(FSCopyPathTest, CopiesATreeWithPlainModes) {
  WriteFile(From() + "/a", "1");
  WriteFile(From() + "/b/c", "2");
  chmod((From() + "/b/c").c_str(), 0600);
  test::Tree const before = test::ReadTree(From());
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(test::ReadFile(To() + "/a"), "1");
  EXPECT_EQ(test::ReadFile(To() + "/b/c"), "2");
  EXPECT_EQ(test::ReadTree(From()), before);
}

TEST_F(FSCopyPathTest, LeavesNoFolderOpen) {
  if (!fs::exists("/proc/self/fd")) GTEST_SKIP() << "open descriptors can't be listed";
  auto const count = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
  };
  WriteFile(From() + "/b/c", "2");
  auto const before = count();
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(count(), before);
}

TEST_F(FSCopyPathTest, CopiesAnEmptyFolder) {
  fs::create_directory(From());
  EXPECT_EQ(Copy(), 0);
  EXPECT_TRUE(fs::is_empty(To()));
}

TEST_F(FSCopyPathTest, FailsForAFolderWhoseFileFindsNoSpace) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "this system has no /dev/full";
  WriteFile(From() + "/a", "1");
  fs::create_directory(To());
  fs::create_symlink("/dev/full", To() + "/a");
  EXPECT_EQ(Copy(), -1);
  EXPECT_EQ(log.OwnLines().back(),
            "[ERROR] larkmoor-service(0): FSCopyPath: failed to copy from '" + From() + "/a' to '" +
                To() + "/a'");
}

TEST_F(FSCopyPathTest, CopiesOneFile) {
  WriteFile(From(), "1");
  EXPECT_EQ(Copy(), 0);
  EXPECT_EQ(test::ReadFile(To()), "1");
  EXPECT_EQ(test::ReadFile(From()), "1");
  EXPECT_THAT(log.OwnLines(), ElementsAre(CopyLine()));
}

TEST_F(FSCopyPathTest, ReportsSuccessForASingleFileThatCannotBeCopied) {
  WriteFile(From(), "1");
  fs::create_directory(To());
  EXPECT_EQ(Copy(), 0);
}

TEST_F(FSCopyPathTest, FailsForAFolderWithSuchAFileAndNamesTheChild) {
  WriteFile(From() + "/a", "1");
  fs::create_directories(To() + "/a");
  EXPECT_EQ(Copy(), -1);
  EXPECT_EQ(log.OwnLines().back(),
            "[ERROR] larkmoor-service(0): FSCopyPath: failed to copy from '" + From() + "/a' to '" +
                To() + "/a'");
}

TEST_F(FSCopyPathTest, FailsForAMissingSource) {
  EXPECT_EQ(Copy(), -1);
  EXPECT_THAT(log.OwnLines(),
              ElementsAre(CopyLine(), "[ERROR] larkmoor-service(0): FSCopyPath: source path '" +
                                          From() + "' does not exist"));
}

TEST_F(FSCopyPathTest, FailsForAnEmptySource) {
  EXPECT_EQ(service.FSCopyPath("", To().c_str()), -1);
  EXPECT_EQ(log.OwnLines().back(),
            "[ERROR] larkmoor-service(0): FSCopyPath: failed to stat source ''");
}

TEST_F(FSCopyPathTest, FailsWhenTheDestinationIsAFile) {
  fs::create_directory(From());
  WriteFile(To(), "in the way");
  EXPECT_EQ(Copy(), -1);
  EXPECT_EQ(log.OwnLines().back(),
            "[ERROR] larkmoor-service(0): FSCopyPath: failed to create dest folder '" + To() + "'");
}

TEST_F(FSCopyPathTest, CountsAnUnreadableFolderAsCopied) {
  WriteFile(From() + "/a", "1");
  chmod(From().c_str(), 0);
  // Permissions bind nobody but an ordinary user, so the copy is made as one, in a child.
  chmod(home.path().c_str(), 0777);
  pid_t const child = fork();
  if (child == 0) {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(2);
    _exit(Copy() == 0 ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(log.OwnLines().back(),
            "[WARNING] larkmoor-service(0): FSCopyPath: failed to create handle  for src '" +
                From() + "' failed");
}

}  // namespace
