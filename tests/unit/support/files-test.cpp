#include "support/files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <thread>

#include "support/process.h"

namespace fs = std::filesystem;

namespace {

constexpr int kFiles = 1000;

TEST(TempDir, IsRemovedAlthoughAProcessStillAddsToIt) {
  fs::path path;
  std::thread late;
  {
    test::TempDir const folder;
    path = folder.path();
    for (int i = 0; i < kFiles; ++i) std::ofstream(folder / std::to_string(i)).put('x');
    late = std::thread([path] {
      auto const count = [&path] {
        std::error_code gone;
        return std::distance(fs::directory_iterator(path, gone), fs::directory_iterator());
      };
      EXPECT_TRUE(test::WaitUntil([&] { return count() < kFiles; }));
      for (int i = 0; i < kFiles; ++i) std::ofstream(path / ("late-" + std::to_string(i))).put('x');
    });
  }
  late.join();
  EXPECT_FALSE(fs::exists(path));
}

}  // namespace
