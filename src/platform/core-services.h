#pragma once

// The absolute path of a file as its volume spells it. macOS has calls for this; elsewhere, this
// header declares the same ones, so callers are the same everywhere.

#ifdef __APPLE__

#include <CoreServices/CoreServices.h>

#else

#include <climits>
#include <cstdint>

using Boolean = unsigned char;
using UInt8 = std::uint8_t;
using UInt32 = std::uint32_t;
using OptionBits = UInt32;
using OSStatus = std::int32_t;

enum : OSStatus {
  noErr = 0,
  ioErr = -36,            ///< any other failure
  fnfErr = -43,           ///< nothing exists at the path
  pathTooLongErr = -2110  ///< the path, as given or as returned, is too long
};

enum : OptionBits { kFSPathMakeRefDoNotFollowLeafSymlink = 1 };

/// A reference to an existing file. Opaque: FSPathMakeRef fills it, FSRefMakePath reads it. A plain
/// value that owns nothing. Unlike on macOS, it doesn't follow a file that is moved.
struct FSRef {
  char path[PATH_MAX];
};

// All functions return noErr or one of the codes above; on failure, don't use `ref` and `path`. Any
// thread may call them; they keep no state.
//
// macOS volumes don't distinguish names by normal form. So if nothing exists at a path as given,
// its components are matched by normal form, and the resulting path spells them as stored.

/// Finds the file at a path, following a symlink at its end. `is_directory` may be null.
OSStatus FSPathMakeRef(UInt8 const* path, FSRef* ref, Boolean* is_directory);

/// The same; kFSPathMakeRefDoNotFollowLeafSymlink doesn't follow a symlink at the end.
OSStatus FSPathMakeRefWithOptions(UInt8 const* path, OptionBits options, FSRef* ref,
                                  Boolean* is_directory);

/// Writes the absolute path into a buffer of `max_path_size` bytes, terminator included: without
/// symlinks in the folders above, in the case that the volume stores.
OSStatus FSRefMakePath(FSRef const* ref, UInt8* path, UInt32 max_path_size);

#endif
