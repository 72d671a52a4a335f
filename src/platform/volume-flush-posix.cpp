#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "platform/volume-flush.h"

namespace platform {

int FlushVolume(char const* path) {
  int const file = open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return -1;
  int const result = syncfs(file);
  int const error = errno;
  close(file);
  errno = error;
  return result;
}

}  // namespace platform
