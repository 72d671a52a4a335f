#include "platform/volume-lookup.h"

#include <cerrno>
#include <string>

#include "platform/spelling-posix.h"

namespace platform {

int LookAt(char const* path, struct stat& info) {
  if (lstat(path, &info) == 0) return 0;
  int const error = errno;
  std::string found;
  if (FindByNormalForm(path, false, found) && lstat(found.c_str(), &info) == 0) return 0;
  errno = error;
  return -1;
}

}  // namespace platform
