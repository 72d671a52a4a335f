#pragma once

#include <string>

namespace platform {

/// Tells the type of the file system that holds a path, links followed. Of the names "nfs",
/// "smbfs", "afpfs" and "msdos" `name` gets the fitting one; other types have names of the
/// system's own, or an empty one. Returns 0, or -1 with `errno` set and `name` untouched. Any
/// thread.
int FileSystemName(char const* path, std::string& name);

}  // namespace platform
