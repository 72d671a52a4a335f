#pragma once

#include <dirent.h>

#include <cstdint>

#include "foundation/ustring.h"

// The file operations. Paths are UTF-8. All functions block on the file system and, unless told
// otherwise, may be called from any thread: they share no state. Failures are logged where they
// happen; the results below are all that callers may branch on, `errno` is not kept.
//
// Checks and changes are separate steps, and races with other processes between them are accepted.
// Nothing is rolled back: what was done before a failure stays done.

/// What stands at a path.
enum FileType {
  FILE_TYPE_NONE = 0,  ///< nothing, or something of no kind listed here
  FILE_TYPE_REGULAR = 1,
  FILE_TYPE_DIRECTORY = 2,
  FILE_TYPE_SYMLINK = 3,
  FILE_TYPE_DEVICE = 5,  ///< block or character device
  FILE_TYPE_FIFO = 6,
  FILE_TYPE_SOCKET = 7,
};

/// What is known of an object. A link is described itself, not its target.
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

/// Owner, mode and device take no part: changing them doesn't make a file a different one.
bool operator==(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b);
bool operator!=(_FILE_INFO_tag const& a, _FILE_INFO_tag const& b);

/// A directory that is being read. Belongs to one thread; FSCloseDir frees what it holds.
struct DIR_HANDLE {
  ustring path;
  int flags = 0;  ///< bit 0: FSReadDir tells time and size too
  DIR* dir = nullptr;
};

struct DIR_ENTRY {
  ustring name;
  int type = FILE_TYPE_NONE;
  long mtime = 0;         ///< as in _FILE_INFO_tag; 0 when not asked for
  std::int64_t size = 0;  ///< as in _FILE_INFO_tag; 0 when not asked for
};

// --- Paths as text: no look at the file system ---

/// The text before the last slash; "/" where that would be empty or there is no slash.
ustring FSParentPath(ustring const& path);
/// The text behind the last slash; empty for a path that ends in one.
ustring FSBaseName(ustring const& path);
/// Whether `child` is `parent` or stands below it. A `parent` that ends in a slash is nobody's.
bool FSIsParentFolder(ustring const& parent, ustring const& child);

// --- What stands at a path ---

/// Whether something stands at a path, a dangling link included. Where the volume ignores case or
/// normal form, other spellings count too; `strict` wants the volume's own, which is absolute and
/// leads through no link.
bool IsFileExist(ustring const& path, bool strict);
/// Returns 0, also when nothing is there (`exists` is then false and the numbers are 0), or -1;
/// `info` is then untouched or incomplete.
int GetFileInfo(ustring const& path, _FILE_INFO_tag& info);
/// As GetFileInfo, but an empty path and a failing look are told apart, and of a missing object
/// `exists` alone is set. Returns 0, -1 for an empty path, -2 when the look fails.
int FSStat(ustring const& path, _FILE_INFO_tag& info, bool strict);

/// 0 or -1; `handle` is untouched on failure.
int FSOpenDir(ustring const& path, int flags, DIR_HANDLE& handle);
/// 1 with the next entry, "." and ".." included, 0 at the end, -1 on failure.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);
/// Bears a handle that was never opened or is closed already.
void FSCloseDir(DIR_HANDLE& handle);

bool FSTimeEqual(long a, long b);
/// Sets a file's times, in seconds since the epoch; those of a link itself. 0 or -1, not logged.
int FSUTime(ustring const& path, long atime, long mtime);

/// Whether access(2) with `mode` is refused for lack of permission. A missing file is neither
/// locked nor lacking permission.
bool isFileLocked(ustring const& path, int mode);
bool hasFilePermission(ustring const& path, int mode);

/// Whether a path is on a network volume, the name notwithstanding. False when that can't be told.
bool isMountPoint(ustring const& path);
/// Whether a path is on a FAT volume. False when that can't be told.
bool IsMSDOS(ustring const& path);

/// Replaces an existing object's path by the absolute one, all links followed. 0, or -1 with the
/// path as it was.
int FSGetRealPath(ustring& path);
/// 0 or -1.
int FSCreateSymbolicLink(ustring const& target, ustring const& link);
/// 0, or -1 with `target` as it was, also for a text of 1024 bytes or more.
int FSReadSymbolicLink(ustring const& link, ustring& target);
/// Changes a link's owner, not its target's. 0 or -1.
int FSChown(ustring const& path, unsigned int uid, unsigned int gid);

// --- Changing the tree ---

/// Makes all missing directories of a path. `mode` 65535 stands for 0777 less the umask; any other
/// mode is applied as it is, by way of the process's umask, and is not for a process in which
/// other threads make files. `replace` removes what stands in the way. `stop`, when given, is set
/// to the place in the text of `path` behind the last component that was tried. Returns 0, or -1
/// with `errno` set; an empty path gives -1 and sets neither.
int FSMKDirP(ustring const& path, char** stop, bool replace, unsigned short mode);
/// 0 when a directory stands there, -1 for a bad path or when something else stands in the way (a
/// link to a directory is something else), -2 when it can't be made.
int FSMKDir(ustring const& path, bool recursive);
/// Makes the directories of `target` below `root`, which has to exist. 0 or -1.
int FSMKDirFromRoot(ustring const& target, ustring const& root);

/// Copies a file's bytes, nothing else, and syncs them. A target that exists is overwritten in
/// place, so a copy onto itself empties the file. On failure a partial target stays.
/// Returns 0, -1 on failure, -2 when there is no space left.
int FSCopy(ustring const& source, ustring const& target, bool remove_source);

/// Renames, or moves when the target is on another volume. There a link, device, pipe or socket is
/// left where it is, which counts as success, and so a directory that holds one fails in the end
/// with all else moved. Returns 0, -1 for an empty argument, -2 when the source is missing (or is
/// spelled otherwise by the volume, if `strict`), -3 on failure, -100 when the name is too long.
int FSRename(ustring const& source, ustring const& target, bool strict);

/// Removes whatever stands there with all that is in it; links are not followed. A directory that
/// can't be read is left standing, which doesn't count as a failure. The second parameter has no
/// effect. Returns 0, also for a missing path, -1 for an empty path or when the look at it fails,
/// -3 when something can't be removed.
int FSRemove(ustring const& path, bool ignored);

/// Makes an empty file of mode 0644 with a fresh name. 0, or -1 with `path` untouched.
int FSMktemp(ustring const& directory, ustring& path);
/// Makes up a path in a directory and leaves it at that. 0 or -1.
int FSCreateTempPath(ustring const& directory, ustring& path);
