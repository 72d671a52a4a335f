#pragma once

#include <string>

namespace platform {

/// Gets the name of the file system type that holds a path, following symlinks: "nfs", "smbfs",
/// "afpfs" or "msdos", or, for any other type, the system's own name or an empty one. Returns 0, or
/// -1 with `errno` set and `name` unchanged. Any thread.
int FileSystemName(char const* path, std::string& name);

}  // namespace platform
