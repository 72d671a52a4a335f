# Makes bundles for the tests to check and change. A test file, whose first argument is the build folder,
# sources this in place of harness.sh.
# shellcheck shell=bash

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "${BASH_SOURCE[0]}")/harness.sh"

BUILD=$(cd "$1" && pwd -P)
# shellcheck disable=SC2034  # for the files that source this
PROJECT=$(dirname "$SCRIPTS")

shared=$(mktemp -d "${TMPDIR:-/tmp}/larkmoor-bundle.XXXXXX")
trap 'rm -rf "$shared"' EXIT

make_bundle() { "$SCRIPTS/make-bundle" --launcher "$BUILD" "$@"; }
check_bundle() { "$SCRIPTS/check-bundle" "$@"; }

# make_good_bundle: leaves a client of build 7 with one non-ASCII name in "client", its package in
# "client.lpk" and its bundle in "good". They are made once, and then copied.
make_good_bundle() {
  if [ ! -d "$shared/whole" ]; then
    mkdir -p "$shared/made"
    make_client "$shared/made/client" 7
    echo text >"$shared/made/client/Contents/Resources/über"
    expect_success "$SCRIPTS/make-package" "$shared/made/client" "$shared/made/client.lpk"
    expect_success make_bundle --package "$shared/made/client.lpk" "$shared/made/good/Larkmoor.app"
    mv "$shared/made" "$shared/whole"
  fi
  cp -Rp "$shared/whole/." .
}

# in_bundle COMMAND...: runs the command in the Contents of the good bundle.
in_bundle() { (cd good/Larkmoor.app/Contents && "$@"); }
