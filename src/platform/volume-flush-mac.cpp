#include <unistd.h>

#include "platform/volume-flush.h"

namespace platform {

int FlushVolume(char const* path) {
  // Down to the medium: without the first flag, the disk's cache may be lost.
  return sync_volume_np(path, SYNC_VOLUME_FULLSYNC | SYNC_VOLUME_WAIT);
}

}  // namespace platform
