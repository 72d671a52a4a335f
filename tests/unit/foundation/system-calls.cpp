#include "system-calls.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

extern "C" void* __real_malloc(std::size_t size);

namespace {

test::SystemCalls* taken_over = nullptr;

/// The library's function that this program's own hides.
template <class Function>
Function* Library(char const* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

namespace test {

SystemCalls::SystemCalls() { taken_over = this; }
SystemCalls::~SystemCalls() { taken_over = nullptr; }

int FailWith(int code) {
  errno = code;
  return -1;
}

int LibraryReadDir(DIR* dir, dirent* buffer, dirent** entry) {
  static auto* const call = Library<int(DIR*, dirent*, dirent**)>("readdir_r");
  return call(dir, buffer, entry);
}

int LibraryLstat(char const* path, struct stat* info) {
  static auto* const call = Library<int(char const*, struct stat*)>("lstat");
  return call(path, info);
}

int LibraryFstatat(int folder, char const* name, struct stat* info, int flags) {
  static auto* const call = Library<int(int, char const*, struct stat*, int)>("fstatat");
  return call(folder, name, info, flags);
}

int LibraryStatfs(char const* path, struct statfs* info) {
  static auto* const call = Library<int(char const*, struct statfs*)>("statfs");
  return call(path, info);
}

ssize_t LibraryRead(int file, void* bytes, std::size_t count) {
  static auto* const call = Library<ssize_t(int, void*, std::size_t)>("read");
  return call(file, bytes, count);
}

ssize_t LibraryWrite(int file, void const* bytes, std::size_t count) {
  static auto* const call = Library<ssize_t(int, void const*, std::size_t)>("write");
  return call(file, bytes, count);
}

void* LibraryMalloc(std::size_t size) { return __real_malloc(size); }

}  // namespace test

extern "C" {

int rename(char const* from, char const* to) noexcept {
  if (taken_over != nullptr && taken_over->rename) return taken_over->rename(from, to);
  static auto* const call = Library<int(char const*, char const*)>("rename");
  return call(from, to);
}

int readdir_r(DIR* dir, dirent* buffer, dirent** entry) {
  if (taken_over != nullptr && taken_over->readdir_r) {
    return taken_over->readdir_r(dir, buffer, entry);
  }
  return test::LibraryReadDir(dir, buffer, entry);
}

int lstat(char const* path, struct stat* info) noexcept {
  if (taken_over != nullptr && taken_over->lstat) return taken_over->lstat(path, info);
  return test::LibraryLstat(path, info);
}

ssize_t readlink(char const* path, char* target, std::size_t size) noexcept {
  if (taken_over != nullptr && taken_over->readlink)
    return taken_over->readlink(path, target, size);
  static auto* const call = Library<ssize_t(char const*, char*, std::size_t)>("readlink");
  return call(path, target, size);
}

int lutimes(char const* path, timeval const* times) noexcept {
  if (taken_over != nullptr && taken_over->lutimes) return taken_over->lutimes(path, times);
  static auto* const call = Library<int(char const*, timeval const*)>("lutimes");
  return call(path, times);
}

int fstatat(int folder, char const* name, struct stat* info, int flags) noexcept {
  if (taken_over != nullptr && taken_over->fstatat) {
    return taken_over->fstatat(folder, name, info, flags);
  }
  return test::LibraryFstatat(folder, name, info, flags);
}

int statfs(char const* path, struct statfs* info) noexcept {
  if (taken_over != nullptr && taken_over->statfs) return taken_over->statfs(path, info);
  return test::LibraryStatfs(path, info);
}

ssize_t read(int file, void* bytes, std::size_t count) {
  if (taken_over != nullptr && taken_over->read) return taken_over->read(file, bytes, count);
  return test::LibraryRead(file, bytes, count);
}

ssize_t write(int file, void const* bytes, std::size_t count) {
  if (taken_over != nullptr && taken_over->write) return taken_over->write(file, bytes, count);
  return test::LibraryWrite(file, bytes, count);
}

int fsync(int file) {
  if (taken_over != nullptr && taken_over->fsync) return taken_over->fsync(file);
  static auto* const call = Library<int(int)>("fsync");
  return call(file);
}

int close(int file) {
  if (taken_over != nullptr && taken_over->close) taken_over->close(file);
  static auto* const call = Library<int(int)>("close");
  return call(file);
}

// Through --wrap, because a sanitizer has functions of its own.
void* __wrap_malloc(std::size_t size);
void* __wrap_malloc(std::size_t size) {
  return taken_over != nullptr && taken_over->malloc ? taken_over->malloc(size)
                                                     : __real_malloc(size);
}
char* __real_strdup(char const* text);
char* __wrap_strdup(char const* text);
char* __wrap_strdup(char const* text) {
  return taken_over != nullptr && taken_over->strdup ? taken_over->strdup(text)
                                                     : __real_strdup(text);
}
void __real_free(void* block);
void __wrap_free(void* block);
void __wrap_free(void* block) {
  if (taken_over != nullptr && taken_over->free) taken_over->free(block);
  __real_free(block);
}

}  // extern "C"
