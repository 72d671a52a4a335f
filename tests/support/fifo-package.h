#pragma once

#include <sys/types.h>

#include <string>

#include "support/sandbox.h"

namespace test {

/// Puts a named pipe in the place of a sandbox's package, so that a test decides how far the
/// launcher gets: it reads the package once to count, then again to unpack.
class FifoPackage {
 public:
  /// Takes over the package that the sandbox carries; it must not be compressed beyond "none" or
  /// "gzip" of small size.
  explicit FifoPackage(Sandbox& box);
  ~FifoPackage();
  FifoPackage(FifoPackage const&) = delete;
  FifoPackage& operator=(FifoPackage const&) = delete;

  /// Feeds the counting pass in full and half of the unpacking pass to this process, which then
  /// waits in the middle of its work.
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
