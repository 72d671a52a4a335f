#pragma once

#include <sys/types.h>

#include <string>

#include "support/sandbox.h"

namespace test {

/// Replaces a sandbox's package with a FIFO, so that the test controls how far the launcher gets:
/// it reads the package once to count, then again to unpack.
class FifoPackage {
 public:
  /// Uses the package that the sandbox carries; it must be uncompressed, or compressed with gzip
  /// and small.
  explicit FifoPackage(Sandbox& box);
  ~FifoPackage();
  FifoPackage(FifoPackage const&) = delete;
  FifoPackage& operator=(FifoPackage const&) = delete;

  /// Feeds this process the whole counting pass and half of the unpacking pass. It then blocks in
  /// the middle of its work.
  void FeedUntilHalfWritten(pid_t launcher);
  void FeedTheRest();

 private:
  int OpenForWriting() const;
  static void Write(int fd, std::string const& bytes);
  bool IsOpenIn(pid_t process) const;

  std::string path_;
  std::string bytes_;
  size_t fed_ = 0;
  int fd_ = -1;
};

}  // namespace test
