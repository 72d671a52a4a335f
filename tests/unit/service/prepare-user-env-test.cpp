#include <gmock/gmock.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "service-fixture.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using test::ReadTree;
using test::ServiceTest;
using test::WriteFile;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kReady[] =
    "[INFO] larkmoor-service(0): user installation is ready, removing backup app";
constexpr char kRolledBack[] =
    "[ERROR] larkmoor-service(0): Failed to extract package, rollback to old installation";
constexpr char kNothingToRollBack[] =
    "[ERROR] larkmoor-service(0): Failed to extract package, and no old installation to rollback";

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

TEST_F(PrepareUserEnv, FlushesBeforeAndAfterTheLastEntryOfAFirstInstallation) {
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

TEST_F(PrepareUserEnv, InstallsEvenIfTheFlushFails) {
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

TEST_F(PrepareUserEnv, SkipsAStaleBackupAndRemovesBothAtTheEnd) {
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

TEST_F(PrepareUserEnv, ReusesTheNameOfAnEmptyFolderWithoutAnError) {
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

TEST_F(PrepareUserEnv, RollsBackWhenThePackageIsMissing) {
  WriteFile(App() + "/old", "1");
  test::Tree const before = ReadTree(UserRoot());
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(ReadTree(UserRoot()), before);
  EXPECT_EQ(log.OwnLines().back(), kRolledBack);
}

TEST_F(PrepareUserEnv, RollsBackInAHomeBehindASymlink) {
  WriteFile(App() + "/old", "1");
  test::Tree const before = ReadTree(UserRoot());
  MoveHomeBehindSymlink();
  service.unpack = [] { return -1; };
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(ReadTree(UserRoot()), before);
  EXPECT_THAT(log.OwnLines(), ElementsAre(kRolledBack));
}

TEST_F(PrepareUserEnv, RollsBackOverAPartialNewTree) {
  WriteFile(App() + "/old", "1");
  test::Tree const before = ReadTree(UserRoot());
  CarryPackage({Entry::File("new", "1"), Entry::File("../bad", "2")});
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(ReadTree(UserRoot()), before);
}

TEST_F(PrepareUserEnv, LeavesWhatWasUnpackedIfThereIsNoBackup) {
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

TEST_F(PrepareUserEnv, LeavesOtherNumbersThanThoseUpToItsOwnAlone) {
  WriteFile(App() + "/live", "1");
  for (int index : {-1, 1}) WriteFile(Backup(index) + "/stale", "1");
  service.unpack = [] { return 0; };
  EXPECT_EQ(service.PrepareUserEnv(), 0);
  for (int index : {-1, 1}) EXPECT_TRUE(fs::exists(Backup(index) + "/stale"));
}

TEST_F(PrepareUserEnv, RollsBackToThePartialTreeOfACrashedRunAndLeavesTheOldBackup) {
  WriteFile(App() + "/partial", "1");
  WriteFile(Backup(0) + "/old", "1");
  test::Tree const before = ReadTree(UserRoot());
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_EQ(ReadTree(UserRoot()), before);
  EXPECT_EQ(log.OwnLines().front(), RefusedBackup(0));
  EXPECT_EQ(log.OwnLines().back(), kRolledBack);
}

TEST_F(PrepareUserEnv, TreatsAnyNonzeroResultOfUnpackingAsAFailure) {
  WriteFile(App() + "/old", "1");
  service.unpack = [] { return 7; };
  EXPECT_EQ(service.PrepareUserEnv(), -1);
  EXPECT_TRUE(fs::exists(App() + "/old"));
}

TEST_F(PrepareUserEnv, DoesNotReportAFailedRollback) {
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

}  // namespace
