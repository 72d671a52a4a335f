#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>  // IWYU pragma: keep
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>

#include "platform/core-services.h"
#include "platform/spelling-posix.h"

namespace {

OSStatus StatusOfErrno() {
  switch (errno) {
    case ENOENT:
    case ENOTDIR:
      return fnfErr;
    case ENAMETOOLONG:
      return pathTooLongErr;
    default:
      return ioErr;
  }
}

/// Whether a component can't be part of a resolved path.
bool IsDotsOrNothing(char const* name, std::size_t length) {
  return length == 0 || (length == 1 && name[0] == '.') ||
         (length == 2 && name[0] == '.' && name[1] == '.');
}

/// Whether the string, symlinks aside, could be a resolved path: absolute, with a name between any
/// two slashes and after the last one.
bool IsPlainAbsolute(char const* path) {
  if (*path != '/') return false;
  while (*path == '/') {
    ++path;
    std::size_t const length = std::strcspn(path, "/");
    if (IsDotsOrNothing(path, length)) return false;
    path += length;
  }
  return true;
}

/// Whether a file exists at the path and no symlink is on the way. This takes the kernel one path
/// lookup, while realpath stats every folder above: the difference is most of the time of a
/// removal. False also if the system call is missing or denied.
bool LeadsThroughNoLink(char const* path, bool follow_leaf) {
  open_how how = {};
  how.flags = static_cast<decltype(how.flags)>(O_PATH | O_CLOEXEC | (follow_leaf ? 0 : O_NOFOLLOW));
  how.resolve = RESOLVE_NO_SYMLINKS;
  long const descriptor = syscall(SYS_openat2, AT_FDCWD, path, &how, sizeof(how));
  if (descriptor == -1) return false;
  close(static_cast<int>(descriptor));
  return true;
}

/// Resolves the folders above the last component and appends that unchanged.
OSStatus ResolveParent(char const* path, char const* name, char (&resolved)[PATH_MAX]) {
  struct stat info;
  if (lstat(path, &info) != 0) return StatusOfErrno();

  // Keeps the slash, so that the parent of "/name" is the root.
  std::string const parent = name == path ? "." : std::string(path, name);
  if (realpath(parent.c_str(), resolved) == nullptr) return StatusOfErrno();

  std::size_t end = std::strlen(resolved);
  if (resolved[end - 1] != '/') resolved[end++] = '/';
  std::size_t const name_size = std::strlen(name) + 1;
  if (end + name_size > sizeof(resolved)) return pathTooLongErr;
  std::memcpy(resolved + end, name, name_size);
  return noErr;
}

OSStatus Resolve(char const* path, bool follow_leaf, char (&resolved)[PATH_MAX]) {
  std::size_t const size = std::strlen(path) + 1;
  if (size > sizeof(resolved)) return pathTooLongErr;

  if (IsPlainAbsolute(path) && LeadsThroughNoLink(path, follow_leaf)) {
    std::memcpy(resolved, path, size);
    return noErr;
  }
  char const* const slash = std::strrchr(path, '/');
  char const* const name = slash == nullptr ? path : slash + 1;
  if (!follow_leaf && !IsDotsOrNothing(name, std::strlen(name))) {
    return ResolveParent(path, name, resolved);
  }
  return realpath(path, resolved) == nullptr ? StatusOfErrno() : OSStatus{noErr};
}

}  // namespace

OSStatus FSPathMakeRef(UInt8 const* path, FSRef* ref, Boolean* is_directory) {
  return FSPathMakeRefWithOptions(path, 0, ref, is_directory);
}

OSStatus FSPathMakeRefWithOptions(UInt8 const* path, OptionBits options, FSRef* ref,
                                  Boolean* is_directory) {
  auto const* const text = reinterpret_cast<char const*>(path);
  bool const follow_leaf = (options & kFSPathMakeRefDoNotFollowLeafSymlink) == 0;
  OSStatus status = Resolve(text, follow_leaf, ref->path);
  std::string found;
  if (status != noErr && platform::FindByNormalForm(text, follow_leaf, found)) {
    status = Resolve(found.c_str(), follow_leaf, ref->path);
  }
  if (status != noErr || is_directory == nullptr) return status;

  struct stat info;
  if (lstat(ref->path, &info) != 0) return StatusOfErrno();
  *is_directory = S_ISDIR(info.st_mode);
  return noErr;
}

OSStatus FSRefMakePath(FSRef const* ref, UInt8* path, UInt32 max_path_size) {
  std::string const stored = platform::AsStored(ref->path);
  if (stored.size() >= max_path_size) return pathTooLongErr;
  std::memcpy(path, stored.c_str(), stored.size() + 1);
  return noErr;
}
