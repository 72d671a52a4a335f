#include "platform/file-system-name.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "foundation/file-op.h"
#include "support/files.h"

namespace fs = std::filesystem;

namespace {

bool Succeeds(std::string const& command) {
  return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

/// A volume in a file, mounted until the end of the scope if the system permits.
class FatVolume {
 public:
  FatVolume() {
    fs::create_directory(folder_ / "mounted");
    std::string const image = folder_ / "image";
    is_mounted_ =
        Succeeds("PATH=$PATH:/usr/sbin:/sbin && truncate -s 8M '" + image + "' && mkfs.vfat '" +
                 image + "' && mount -o loop '" + image + "' '" + path() + "'");
  }
  ~FatVolume() {
    if (!is_mounted_) return;
    EXPECT_TRUE(Succeeds("umount '" + path() + "'"));
  }
  FatVolume(FatVolume const&) = delete;
  FatVolume& operator=(FatVolume const&) = delete;

  bool is_mounted() const { return is_mounted_; }
  std::string path() const { return folder_ / "mounted"; }

 private:
  test::TempDir folder_;
  bool is_mounted_ = false;
};

}  // namespace

TEST(FileSystemName, IsNoneOfTheDocumentedNamesForALocalVolume) {
  std::string name = "before";
  EXPECT_EQ(platform::FileSystemName("/", name), 0);
  EXPECT_TRUE(name != "before" && name != "nfs" && name != "smbfs" && name != "msdos") << name;
}

TEST(FileSystemName, FailsForAMissingPathAndLeavesTheNameUnchanged) {
  test::TempDir folder;
  std::string name = "before";
  errno = 0;
  EXPECT_EQ(platform::FileSystemName((folder / "none").c_str(), name), -1);
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(name, "before");
}

TEST(FileSystemName, IsMsdosForAMountedFatVolume) {
  FatVolume const volume;
  if (!volume.is_mounted()) GTEST_SKIP() << "a FAT volume can't be made and mounted here";
  std::string name;
  EXPECT_EQ(platform::FileSystemName(volume.path().c_str(), name), 0);
  EXPECT_EQ(name, "msdos");
  EXPECT_FALSE(isMountPoint(volume.path()));
  testing::internal::CaptureStderr();  // for the warning
  EXPECT_TRUE(IsMSDOS(volume.path()));
  testing::internal::GetCapturedStderr();
}
