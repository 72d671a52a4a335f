#pragma once

#include <dirent.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/vfs.h>

#include <cstddef>
#include <functional>

namespace test {

/// Replaces functions of the C library: the program's own definitions come before the library's. A
/// call without a replacement goes to the library. The end of the scope removes all replacements;
/// one object at a time.
struct SystemCalls {
  SystemCalls();
  ~SystemCalls();
  SystemCalls(SystemCalls const&) = delete;
  SystemCalls& operator=(SystemCalls const&) = delete;

  std::function<int(char const* from, char const* to)> rename;
  std::function<int(DIR* dir, dirent* buffer, dirent** entry)> readdir_r;
  std::function<int(char const* path, struct stat* info)> lstat;
  std::function<int(char const* path, timeval const* times)> lutimes;
  std::function<int(int folder, char const* name, struct stat* info, int flags)> fstatat;
  std::function<int(char const* path, struct statfs* info)> statfs;
  std::function<ssize_t(int file, void* bytes, std::size_t count)> read;
  std::function<ssize_t(int file, void const* bytes, std::size_t count)> write;
  std::function<ssize_t(char const* path, char* target, std::size_t size)> readlink;
  std::function<int(int file)> fsync;
  // As called from this program.
  std::function<void*(std::size_t size)> malloc;
  std::function<char*(char const* text)> strdup;

  // Only observed: the library's function runs as well. free() only as called from this program.
  std::function<void(int file)> close;
  std::function<void(void* block)> free;
};

/// Sets `errno` and returns -1, like a failing call.
int FailWith(int code);

/// The library's functions.
int LibraryReadDir(DIR* dir, dirent* buffer, dirent** entry);
int LibraryLstat(char const* path, struct stat* info);
int LibraryFstatat(int folder, char const* name, struct stat* info, int flags);
int LibraryStatfs(char const* path, struct statfs* info);
ssize_t LibraryRead(int file, void* bytes, std::size_t count);
ssize_t LibraryWrite(int file, void const* bytes, std::size_t count);
void* LibraryMalloc(std::size_t size);

}  // namespace test
