#include "platform/volume-lookup.h"

#include <cerrno>
#include <string>

#include "platform/spelling-posix.h"

namespace platform {
namespace {

/// Whether another spelling may exist: the name is the problem, not the disk.
bool LeadsNowhere(int error) {
  return error == ENOENT || error == ENOTDIR || error == EACCES || error == ENAMETOOLONG;
}

}  // namespace

int Lstat(char const* path, struct stat& info) {
  if (lstat(path, &info) == 0) return 0;
  int const error = errno;
  if (!LeadsNowhere(error)) return -1;
  std::string found;
  if (FindByNormalForm(path, false, found) && lstat(found.c_str(), &info) == 0) return 0;
  errno = error;
  return -1;
}

}  // namespace platform
