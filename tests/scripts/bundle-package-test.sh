#!/usr/bin/env bash
# usage: bundle-package-test.sh BUILD
# What scripts/check-bundle reports about the package in a bundle.

# shellcheck source=tests/scripts/bundle-harness.sh
. "$(dirname "$0")/bundle-harness.sh"

readonly PACKAGE=good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk

# repack COMMAND...: unpacks the package, runs the command there and packs the result in the order of
# the disk.
repack() {
  rm -rf unpacked && mkdir unpacked
  bsdtar -xf $PACKAGE -C unpacked
  (cd unpacked && "$@" && bsdtar -czf "../$PACKAGE" --format gnutar ./*) || fail "can't repack"
}

# repack_in_order: packs the unpacked package in the order of scripts/make-package, but with "./" before
# each path.
repack_in_order() {
  (cd unpacked && bsdtar -czn --format gnutar -f "../$PACKAGE" \
    ./Contents ./Contents/MacOS ./Contents/Resources ./Contents/Resources/über \
    ./Contents/MacOS/larkmoor-drive-ui ./Contents/Resources/INFO) || fail "can't repack"
}

TestCheckLeavesNoTemporaryFiles() {
  make_good_bundle
  repack chmod 555 Contents/Resources
  mkdir temporary
  expect_failure "folders that aren't writable" env TMPDIR="$PWD/temporary" "$SCRIPTS/check-bundle" good/Larkmoor.app
  expect_equal "" "$(ls -A temporary)"
  chmod 755 unpacked/Contents/Resources
}

# libarchive runs lrzip for what it can't decode itself. Users don't have that program.
TestCheckReadsThePackageWithoutOtherPrograms() {
  make_good_bundle
  mkdir bin
  zstd -qdc client.lpk >client.tar
  printf '#!/bin/sh\nexec cat "%s"\n' "$PWD/client.tar" >bin/lrzip
  chmod +x bin/lrzip
  { printf 'LRZI\000\006' && head -c 100 /dev/zero; } >package
  PATH=$PWD/bin:$PATH expect_success bsdtar -tf package
  cp package $PACKAGE
  PATH=$PWD/bin:$PATH expect_failure "can't read the package" check_bundle good/Larkmoor.app
}

# A libarchive without zstd, under a name that only the launcher is linked with.
TestCheckReadsThePackageWithTheLaunchersOwnLibarchive() {
  make_good_bundle
  local library name other
  library=$(ldd good/Larkmoor.app/Contents/MacOS/launcher | awk '/libarchive/ { print $3 }')
  name=${library##*/}
  other=${name/%?/x}
  mkdir lib
  python3 - "$library" "lib/$other" <<'END'
import sys

with open(sys.argv[1], "rb") as file:
    library = file.read()
magic = bytes.fromhex("28b52ffd")
assert magic in library, "libarchive doesn't contain the magic number of zstd"
with open(sys.argv[2], "wb") as file:
    file.write(library.replace(magic, bytes(4)))
END
  in_bundle sed -i.bak "s/$name/$other/" MacOS/launcher
  expect_success env LD_LIBRARY_PATH="$PWD/lib" bsdtar -tf client.lpk
  expect_failure "the launcher's libarchive can't read the package (bsdtar: Error opening archive: Unrecognized" \
    env LD_LIBRARY_PATH="$PWD/lib" "$SCRIPTS/check-bundle" good/Larkmoor.app
}

TestCheckFindsTruncatedAndDamagedPackages() {
  make_good_bundle
  head -c $(($(wc -c <client.lpk) / 2)) client.lpk >$PACKAGE
  expect_failure "can't read the package" check_bundle good/Larkmoor.app
  echo "this is no archive" >$PACKAGE
  expect_failure "can't read the package" check_bundle good/Larkmoor.app
  : >$PACKAGE
  expect_failure "missing or empty" check_bundle good/Larkmoor.app
}

TestCheckFindsOneFlippedBitInAPackage() {
  make_client client 7
  head -c 20000 /dev/urandom >client/Contents/Resources/noise
  expect_success "$SCRIPTS/make-package" --filter gzip client client.lpk
  expect_success make_bundle --package client.lpk good/Larkmoor.app
  # gzip stores random bytes uncompressed, so the middle of the package is such a byte.
  python3 - $PACKAGE <<'END'
import sys

with open(sys.argv[1], "r+b") as package:
    package.seek(10000)
    byte = package.read(1)[0]
    package.seek(10000)
    package.write(bytes([byte ^ 1]))
END
  bsdtar -xOf $PACKAGE >/dev/null || fail "libarchive detects the flipped bit, so the test proves nothing"
  expect_failure "the package is damaged" check_bundle good/Larkmoor.app
}

TestCheckFindsClientThatIsNotExecutable() {
  make_good_bundle
  repack chmod -x Contents/MacOS/larkmoor-drive-ui
  repack_in_order
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
  chmod +x unpacked/Contents/MacOS/larkmoor-drive-ui
  repack_in_order
  expect_success check_bundle good/Larkmoor.app
}

# repack_twice FIRST SECOND: packs the executable twice, with these modes.
repack_twice() {
  repack chmod "$1" Contents/MacOS/larkmoor-drive-ui
  (cd unpacked && bsdtar -cf ../twice.tar --format gnutar Contents/MacOS/larkmoor-drive-ui &&
    chmod "$2" Contents/MacOS/larkmoor-drive-ui &&
    bsdtar -rf ../twice.tar --format gnutar Contents/MacOS/larkmoor-drive-ui Contents/Resources/INFO &&
    gzip -c ../twice.tar >"../$PACKAGE") ||
    fail "can't repack"
}

TestCheckUsesTheLastEntryOfTheExecutable() {
  make_good_bundle
  repack_twice 755 644
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
  repack_twice 644 755
  check_bundle good/Larkmoor.app >out 2>err
  expect_not_said "isn't executable"
}

TestCheckFollowsAnExecutableThatIsASymlink() {
  make_good_bundle
  repack sh -c 'cd Contents/MacOS && mv larkmoor-drive-ui real && ln -s real larkmoor-drive-ui'
  check_bundle good/Larkmoor.app >out 2>err
  expect_not_said "isn't executable"
  repack chmod 644 Contents/MacOS/real
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
  repack rm Contents/MacOS/real
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
}

TestCheckIgnoresAnotherPathWithTheSameEnd() {
  make_good_bundle
  repack sh -c 'mkdir -p "old Contents/MacOS" && cp Contents/MacOS/* "old Contents/MacOS" &&
    chmod 644 Contents/MacOS/larkmoor-drive-ui'
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
}

# libarchive makes up the modes that an archive lacks.
TestCheckFindsFormatsWithoutModes() {
  local format
  make_good_bundle
  mkdir unpacked && bsdtar -xf $PACKAGE -C unpacked
  rm unpacked/Contents/Resources/über
  bsdtar -cf joliet --format iso9660 --options '!rockridge' -C unpacked Contents 2>messages ||
    fail "can't make a Joliet image" "$(cat messages)"
  for format in cab windows-zip; do
    python3 "$PROJECT/tests/scripts/without-modes.py" $format unpacked $format
  done
  for format in joliet cab windows-zip; do
    cp $format $PACKAGE
    expect_failure "in a format that has modes" check_bundle good/Larkmoor.app
    expect_not_said "can't read"
    expect_not_said "has no Contents"
  done
}

TestCheckFindsFoldersThatAreNotWritable() {
  make_good_bundle
  repack chmod 555 Contents/Resources
  expect_failure "folders that aren't writable" check_bundle good/Larkmoor.app
  chmod 755 unpacked/Contents/Resources
}

TestCheckFindsPackageWithoutTheClient() {
  make_good_bundle
  repack mv Contents/MacOS/larkmoor-drive-ui Contents/MacOS/client
  expect_failure "no Contents/MacOS/larkmoor-drive-ui" check_bundle good/Larkmoor.app
}

TestCheckFindsWrongOrderAndHardLinks() {
  make_good_bundle
  repack mkdir Contents/Zoo
  expect_failure "doesn't end with" check_bundle good/Larkmoor.app
  expect_not_said "has no Contents/Resources/INFO"
  repack ln Contents/Resources/INFO Contents/Resources/twin
  expect_failure "hard links" check_bundle good/Larkmoor.app
}

# pack_entries PATH...: packs these files of the client in this order.
pack_entries() {
  (cd client && bsdtar -czn --format gnutar -f "../$PACKAGE" \
    Contents Contents/MacOS Contents/Resources "$@") || fail "can't pack"
}

TestCheckRequiresTheExecutableSecondToLastAndInfoLast() {
  make_good_bundle
  local executable=Contents/MacOS/larkmoor-drive-ui info=Contents/Resources/INFO
  local other=Contents/Resources/über
  pack_entries $other $executable $info
  expect_success check_bundle good/Larkmoor.app
  pack_entries $other $info $executable
  expect_failure "doesn't end with" check_bundle good/Larkmoor.app
  pack_entries $executable $other $info
  expect_failure "doesn't end with" check_bundle good/Larkmoor.app
  pack_entries $info $executable $other
  expect_failure "doesn't end with" check_bundle good/Larkmoor.app
}

TestCheckFindsInfoThatIsPackedTwice() {
  make_good_bundle
  pack_entries Contents/Resources/INFO Contents/Resources/über Contents/MacOS/larkmoor-drive-ui \
    Contents/Resources/INFO
  expect_failure "INFO twice" check_bundle good/Larkmoor.app
}

TestCheckFindsSymlinksThatLeadOutside() {
  make_good_bundle
  repack ln -s ../Resources/INFO Contents/MacOS/inside
  expect_failure "doesn't end with" check_bundle good/Larkmoor.app
  expect_not_said "points to"
  repack ln -s ../../../elsewhere Contents/MacOS/out
  expect_failure "points to '../../../elsewhere', outside" check_bundle good/Larkmoor.app
  repack ln -s /etc Contents/MacOS/absolute
  expect_failure "points to '/etc', outside" check_bundle good/Larkmoor.app
}

TestCheckFindsPathsThatLeadOutside() {
  make_good_bundle
  echo x >outside
  (cd client && bsdtar -czP --format gnutar -f "../$PACKAGE" \
    Contents ../outside)
  expect_failure '".."' check_bundle good/Larkmoor.app
}

TestCheckAcceptsTwoDotsWithinAName() {
  make_client client 7
  echo text >client/Contents/a..b
  expect_success "$SCRIPTS/make-package" client client.lpk
  expect_success make_bundle --package client.lpk out.app
}

TestCheckFindsNamesThatTheCLocaleCannotConvert() {
  make_good_bundle
  expect_success "$SCRIPTS/make-package" --format pax client pax.lpk
  cp pax.lpk $PACKAGE
  expect_failure "can't read the package" check_bundle good/Larkmoor.app
}

run_tests
