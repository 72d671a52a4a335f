// Upgrades on real file systems: full, read-only, limited by quota, split in two.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/quota.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>

#include "faults/mount.h"
#include "faults/nobody.h"
#include "faults/volume-fixture.h"
#include "foundation/file-op.h"
#include "support/sandbox.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using test::Mount;
using test::Sandbox;
using test::Tree;
using test::Volume;

constexpr size_t kPayload = 200000;

/// A client that needs some space, with its own names.
std::vector<Entry> BigClient(int build) {
  std::vector<Entry> entries = Sandbox::Client(build);
  std::string const name = "Contents/Resources/big-" + std::to_string(build);
  entries.insert(entries.end() - 2, Entry::File(name, std::string(kPayload, 'b')));
  return entries;
}

/// A client too large for a small disk.
std::vector<Entry> HugeClient(int build) {
  std::vector<Entry> entries = BigClient(build);
  std::string const bytes(8 << 20, 'h');
  entries.insert(entries.end() - 2, Entry::File("Contents/Resources/huge", bytes));
  return entries;
}

TEST_F(Volume, FullDuringAnUpgradeIsRolledBack) {
  Mount home("none", sandbox_.Home(), "tmpfs", Size(256));
  if (!home.ok()) GTEST_SKIP() << home.reason();
  sandbox_.Install(100);
  Tree const old = test::ReadTree(sandbox_.App());
  Carry(BigClient(200));
  ASSERT_TRUE(sandbox_.Launch().status == 0);
  // The log is on the same disk: what is logged before the rollback frees space is lost.
  EXPECT_TRUE(LogHas("Failed to upgrade package")) << sandbox_.RawLog();
  EXPECT_EQ(test::ReadTree(sandbox_.App()), old);
  EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp"));
  EXPECT_EQ(sandbox_.AwaitStarts(1).back(), "100");
}

TEST_F(Volume, EverySizeOfDiskLeavesACompleteTree) {
  Mount home("none", sandbox_.Home(), "tmpfs", Size(64));
  if (!home.ok()) GTEST_SKIP() << home.reason();
  Carry(BigClient(200));
  int rollbacks = 0;
  int upgrades = 0;
  for (size_t kib = 64; kib <= 420; kib += 16) {
    home.Remount(0, Size(1024));
    fs::remove_all(sandbox_.UserRoot());
    sandbox_.Install(100);
    Tree const old = test::ReadTree(sandbox_.App());
    home.Remount(0, Size(kib));
    EXPECT_EQ(test::Run(sandbox_.Start()).status, 0);
    bool const upgraded = HasBuild(200);
    (upgraded ? upgrades : rollbacks)++;
    EXPECT_TRUE(upgraded || test::ReadTree(sandbox_.App()) == old) << kib << " KiB";
    EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp")) << kib << " KiB";
  }
  EXPECT_GT(rollbacks, 5);
  EXPECT_GT(upgrades, 1);
}

TEST_F(Volume, OutOfInodesIsRolledBack) {
  Mount home("none", sandbox_.Home(), "tmpfs", "nr_inodes=24");
  if (!home.ok()) GTEST_SKIP() << home.reason();
  sandbox_.Install(100);
  Tree const old = test::ReadTree(sandbox_.App());
  Carry(BigClient(200));
  ASSERT_EQ(test::Run(sandbox_.Start()).status, 0);
  EXPECT_TRUE(LogHas("archive_read_extract2 failed")) << sandbox_.RawLog();
  EXPECT_EQ(test::ReadTree(sandbox_.App()), old);
}

TEST_F(Volume, FullDuringAFirstInstallationLeavesAPartialTreeThatTheNextStartReplaces) {
  Mount home("none", sandbox_.Home(), "tmpfs", Size(96));
  if (!home.ok()) GTEST_SKIP() << home.reason();
  Carry(BigClient(200));
  ASSERT_EQ(test::Run(sandbox_.Start()).status, 0);
  // No space for a log line either.
  EXPECT_EQ(sandbox_.RawLog(), "");
  EXPECT_TRUE(fs::exists(sandbox_.App()));
  EXPECT_FALSE(fs::exists(sandbox_.App() + "/Contents/MacOS/larkmoor-drive-ui"));
  home.Remount(0, Size(1024));
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_TRUE(HasBuild(200));
  EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp"));
}

TEST_F(Volume, AReadOnlyHomeStartsTheOldTree) {
  Mount home("none", sandbox_.Home(), "tmpfs", "");
  if (!home.ok()) GTEST_SKIP() << home.reason();
  sandbox_.Install(100);
  std::string const started = sandbox_.folder() / "started";
  test::WriteFile(sandbox_.App() + "/Contents/MacOS/larkmoor-drive-ui",
                  "#!/bin/sh\n: > '" + started + "'\n");
  Carry(BigClient(200));
  home.Remount(MS_RDONLY, "");
  test::Outcome const outcome = test::Run(sandbox_.Start());
  home.Remount(0, "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.err.find("at max retries, exiting"), std::string::npos) << outcome.err;
  EXPECT_TRUE(HasBuild(100));
  EXPECT_TRUE(test::WaitUntil([&] { return fs::exists(started); }));
}

/// Limits a user of the file system on `device` to some KiB.
bool LimitUser(std::string const& device, unsigned user, unsigned kib) {
  if_dqblk limit = {};
  limit.dqb_bhardlimit = kib;
  limit.dqb_bsoftlimit = kib;
  limit.dqb_valid = QIF_BLIMITS;
  return syscall(SYS_quotactl, QCMD(Q_SETQUOTA, USRQUOTA), device.c_str(), user, &limit) == 0;
}

/// Limits the size of the only folder tree of a btrfs volume.
bool RestrictFolder(std::string const& folder, std::string const& size) {
  test::Process::Options options;
  options.arguments = {"/bin/sh",
                       "-c",
                       "PATH=$PATH:/usr/sbin:/sbin; btrfs quota enable \"$1\" && "
                       "btrfs qgroup limit \"$2\" \"$1\"",
                       "limit",
                       folder,
                       size};
  return test::Run(options).status == 0;
}

TEST_F(Volume, AnExceededUserQuotaIsRolledBack) {
  if (!test::CanBecomeNobody()) GTEST_SKIP() << "only root has no quota of its own";
  test::LoopDevice device(sandbox_.folder() / "disk", 16,
                          "mkfs.ext4 -q -O quota -E quotatype=usrquota");
  if (!device.ok()) GTEST_SKIP() << device.reason();
  Mount home(device.path(), sandbox_.Home(), "ext4", "");
  if (!home.ok()) GTEST_SKIP() << home.reason();
  if (!LimitUser(device.path(), test::kNobody, 160)) {
    GTEST_SKIP() << "this kernel has no quota: " << strerror(errno);
  }
  sandbox_.Install(100);
  Carry(BigClient(200));
  Tree const old = test::ReadTree(sandbox_.App());
  ASSERT_EQ(test::Run(test::StartAsNobody(sandbox_)).status, 0);
  EXPECT_TRUE(LogHas("archive_read_extract2 failed")) << sandbox_.RawLog();
  EXPECT_TRUE(LogHas("rollback to old installation"));
  EXPECT_EQ(test::ReadTree(sandbox_.App()), old);
}

TEST_F(Volume, AnExceededFolderQuotaIsRolledBack) {
  test::LoopDevice device(sandbox_.folder() / "disk", 128, "mkfs.btrfs -q");
  if (!device.ok()) GTEST_SKIP() << device.reason();
  Mount home(device.path(), sandbox_.Home(), "btrfs", "");
  if (!home.ok()) GTEST_SKIP() << home.reason();
  if (!RestrictFolder(sandbox_.Home(), "4M")) GTEST_SKIP() << "this btrfs has no quota";
  sandbox_.Install(100);
  Tree const old = test::ReadTree(sandbox_.App());
  Carry(HugeClient(200));
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_TRUE(LogHas("Failed to upgrade package")) << sandbox_.RawLog();
  EXPECT_EQ(test::ReadTree(sandbox_.App()), old);
  EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp"));
  EXPECT_EQ(sandbox_.AwaitStarts(1).back(), "100");
  // The reason could only be logged after the rollback freed space.
  EXPECT_EQ(LeaveRoom(0), EDQUOT);
}

/// A file system on a disk, and the minimum size of its tools.
struct Disk {
  char const* type;
  char const* mkfs;
  unsigned mebibytes;
};

void PrintTo(Disk const& disk, std::ostream* out) { *out << disk.type; }

class DiskVolume : public Volume, public testing::WithParamInterface<Disk> {
 protected:
  void SetUp() override {
    Disk const& disk = GetParam();
    device_ =
        std::make_unique<test::LoopDevice>(sandbox_.folder() / "disk", disk.mebibytes, disk.mkfs);
    if (!device_->ok()) GTEST_SKIP() << device_->reason();
    home_ = std::make_unique<Mount>(device_->path(), sandbox_.Home(), disk.type, "");
    if (!home_->ok()) GTEST_SKIP() << home_->reason();
    sandbox_.Install(100);
    old_ = test::ReadTree(sandbox_.App());
  }

  std::unique_ptr<test::LoopDevice> device_;
  std::unique_ptr<Mount> home_;
  Tree old_;
};

TEST_P(DiskVolume, IsUpgradedToTheSameTreeAsAnyOther) {
  Carry(BigClient(200));
  Sandbox elsewhere;
  elsewhere.CarryVersion(200);
  elsewhere.CarryPackage(test::ReadFile(sandbox_.Package()));
  ASSERT_EQ(elsewhere.Launch().status, 0);
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_TRUE(HasBuild(200)) << sandbox_.RawLog();
  EXPECT_EQ(test::ReadTree(sandbox_.App()), test::ReadTree(elsewhere.App()));
  EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp"));
}

TEST_P(DiskVolume, FullDuringAnUpgradeIsRolledBack) {
  Carry(HugeClient(200));
  EXPECT_EQ(LeaveRoom(2 << 20), ENOSPC);
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_TRUE(LogHas("Failed to upgrade package")) << sandbox_.RawLog();
  EXPECT_EQ(test::ReadTree(sandbox_.App()), old_);
  EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp"));
  EXPECT_EQ(sandbox_.AwaitStarts(1).back(), "100");
}

INSTANTIATE_TEST_SUITE_P(Kinds, DiskVolume,
                         testing::Values(Disk{"ext4", "mkfs.ext4 -q", 16},
                                         Disk{"xfs", "mkfs.xfs -q -f", 320},
                                         Disk{"btrfs", "mkfs.btrfs -q", 128}),
                         [](auto const& parameter) { return std::string(parameter.param.type); });

// An overlay fails to rename a folder of its lower layer with EXDEV, as between two volumes.
class SplitVolume : public Volume {
 protected:
  void Install(std::vector<Entry> const& entries) {
    std::string const layers = sandbox_.folder() / "layers";
    fs::create_directories(layers);
    tmpfs_ = std::make_unique<Mount>("none", layers, "tmpfs", "");
    if (!tmpfs_->ok()) return Refuse(*tmpfs_);
    for (char const* folder : {"/lower", "/upper", "/work"}) fs::create_directory(layers + folder);
    std::string const app = layers + "/lower/.Larkmoor/Larkmoor.app/";
    for (Entry const& entry : entries) Make(app + entry.path, entry);
    overlay_ = std::make_unique<Mount>("overlay", sandbox_.Home(), "overlay",
                                       "redirect_dir=off,lowerdir=" + layers + "/lower,upperdir=" +
                                           layers + "/upper,workdir=" + layers + "/work");
    if (!overlay_->ok()) return Refuse(*overlay_);
    std::string const probe = sandbox_.UserRoot() + "/probe";
    if (rename(sandbox_.App().c_str(), probe.c_str()) == 0 || errno != EXDEV) {
      reason_ = "this overlay renames folders of its lower layer";
    }
  }
  void Refuse(Mount const& mount) { reason_ = mount.reason(); }

  static void Make(std::string const& path, Entry const& entry) {
    if (entry.kind == Entry::Kind::kFolder) fs::create_directories(path);
    if (entry.kind == Entry::Kind::kLink) fs::create_symlink(entry.content, path);
    if (entry.kind != Entry::Kind::kFile) return;
    test::WriteFile(path, entry.content);
    fs::permissions(path, static_cast<fs::perms>(entry.mode));
  }
  std::unique_ptr<Mount> tmpfs_;
  std::unique_ptr<Mount> overlay_;
  std::string reason_;
};

TEST_F(SplitVolume, TheBackupIsMovedFolderByFolderAndTheUpgradeContinues) {
  Install(Sandbox::Client(100));
  if (!reason_.empty()) GTEST_SKIP() << reason_;
  Carry(BigClient(200));
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_TRUE(HasBuild(200)) << sandbox_.RawLog();
  EXPECT_FALSE(fs::exists(sandbox_.App() + "_tmp"));
  EXPECT_EQ(sandbox_.AwaitStarts(1).back(), "200");
}

TEST_F(SplitVolume, ARollbackRestoresTheOldTree) {
  Install(Sandbox::Client(100));
  if (!reason_.empty()) GTEST_SKIP() << reason_;
  Tree const old = test::ReadTree(sandbox_.App());
  Carry(BigClient(200));
  sandbox_.CarryPackage("no archive");
  ASSERT_EQ(sandbox_.Launch().status, 0);
  EXPECT_EQ(test::ReadTree(sandbox_.App()), old) << sandbox_.RawLog();
}

class CrossDevice : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directory(folder_ / "other");
    other_ = std::make_unique<Mount>("none", folder_ / "other", "tmpfs", "size=256k");
    if (!other_->ok()) GTEST_SKIP() << other_->reason();
  }
  int Move() { return FSRename(ustring(folder_ / "app"), ustring(folder_ / "other/app"), false); }

  test::TempDir folder_;
  std::unique_ptr<Mount> other_;
};

TEST_F(CrossDevice, FSRenameMovesAFolderWithoutItsModes) {
  test::WriteFile(folder_ / "app/Contents/tool", "bytes");
  fs::permissions(folder_ / "app/Contents/tool", fs::perms(0755));
  EXPECT_EQ(Move(), 0);
  EXPECT_FALSE(fs::exists(folder_ / "app"));
  Tree const moved = test::ReadTree(folder_ / "other/app");
  EXPECT_EQ(moved.at("Contents/tool"), (test::Node{'f', 0644, "bytes"}));
}

TEST_F(CrossDevice, FSRenameOfAFolderWithASymlinkFailsAndLeavesTheSymlinkBehind) {
  test::WriteFile(folder_ / "app/Contents/tool", "bytes");
  fs::create_symlink("tool", folder_ / "app/Contents/link");
  EXPECT_EQ(Move(), -3);
  EXPECT_EQ(test::ReadTree(folder_ / "app").size(), 2U);
  EXPECT_TRUE(fs::is_symlink(folder_ / "app/Contents/link"));
  EXPECT_EQ(test::ReadFile(folder_ / "other/app/Contents/tool"), "bytes");
}

TEST_F(CrossDevice, FSRenameOntoAFullVolumeFailsAndKeepsTheSource) {
  std::string const bytes(1000000, 'x');
  test::WriteFile(folder_ / "app/big", bytes);
  EXPECT_EQ(FSCopy(ustring(folder_ / "app/big"), ustring(folder_ / "other/copy"), false), -2);
  EXPECT_EQ(Move(), -3);
  EXPECT_EQ(test::ReadFile(folder_ / "app/big"), bytes);
}

}  // namespace
