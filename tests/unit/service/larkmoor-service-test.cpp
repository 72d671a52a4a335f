#include "service/larkmoor-service.h"

#include <gmock/gmock.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <filesystem>
#include <string>

#include "service-fixture.h"
#include "support/files.h"
#include "support/unprivileged.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using test::ReadTree;
using test::ServiceTest;
using test::WriteFile;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using ServicePaths = ServiceTest;

TEST_F(ServicePaths, FollowTheHomeDirectoryWhetherOrNotAnythingExists) {
  setenv("HOME", "/home/u", 1);
  EXPECT_STREQ(Service::GetUserInstallPath().c_str(), "/home/u");
  EXPECT_STREQ(Service::GetUserLarkmoorInstallPath().c_str(), "/home/u/.Larkmoor");
  EXPECT_STREQ(Service::GetUserLarkmoorAppInstallPath().c_str(), "/home/u/.Larkmoor/Larkmoor.app");
  EXPECT_STREQ(Service::GetUserLarkmoorDataInstallPath().c_str(), "/home/u/.Larkmoor/data");
}

TEST_F(ServicePaths, SupportNonAsciiNames) {
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

TEST_F(VersionLoading, LogsThatAFirstInstallationHasNoSource) {
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

TEST_F(VersionLoading, ReadsTheUsersInstallationBehindASymlink) {
  WriteFile(UserInfo(), "[Version]\nbuild_version=100\n");
  MoveHomeBehindSymlink();
  service.LoadSourceVersion();
  EXPECT_STREQ(service.source_build_version.c_str(), "100");
}

TEST_F(VersionLoading, LeavesTheFieldsOfAbsentKeysUnchanged) {
  WriteFile(UserInfo(), "[Version]\nbuild_version=100\n");
  service.source_minor_version = "kept";
  service.LoadSourceVersion();
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[INFO] larkmoor-service(0): source_version = (, kept, 100, )"));
}

TEST_F(VersionLoading, LeavesTheOtherFieldsEmptyIfThereIsOnlyABuild) {
  WriteFile(UserInfo(), "[Version]\nbuild_version=100\n");
  service.LoadSourceVersion();
  EXPECT_THAT(log.OwnLines(),
              ElementsAre("[INFO] larkmoor-service(0): source_version = (, , 100, )"));
}

TEST_F(VersionLoading, AcceptsAnEmptyValue) {
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

TEST_F(VersionLoading, StoresAValueThatIsNotANumberUnchanged) {
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

TEST_F(VersionLoading, TreatsAMalformedFileAsEmptyAndDoesNotWriteToIt) {
  std::string const noise = std::string(
      "\x7F"
      "ELF[[[\0\xFF=\n]",
      12);
  WriteFile(UserInfo(), noise);
  service.LoadSourceVersion();
  EXPECT_THAT(log.OwnLines(), ElementsAre("[INFO] larkmoor-service(0): source_version = (, , , )"));
  EXPECT_EQ(test::ReadFile(UserInfo()), noise);
}

TEST_F(ServiceTest, ExtractPackageFailsIfAFileIsInTheWayOfTheFolder) {
  CarryPackage({Entry::File("a", "1")});
  WriteFile(App(), "a file in the way");
  EXPECT_EQ(service.Service::ExtractPackage(), -1);
  EXPECT_EQ(test::ReadFile(App()), "a file in the way");
}

using RemoveAgedFolders = ServiceTest;

TEST_F(RemoveAgedFolders, RemovesTheAgedFolderAndNoBackup) {
  WriteFile(UserRoot() + "/app/Contents/old", "1");
  WriteFile(UserRoot() + "/application/kept", "1");
  WriteFile(Backup(0) + "/kept", "1");
  service.RemoveAgedFolders();
  EXPECT_FALSE(fs::exists(UserRoot() + "/app"));
  EXPECT_TRUE(fs::exists(UserRoot() + "/application/kept"));
  EXPECT_TRUE(fs::exists(Backup(0) + "/kept"));
}

TEST_F(RemoveAgedFolders, LogsItsLineEvenIfThereIsNothing) {
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
  EXPECT_THAT(log.Lines(), Each(Not(HasSubstr(From() + "/")))) << "dot entries aren't statted";
}

TEST_F(FSCopyPathTest, MakesTheFoldersAboveItsDestination) {
  fs::create_directory(From());
  EXPECT_EQ(service.FSCopyPath(From().c_str(), (To() + "/deep/down").c_str()), 0);
  EXPECT_TRUE(fs::is_empty(To() + "/deep/down"));
}

TEST_F(FSCopyPathTest, FailsForAFolderIfTheDiskIsFull) {
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

TEST_F(FSCopyPathTest, CopiesFromBehindASymlink) {
  WriteFile(From(), "1");
  MoveHomeBehindSymlink();
  EXPECT_EQ(service.FSCopyPath((home / "link/from").c_str(), To().c_str()), 0);
  EXPECT_EQ(test::ReadFile(To()), "1");
}

TEST_F(FSCopyPathTest, ReportsSuccessForASingleFileThatCannotBeCopied) {
  WriteFile(From(), "1");
  fs::create_directory(To());
  EXPECT_EQ(Copy(), 0);
}

TEST_F(FSCopyPathTest, FailsForAFolderWithSuchAFileAndLogsItsPath) {
  WriteFile(From() + "/a", "1");
  fs::create_directories(To() + "/a");
  EXPECT_EQ(Copy(), -1);
  EXPECT_EQ(log.OwnLines().back(),
            "[ERROR] larkmoor-service(0): FSCopyPath: failed to copy from '" + From() + "/a' to '" +
                To() + "/a'");
}

TEST_F(FSCopyPathTest, StopsAtTheFirstFileThatCannotBeCopied) {
  for (char const* name : {"/a", "/b"}) {
    WriteFile(From() + name, "1");
    fs::create_directories(To() + name);
  }
  EXPECT_EQ(Copy(), -1);
  EXPECT_EQ(log.OwnLines().size(), 2U) << "the copy and one failure";
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
  test::GiveAway(home.path().c_str());
  test::RunUnprivileged([this] { EXPECT_EQ(Copy(), 0); });
  EXPECT_EQ(log.OwnLines().back(),
            "[WARNING] larkmoor-service(0): FSCopyPath: failed to create handle  for src '" +
                From() + "' failed");
}

}  // namespace
