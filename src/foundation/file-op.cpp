#include "foundation/file-op.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "foundation/file-op-internal.h"
#include "foundation/logger.h"
#include "foundation/tmp-name-gen.h"
#include "platform/core-services.h"
#include "platform/file-system-name.h"

namespace {

constexpr int kWantsDetails = 1;  // a bit of DIR_HANDLE::flags
constexpr unsigned short kModeOfUmask = 65535;
constexpr std::size_t kPathBufferSize = 4096;
constexpr int kCopyBufferSize = 32 * 1024 * 1024;

struct FreeBlock {
  void operator()(void* block) const { std::free(block); }
};

/// An open file. A written one is flushed before it is closed.
class Descriptor {
 public:
  enum class Use { kRead, kWrite };
  explicit Descriptor(Use use) : use_(use) {}
  ~Descriptor() { Close(); }
  Descriptor(Descriptor const&) = delete;
  Descriptor& operator=(Descriptor const&) = delete;

  void Take(int number) { number_ = number; }
  bool IsOpen() const { return number_ >= 0; }
  int number() const { return number_; }
  void Close() {
    if (!IsOpen()) return;
    if (use_ == Use::kWrite) fsync(number_);
    close(number_);
    number_ = -1;
  }

 private:
  Use const use_;
  int number_ = -1;
};

OSStatus PathOfRef(FSRef const& ref, ustring& path) {
  UInt8 buffer[kPathBufferSize] = {};
  OSStatus const status = FSRefMakePath(&ref, buffer, sizeof(buffer));
  if (status == noErr) path = reinterpret_cast<char const*>(buffer);
  return status;
}

UInt8 const* VolumeText(ustring const& path) {
  return reinterpret_cast<UInt8 const*>(path.c_str_utf8());
}

/// Finds the file at a path in NFC. Returns 0 or -1.
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

/// SpellAsVolume for a path in NFC.
int SpellNormalPath(ustring const& path, ustring& spelled) {
  FSRef ref;
  if (FindNormalPath(path, ref) != 0) return -1;
  OSStatus const status = PathOfRef(ref, spelled);
  if (status != noErr) {
    LOG_MSG(LEVEL_ERROR, log_component::file_op(), "[ERROR] file-op(%d): FSPathMakeRef: %d\n",
            static_cast<int>(status));
    return -1;
  }
  if (!file_op::IsAscii(spelled)) spelled = spelled.normalize(ustring::NFC);
  LogSpelling(spelled);
  return 0;
}

/// CheckEntry for a path in NFC.
int CheckNormalEntry(ustring const& path) {
  FSRef ref;
  if (FindNormalPath(path, ref) != 0) return -1;
  LogSpelling(path);
  return 0;
}

/// One step of FSMKDirP: makes the folder at this prefix, unless it exists.
int MakePrefix(char const* prefix, bool replace, bool is_last, mode_t mode) {
  struct stat info;
  // Whatever the reason, the error of mkdir decides.
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

/// Makes one prefix after another by cutting the string at each slash in turn. Leaves `end` at the
/// last cut.
int MakePrefixes(char* text, char*& end, bool replace, mode_t mode) {
  for (end = text;;) {
    if (*end == '/') ++end;
    end += std::strcspn(end, "/");
    bool const is_last = end[0] == '\0' || end[1] == '\0';
    *end = '\0';
    if (MakePrefix(text, replace, is_last, mode) != 0) return -1;
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
    if (count < 0) {
      LOG_MSG(LEVEL_ERROR, log_component::file_op(),
              "[ERROR] file-op(%d): CopyFile: read: %s (%d)\n", strerror(errno), errno);
      return -1;
    }
    if (count == 0) return 0;
    if (int const result = WriteAll(target, buffer, count)) return result;
  }
}

}  // namespace

// Both normalise a copy: the caller's string may hold an outdated UTF-16 copy, or be shared with
// another thread.
int file_op::SpellAsVolume(ustring const& path, ustring& spelled) {
  return IsAscii(path) ? SpellNormalPath(path, spelled)
                       : SpellNormalPath(ustring(path).normalize(ustring::NFC), spelled);
}

int file_op::CheckEntry(ustring const& path) {
  return IsAscii(path) ? CheckNormalEntry(path)
                       : CheckNormalEntry(ustring(path).normalize(ustring::NFC));
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
  if (int const error = file_op::ReadEntry(handle.dir, buffer, found)) {
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
  entry.type = file_op::FileTypeOfEntry(found->d_type);
  return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
  // Some systems' closedir crashes on a null pointer.
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
  // A target that fills the buffer has no terminator and is most likely truncated.
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
  mode_t old_mask = {};
  if (has_own_mode) old_mask = umask(0);
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
  // The order matters: the source is closed first, then the target, and the buffer is freed last.
  std::unique_ptr<char, FreeBlock> buffer;
  Descriptor to(Descriptor::Use::kWrite);
  Descriptor from(Descriptor::Use::kRead);
  from.Take(open(source.c_str(), O_RDONLY | O_CLOEXEC));
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

int FSMktemp(ustring const& directory, ustring& path) {
  char name[kPathBufferSize];
  // A truncated template has lost its XXXXXX, and mkostemp rejects it.
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
