#include "platform/volume-flush.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <iterator>

#include "support/files.h"

namespace fs = std::filesystem;

namespace {

std::ptrdiff_t OpenDescriptors() {
  return std::distance(fs::directory_iterator("/dev/fd"), fs::directory_iterator());
}

}  // namespace

TEST(FlushVolume, TakesFoldersAndFiles) {
  test::TempDir folder;
  test::WriteFile(folder / "file", "text");
  EXPECT_EQ(platform::FlushVolume(folder.path().c_str()), 0);
  EXPECT_EQ(platform::FlushVolume((folder / "file").c_str()), 0);
}

TEST(FlushVolume, FailsForAMissingPath) {
  test::TempDir folder;
  errno = 0;
  EXPECT_EQ(platform::FlushVolume((folder / "none").c_str()), -1);
  EXPECT_EQ(errno, ENOENT);
}

#ifndef __APPLE__
TEST(FlushVolume, DoesNotWaitForTheWriterOfAFifo) {
  test::TempDir folder;
  ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
  errno = 0;
  EXPECT_EQ(platform::FlushVolume((folder / "fifo").c_str()), -1);
  EXPECT_EQ(errno, EINVAL);
}
#endif

TEST(FlushVolume, LeavesNoDescriptorOpen) {
  test::TempDir folder;
  auto const before = OpenDescriptors();
  platform::FlushVolume(folder.path().c_str());
  platform::FlushVolume((folder / "none").c_str());
  EXPECT_EQ(OpenDescriptors(), before);
}
