// A file system that presents a folder like a macOS volume: it preserves the case and the normal
// form of names but ignores both in lookups, and rejects invalid UTF-8.
//
// usage: mac-volume-fs FOLDER MOUNT-POINT, in the foreground.
#define FUSE_USE_VERSION 31
#include <dirent.h>
#include <fcntl.h>
#include <fuse.h>
#include <sys/stat.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

std::string folder;

int Result(long value) { return value < 0 ? -errno : static_cast<int>(value); }

bool IsUtf8(char const* text) {
  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, nullptr, text, -1, &status);
  return status != U_INVALID_CHAR_FOUND;
}

bool IsAscii(std::string const& name) {
  return std::all_of(name.begin(), name.end(), [](char c) { return c >= 0; });
}

/// The key of all names that are the same to the volume.
icu::UnicodeString Key(std::string const& name) {
  if (IsAscii(name)) return icu::UnicodeString::fromUTF8(name).foldCase();
  UErrorCode status = U_ZERO_ERROR;
  icu::Normalizer2 const* const decomposed = icu::Normalizer2::getNFDInstance(status);
  icu::UnicodeString key = decomposed->normalize(icu::UnicodeString::fromUTF8(name), status);
  key.foldCase();
  return decomposed->normalize(key, status);
}

bool Exists(std::string const& real) {
  struct stat info;
  return lstat(real.c_str(), &info) == 0;
}

std::string AsSpelled(std::string const& parent, std::string const& name) {
  std::string found = name;
  if (DIR* const dir = opendir(parent.c_str())) {
    icu::UnicodeString const key = Key(name);
    while (dirent const* const entry = readdir(dir)) {
      if (Key(entry->d_name) == key) found = entry->d_name;
    }
    closedir(dir);
  }
  return found;
}

/// The file at a path in any spelling.
std::string Real(std::string const& path) {
  if (path == "/" || Exists(folder + path)) return folder + path;
  std::size_t const slash = path.rfind('/');
  std::string const parent = slash == 0 ? folder : Real(path.substr(0, slash));
  return parent + "/" + AsSpelled(parent, path.substr(slash + 1));
}

/// The same with the last component as given: the spelling of a new name.
std::string Renamed(std::string const& real, char const* path) {
  std::string const asked(path);
  return real.substr(0, real.rfind('/')) + asked.substr(asked.rfind('/'));
}

int Descriptor(fuse_file_info const* file) { return static_cast<int>(file->fh); }

/// A new file belongs to its creator, not to this server.
int GiveToCaller(std::string const& real, int result) {
  if (result < 0) return -errno;
  fuse_context const* const caller = fuse_get_context();
  if (geteuid() == 0 && lchown(real.c_str(), caller->uid, caller->gid) != 0) return -errno;
  return 0;
}

void* Init(fuse_conn_info* /*connection*/, fuse_config* config) {
  // Names would be cached per spelling. Attributes may be cached: each lookup refreshes them.
  config->entry_timeout = 0;
  config->negative_timeout = 0;
  config->attr_timeout = 1;
  config->use_ino = 1;
  // An open file that is removed is gone, without a hidden name in its folder.
  config->hard_remove = 1;
  config->nullpath_ok = 1;
  return nullptr;
}
// Every operation looks up the name first.
int Getattr(char const* path, struct stat* info, fuse_file_info* file) {
  if (file != nullptr) return Result(fstat(Descriptor(file), info));
  if (!IsUtf8(path)) return -EILSEQ;
  return Result(lstat(Real(path).c_str(), info));
}
int Readlink(char const* path, char* text, size_t size) {
  ssize_t const length = readlink(Real(path).c_str(), text, size - 1);
  if (length < 0) return -errno;
  text[length] = '\0';
  return 0;
}
int Mknod(char const* path, mode_t mode, dev_t device) {
  std::string const real = Real(path);
  return GiveToCaller(real, mknod(real.c_str(), mode, device));
}
int Mkdir(char const* path, mode_t mode) {
  std::string const real = Real(path);
  return GiveToCaller(real, mkdir(real.c_str(), mode));
}
int Symlink(char const* text, char const* path) {
  std::string const real = Real(path);
  return GiveToCaller(real, symlink(text, real.c_str()));
}
int Unlink(char const* path) { return Result(unlink(Real(path).c_str())); }
int Rmdir(char const* path) { return Result(rmdir(Real(path).c_str())); }
int Link(char const* from, char const* to) {
  return Result(link(Real(from).c_str(), Real(to).c_str()));
}
int Rename(char const* from, char const* to, unsigned flags) {
  if (flags != 0) return -EINVAL;
  std::string const source = Real(from);
  std::string const target = Real(to);
  // A change of spelling, or a replacement: the new spelling applies.
  if (source != target && rename(source.c_str(), target.c_str()) != 0) return -errno;
  return Result(rename(target.c_str(), Renamed(target, to).c_str()));
}
int Chmod(char const* path, mode_t mode, fuse_file_info* file) {
  return Result(file != nullptr ? fchmod(Descriptor(file), mode) : chmod(Real(path).c_str(), mode));
}
int Chown(char const* path, uid_t user, gid_t group, fuse_file_info* file) {
  return Result(file != nullptr ? fchown(Descriptor(file), user, group)
                                : lchown(Real(path).c_str(), user, group));
}
int Truncate(char const* path, off_t size, fuse_file_info* file) {
  return Result(file != nullptr ? ftruncate(Descriptor(file), size)
                                : truncate(Real(path).c_str(), size));
}
int Utimens(char const* path, timespec const times[2], fuse_file_info* file) {
  return Result(file != nullptr
                    ? futimens(Descriptor(file), times)
                    : utimensat(AT_FDCWD, Real(path).c_str(), times, AT_SYMLINK_NOFOLLOW));
}
int Keep(fuse_file_info* file, int descriptor) {
  if (descriptor < 0) return -errno;
  file->fh = static_cast<unsigned>(descriptor);
  return 0;
}
int Open(char const* path, fuse_file_info* file) {
  return Keep(file, open(Real(path).c_str(), file->flags));
}
int Create(char const* path, mode_t mode, fuse_file_info* file) {
  std::string const real = Real(path);
  int const result = Keep(file, open(real.c_str(), file->flags, mode));
  return result == 0 ? GiveToCaller(real, 0) : result;
}
int Read(char const* /*path*/, char* buffer, size_t size, off_t at, fuse_file_info* file) {
  return Result(pread(Descriptor(file), buffer, size, at));
}
int Write(char const* /*path*/, char const* buffer, size_t size, off_t at, fuse_file_info* file) {
  return Result(pwrite(Descriptor(file), buffer, size, at));
}
int Fsync(char const* /*path*/, int /*data_only*/, fuse_file_info* file) {
  return Result(fsync(Descriptor(file)));
}
int Release(char const* /*path*/, fuse_file_info* file) { return Result(close(Descriptor(file))); }
int Opendir(char const* path, fuse_file_info* file) {
  DIR* const dir = opendir(Real(path).c_str());
  if (dir == nullptr) return -errno;
  file->fh = reinterpret_cast<std::uintptr_t>(dir);
  return 0;
}
DIR* Directory(fuse_file_info const* file) { return reinterpret_cast<DIR*>(file->fh); }
int Readdir(char const* /*path*/, void* buffer, fuse_fill_dir_t fill, off_t /*at*/,
            fuse_file_info* file, fuse_readdir_flags /*flags*/) {
  rewinddir(Directory(file));
  while (dirent const* const entry = readdir(Directory(file))) {
    struct stat info = {};
    info.st_ino = entry->d_ino;
    info.st_mode = static_cast<mode_t>(DTTOIF(entry->d_type));
    fill(buffer, entry->d_name, &info, 0, static_cast<fuse_fill_dir_flags>(0));
  }
  return 0;
}
int Releasedir(char const* /*path*/, fuse_file_info* file) {
  return Result(closedir(Directory(file)));
}

fuse_operations Operations() {
  fuse_operations all = {};
  all.init = Init;
  all.getattr = Getattr;
  all.readlink = Readlink;
  all.mknod = Mknod;
  all.mkdir = Mkdir;
  all.unlink = Unlink;
  all.rmdir = Rmdir;
  all.symlink = Symlink;
  all.link = Link;
  all.rename = Rename;
  all.chmod = Chmod;
  all.chown = Chown;
  all.truncate = Truncate;
  all.utimens = Utimens;
  all.open = Open;
  all.create = Create;
  all.read = Read;
  all.write = Write;
  all.fsync = Fsync;
  all.release = Release;
  all.opendir = Opendir;
  all.readdir = Readdir;
  all.releasedir = Releasedir;
  return all;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  folder = argv[1];
  umask(0);
  fuse_operations const all = Operations();
  // Only root may give other users access.
  char alone[] = "default_permissions";
  char shared[] = "default_permissions,allow_other";
  char foreground[] = "-f";
  char single[] = "-s";
  char with[] = "-o";
  char* arguments[] = {argv[0], foreground, single, with, geteuid() == 0 ? shared : alone,
                       argv[2], nullptr};
  return fuse_main(6, arguments, &all, nullptr);
}
