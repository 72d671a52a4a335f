#pragma once

#include <sys/stat.h>

namespace platform {

/// lstat(2) as on macOS volumes: if nothing exists at the path as given, matches its components by
/// normal form. Returns 0, or -1 with `errno` set. Any thread.
int Lstat(char const* path, struct stat& info);

}  // namespace platform
