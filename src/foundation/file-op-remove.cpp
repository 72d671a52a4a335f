#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

#include "foundation/file-op-internal.h"
#include "foundation/file-op.h"

namespace {

int RemoveAt(int folder, char const* name, ustring const& path);

/// How FSRemove goes through a directory. Both ways take the same steps.
enum class Walk {
  kByPath,     ///< each object by its path from the start
  kByFolders,  ///< by its name in the open folder, which saves two walks along the path
};

/// Removes what is in a directory. `is_readable` is false, and all stays, when it can't be listed.
int RemoveEntries(ustring const& path, Walk walk, bool& is_readable) {
  file_op::Listing entries(path);
  is_readable = entries.IsOpen();
  if (!is_readable) return 0;
  ustring const prefix = path + "/";
  while (char const* const name = entries.Next()) {
    int const result = walk == Walk::kByPath ? FSRemove(prefix + name, false)
                                             : RemoveAt(entries.descriptor(), name, prefix + name);
    if (result != 0) return -3;
  }
  return 0;
}

/// FSRemove of an object that is `path` to everybody and `name` seen from an open folder.
int RemoveAt(int folder, char const* name, ustring const& path) {
  // The look of GetFileInfo, without filling a record. A path that is too long for the system can't
  // be looked at, though its name can.
  if (path.length() >= PATH_MAX) return -1;
  struct stat found;
  if (fstatat(folder, name, &found, AT_SYMLINK_NOFOLLOW) != 0) return errno == ENOENT ? 0 : -1;
  int const type = file_op::FileTypeOfMode(found.st_mode);
  if (type == FILE_TYPE_NONE) return -1;
  if (file_op::CheckEntry(path) != 0) return -1;
  if (type != FILE_TYPE_DIRECTORY) return unlinkat(folder, name, 0) < 0 ? -3 : 0;
  bool is_readable = false;
  if (int const result = RemoveEntries(path, Walk::kByFolders, is_readable)) return result;
  return is_readable && unlinkat(folder, name, AT_REMOVEDIR) < 0 ? -3 : 0;
}

}  // namespace

int FSRemove(ustring const& path, [[maybe_unused]] bool ignored) {
  _FILE_INFO_tag info;
  if (path.empty() || GetFileInfo(path, info) != 0) return -1;
  if (!info.exists) return 0;
  if (info.type != FILE_TYPE_DIRECTORY) return file_op::RemoveOne(path);
  // A path with a link or dots in it may lead through the very tree that is removed, and then leads
  // elsewhere, or nowhere, as soon as the link has gone.
  Walk const walk = info.path == file_op::ToNfc(path) ? Walk::kByFolders : Walk::kByPath;
  bool is_readable = false;
  if (int const result = RemoveEntries(path, walk, is_readable)) return result;
  return is_readable ? file_op::RemoveOne(path) : 0;
}
