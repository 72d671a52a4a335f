#!/usr/bin/env bash
# usage: configure-test.sh BUILD
# What the CMake configuration refuses.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

BUILD=$(cd "$1" && pwd -P)
PROJECT=$(dirname "$SCRIPTS")

# Without libzstd, libarchive falls back to the program zstd and returns ARCHIVE_WARN, as this stub does.
TestRefusesALibarchiveWithoutZstd() {
  local compiler
  compiler=$(sed -n 's/^CMAKE_CXX_COMPILER:[^=]*=//p' "$BUILD/CMakeCache.txt")
  cat >archive.cpp <<'END'
extern "C" void* archive_read_new() { return nullptr; }
extern "C" int archive_read_support_filter_zstd(void*) { return -20; }
END
  "$compiler" -shared -fPIC -o libarchive.so archive.cpp || fail "can't build the library"
  expect_failure "doesn't unpack zstd, the filter of scripts/make-package" \
    cmake -S "$PROJECT" -B build -G Ninja -DCMAKE_CXX_COMPILER="$compiler" -DLARKMOOR_TESTS=OFF \
    -DLibArchive_LIBRARY="$PWD/libarchive.so"
}

run_tests
