#pragma once

#include_next <unistd.h>

// The part of macOS's unistd.h that glibc's lacks and the project uses.

#define SYNC_VOLUME_FULLSYNC 0x01
#define SYNC_VOLUME_WAIT 0x02

extern "C" int sync_volume_np(char const* path, int flags);
