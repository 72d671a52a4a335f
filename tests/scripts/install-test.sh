#!/usr/bin/env bash
# usage: install-test.sh BUILD
# Starts bundles as they ship, outside the build: the launcher, the sample client and the packages of
# scripts/make-package together.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

BUILD=$(cd "$1" && pwd -P)
PROJECT=$(dirname "$SCRIPTS")
export QT_QPA_PLATFORM=offscreen

# make_note_client BUILD: a stub of the client that leaves a note and ends, so that no process outlives
# the test.
make_note_client() {
  make_client client "$1"
  # shellcheck disable=SC2016  # expanded by the stub
  printf '#!/bin/sh\necho started >"$HOME/note.part" && mv "$HOME/note.part" "$HOME/note"\n' \
    >client/Contents/MacOS/larkmoor-drive-ui
}

make_bundle() {
  expect_success "$SCRIPTS/make-package" client client.lpk
  expect_success "$SCRIPTS/make-bundle" --launcher "$BUILD" --package client.lpk \
    "elsewhere/Larkmoor Drive.app"
}

# at_home COMMAND...: runs the command with the user's folders in the test's own.
at_home() {
  mkdir -p -m 700 home caches runtime
  env HOME="$PWD/home" XDG_CACHE_HOME="$PWD/caches" XDG_RUNTIME_DIR="$PWD/runtime" "$@"
}

# launch ASSIGNMENT...: starts the bundle with these environment variables.
launch() {
  at_home timeout 60 env "$@" "elsewhere/Larkmoor Drive.app/Contents/MacOS/launcher" \
    >launched 2>&1 || fail "the launcher ended with status $?" "$(cat launched)"
}

# The launcher doesn't wait for the client, so the note may come later.
wait_for_note() {
  local deadline=$((SECONDS + 30))
  until [ -e home/note ]; do
    [ $SECONDS -lt $deadline ] || fail "the client didn't start" "$(cat home/.Larkmoor/log/*)"
    sleep 0.05
  done
}

expect_installed() {
  wait_for_note
  diff -r --no-dereference client home/.Larkmoor/Larkmoor.app || fail "the installed tree differs"
}

TestInstallsNonAsciiNamesInTheCLocale() {
  make_note_client 7
  mkdir "client/Contents/Ärger mit Ümlauten"
  echo 1 >"client/Contents/Ärger mit Ümlauten/größe.txt"
  echo 2 >client/Contents/日本語
  make_bundle
  launch LC_ALL=C LANG=C
  expect_installed
}

TestFormatThatConvertsNamesFailsInTheCLocale() {
  make_note_client 7
  echo 1 >client/Contents/größe.txt
  expect_success "$SCRIPTS/make-package" --format pax client client.lpk
  expect_success "$SCRIPTS/make-bundle" --no-check --launcher "$BUILD" --package client.lpk \
    "elsewhere/Larkmoor Drive.app"
  launch LC_ALL=C LANG=C
  grep -q "archive_read_next_header failed" home/.Larkmoor/log/launcher.log ||
    fail "pax installs in the C locale, so the warning of make-package is wrong"
}

TestEveryFormatInstalls() {
  local form
  make_note_client 7
  for form in gnutar pax ustar cpio zip 7zip; do
    rm -rf home elsewhere
    expect_success "$SCRIPTS/make-package" --format $form client client.lpk
    expect_success "$SCRIPTS/make-bundle" --no-check --launcher "$BUILD" --package client.lpk \
      "elsewhere/Larkmoor Drive.app"
    launch LC_ALL=C.UTF-8
    expect_installed
  done
}

TestBundleNeedsNothingOfTheBuildOrTheSources() {
  skip_without strace
  make_note_client 7
  make_bundle
  # LeakSanitizer can't run under strace.
  at_home env ASAN_OPTIONS="${ASAN_OPTIONS:-}:detect_leaks=0" \
    strace -f -qq -e trace=file -o trace "elsewhere/Larkmoor Drive.app/Contents/MacOS/launcher" \
    >launched 2>&1 || fail "the launcher ended with status $?" "$(tail -n 5 launched trace)"
  expect_installed
  grep -q 'Larkmoor Drive.app/Contents/Frameworks/plugins/platforms/libqoffscreen.so' trace ||
    fail "the plug-in wasn't taken from the bundle"
  # ThreadSanitizer reads its suppressions.
  ! grep -F "\"$PROJECT/" trace | grep -vF "$PROJECT/tests/tsan/" ||
    fail "the bundle opens files of the build or the sources"
}

TestInstalledClientIsTheSampleClient() {
  make_client client 7
  cp "$BUILD/demo/larkmoor-drive-ui" client/Contents/MacOS/
  make_bundle
  launch LC_ALL=C
  local pid deadline=$((SECONDS + 30))
  until [ -s home/.Larkmoor/ui.pid ]; do
    [ $SECONDS -lt $deadline ] || fail "the client wrote no PID file" "$(cat home/.Larkmoor/log/*)"
    sleep 0.05
  done
  pid=$(sed -n 's/^pid="\([0-9]*\)"$/\1/p' home/.Larkmoor/ui.pid)
  kill -TERM "$pid" || fail "there is no process $pid"
  while [ -e home/.Larkmoor/ui.pid ]; do
    [ $SECONDS -lt $deadline ] || { kill -KILL "$pid" && fail "SIGTERM didn't end the client"; }
    sleep 0.05
  done
}

run_tests
