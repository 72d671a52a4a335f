#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

#include "foundation/file-op-internal.h"
#include "foundation/file-op.h"

namespace {

int RemoveAt(int folder, char const* name, ustring const& path);

/// How FSRemove traverses a folder. Both ways make the same checks in the same order.
enum class Walk {
  kByPath,     ///< each entry by its full path
  kByFolders,  ///< each entry by its name in the open folder, which saves two path lookups
};

/// Removes the entries of a folder. If it can't be listed, removes nothing and sets `is_readable`
/// to false.
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

/// FSRemove of an entry: `name` relative to an open folder, `path` in full. Returns 0 on success.
int RemoveAt(int folder, char const* name, ustring const& path) {
  // Does what GetFileInfo does, without filling a record. GetFileInfo fails on a path that is too
  // long for the system, although the name alone would do.
  bool const is_too_long = path.length() >= PATH_MAX;
  struct stat found;
  if (!is_too_long && fstatat(folder, name, &found, AT_SYMLINK_NOFOLLOW) != 0) {
    return errno == ENOENT ? 0 : -1;
  }
  int const type = is_too_long ? FILE_TYPE_NONE : file_op::FileTypeOfMode(found.st_mode);
  if (type == FILE_TYPE_NONE || file_op::CheckEntry(path) != 0) return -1;
  if (type != FILE_TYPE_DIRECTORY) return unlinkat(folder, name, 0);
  bool is_readable = false;
  if (int const result = RemoveEntries(path, Walk::kByFolders, is_readable)) return result;
  return is_readable ? unlinkat(folder, name, AT_REMOVEDIR) : 0;
}

}  // namespace

int FSRemove(ustring const& path, [[maybe_unused]] bool ignored) {
  _FILE_INFO_tag info;
  if (path.empty() || GetFileInfo(path, info) != 0) return -1;
  if (!info.exists) return 0;
  if (info.type != FILE_TYPE_DIRECTORY) return file_op::RemoveOne(path);
  // A path with a symlink or dots in it may lead through the very tree that is being removed: once
  // the symlink is gone, it leads elsewhere or nowhere.
  Walk const walk = info.path == file_op::ToNfc(path) ? Walk::kByFolders : Walk::kByPath;
  bool is_readable = false;
  if (int const result = RemoveEntries(path, walk, is_readable)) return result;
  return is_readable ? file_op::RemoveOne(path) : 0;
}
