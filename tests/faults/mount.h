#pragma once

#include <string>

/// File systems for tests, mounted if the system permits.
namespace test {

/// A mount until the end of the scope. If mounting fails, `ok()` is false and `reason()` tells why,
/// for GTEST_SKIP.
class Mount {
 public:
  /// The arguments of mount(2). The folder must exist.
  Mount(std::string source, std::string folder, std::string type, std::string options,
        unsigned long flags = 0);
  ~Mount();
  Mount(Mount const&) = delete;
  Mount& operator=(Mount const&) = delete;

  bool ok() const { return reason_.empty(); }
  std::string const& reason() const { return reason_; }
  /// Changes flags and options.
  void Remount(unsigned long flags, std::string const& options);

 private:
  std::string folder_;
  std::string type_;
  std::string reason_;
};

/// A file system in a file, on a loop device.
class LoopDevice {
 public:
  /// `mkfs` is the command that creates the file system; the file is appended.
  LoopDevice(std::string const& file, unsigned mebibytes, std::string const& mkfs);
  ~LoopDevice();
  LoopDevice(LoopDevice const&) = delete;
  LoopDevice& operator=(LoopDevice const&) = delete;

  bool ok() const { return reason_.empty(); }
  std::string const& reason() const { return reason_; }
  std::string const& path() const { return path_; }

 private:
  std::string path_;
  std::string reason_;
};

}  // namespace test
