#pragma once

#include <string>

namespace platform {

/// Finds a file whose path differs from `path` but has the same normal form. Names that exist as
/// given are preferred; a folder that leads nowhere is left for its twin, since both forms may
/// exist side by side. Names in invalid UTF-8 have no normal form and no twin. With `follow_leaf`,
/// a symlink at the end must lead to a file. Sets `found` only on success. Changes `errno`. Any
/// thread.
///
/// For paths at which nothing exists as given: lists folders.
bool FindByNormalForm(char const* path, bool follow_leaf, std::string& found);

/// Gets an absolute path without symlinks as the volume stores it. If the volume may ignore case
/// (FAT, NTFS, SMB, FUSE and the like), lists the folders to find out; otherwise returns the path
/// unchanged. Changes `errno`. Any thread.
std::string AsStored(char const* path);

}  // namespace platform
