#include "faults/system-calls.h"

#include <linux/seccomp.h>
#include <stddef.h>
#include <sys/syscall.h>

#include <algorithm>
#include <iterator>

namespace test {
namespace {

constexpr CallShape kShapes[] = {
    {SYS_open, "open", CallKind::kOpen, kNoArgument, 0},
    {SYS_openat, "open", CallKind::kOpen, 0, 1},
    {SYS_openat2, "open", CallKind::kOpenHow, 0, 1},
    {SYS_creat, "open", CallKind::kChange, kNoArgument, 0},
    {SYS_write, "write", CallKind::kChange, 0, kNoArgument},
    {SYS_pwrite64, "write", CallKind::kChange, 0, kNoArgument},
    {SYS_writev, "writev", CallKind::kChange, 0, kNoArgument},
    {SYS_close, "close", CallKind::kClose, 0, kNoArgument},
    {SYS_rename, "rename", CallKind::kChange, kNoArgument, 0, kNoArgument, 1},
    {SYS_renameat, "rename", CallKind::kChange, 0, 1, 2, 3},
    {SYS_renameat2, "rename", CallKind::kChange, 0, 1, 2, 3},
    {SYS_mkdir, "mkdir", CallKind::kChange, kNoArgument, 0},
    {SYS_mkdirat, "mkdir", CallKind::kChange, 0, 1},
    {SYS_unlink, "unlink", CallKind::kChange, kNoArgument, 0},
    {SYS_unlinkat, "unlink", CallKind::kChange, 0, 1},
    {SYS_rmdir, "rmdir", CallKind::kChange, kNoArgument, 0},
    {SYS_link, "link", CallKind::kChange, kNoArgument, 0, kNoArgument, 1},
    {SYS_linkat, "link", CallKind::kChange, 0, 1, 2, 3},
    {SYS_symlink, "symlink", CallKind::kChange, kNoArgument, 1},
    {SYS_symlinkat, "symlink", CallKind::kChange, 1, 2},
    {SYS_mknod, "mknod", CallKind::kChange, kNoArgument, 0},
    {SYS_mknodat, "mknod", CallKind::kChange, 0, 1},
    {SYS_chmod, "chmod", CallKind::kChange, kNoArgument, 0},
    {SYS_fchmod, "chmod", CallKind::kChange, 0, kNoArgument},
    {SYS_fchmodat, "chmod", CallKind::kChange, 0, 1},
    {SYS_truncate, "truncate", CallKind::kChange, kNoArgument, 0},
    {SYS_ftruncate, "truncate", CallKind::kChange, 0, kNoArgument},
    {SYS_fallocate, "fallocate", CallKind::kChange, 0, kNoArgument},
    {SYS_read, "read", CallKind::kReadOnly, 0, kNoArgument},
    {SYS_pread64, "read", CallKind::kReadOnly, 0, kNoArgument},
    {SYS_syncfs, "syncfs", CallKind::kReadOnly, 0, kNoArgument},
    {SYS_fsync, "fsync", CallKind::kReadOnly, 0, kNoArgument},
    {SYS_getdents64, "readdir", CallKind::kReadOnly, 0, kNoArgument},
    {SYS_stat, "stat", CallKind::kReadOnly, kNoArgument, 0},
    {SYS_lstat, "stat", CallKind::kReadOnly, kNoArgument, 0},
    {SYS_fstat, "stat", CallKind::kReadOnly, 0, kNoArgument},
    {SYS_newfstatat, "stat", CallKind::kReadOnly, 0, 1},
    {SYS_statx, "stat", CallKind::kReadOnly, 0, 1},
    {SYS_access, "access", CallKind::kReadOnly, kNoArgument, 0},
    {SYS_faccessat, "access", CallKind::kReadOnly, 0, 1},
    {SYS_faccessat2, "access", CallKind::kReadOnly, 0, 1},
    {SYS_readlink, "readlink", CallKind::kReadOnly, kNoArgument, 0},
    {SYS_readlinkat, "readlink", CallKind::kReadOnly, 0, 1},
};

constexpr sock_filter Load(size_t offset) {
  return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<unsigned>(offset));
}

}  // namespace

CallShape const* FindCallShape(long number) {
  auto const* const found = std::find_if(std::begin(kShapes), std::end(kShapes),
                                         [&](CallShape const& s) { return s.number == number; });
  return found == std::end(kShapes) ? nullptr : found;
}

std::vector<sock_filter> CallFilter(bool changes_only) {
  constexpr sock_filter kTrace = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE);
  constexpr sock_filter kPass = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW);
  std::vector<sock_filter> filter = {Load(offsetof(seccomp_data, nr))};
  for (CallShape const& shape : kShapes) {
    auto const number = static_cast<unsigned>(shape.number);
    if (changes_only && shape.kind == CallKind::kReadOnly) continue;
    if (changes_only && shape.kind == CallKind::kOpen) {
      size_t const flags = static_cast<size_t>(shape.path) + 1;
      filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 4));
      filter.push_back(Load(offsetof(seccomp_data, args) + flags * sizeof(__u64)));
      filter.push_back(BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, kWritingFlags, 0, 1));
      filter.push_back(kTrace);
      filter.push_back(kPass);
    } else {
      filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, number, 0, 1));
      filter.push_back(kTrace);
    }
  }
  filter.push_back(kPass);
  return filter;
}

}  // namespace test
