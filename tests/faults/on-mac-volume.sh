#!/bin/bash
# Runs a command with its temporary folder on a volume like a Mac's: it ignores case and normal form,
# and rejects names that aren't UTF-8.
#
# usage: on-mac-volume.sh FILE-SYSTEM COMMAND [ARGUMENT...]
#
# Exits with the command's status, or with 77 if there is no FUSE.
set -u

file_system=$1
shift

place=$(mktemp -d "${TMPDIR:-/tmp}/larkmoor-volume-XXXXXX") || exit 1
mkdir "$place/behind" "$place/volume" || exit 1
chmod 755 "$place"
chmod 1777 "$place/behind"
"$file_system" "$place/behind" "$place/volume" &
server=$!

# shellcheck disable=SC2317  # called by the trap
finish() {
  umount -l "$place/volume" 2>/dev/null || fusermount3 -u -z "$place/volume"
  wait "$server"
  rm -rf "$place"
}

deadline=$((SECONDS + 30))
until mountpoint -q "$place/volume"; do
  if ! kill -0 "$server" 2>/dev/null || [ $SECONDS -gt $deadline ]; then
    echo "SKIPPED: no FUSE here" >&2
    kill "$server" 2>/dev/null
    rm -rf "$place"
    exit 77
  fi
done
trap finish EXIT

TMPDIR=$place/volume LARKMOOR_TEST_VOLUME=MacVolume "$@"
