#pragma once

#include <dirent.h>
#include <sys/types.h>

#include <cstdio>

#include "foundation/ustring.h"

// What the sources behind file-op.h share, for nobody else. A log line names "file-op" and a line
// number, so all that logs is in file-op.cpp.

namespace file_op {

/// Whether a path is plain ASCII, as nearly all are: it is in NFC already.
bool IsAscii(ustring const& path);
ustring ToNfc(ustring const& path);

/// The FileType of a mode, and of a directory entry's d_type; FILE_TYPE_NONE for an unknown one.
int FileTypeOfMode(mode_t mode);
int FileTypeOfEntry(unsigned char d_type);

/// How the volume spells a path, in NFC. Returns 0 or -1; logs the path and the outcome.
int SpellAsVolume(ustring const& path, ustring& spelled);
/// The same for an entry of a folder whose path is spelled as the volume spells it. So is then the
/// entry's own, and the volume needn't be asked for it.
int CheckEntry(ustring const& path);

/// readdir_r, which is deprecated because a name may be longer than the buffer. No supported file
/// system has such names, and the function keeps no state outside its arguments.
int ReadEntry(DIR* dir, dirent& buffer, dirent*& entry);

/// The names in a folder, without "." and "..". A read error ends the list.
class Listing {
 public:
  explicit Listing(ustring const& path) : dir_(opendir(path.c_str())) {}
  ~Listing() {
    if (IsOpen()) closedir(dir_);
  }
  Listing(Listing const&) = delete;
  Listing& operator=(Listing const&) = delete;

  bool IsOpen() const { return dir_ != nullptr; }
  int descriptor() const { return dirfd(dir_); }
  /// Valid until the next call; null at the end.
  char const* Next();

 private:
  DIR* const dir_;
  dirent buffer_;
};

/// Removes a file or an empty folder. Returns 0 or -3.
inline int RemoveOne(ustring const& path) { return std::remove(path.c_str()) < 0 ? -3 : 0; }

}  // namespace file_op
