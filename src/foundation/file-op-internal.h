#pragma once

#include <dirent.h>
#include <sys/types.h>

#include <cstdio>

#include "foundation/ustring.h"

// Shared by the sources of file-op.h alone. Log lines name "file-op" and a line number, so every
// function that logs is in file-op.cpp.

namespace file_op {

/// Whether a path is plain ASCII, as nearly all are, and therefore in NFC already.
bool IsAscii(ustring const& path);
ustring ToNfc(ustring const& path);

/// The FileType of a mode or of a `d_type`; FILE_TYPE_NONE for any other kind.
int FileTypeOfMode(mode_t mode);
int FileTypeOfEntry(unsigned char d_type);

/// Gets a path as the volume spells it, in NFC. Returns 0 or -1. Logs the path and the outcome.
int SpellAsVolume(ustring const& path, ustring& spelled);
/// The same for an entry of a folder whose path has the volume's spelling already. The entry's path
/// then has it too, and the volume isn't asked.
int CheckEntry(ustring const& path);

/// Calls readdir_r. It is deprecated because a name may not fit the buffer; no supported file
/// system has such names. It keeps no state of its own.
int ReadEntry(DIR* dir, dirent& buffer, dirent*& entry);

/// The names in a folder, without "." and "..". A read error counts as the end.
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
  /// The next name, valid until the next call; null at the end.
  char const* Next();

 private:
  DIR* const dir_;
  dirent buffer_;
};

/// Removes a file or an empty folder. Returns 0 or -3.
inline int RemoveOne(ustring const& path) { return std::remove(path.c_str()) < 0 ? -3 : 0; }

}  // namespace file_op
