// Queries about a file, and about its path as a string.

#include <sys/stat.h>

#include <cerrno>
#include <cstdint>

#include "foundation/file-op-internal.h"
#include "foundation/file-op.h"
#include "platform/volume-lookup.h"

namespace {

void FillFromStat(ustring const& path, struct stat const& info, _FILE_INFO_tag& out) {
  out.exists = true;
  out.mtime = info.st_mtime;
  out.path = path;  // may be one of the two members itself
  out.name = FSBaseName(out.path);
  out.size = info.st_size;
  out.uid = info.st_uid;
  out.gid = info.st_gid;
  out.mode = info.st_mode;
  out.dev = static_cast<std::int32_t>(info.st_dev);
  out.type = file_op::FileTypeOfMode(info.st_mode);
}

}  // namespace

bool operator==(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b) {
  return a.exists == b.exists && a.size == b.size && a.mtime == b.mtime && a.type == b.type &&
         a.path == b.path && a.name == b.name;
}

bool operator!=(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b) { return !(a == b); }

ustring FSParentPath(ustring const& path) {
  unsigned long const slash = path.rfind("/");
  return slash == ustring::npos || slash == 0 ? ustring("/") : path.substr(0, slash);
}

ustring FSBaseName(ustring const& path) {
  unsigned long const slash = path.rfind("/");
  return slash == ustring::npos ? path : path.substr(slash + 1);
}

bool FSIsParentFolder(ustring const& parent, ustring const& child) {
  unsigned long const length = parent.length();
  if (child.length() < length) return false;
  char const behind = child[length];
  return (behind == '\0' || behind == '/') && child.compare(parent, length) == 0;
}

bool IsFileExist(ustring const& path, bool strict) {
  // A string that isn't valid UTF-8 has no normal form, so this one is empty too.
  ustring const normal = file_op::ToNfc(path);
  if (normal.empty()) return false;
  _FILE_INFO_tag info;
  if (GetFileInfo(normal, info) < 0) return false;
  return info.exists && (!strict || info.path == normal);
}

int GetFileInfo(ustring const& path, _FILE_INFO_tag& info) {
  struct stat found;
  if (platform::Lstat(path.c_str(), found) != 0) {
    if (errno != ENOENT) return -1;
    _FILE_INFO_tag missing;
    missing.path = path;  // may be a member of `info`
    missing.name = FSBaseName(path);
    info = missing;
    return 0;
  }
  FillFromStat(path, found, info);
  ustring spelled;
  if (info.type == FILE_TYPE_NONE || file_op::SpellAsVolume(info.path, spelled) != 0) return -1;
  info.name = FSBaseName(spelled);
  info.path.swap(spelled);
  return 0;
}

int FSStat(ustring const& path, _FILE_INFO_tag& info, bool strict) {
  if (path.empty()) return -1;
  if (!IsFileExist(path, strict)) {
    info.exists = false;
    return 0;
  }
  return GetFileInfo(path, info) < 0 ? -2 : 0;
}
