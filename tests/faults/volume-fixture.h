#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "support/sandbox.h"

namespace test {

class Volume : public testing::Test {
 protected:
  void Carry(std::vector<Entry> const& entries) {
    sandbox_.CarryVersion(200);
    sandbox_.CarryPackage(MakeArchive(entries, "gnutar", "gzip"));
  }
  bool LogHas(std::string const& text) const {
    return sandbox_.RawLog().find(text) != std::string::npos;
  }
  static std::string Size(size_t kib) { return "size=" + std::to_string(kib) + "k"; }
  /// Fills the home with one file until writing fails, then frees this many bytes. Returns the
  /// error.
  int LeaveRoom(off_t bytes) const {
    std::string const ballast = sandbox_.Home() + "/ballast";
    int const file = open(ballast.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    std::string const block(1 << 16, 'b');
    off_t size = 0;
    for (ssize_t count; (count = write(file, block.data(), block.size())) > 0;) size += count;
    int const error = errno;
    EXPECT_EQ(bytes > 0 ? ftruncate(file, size - bytes) : 0, 0);
    fsync(file);
    close(file);
    return error;
  }
  bool HasBuild(int build) const {
    std::string const info = sandbox_.App() + "/Contents/Resources/INFO";
    return std::filesystem::exists(info) &&
           ReadFile(info).find("build_version=" + std::to_string(build)) != std::string::npos;
  }

  Sandbox sandbox_;
};

}  // namespace test
