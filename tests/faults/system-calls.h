#pragma once

#include <fcntl.h>
#include <linux/filter.h>

#include <vector>

/// The system calls that the tracer counts, and the kernel's filter that stops only at them.
namespace test {

enum class CallKind {
  kOpen,      ///< changes the disk if its flags say so
  kOpenHow,   ///< the same, with its flags in a struct
  kChange,    ///< always changes the disk
  kClose,     ///< counts as a change if the descriptor is open for writing, otherwise not at all
  kReadOnly,  ///< never changes the disk, a flush included
};

constexpr int kNoArgument = -1;

/// The indices of the arguments that name a call's file: a path and the descriptor of the folder
/// that it is relative to. Without a folder it is relative to the working directory; without a
/// path, the descriptor itself is the file.
struct CallShape {
  long number;       ///< SYS_...
  char const* name;  ///< without variants: "open" for openat
  CallKind kind;
  int folder;
  int path;
  int other_folder = kNoArgument;  ///< of the target of a rename or hard link
  int other_path = kNoArgument;
};

/// Null for a call that isn't counted.
CallShape const* FindCallShape(long number);

/// Of an open() that may change the disk.
constexpr unsigned kWritingFlags = O_ACCMODE | O_CREAT | O_TRUNC;

/// A seccomp filter that stops for the tracer at the counted calls and lets all others pass; with
/// `changes_only`, also those that never change the disk.
std::vector<sock_filter> CallFilter(bool changes_only);

}  // namespace test
