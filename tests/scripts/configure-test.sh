#!/usr/bin/env bash
# usage: configure-test.sh BUILD
# How the launcher gets its libarchive.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

BUILD=$(cd "$1" && pwd -P)
PROJECT=$(dirname "$SCRIPTS")
LIBRARY=$(sed -n 's/^LibArchive_LIBRARY:FILEPATH=//p' "$BUILD/CMakeCache.txt")

# link_of BUILD: the command that links the launcher.
link_of() {
  ninja -C "$1" -t commands src/launcher/launcher | tail -n 1
}

TestLinksTheLauncherWithoutIt() {
  grep -q '^CMAKE_READELF:FILEPATH=/' "$BUILD/CMakeCache.txt" || {
    echo "  skipped: no readelf tells the library's soname"
    exit 0
  }
  link_of "$BUILD" >linking
  ! grep -qF " $LIBRARY" linking || fail "libarchive is loaded at the start" "$(cat linking)"
}

TestLooksForItWhereItWasFound() {
  mkdir lib
  cp -L "$LIBRARY" lib/
  expect_success cmake -S "$PROJECT" -B build -G Ninja -DLARKMOOR_TESTS=OFF \
    -DLibArchive_LIBRARY="$PWD/lib/$(basename "$LIBRARY")"
  link_of build >linking
  grep -qF -e "-Wl,-rpath,$PWD/lib" linking || fail "the system's own is loaded" "$(cat linking)"
}

TestLinksOneThatHasNoSoname() {
  mkdir lib
  echo "INPUT($LIBRARY)" >lib/libarchive.so
  expect_success cmake -S "$PROJECT" -B build -G Ninja -DLARKMOOR_TESTS=OFF \
    -DLibArchive_LIBRARY="$PWD/lib/libarchive.so"
  expect_said "launcher is linked with libarchive"
  link_of build >linking
  grep -qF " $PWD/lib/libarchive.so" linking || fail "libarchive isn't linked" "$(cat linking)"
  ! grep -qF archive-on-demand linking || fail "libarchive is loaded on demand" "$(cat linking)"
}

run_tests
