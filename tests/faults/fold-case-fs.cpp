// A file system that shows a folder as a volume does that keeps the case of names but doesn't tell
// them apart by it. usage: fold-case-fs FOLDER MOUNT-POINT, in the foreground.
#define FUSE_USE_VERSION 31
#include <dirent.h>
#include <fcntl.h>
#include <fuse.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <sstream>
#include <string>

namespace {

std::string folder;

int Result(long value) { return value < 0 ? -errno : static_cast<int>(value); }

std::string AsSpelled(std::string const& parent, std::string const& name) {
  std::string found = name;
  if (DIR* const dir = opendir(parent.c_str())) {
    while (dirent const* const entry = readdir(dir)) {
      if (strcasecmp(entry->d_name, name.c_str()) == 0) found = entry->d_name;
    }
    closedir(dir);
  }
  return found;
}

/// The object behind a path, whatever case its components have.
std::string Real(char const* path) {
  std::string real = folder;
  std::istringstream parts(path);
  for (std::string part; std::getline(parts, part, '/');) {
    if (!part.empty()) real += "/" + AsSpelled(real, part);
  }
  return real;
}

/// The same, with the last component as it is asked for: what a new name is to look like.
std::string Renamed(std::string const& real, char const* path) {
  std::string const asked(path);
  return real.substr(0, real.rfind('/')) + asked.substr(asked.rfind('/'));
}

int Getattr(char const* path, struct stat* info, fuse_file_info* /*file*/) {
  return Result(lstat(Real(path).c_str(), info));
}
int Readlink(char const* path, char* text, size_t size) {
  ssize_t const length = readlink(Real(path).c_str(), text, size - 1);
  if (length < 0) return -errno;
  text[length] = '\0';
  return 0;
}
int Mkdir(char const* path, mode_t mode) { return Result(mkdir(Real(path).c_str(), mode)); }
int Unlink(char const* path) { return Result(unlink(Real(path).c_str())); }
int Rmdir(char const* path) { return Result(rmdir(Real(path).c_str())); }
int Symlink(char const* text, char const* path) {
  return Result(symlink(text, Real(path).c_str()));
}
int Link(char const* from, char const* to) {
  return Result(link(Real(from).c_str(), Real(to).c_str()));
}
int Rename(char const* from, char const* to, unsigned flags) {
  if (flags != 0) return -EINVAL;
  std::string const source = Real(from);
  std::string const target = Real(to);
  // A change of nothing but case, or a replacement: the new spelling counts.
  if (source != target && rename(source.c_str(), target.c_str()) != 0) return -errno;
  return Result(rename(target.c_str(), Renamed(target, to).c_str()));
}
int Chmod(char const* path, mode_t mode, fuse_file_info* /*file*/) {
  return Result(chmod(Real(path).c_str(), mode));
}
int Truncate(char const* path, off_t size, fuse_file_info* /*file*/) {
  return Result(truncate(Real(path).c_str(), size));
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
  return Keep(file, open(Real(path).c_str(), file->flags, mode));
}
int Read(char const* /*path*/, char* buffer, size_t size, off_t at, fuse_file_info* file) {
  return Result(pread(static_cast<int>(file->fh), buffer, size, at));
}
int Write(char const* /*path*/, char const* buffer, size_t size, off_t at, fuse_file_info* file) {
  return Result(pwrite(static_cast<int>(file->fh), buffer, size, at));
}
int Release(char const* /*path*/, fuse_file_info* file) {
  return Result(close(static_cast<int>(file->fh)));
}
int Readdir(char const* path, void* buffer, fuse_fill_dir_t fill, off_t /*at*/,
            fuse_file_info* /*file*/, fuse_readdir_flags /*flags*/) {
  DIR* const dir = opendir(Real(path).c_str());
  if (dir == nullptr) return -errno;
  while (dirent const* const entry = readdir(dir)) {
    fill(buffer, entry->d_name, nullptr, 0, static_cast<fuse_fill_dir_flags>(0));
  }
  closedir(dir);
  return 0;
}

fuse_operations Operations() {
  fuse_operations all = {};
  all.getattr = Getattr;
  all.readlink = Readlink;
  all.mkdir = Mkdir;
  all.unlink = Unlink;
  all.rmdir = Rmdir;
  all.symlink = Symlink;
  all.link = Link;
  all.rename = Rename;
  all.chmod = Chmod;
  all.truncate = Truncate;
  all.open = Open;
  all.create = Create;
  all.read = Read;
  all.write = Write;
  all.release = Release;
  all.readdir = Readdir;
  return all;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  folder = argv[1];
  umask(0);
  fuse_operations const all = Operations();
  // No caching of names: two spellings would be cached apart.
  char options[] = "entry_timeout=0,negative_timeout=0,attr_timeout=0,default_permissions";
  char foreground[] = "-f";
  char single[] = "-s";
  char with[] = "-o";
  char* arguments[] = {argv[0], foreground, single, with, options, argv[2], nullptr};
  return fuse_main(6, arguments, &all, nullptr);
}
