#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "platform/volume-flush.h"

namespace platform {

int FlushVolume(char const* path) {
  int const file = open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file == -1) return -1;
  int result = syncfs(file);
  // File systems without a journal (ext2, FAT) write their metadata after syncfs has flushed the
  // disk, which leaves it in the disk's cache. fsync flushes again.
  if (result == 0) result = fsync(file);
  int const error = errno;
  close(file);
  errno = error;
  return result;
}

}  // namespace platform
