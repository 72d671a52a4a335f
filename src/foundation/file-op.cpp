#include "foundation/file-op.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "foundation/logger.h"
#include "foundation/tmp-name-gen.h"
#include "platform/core-services.h"
#include "platform/file-system-name.h"
#include "platform/volume-lookup.h"

namespace {

constexpr int kWantsDetails = 1;  // bit of DIR_HANDLE::flags
constexpr unsigned short kModeOfUmask = 65535;
constexpr std::size_t kPathBufferSize = 4096;
constexpr int kCopyBufferSize = 32 * 1024 * 1024;

struct FreeBlock {
  void operator()(void* block) const { std::free(block); }
};

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { Close(); }
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;

  bool IsOpen() const { return number_ >= 0; }
  int number() const { return number_; }
  void Close() {
    if (IsOpen()) close(number_);
    number_ = -1;
  }

 private:
  int number_;
};

/// An open file that is synced before it is closed.
class SyncedDescriptor {
 public:
  SyncedDescriptor() = default;
  ~SyncedDescriptor() {
    if (!IsOpen()) return;
    fsync(number_);
    close(number_);
  }
  SyncedDescriptor(SyncedDescriptor const&) = delete;
  SyncedDescriptor& operator=(SyncedDescriptor const&) = delete;

  void Take(int number) { number_ = number; }
  bool IsOpen() const { return number_ >= 0; }
  int number() const { return number_; }

 private:
  int number_ = -1;
};

/// The call that every reader of directories goes through. It is deprecated for fear of names
/// longer than the buffer, which no file system here has; it has no state outside its arguments.
int ReadEntry(DIR* dir, dirent& buffer, dirent*& entry) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  return readdir_r(dir, &buffer, &entry);
#pragma GCC diagnostic pop
}

bool IsDots(char const* name) {
  return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

/// The names in a directory, without "." and "..". A listing that breaks off counts as ended.
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
  char const* Next() {
    dirent* entry = nullptr;
    do {
      if (ReadEntry(dir_, buffer_, entry) != 0 || entry == nullptr) return nullptr;
    } while (IsDots(entry->d_name));
    return entry->d_name;
  }

 private:
  DIR* const dir_;
  dirent buffer_;
};

/// Plain ASCII, which nearly all paths are, is in NFC already.
bool IsAscii(ustring const& path) {
  char const* const text = path.c_str();
  return std::all_of(text, text + path.length(),
                     [](char c) { return static_cast<unsigned char>(c) < 128; });
}

ustring ToNfc(ustring const& path) { return IsAscii(path) ? path : path.normalize(ustring::NFC); }

OSStatus PathOfRef(FSRef const& ref, ustring& path) {
  UInt8 buffer[kPathBufferSize] = {};
  OSStatus const status = FSRefMakePath(&ref, buffer, sizeof(buffer));
  if (status == noErr) path = reinterpret_cast<char const*>(buffer);
  return status;
}

UInt8 const* VolumeText(ustring const& path) {
  return reinterpret_cast<UInt8 const*>(path.c_str_utf8());
}

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

void FillFromStat(ustring const& path, struct stat const& info, _FILE_INFO_tag& out) {
  out.exists = true;
  out.mtime = info.st_mtime;
  out.path = path;  // which may be one of the two texts
  out.name = FSBaseName(out.path);
  out.size = info.st_size;
  out.uid = info.st_uid;
  out.gid = info.st_gid;
  out.mode = info.st_mode;
  out.dev = static_cast<std::int32_t>(info.st_dev);
  out.type = FileTypeOfMode(info.st_mode);
}

/// Finds the object at a path that is in NFC. 0 or -1.
int FindNormalPath(ustring const& path, FSRef& ref) {
  LOG_MSG(LEVEL_DEBUG, log_component::file_op(), "[DEBUG] file-op(%d): Input file path = [%s].\n",
          path.c_str());
  OSStatus const status = FSPathMakeRefWithOptions(
      VolumeText(path), kFSPathMakeRefDoNotFollowLeafSymlink, &ref, nullptr);
  if (status == noErr) return 0;
  LOG_MSG(LEVEL_ERROR, log_component::file_op(), "[ERROR] file-op(%d): FSPathMakeRef: %d\n",
          static_cast<int>(status));
  return -1;
}

void LogSpelling(ustring const& spelled) {
  LOG_MSG(LEVEL_DEBUG, log_component::file_op(),
          "[DEBUG] file-op(%d): FSRefMakePath outTargetPath path = [%s].\n", spelled.c_str());
}

/// How the volume spells a path that is in NFC.
int SpellNormalPath(ustring const& path, ustring& spelled) {
  FSRef ref;
  if (FindNormalPath(path, ref) != 0) return -1;
  OSStatus const status = PathOfRef(ref, spelled);
  if (status != noErr) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(), "[ERROR] file-op(%d): FSPathMakeRef: %d\n",
            static_cast<int>(status));
    return -1;
  }
  if (!IsAscii(spelled)) spelled = spelled.normalize(ustring::NFC);
  LogSpelling(spelled);
  return 0;
}

/// The same for an entry of a folder whose path is spelled as on the volume. The entry's path is
/// then spelled so as well, and the volume needn't be asked.
int CheckEntry(ustring const& path) {
  FSRef ref;
  if (FindNormalPath(path, ref) != 0) return -1;
  LogSpelling(path);
  return 0;
}

/// How the volume spells a path, in NFC. A copy is normalised, since the caller's text may hold an
/// outdated UTF-16 copy, or be another thread's as well.
int SpellAsVolume(ustring const& path, ustring& spelled) {
  return IsAscii(path) ? SpellNormalPath(path, spelled)
                       : SpellNormalPath(ustring(path).normalize(ustring::NFC), spelled);
}

/// One step of FSMKDirP: sees to it that a directory stands at the prefix.
int MakePrefix(char const* prefix, bool replace, bool is_last, mode_t mode) {
  struct stat info;
  // Whatever makes the look fail, mkdir gives the decisive error.
  if (stat(prefix, &info) != 0) return mkdir(prefix, mode);
  if (S_ISDIR(info.st_mode)) return 0;
  if (replace) {
    std::remove(prefix);
    return mkdir(prefix, mode);
  }
  if (!is_last) {
    LOG_MSG(LEVEL_INFO, log_component::file_op(),
            "[INFO] file-op(%d): FSMKDirP: path: %s is symbolic link pointed to folder\n", prefix);
    return 0;
  }
  LOG_MSG(LEVEL_INFO, log_component::file_op(),
          "[INFO] file-op(%d): FSMKDirP: path: %s is existing file or symbolic link pointed to "
          "file\n",
          prefix);
  errno = EEXIST;
  return -1;
}

/// Makes one prefix after the other, cutting the text at each slash in turn. `end` is left at the
/// last cut.
int MakePrefixes(char* text, char*& end, bool replace, mode_t mode) {
  for (end = text;;) {
    if (*end == '/') ++end;
    end += std::strcspn(end, "/");
    bool const is_last = end[0] == '\0' || end[1] == '\0';
    *end = '\0';
    if (MakePrefix(text, replace, is_last, mode) < 0) return -1;
    if (is_last) return 0;
    *end = '/';
  }
}

int WriteAll(int target, char const* bytes, ssize_t count) {
  while (count > 0) {
    ssize_t const written = write(target, bytes, static_cast<std::size_t>(count));
    if (written < 1) {
      int const error = errno;
      LOG_MSG(LEVEL_ERROR, log_component::file_op(),
              "[ERROR] file-op(%d): CopyFile: write: %s (%d)\n", strerror(error), error);
      return error == ENOSPC || error == EDQUOT ? -2 : -1;
    }
    bytes += written;
    count -= written;
  }
  return 0;
}

int CopyBytes(int source, int target, char* buffer) {
  for (;;) {
    ssize_t const count = read(source, buffer, kCopyBufferSize);
    if (count == 0) return 0;
    if (count < 0) {
      LOG_MSG(LEVEL_ERROR, log_component::file_op(),
              "[ERROR] file-op(%d): CopyFile: read: %s (%d)\n", strerror(errno), errno);
      return -1;
    }
    if (int const result = WriteAll(target, buffer, count)) return result;
  }
}

int RemoveOne(ustring const& path) { return std::remove(path.c_str()) < 0 ? -3 : 0; }

/// The part of FSRename for a directory that goes to another volume.
int MoveDirectory(ustring const& source, ustring const& target, bool strict) {
  if (FSMKDir(target, true) != 0) return -3;
  {
    Listing entries(source);
    if (!entries.IsOpen()) return -3;
    while (char const* const name = entries.Next()) {
      if (FSRename(source + "/" + name, target + "/" + name, strict) != 0) return -3;
    }
  }
  return RemoveOne(source);
}

int RemoveAt(int folder, char const* name, ustring const& path);

/// How FSRemove goes through a directory. Both ways take the same steps.
enum class Walk {
  kByPath,     ///< each object by its path from the start
  kByFolders,  ///< by its name in the open folder, which saves two walks along the path
};

/// Removes what is in a directory. `is_readable` is false, and all stays, when it can't be listed.
int RemoveEntries(ustring const& path, Walk walk, bool& is_readable) {
  Listing entries(path);
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

/// FSRemove of an object that is `path` to everybody and `name` seen from an open folder.
int RemoveAt(int folder, char const* name, ustring const& path) {
  // The look of GetFileInfo, without filling a record. A path that is too long for the system can't
  // be looked at, though its name can.
  if (path.length() >= PATH_MAX) return -1;
  struct stat found;
  if (fstatat(folder, name, &found, AT_SYMLINK_NOFOLLOW) != 0) return errno == ENOENT ? 0 : -1;
  int const type = FileTypeOfMode(found.st_mode);
  if (type == FILE_TYPE_NONE) return -1;
  if ((IsAscii(path) ? CheckEntry(path) : CheckEntry(ustring(path).normalize(ustring::NFC))) != 0) {
    return -1;
  }
  if (type != FILE_TYPE_DIRECTORY) return unlinkat(folder, name, 0) < 0 ? -3 : 0;
  bool is_readable = false;
  if (int const result = RemoveEntries(path, Walk::kByFolders, is_readable)) return result;
  return is_readable && unlinkat(folder, name, AT_REMOVEDIR) < 0 ? -3 : 0;
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
  // Text that isn't valid UTF-8 has no normal form and so comes out empty as well.
  ustring const normal = ToNfc(path);
  if (normal.empty()) return false;
  _FILE_INFO_tag info;
  if (GetFileInfo(normal, info) < 0) return false;
  return info.exists && (!strict || info.path == normal);
}

int GetFileInfo(ustring const& path, _FILE_INFO_tag& info) {
  struct stat found;
  if (platform::LookAt(path.c_str(), found) != 0) {
    if (errno != ENOENT) return -1;
    _FILE_INFO_tag missing;
    missing.path = path;  // which may be that of `info`
    missing.name = FSBaseName(path);
    info = missing;
    return 0;
  }
  FillFromStat(path, found, info);
  ustring spelled;
  if (info.type == FILE_TYPE_NONE || SpellAsVolume(info.path, spelled) != 0) return -1;
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

int FSOpenDir(ustring const& path, int flags, DIR_HANDLE& handle) {
  DIR* const dir = opendir(path.c_str());
  if (dir == nullptr) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): FSOpenDir: Failed to open directory '%s'. %s\n", path.c_str(),
            strerror(errno));
    return -1;
  }
  handle.dir = dir;
  handle.path = path;
  handle.flags = flags;
  return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry) {
  dirent buffer;
  dirent* found = nullptr;
  if (int const error = ReadEntry(handle.dir, buffer, found)) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): FSOpenDir: Failed to read directory '%s'. %s\n",
            handle.path.c_str(), strerror(error));
    return -1;
  }
  if (found == nullptr) return 0;

  _FILE_INFO_tag info;
  if ((handle.flags & kWantsDetails) != 0) {
    ustring const path = handle.path + "/" + found->d_name;
    if (FSStat(path, info, true) < 0) {
      LOG_MSG(LEVEL_ERROR, log_component::file_op(),
              "[ERROR] file-op(%d): FSOpenDir: Failed to get info for '%s'\n", path.c_str());
      return -1;
    }
  }
  entry.mtime = info.mtime;
  entry.size = info.size;
  entry.name = found->d_name;
  entry.type = FileTypeOfEntry(found->d_type);
  return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
  // Not every system's closedir bears a null pointer.
  if (handle.dir != nullptr) closedir(handle.dir);
  handle.dir = nullptr;
  handle.path.clear();
}

bool FSTimeEqual(long a, long b) { return a == b; }

int FSUTime(ustring const& path, long atime, long mtime) {
  timeval const times[] = {{atime, 0}, {mtime, 0}};
  return lutimes(path.c_str(), times) == 0 ? 0 : -1;
}

bool isFileLocked(ustring const& path, int mode) {
  return access(path.c_str(), mode) != 0 && (errno == EACCES || errno == EPERM);
}

bool hasFilePermission(ustring const& path, int mode) { return !isFileLocked(path, mode); }

bool isMountPoint(ustring const& path) {
  std::string type;
  if (platform::FileSystemName(path.c_str(), type) != 0) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): isMountPoint: Failed to get file system info '%s'. %s\n",
            path.c_str(), strerror(errno));
    return false;
  }
  return type == "nfs" || type == "smbfs" || type == "afpfs";
}

bool IsMSDOS(ustring const& path) {
  std::string type;
  if (platform::FileSystemName(path.c_str(), type) != 0) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): IsSupportLargeFile: Failed to get file system info '%s'. %s\n",
            path.c_str(), strerror(errno));
    return false;
  }
  if (type != "msdos") return false;
  LOG_MSG(LEVEL_WARNING, log_component::file_op(),
          "[WARNING] file-op(%d): Detect a MSDOS platform for path '%s'.\n", path.c_str());
  return true;
}

int FSGetRealPath(ustring& path) {
  LOG_MSG(LEVEL_DEBUG, log_component::file_op(), "[DEBUG] file-op(%d):  org path [%s]\n",
          path.c_str());
  FSRef ref;
  if (FSPathMakeRef(VolumeText(path), &ref, nullptr) != noErr) return -1;
  if (PathOfRef(ref, path) != noErr) return -1;
  LOG_MSG(LEVEL_DEBUG, log_component::file_op(), "[DEBUG] file-op(%d):  get full path [%s]\n",
          path.c_str());
  return 0;
}

int FSCreateSymbolicLink(ustring const& target, ustring const& link) {
  if (symlink(target.c_str(), link.c_str()) == 0) return 0;
  LOG_MSG(LEVEL_ERROR, log_component::file_op(),
          "[ERROR] file-op(%d): FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' "
          "(code: %d, msg: %s)\n",
          target.c_str(), link.c_str(), errno, strerror(errno));
  return -1;
}

int FSReadSymbolicLink(ustring const& link, ustring& target) {
  char text[1024] = {};
  ssize_t const length = readlink(link.c_str(), text, sizeof(text));
  // A text that fills the buffer has no terminator, and is most likely cut.
  if (length == sizeof(text)) errno = ENAMETOOLONG;
  if (length < 0 || length == sizeof(text)) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, "
            "msg: %s)\n",
            link.c_str(), errno, strerror(errno));
    return -1;
  }
  target = text;
  return 0;
}

int FSChown(ustring const& path, unsigned int uid, unsigned int gid) {
  if (lchown(path.c_str(), uid, gid) == 0) return 0;
  LOG_MSG(LEVEL_ERROR, log_component::file_op(),
          "[ERROR] file-op(%d): FSChown: Failed to chown '%s' (code: %d, msg: %s)\n", path.c_str(),
          errno, strerror(errno));
  return -1;
}

int FSMKDirP(ustring const& path, char** stop, bool replace, unsigned short mode) {
  if (path.empty()) return -1;
  std::unique_ptr<char, FreeBlock> const copy(strdup(path.c_str()));
  if (copy == nullptr) return -1;

  bool const has_own_mode = mode != kModeOfUmask;
  mode_t const old_mask = has_own_mode ? umask(0) : mode_t{0};
  char* end = nullptr;
  int const result =
      MakePrefixes(copy.get(), end, replace, has_own_mode ? mode_t{mode} : mode_t{0777});
  if (stop != nullptr) *stop = const_cast<char*>(path.c_str()) + (end - copy.get());
  if (has_own_mode) umask(old_mask);
  return result;
}

int FSMKDir(ustring const& path, bool recursive) {
  if (path.empty()) return -1;
  _FILE_INFO_tag info;
  if (GetFileInfo(path, info) < 0) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): FSMKDir: Failed to to file info '%s'\n", path.c_str());
    return -1;
  }
  if (!info.exists) {
    int const made =
        recursive ? FSMKDirP(path, nullptr, false, kModeOfUmask) : mkdir(path.c_str(), 0777);
    if (made >= 0) return 0;
    LOG_MSG(LEVEL_ERROR, log_component::file_op(), "[ERROR] file-op(%d): path = %s errno : %s\n",
            path.c_str(), strerror(errno));
    return -2;
  }
  if (info.type == FILE_TYPE_DIRECTORY) return 0;
  LOG_MSG(LEVEL_ERROR, log_component::file_op(),
          "[ERROR] file-op(%d): FSMKDir: Create a folder but local file system is not directory "
          "'%s' (%d)\n",
          path.c_str(), info.type);
  return -1;
}

int FSMKDirFromRoot(ustring const& target, ustring const& root) {
  if (root.length() > target.length()) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): Giving a root '%s' whose length is larger then target's '%s'.\n",
            root.c_str(), target.c_str());
    return -1;
  }
  if (!FSIsParentFolder(root, target)) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): root '%s' is not a parent folder of target '%s'\n", root.c_str(),
            target.c_str());
    return -1;
  }
  ustring const rest = target.substr(root.length(), ustring::npos);
  ustring current;
  while (current != rest) {
    current = rest.substr(0, rest.find_first_of('/', current.length() + 1));
    LOG_MSG(LEVEL_DEBUG, log_component::file_op(),
            "[DEBUG] file-op(%d): FSMKDirFromRoot: create %s\n", (root + current).c_str());
    if (FSMKDir(root + current, false) < 0) return -1;
  }
  return 0;
}

int FSCopy(ustring const& source, ustring const& target, bool remove_source) {
  // In this order, so that the source is closed first, then the target, and the buffer is freed.
  std::unique_ptr<char, FreeBlock> buffer;
  SyncedDescriptor to;
  Descriptor from(open(source.c_str(), O_RDONLY | O_CLOEXEC));
  if (!from.IsOpen()) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): CopyFile: open(%s): %s (%d)\n", source.c_str(), strerror(errno),
            errno);
    return -1;
  }
  to.Take(open(target.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
  if (!to.IsOpen()) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): CopyFile: open(%s): %s (%d)\n", target.c_str(), strerror(errno),
            errno);
    return -1;
  }
  buffer.reset(static_cast<char*>(std::malloc(kCopyBufferSize)));
  if (buffer == nullptr) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(),
            "[ERROR] file-op(%d): FSCopy: malloc(%d): %s (%d)\n", kCopyBufferSize, strerror(errno),
            errno);
    return -1;
  }
  int const result = CopyBytes(from.number(), to.number(), buffer.get());
  if (result != 0 || !remove_source) return result;
  from.Close();
  return std::remove(source.c_str()) < 0 ? -1 : 0;
}

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

int FSRemove(ustring const& path, [[maybe_unused]] bool ignored) {
  _FILE_INFO_tag info;
  if (path.empty() || GetFileInfo(path, info) != 0) return -1;
  if (!info.exists) return 0;
  if (info.type != FILE_TYPE_DIRECTORY) return RemoveOne(path);
  // A path with a link or dots in it may lead through the very tree that is removed, and then leads
  // elsewhere, or nowhere, as soon as the link has gone.
  Walk const walk = info.path == ToNfc(path) ? Walk::kByFolders : Walk::kByPath;
  bool is_readable = false;
  if (int const result = RemoveEntries(path, walk, is_readable)) return result;
  return is_readable ? RemoveOne(path) : 0;
}

int FSMktemp(ustring const& directory, ustring& path) {
  char name[kPathBufferSize];
  // A text that is cut has lost its XXXXXX and is refused.
  std::snprintf(name, sizeof(name), "%s/XXXXXX", directory.c_str());
  int const descriptor = mkostemp(name, O_CLOEXEC);
  if (descriptor < 0) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(), "[ERROR] file-op(%d): mkstemp(%s): %s\n", name,
            strerror(errno));
    return -1;
  }
  close(descriptor);
  path = name;
  chmod(name, 0644);
  return 0;
}

int FSCreateTempPath(ustring const& directory, ustring& path) {
  path = TmpNameGen::getInstance()->getTmpPath(directory);
  return path.empty() ? -1 : 0;
}
