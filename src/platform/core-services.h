#pragma once

// The absolute path of an object as its volume spells it. macOS has calls for that; elsewhere this
// header declares the same ones, so that the callers needn't know where they run.

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
  ioErr = -36,            ///< any failure that isn't named here
  fnfErr = -43,           ///< nothing stands at the path
  pathTooLongErr = -2110  ///< the path, as given or as it is to be returned, doesn't fit
};

enum : OptionBits { kFSPathMakeRefDoNotFollowLeafSymlink = 1 };

/// Stands for an existing object. Opaque: filled by FSPathMakeRef, read by FSRefMakePath. A plain
/// value that owns nothing; unlike on macOS it doesn't follow the object when that is moved.
struct FSRef {
  char path[PATH_MAX];
};

// All functions return noErr, or one of the codes above; on failure `ref` and `path` hold nothing
// of use. Any thread; no state is kept between calls.
//
// A volume of macOS doesn't tell names apart by their normal form. So where a path leads nowhere as
// it is given, its components are found by that, and the object's path has them as they stand.

/// Finds the object at a path, the target of a link in the last component. `is_directory` may be
/// null.
OSStatus FSPathMakeRef(UInt8 const* path, FSRef* ref, Boolean* is_directory);

/// The same; with kFSPathMakeRefDoNotFollowLeafSymlink a link in the last component is the object
/// itself.
OSStatus FSPathMakeRefWithOptions(UInt8 const* path, OptionBits options, FSRef* ref,
                                  Boolean* is_directory);

/// Writes the object's absolute path, without symbolic links in the directories above and in the
/// case that the volume keeps, into a buffer of `max_path_size` bytes, the terminator included.
OSStatus FSRefMakePath(FSRef const* ref, UInt8* path, UInt32 max_path_size);

#endif
