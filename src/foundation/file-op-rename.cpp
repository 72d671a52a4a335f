#include <cerrno>
#include <cstdio>

#include "foundation/file-op-internal.h"
#include "foundation/file-op.h"

namespace {

/// Moves a folder to another volume.
int MoveDirectory(ustring const& source, ustring const& target, bool strict) {
  if (FSMKDir(target, true) != 0) return -3;
  {
    file_op::Listing entries(source);
    if (!entries.IsOpen()) return -3;
    while (char const* const name = entries.Next()) {
      if (FSRename(source + "/" + name, target + "/" + name, strict) != 0) return -3;
    }
  }
  return file_op::RemoveOne(source);
}

}  // namespace

int FSRename(ustring const& source, ustring const& target, bool strict) {
  if (source.empty() || target.empty()) return -1;
  _FILE_INFO_tag info;
  if (FSStat(source, info, strict) < 0 || !info.exists) return -2;
  if (std::rename(source.c_str(), target.c_str()) == 0) return 0;
  if (errno == ENAMETOOLONG) return -100;
  if (errno != EXDEV) return -3;

  switch (info.type) {
    case FILE_TYPE_REGULAR:
      return FSCopy(source, target, true) < 0 ? -3 : 0;
    case FILE_TYPE_DIRECTORY:
      return MoveDirectory(source, target, strict);
    default:
      return 0;
  }
}
