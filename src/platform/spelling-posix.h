#pragma once

#include <string>

namespace platform {

/// Finds an object whose path is spelled otherwise than `path`, but has the same normal form. A
/// name that stands as it is given is preferred; a folder that doesn't lead on is left for its
/// twin, since both forms may stand side by side. Names that aren't valid UTF-8 have no normal form
/// and no twin. With `follow_leaf` a link in the last component has to lead somewhere. `found` is
/// set on success alone. Changes `errno`. Any thread.
///
/// Meant for paths that lead nowhere as they are: lists folders.
bool FindByNormalForm(char const* path, bool follow_leaf, std::string& found);

/// How the volume stores an absolute path that leads through no link. Where the volume may be blind
/// to case (FAT, NTFS, SMB, FUSE and their like) the folders are listed for it; all others have the
/// path as it is. Changes `errno`. Any thread.
std::string AsStored(char const* path);

}  // namespace platform
