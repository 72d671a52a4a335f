#include "foundation/file-op-internal.h"

#include <sys/stat.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstring>

#include "foundation/file-op.h"

namespace {

bool IsDots(char const* name) {
  return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

}  // namespace

namespace file_op {

bool IsAscii(ustring const& path) {
  char const* const text = path.c_str();
  return std::all_of(text, text + path.length(), [](char c) { return U8_IS_SINGLE(c); });
}

ustring ToNfc(ustring const& path) { return IsAscii(path) ? path : path.normalize(ustring::NFC); }

int FileTypeOfMode(mode_t mode) {
  switch (mode & S_IFMT) {
    case S_IFREG:
      return FILE_TYPE_REGULAR;
    case S_IFDIR:
      return FILE_TYPE_DIRECTORY;
    case S_IFLNK:
      return FILE_TYPE_SYMLINK;
    case S_IFBLK:
    case S_IFCHR:
      return FILE_TYPE_DEVICE;
    case S_IFIFO:
      return FILE_TYPE_FIFO;
    case S_IFSOCK:
      return FILE_TYPE_SOCKET;
    default:
      return FILE_TYPE_NONE;
  }
}

int FileTypeOfEntry(unsigned char d_type) {
  switch (d_type) {
    case DT_REG:
      return FILE_TYPE_REGULAR;
    case DT_DIR:
      return FILE_TYPE_DIRECTORY;
    case DT_LNK:
      return FILE_TYPE_SYMLINK;
    case DT_CHR:
    case DT_BLK:
      return FILE_TYPE_DEVICE;
    case DT_FIFO:
      return FILE_TYPE_FIFO;
    case DT_SOCK:
      return FILE_TYPE_SOCKET;
    default:
      return FILE_TYPE_NONE;
  }
}

int ReadEntry(DIR* dir, dirent& buffer, dirent*& entry) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  return readdir_r(dir, &buffer, &entry);
#pragma GCC diagnostic pop
}

char const* Listing::Next() {
  dirent* entry = nullptr;
  do {
    if (ReadEntry(dir_, buffer_, entry) != 0 || entry == nullptr) return nullptr;
  } while (IsDots(entry->d_name));
  return entry->d_name;
}

}  // namespace file_op
