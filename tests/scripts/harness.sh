# Helpers for tests of the scripts. A test file sources this, defines functions whose names start with
# "Test", and ends with "run_tests". Each function runs in its own subshell and its own empty folder.
# shellcheck shell=bash
set -uo pipefail

# shellcheck disable=SC2034  # for the files that source this
SCRIPTS=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../scripts" && pwd -P)

fail() {
  printf '  %s\n' "$@"
  exit 1
}

# expect_success COMMAND...: leaves its standard output in the file "out", its standard error in "err".
expect_success() {
  "$@" >out 2>err || fail "failed: $*" "$(cat out err)"
}

# expect_failure TEXT COMMAND...: the command fails and prints TEXT.
expect_failure() {
  local text=$1
  shift
  if "$@" >out 2>err; then fail "should have failed: $*" "$(cat out err)"; fi
  expect_said "$text"
}

# expect_said TEXT: the last command printed TEXT.
expect_said() {
  grep -qF -e "$1" out err || fail "not printed: $1" "but:" "$(cat out err)"
}

expect_not_said() {
  ! grep -qF -e "$1" out err || fail "printed: $1" "in:" "$(cat out err)"
}

expect_equal() {
  [ "$1" = "$2" ] || fail "expected: $1" "actual:   $2"
}

# make_client FOLDER BUILD: the smallest tree that passes for a client's bundle.
make_client() {
  mkdir -p "$1/Contents/MacOS" "$1/Contents/Resources"
  printf '#!/bin/sh\nexit 0\n' >"$1/Contents/MacOS/larkmoor-drive-ui"
  chmod +x "$1/Contents/MacOS/larkmoor-drive-ui"
  printf '[Version]\nmajor_version=1\nminor_version=2\nbuild_version=%s\nicon_overlay_version=3\n' \
    "$2" >"$1/Contents/Resources/INFO"
}

readonly SKIPPED=77

# skip REASON: ends a test function that can't run here. scripts/test repeats the line in its summary.
skip() {
  # shellcheck disable=SC2154  # set by run_tests
  printf 'skipped %s: %s\n' "$name" "$*"
  exit $SKIPPED
}

# skip_without PROGRAM: ends a test function that needs a program which is missing here.
skip_without() { command -v "$1" >/dev/null 2>&1 || skip "$1 is not installed"; }

run_tests() {
  local name status passed=0 failed=0 skipped=0 folder
  for name in $(declare -F | awk '$3 ~ /^Test/ { print $3 }'); do
    folder=$(mktemp -d "${TMPDIR:-/tmp}/larkmoor-script.XXXXXX")
    (cd "$folder" && "$name")
    status=$?
    case $status in
      0)
        printf 'ok      %s\n' "$name"
        passed=$((passed + 1))
        ;;
      "$SKIPPED") skipped=$((skipped + 1)) ;;
      *)
        printf 'FAILED  %s\n' "$name"
        failed=$((failed + 1))
        ;;
    esac
    chmod -R u+w "$folder"
    rm -rf "$folder"
  done
  printf '%d passed, %d failed, %d skipped\n' $passed $failed $skipped
  [ $((passed + skipped)) -gt 0 ] && [ $failed = 0 ]
}
