#pragma once

#include <sys/stat.h>

namespace platform {

/// lstat(2) as the volumes of macOS answer it: where nothing stands at the path as it is given, its
/// components are found by their normal form. Returns 0, or -1 with `errno` set. Any thread.
int LookAt(char const* path, struct stat& info);

}  // namespace platform
