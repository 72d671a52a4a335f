#!/usr/bin/env bash
# usage: configure-test.sh BUILD
# Which libarchive the launcher gets.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

BUILD=$(cd "$1" && pwd -P)
PROJECT=$(dirname "$SCRIPTS")
LIBRARY=$(sed -n 's/^LibArchive_LIBRARY:FILEPATH=//p' "$BUILD/CMakeCache.txt")

# link_of BUILD: the command that links the launcher.
link_of() {
  ninja -C "$1" -t commands src/launcher/launcher | tail -n 1
}

TestTakesInALibarchiveThatComesWithAllItStandsOn() {
  [ -e "${LIBRARY%.so}.a" ] || {
    echo "  skipped: there is no static libarchive"
    exit 0
  }
  link_of "$BUILD" >linking
  grep -qF " ${LIBRARY%.so}.a " linking || fail "libarchive is loaded" "$(cat linking)"
  ! grep -qF "$LIBRARY" linking || fail "libarchive is loaded as well" "$(cat linking)"
}

TestLoadsALibarchiveThatStandsAloneAndTakesNoOtherInItsPlace() {
  mkdir lib
  cp -L "$LIBRARY" lib/
  local library
  library=$PWD/lib/$(basename "$LIBRARY")
  expect_success cmake -S "$PROJECT" -B build -G Ninja -DLARKMOOR_TESTS=OFF \
    -DLibArchive_LIBRARY="$library"
  expect_said "libarchive and the libraries under it are loaded"
  link_of build >linking
  grep -qF " $library" linking || fail "another libarchive is linked" "$(cat linking)"
  ! grep -qF libarchive.a linking || fail "a static libarchive is linked" "$(cat linking)"
}

run_tests
