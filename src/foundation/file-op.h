#pragma once

#include <dirent.h>

#include <cstdint>

#include "foundation/ustring.h"

// File operations. Paths are UTF-8. All functions block on the file system. They share no state, so
// any thread may call them unless noted otherwise. They log failures; callers may rely on the
// documented results only, not on `errno`.
//
// A check and the change that follows are separate steps: races with other processes are accepted.
// Nothing is rolled back: what was done before a failure stays done.

/// The kind of a file.
enum FileType {
  FILE_TYPE_NONE = 0,  ///< nothing, or any other kind
  FILE_TYPE_REGULAR = 1,
  FILE_TYPE_DIRECTORY = 2,
  FILE_TYPE_SYMLINK = 3,
  FILE_TYPE_DEVICE = 5,  ///< block or character device
  FILE_TYPE_FIFO = 6,
  FILE_TYPE_SOCKET = 7,
};

/// A file's metadata. A symlink is described itself, not its target.
struct _FILE_INFO_tag {
  ustring path;  ///< as the volume spells it, absolute and in NFC
  ustring name;  ///< the last component of `path`
  int type = FILE_TYPE_NONE;
  long mtime = 0;         ///< seconds since the epoch
  std::int64_t size = 0;  ///< bytes
  bool exists = false;
  std::uint32_t uid = 0;
  std::uint32_t gid = 0;
  std::uint32_t mode = 0;  ///< permission and type bits
  std::int64_t dev = 0;
};

/// Ignore owner, mode and device.
bool operator==(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b);
bool operator!=(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b);

/// An open folder. Used by one thread at a time; FSCloseDir frees it.
struct DIR_HANDLE {
  ustring path;
  int flags = 0;  ///< bit 0: FSReadDir also returns time and size
  DIR* dir = nullptr;
};

struct DIR_ENTRY {
  ustring name;
  int type = FILE_TYPE_NONE;
  long mtime = 0;         ///< as in _FILE_INFO_tag; 0 unless requested
  std::int64_t size = 0;  ///< as in _FILE_INFO_tag; 0 unless requested
};

// --- Paths as strings, without access to the file system ---

/// Everything before the last slash; "/" where that is empty or there is no slash.
ustring FSParentPath(ustring const& path);
/// Everything after the last slash; empty for a path that ends in one.
ustring FSBaseName(ustring const& path);
/// Whether `child` is `parent` or lies below it. Always false for a `parent` that ends in a slash.
bool FSIsParentFolder(ustring const& parent, ustring const& child);

// --- Queries ---

/// Whether a file exists; a dangling symlink does. Where the volume ignores case or normal form,
/// any spelling counts, unless `strict` asks for the volume's own: an absolute path that contains
/// no symlink in a folder above.
bool IsFileExist(ustring const& path, bool strict);
/// Stats a path. Returns 0 also when nothing exists there: `exists` is then false, and all numbers
/// are 0. Returns -1 on failure, with `info` unchanged or incomplete.
int GetFileInfo(ustring const& path, _FILE_INFO_tag& info);
/// Like GetFileInfo, but sets only `exists` when nothing exists at the path. Returns 0, -1 for an
/// empty path, or -2 on failure.
int FSStat(ustring const& path, _FILE_INFO_tag& info, bool strict);

/// Returns 0, or -1 with `handle` unchanged.
int FSOpenDir(ustring const& path, int flags, DIR_HANDLE& handle);
/// Returns 1 with the next entry ("." and ".." included), 0 at the end, -1 on failure.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);
/// Safe on a handle that was never opened or is already closed.
void FSCloseDir(DIR_HANDLE& handle);

bool FSTimeEqual(long a, long b);
/// Sets a file's times, in seconds since the epoch; for a symlink, its own. Returns 0 or -1 and
/// logs nothing.
int FSUTime(ustring const& path, long atime, long mtime);

/// Whether access(2) denies `mode` for lack of permission, and the opposite. A missing file isn't
/// locked.
bool isFileLocked(ustring const& path, int mode);
bool hasFilePermission(ustring const& path, int mode);

/// Whether a path is on a network volume, in spite of the name. False if that can't be determined.
bool isMountPoint(ustring const& path);
/// Whether a path is on a FAT volume. False if that can't be determined.
bool IsMSDOS(ustring const& path);

/// Makes the path of an existing file absolute, with all symlinks resolved. Returns 0, or -1 with
/// the path unchanged.
int FSGetRealPath(ustring& path);
/// Returns 0 or -1.
int FSCreateSymbolicLink(ustring const& target, ustring const& link);
/// Returns 0, or -1 with `target` unchanged. A target of 1024 bytes or more counts as a failure.
int FSReadSymbolicLink(ustring const& link, ustring& target);
/// Changes the owner; of a symlink, not of its target. Returns 0 or -1.
int FSChown(ustring const& path, unsigned int uid, unsigned int gid);

// --- Changes ---

/// Makes all missing folders of a path. A `mode` of 65535 means 0777 less the umask. Any other mode
/// is applied exactly, by changing the process's umask for a moment: don't use it while other
/// threads create files. `replace` removes whatever is in the way. `stop`, if not null, receives
/// the position in `path` after the last component that was tried. Returns 0, or -1 with `errno`
/// set; for an empty path, -1 with neither set.
int FSMKDirP(ustring const& path, char** stop, bool replace, unsigned short mode);
/// Makes a folder, with those above it if `recursive`. Returns 0 also if it exists, -1 if the path
/// is bad or something else exists there (a symlink to a folder is something else), -2 if the
/// folder can't be made.
int FSMKDir(ustring const& path, bool recursive);
/// Makes the folders of `target` below `root`, which must exist. Returns 0 or -1.
int FSMKDirFromRoot(ustring const& target, ustring const& root);

/// Copies a file's bytes, and nothing else, and flushes them. An existing target is overwritten in
/// place, so copying a file onto itself empties it. On failure a partial target remains. Returns 0,
/// -1 on failure, -2 if the disk is full.
int FSCopy(ustring const& source, ustring const& target, bool remove_source);

/// Renames, or moves if the target is on another volume. Between volumes, symlinks, devices, pipes
/// and sockets stay where they are, which counts as success; a folder that holds one is therefore
/// moved except for it, and the move fails at the end. Returns 0, -1 for an empty argument, -2 if
/// the source is missing (with `strict`: or not spelled as on the volume), -3 on failure, -100 if
/// the name is too long.
int FSRename(ustring const& source, ustring const& target, bool strict);

/// Removes a file, or a folder with everything in it, without following symlinks. A folder that
/// can't be read stays, which doesn't count as a failure. The second parameter has no effect.
/// Returns 0 also for a missing path, -1 for an empty path or if it can't be statted, -3 if
/// something can't be removed.
int FSRemove(ustring const& path, bool ignored);

/// Makes an empty file with a unique name and mode 0644. Returns 0, or -1 with `path` unchanged.
int FSMktemp(ustring const& directory, ustring& path);
/// Generates a path in a folder without creating anything. Returns 0 or -1.
int FSCreateTempPath(ustring const& directory, ustring& path);
