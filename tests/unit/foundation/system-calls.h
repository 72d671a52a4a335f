#pragma once

#include <dirent.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <cstddef>
#include <functional>

namespace test {

/// Calls of the C library that a test can take over: the program's own functions come before the
/// library's. A call whose function is empty goes to the library. Everything is back to that at the
/// end of the scope; one object at a time.
struct SystemCalls {
  SystemCalls();
  ~SystemCalls();
  SystemCalls(SystemCalls const&) = delete;
  SystemCalls& operator=(SystemCalls const&) = delete;

  std::function<int(char const* from, char const* to)> rename;
  std::function<int(DIR* dir, dirent* buffer, dirent** entry)> readdir_r;
  std::function<int(char const* path, struct stat* info)> lstat;
  std::function<int(char const* path, struct statfs* info)> statfs;
  std::function<ssize_t(int file, void* bytes, std::size_t count)> read;
  std::function<ssize_t(int file, void const* bytes, std::size_t count)> write;
  std::function<int(int file)> fsync;

  // These are only watched: the library's function follows. Of free(), the calls of this program.
  std::function<void(int file)> close;
  std::function<void(void* block)> free;
};

/// The library's own.
int LibraryReadDir(DIR* dir, dirent* buffer, dirent** entry);
int LibraryLstat(char const* path, struct stat* info);
int LibraryStatfs(char const* path, struct statfs* info);
ssize_t LibraryRead(int file, void* bytes, std::size_t count);
ssize_t LibraryWrite(int file, void const* bytes, std::size_t count);

}  // namespace test
