#include <unistd.h>

#include "platform/volume-flush.h"

namespace platform {

int FlushVolume(char const* path) {
  // As far as the medium: without the first flag what the disk keeps in its cache may be lost.
  return sync_volume_np(path, SYNC_VOLUME_FULLSYNC | SYNC_VOLUME_WAIT);
}

}  // namespace platform
