#pragma once

#include <string>

/// File systems for tests, mounted where the system lets us.
namespace test {

/// A mount that ends with its scope. Where mounting is refused, `ok()` is false and `reason()` says
/// why, for GTEST_SKIP.
class Mount {
 public:
  /// As mount(2) takes them. The folder has to exist.
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
  /// `mkfs` is the command that makes the file system, but for the file that it makes it in.
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
