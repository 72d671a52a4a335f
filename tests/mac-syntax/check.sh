#!/bin/bash
# Compiles sources for syntax as a Mac would, on a system that is none.
#
# Usage: check.sh TARGET CLANG SOURCE... -- FLAG...
#
# The C and C++ libraries are this system's: what is checked is the project's own code where it
# differs for macOS, not that each function of the C library is there on a Mac.
set -u

target=$1
clang=$2
shift 2
sources=()
while [ $# -gt 0 ] && [ "$1" != -- ]; do
  sources+=("$1")
  shift
done
shift

if [ ! -x "$clang" ]; then
  echo "SKIPPED: there is no clang++ here, and no other compiler takes macOS as its target" >&2
  exit 77
fi

flags=(-fsyntax-only -target "$target" -nostdinc++ -nostdlibinc
  -U__nonnull  # predefined for macOS, and glibc's name for something else
  -D_GNU_SOURCE)
case $target in
  # glibc's headers tell by this which processor they are for.
  arm64-*) flags+=(-D__x86_64__) ;;
esac

failed=0
for source in "${sources[@]}"; do
  if ! "$clang" "${flags[@]}" "$@" "$source"; then
    echo "FAILED: $source for $target" >&2
    failed=$((failed + 1))
  fi
done
echo "$((${#sources[@]} - failed)) of ${#sources[@]} sources compile for $target"
[ "$failed" -eq 0 ]
