#!/usr/bin/env bash
# usage: bundle-test.sh BUILD
# What scripts/make-bundle assembles from a build folder, and what scripts/check-bundle says of it.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

BUILD=$(cd "$1" && pwd -P)
PROJECT=$(dirname "$SCRIPTS")

make_bundle() { "$SCRIPTS/make-bundle" --launcher "$BUILD" "$@"; }
check_bundle() { "$SCRIPTS/check-bundle" "$@"; }

shared=$(mktemp -d "${TMPDIR:-/tmp}/larkmoor-bundle.XXXXXX")
trap 'rm -rf "$shared"' EXIT

# A bundle of build 7 in the folder "good", with one file whose name is outside ASCII. It is assembled
# once, and then copied.
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

# repack COMMAND...: lets a command change the unpacked package, and packs what is then there in the
# order of the disk.
repack() {
  local package=good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk
  rm -rf unpacked && mkdir unpacked
  bsdtar -xf $package -C unpacked
  (cd unpacked && "$@" && bsdtar -czf "../$package" --format gnutar ./*) || fail "can't repack"
}

# repack_in_order: packs the unpacked package as scripts/make-package orders it, but with "./" before
# each name.
repack_in_order() {
  (cd unpacked && bsdtar -czn --format gnutar -f "../good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk" \
    ./Contents ./Contents/MacOS ./Contents/Resources ./Contents/Resources/über \
    ./Contents/MacOS/larkmoor-drive-ui ./Contents/Resources/INFO) || fail "can't repack"
}

in_bundle() { (cd good/Larkmoor.app/Contents && "$@"); }

TestBundleIsWhole() {
  make_good_bundle
  expect_equal "Contents
Contents/Frameworks
Contents/Frameworks/plugins
Contents/Frameworks/plugins/platforms
Contents/Frameworks/plugins/platforms/libqminimal.so
Contents/Frameworks/plugins/platforms/libqoffscreen.so
Contents/Frameworks/plugins/platforms/libqxcb.so
Contents/Info.plist
Contents/MacOS
Contents/MacOS/launcher
Contents/Resources
Contents/Resources/INFO
Contents/Resources/images
Contents/Resources/images/ico_72_larkmoor.png
Contents/Resources/larkmoor.icns
Contents/Resources/licenses
Contents/Resources/package
Contents/Resources/package/larkmoor.lpk" \
    "$(cd good/Larkmoor.app && find . -mindepth 1 ! -path '*/licenses/*' | sed 's|^\./||' | LC_ALL=C sort)"
  cmp client.lpk good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk || fail "other package"
  cmp client/Contents/Resources/INFO good/Larkmoor.app/Contents/Resources/INFO || fail "other INFO"
}

TestVersionOfTheBundleIsTheProjects() {
  make_good_bundle
  expect_success check_bundle good/Larkmoor.app
  local version
  version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' "$PROJECT/CMakeLists.txt")
  expect_said "version $version, build 7, 6 entries, no fault"
}

TestPropertyListAsksForTheMacOSThatTheLauncherIsCompiledFor() {
  make_good_bundle
  local target
  target=$(sed -n 's/^CMAKE_OSX_DEPLOYMENT_TARGET:[A-Z]*=//p' "$BUILD/CMakeCache.txt")
  [ -n "$target" ] || fail "the build leaves it to the Mac that it runs on"
  expect_equal "  <string>$target</string>" \
    "$(grep -A 1 LSMinimumSystemVersion good/Larkmoor.app/Contents/Info.plist | tail -n 1)"
}

TestInfoCanBeGivenByItself() {
  make_client client 7
  expect_success "$SCRIPTS/make-package" client client.lpk
  printf '[Version]\nbuild_version=8\n' >INFO
  expect_failure "INFO in the bundle has build '8', INFO in the package '7'" \
    make_bundle --package client.lpk --info INFO out.app
  [ ! -e out.app ] || fail "a bundle that isn't fit to ship was left behind"
  expect_success make_bundle --no-check --package client.lpk --info INFO out.app
  cmp INFO out.app/Contents/Resources/INFO || fail "another INFO"
}

TestPathsMayHoldBlanks() {
  make_good_bundle
  mkdir "my folder"
  cp client.lpk "my folder/client 7.lpk"
  expect_success make_bundle --package "my folder/client 7.lpk" "my folder/Larkmoor 7.app"
  expect_success check_bundle "my folder/Larkmoor 7.app"
  expect_equal "Larkmoor 7.app
client 7.lpk" "$(LC_ALL=C ls -A "my folder")"
}

TestBundleLiesWhereItIsAskedForWhateverTheInstallationsRoot() {
  make_good_bundle
  expect_success env DESTDIR="$PWD/elsewhere" "$SCRIPTS/make-bundle" --launcher "$BUILD" --package client.lpk out.app
  [ ! -e elsewhere ] || fail "the bundle is elsewhere"
  expect_success check_bundle out.app
}

TestFrameWithoutPackageSaysSo() {
  expect_success make_bundle out.app
  expect_said "The bundle has no package"
}

TestOneBundleIsMade() {
  expect_failure "'other.app' is a second one" make_bundle out.app other.app
}

TestFailureLeavesAnOlderBundleAlone() {
  make_good_bundle
  head -c 100 client.lpk >short.lpk
  expect_failure "make-bundle:" make_bundle --package short.lpk good/Larkmoor.app
  expect_success check_bundle good/Larkmoor.app
  expect_equal Larkmoor.app "$(ls -A good)"
}

TestRefusesToReplaceWhatIsNoBundle() {
  mkdir photos
  expect_failure "isn't a bundle" make_bundle photos
  [ -d photos ] || fail "the folder is gone"
}

TestRefusesAPlaceThatCannotBeWritten() {
  echo text >file
  expect_failure "choose another folder for the bundle" make_bundle file/Larkmoor.app
}

TestRefusesMissingPackageAndBuild() {
  expect_failure "there is no file 'none.lpk'" make_bundle --package none.lpk out.app
  expect_failure "isn't a build folder" "$SCRIPTS/make-bundle" --launcher . out.app
}

TestCheckNamesEachMissingFile() {
  local file
  make_good_bundle
  for file in MacOS/launcher Info.plist Resources/larkmoor.icns \
    Resources/images/ico_72_larkmoor.png Resources/INFO Resources/package/larkmoor.lpk; do
    in_bundle mv $file saved
    expect_failure "Contents/$file" check_bundle good/Larkmoor.app
    in_bundle mv saved $file
  done
  expect_success check_bundle good/Larkmoor.app
}

TestCheckFindsEmptyIcons() {
  local file
  make_good_bundle
  for file in larkmoor.icns images/ico_72_larkmoor.png; do
    in_bundle mv Resources/$file saved
    in_bundle touch Resources/$file
    expect_failure "the icon Contents/Resources/$file is missing" check_bundle good/Larkmoor.app
    in_bundle mv saved Resources/$file
  done
  in_bundle sed -i.bak 's|<string>larkmoor</string>|<string>empty</string>|' Info.plist
  in_bundle touch Resources/empty.icns
  expect_failure "no 'empty', the CFBundleIconFile of Info.plist" check_bundle good/Larkmoor.app
}

TestCheckNotesWhatMayBeMeant() {
  make_good_bundle
  mkdir good/Larkmoor.app/log && touch good/Larkmoor.app/log/launcher.debug
  printf '[Version]\nbuild_version=7\n' >good/Larkmoor.app/Contents/Resources/INFO
  printf '#!/bin/sh\n' >good/Larkmoor.app/Contents/MacOS/launcher
  expect_success check_bundle good/Larkmoor.app
  expect_said "note: log/launcher.debug sets log levels"
  expect_said "note: Contents/Resources/INFO has no major_version"
  expect_said "note: Contents/Resources/INFO has no minor_version"
  expect_said "note: Contents/Resources/INFO has no icon_overlay_version"
  expect_said "note: read the package with this system's libarchive"
}

TestCheckLeavesNoTemporaryFiles() {
  make_good_bundle
  repack chmod 555 Contents/Resources
  mkdir temporary
  expect_failure "folders that aren't writable" env TMPDIR="$PWD/temporary" "$SCRIPTS/check-bundle" good/Larkmoor.app
  expect_equal "" "$(ls -A temporary)"
  chmod 755 unpacked/Contents/Resources
}

# libarchive runs such a program for what it can't decode itself. The launcher's user has none.
TestCheckReadsThePackageWithoutOtherPrograms() {
  make_good_bundle
  mkdir bin
  zstd -qdc client.lpk >client.tar
  printf '#!/bin/sh\nexec cat "%s"\n' "$PWD/client.tar" >bin/lrzip
  chmod +x bin/lrzip
  { printf 'LRZI\000\006' && head -c 100 /dev/zero; } >package
  PATH=$PWD/bin:$PATH expect_success bsdtar -tf package
  cp package good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk
  PATH=$PWD/bin:$PATH expect_failure "can't read the package" check_bundle good/Larkmoor.app
}

TestCheckFindsLauncherThatCannotBeExecuted() {
  make_good_bundle
  in_bundle chmod -x MacOS/launcher
  expect_failure "chmod +x" check_bundle good/Larkmoor.app
}

TestCheckFindsAPluginOfAnotherQt() {
  local compiler plugins=good/Larkmoor.app/Contents/Frameworks/plugins/platforms
  compiler=$(sed -n 's/^CMAKE_CXX_COMPILER:[^=]*=//p' "$BUILD/CMakeCache.txt")
  make_good_bundle
  "$compiler" -shared -o libQt4Core.so.4 -Wl,-soname,libQt4Core.so.4 -x c++ /dev/null
  "$compiler" -shared -o $plugins/libqminimal.so -x c++ /dev/null -Wl,--no-as-needed \
    -Wl,-rpath,"$PWD" -L. -l:libQt4Core.so.4
  expect_failure "libqminimal.so is linked with Qt 4, the launcher with Qt" check_bundle good/Larkmoor.app
}

TestCheckFindsMissingPlugins() {
  make_good_bundle
  in_bundle mv Frameworks/plugins/platforms/libqxcb.so saved
  expect_failure "can't open a window" check_bundle good/Larkmoor.app
  in_bundle mv saved Frameworks/plugins/platforms/libqcocoa.dylib
  in_bundle sed -i.bak s/libqxcb.so/libqcocoa.dylib/ Resources/licenses/index.txt
  expect_success check_bundle good/Larkmoor.app
  in_bundle rm -r Frameworks/plugins/platforms
  expect_failure "can't open a window" check_bundle good/Larkmoor.app
}

TestCheckFindsLibrariesThatAreMissingHere() {
  local library
  for library in libicuuc libarchive; do
    rm -rf client client.lpk good
    make_good_bundle
    in_bundle sed -i.bak -E "s/($library\.so\.)[0-9]/\19/" MacOS/launcher
    expect_failure "needs libraries that this system lacks" check_bundle good/Larkmoor.app
    expect_said "$library.so.9"
  done
}

# A library that knows no zstd, under a name that the launcher alone asks for.
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
assert magic in library, "the first bytes of zstd aren't found in libarchive"
with open(sys.argv[2], "wb") as file:
    file.write(library.replace(magic, bytes(4)))
END
  in_bundle sed -i.bak "s/$name/$other/" MacOS/launcher
  expect_success env LD_LIBRARY_PATH="$PWD/lib" bsdtar -tf client.lpk
  expect_failure "the launcher's libarchive can't read the package (bsdtar: Error opening archive: Unrecognized" \
    env LD_LIBRARY_PATH="$PWD/lib" "$SCRIPTS/check-bundle" good/Larkmoor.app
}

TestCheckFindsLibrariesThatAreMissingUnderAnotherOne() {
  make_good_bundle
  local library name
  library=$(sed -n 's/^LibArchive_LIBRARY:FILEPATH=//p' "$BUILD/CMakeCache.txt")
  name=$(ldd "$library" | grep -o 'libxml2[^ ]*' | head -n 1)
  mkdir lib && : >"lib/$name"
  expect_failure "Contents/MacOS/launcher needs libraries that this system lacks" \
    env LD_LIBRARY_PATH="$PWD/lib" "$SCRIPTS/check-bundle" good/Larkmoor.app
  expect_said "lib/$name"
}

TestCheckFindsGlIntegrations() {
  make_good_bundle
  in_bundle mkdir Frameworks/plugins/xcbglintegrations
  expect_failure "remove it" check_bundle good/Larkmoor.app
}

TestCheckFindsWrongExecutableInThePropertyList() {
  make_good_bundle
  in_bundle sed -i.bak 's|<string>launcher</string>|<string>other</string>|' Info.plist
  expect_failure "CFBundleExecutable" check_bundle good/Larkmoor.app
}

TestCheckFindsPropertyListsThatTheSystemWouldRefuse() {
  make_good_bundle
  in_bundle cp Info.plist saved
  in_bundle sed -i.bak 's|</dict>||' Info.plist
  expect_failure "Info.plist isn't a property list" check_bundle good/Larkmoor.app
  in_bundle sed 's|APPL<|BNDL<|; s|com.larkmoor.drive.launcher||; s|<string>larkmoor</string>|<string>other</string>|' \
    saved >good/Larkmoor.app/Contents/Info.plist
  expect_failure "CFBundlePackageType in Info.plist isn't APPL" check_bundle good/Larkmoor.app
  expect_said "has no CFBundleIdentifier"
  expect_said "no 'other', the CFBundleIconFile of Info.plist"
  in_bundle sed 's/CFBundleShortVersionString/A/; s/CFBundleVersion/B/; s/LSMinimumSystemVersion/C/' \
    saved >good/Larkmoor.app/Contents/Info.plist
  expect_failure "has no CFBundleShortVersionString" check_bundle good/Larkmoor.app
  expect_said "has no CFBundleVersion"
  expect_said "has no LSMinimumSystemVersion"
}

TestCheckFindsBuildThatIsNoNumber() {
  make_good_bundle
  in_bundle sed -i.bak 's/build_version=7/build_version=7b/' Resources/INFO
  expect_failure "'7b'" check_bundle good/Larkmoor.app
  in_bundle sed -i.bak 's/build_version=7b/build_version=2147483648/' Resources/INFO
  expect_failure "isn't a number from 0 to 2147483647" check_bundle good/Larkmoor.app
  in_bundle sed -i.bak '/build_version/d' Resources/INFO
  expect_failure "has no build_version" check_bundle good/Larkmoor.app
}

TestCheckFindsTruncatedAndDamagedPackages() {
  local package=good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk
  make_good_bundle
  head -c $(($(wc -c <client.lpk) / 2)) client.lpk >$package
  expect_failure "can't read the package" check_bundle good/Larkmoor.app
  echo "this is no archive" >$package
  expect_failure "can't read the package" check_bundle good/Larkmoor.app
  : >$package
  expect_failure "missing or empty" check_bundle good/Larkmoor.app
}

TestCheckFindsOneFlippedBitInAPackage() {
  local package=good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk
  make_client client 7
  head -c 20000 /dev/urandom >client/Contents/Resources/noise
  expect_success "$SCRIPTS/make-package" --filter gzip client client.lpk
  expect_success make_bundle --package client.lpk good/Larkmoor.app
  # What can't be compressed is stored as it is, so that the middle of the package is noise.
  python3 - $package <<'END'
import sys

with open(sys.argv[1], "r+b") as package:
    package.seek(10000)
    byte = package.read(1)[0]
    package.seek(10000)
    package.write(bytes([byte ^ 1]))
END
  bsdtar -xOf $package >/dev/null || fail "libarchive notices the bit: the test shows nothing"
  expect_failure "the package is damaged" check_bundle good/Larkmoor.app
}

TestCheckFindsClientInThePackageThatCannotBeExecuted() {
  make_good_bundle
  repack chmod -x Contents/MacOS/larkmoor-drive-ui
  repack_in_order
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
  chmod +x unpacked/Contents/MacOS/larkmoor-drive-ui
  repack_in_order
  expect_success check_bundle good/Larkmoor.app
}

# repack_twice FIRST SECOND: the executable stands in the package twice, with these modes.
repack_twice() {
  repack chmod "$1" Contents/MacOS/larkmoor-drive-ui
  (cd unpacked && bsdtar -cf ../twice.tar --format gnutar Contents/MacOS/larkmoor-drive-ui &&
    chmod "$2" Contents/MacOS/larkmoor-drive-ui &&
    bsdtar -rf ../twice.tar --format gnutar Contents/MacOS/larkmoor-drive-ui Contents/Resources/INFO &&
    gzip -c ../twice.tar >../good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk) ||
    fail "can't repack"
}

TestCheckGoesByTheLastEntryOfTheExecutablesName() {
  make_good_bundle
  repack_twice 755 644
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
  repack_twice 644 755
  check_bundle good/Larkmoor.app >out 2>err
  expect_not_said "isn't executable"
}

TestCheckFollowsAnExecutableThatIsALink() {
  make_good_bundle
  repack sh -c 'cd Contents/MacOS && mv larkmoor-drive-ui real && ln -s real larkmoor-drive-ui'
  check_bundle good/Larkmoor.app >out 2>err
  expect_not_said "isn't executable"
  repack chmod 644 Contents/MacOS/real
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
  repack rm Contents/MacOS/real
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
}

TestCheckIsNotMisledByAnotherPathThatEndsInTheSameWay() {
  make_good_bundle
  repack sh -c 'mkdir -p "old Contents/MacOS" && cp Contents/MacOS/* "old Contents/MacOS" &&
    chmod 644 Contents/MacOS/larkmoor-drive-ui'
  expect_failure "isn't executable" check_bundle good/Larkmoor.app
}

# What has no modes unpacks with those that libarchive makes up.
TestCheckFindsFormatsThatCarryNoExecutableBit() {
  local package=good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk format
  make_good_bundle
  mkdir unpacked && bsdtar -xf $package -C unpacked
  rm unpacked/Contents/Resources/über
  bsdtar -cf joliet --format iso9660 --options '!rockridge' -C unpacked Contents 2>messages ||
    fail "can't make a Joliet image" "$(cat messages)"
  for format in cab windows-zip; do
    python3 "$PROJECT/tests/scripts/without-modes.py" $format unpacked $format
  done
  for format in joliet cab windows-zip; do
    cp $format $package
    expect_failure "in a format that has modes" check_bundle good/Larkmoor.app
    expect_not_said "can't read"
    expect_not_said "has no Contents"
  done
}

TestCheckFindsFoldersThatTheirOwnerCannotWrite() {
  make_good_bundle
  repack chmod 555 Contents/Resources
  expect_failure "folders that aren't writable" check_bundle good/Larkmoor.app
  chmod 755 unpacked/Contents/Resources
}

TestCheckFindsPackageThatIsNotFromTheInsideOfAClient() {
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

# pack_entries NAME...: packs these entries of the client in this order.
pack_entries() {
  (cd client && bsdtar -czn --format gnutar -f ../good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk \
    Contents Contents/MacOS Contents/Resources "$@") || fail "can't pack"
}

TestCheckWantsTheExecutableLastButOneAndInfoLast() {
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

TestCheckFindsInfoThatIsUnpackedTwice() {
  make_good_bundle
  pack_entries Contents/Resources/INFO Contents/Resources/über Contents/MacOS/larkmoor-drive-ui \
    Contents/Resources/INFO
  expect_failure "INFO twice" check_bundle good/Larkmoor.app
}

TestCheckFindsLinksThatLeadOut() {
  make_good_bundle
  repack ln -s ../Resources/INFO Contents/MacOS/inside
  expect_failure "doesn't end with" check_bundle good/Larkmoor.app
  expect_not_said "points to"
  repack ln -s ../../../elsewhere Contents/MacOS/out
  expect_failure "points to '../../../elsewhere', outside" check_bundle good/Larkmoor.app
  repack ln -s /etc Contents/MacOS/absolute
  expect_failure "points to '/etc', outside" check_bundle good/Larkmoor.app
}

TestCheckFindsNamesThatLeadOut() {
  make_good_bundle
  echo x >outside
  (cd client && bsdtar -czP --format gnutar -f ../good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk \
    Contents ../outside)
  expect_failure '".."' check_bundle good/Larkmoor.app
}

TestCheckLetsTwoDotsInsideANamePass() {
  make_client client 7
  echo text >client/Contents/a..b
  expect_success "$SCRIPTS/make-package" client client.lpk
  expect_success make_bundle --package client.lpk out.app
}

TestCheckFindsNamesThatTheCLocaleCannotConvert() {
  make_good_bundle
  expect_success "$SCRIPTS/make-package" --format pax client pax.lpk
  cp pax.lpk good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk
  expect_failure "can't read the package" check_bundle good/Larkmoor.app
}

# The name of what a library of the bundle is from.
origin_of() { sed -n "s|^Contents/Frameworks/$1: \([^ ]*\) .*|\1|p" good/Larkmoor.app/Contents/Resources/licenses/index.txt; }

TestBundleHoldsTheLicencesOfItsLibraries() {
  local library name text licenses=good/Larkmoor.app/Contents/Resources/licenses
  make_good_bundle
  in_bundle find Frameworks -type f >libraries
  [ -s libraries ] || fail "the bundle has no library: the test looks in vain"
  while IFS= read -r library; do
    name=$(origin_of "${library#Frameworks/}")
    [ -n "$name" ] || fail "$library isn't listed" "$(cat $licenses/index.txt)"
    cmp "/usr/share/doc/$name/copyright" "$licenses/$name/copyright" || fail "$library has no licence"
  done <libraries
  for text in GPL-3 LGPL-3; do
    cmp "/usr/share/common-licenses/$text" "$licenses/common-licenses/$text" || fail "$text is missing"
  done
}

TestCheckFindsLibrariesWithoutALicence() {
  local library=plugins/platforms/libqxcb.so name
  make_good_bundle
  name=$(origin_of $library)
  in_bundle mv Resources/licenses/common-licenses/LGPL-3 saved
  expect_failure "licenses/$name/copyright refers to LGPL-3, which is missing" check_bundle good/Larkmoor.app
  in_bundle mv saved Resources/licenses/common-licenses/LGPL-3
  in_bundle cp "Resources/licenses/$name/copyright" saved
  in_bundle tee "Resources/licenses/$name/copyright" </dev/null
  expect_failure "licenses/$name holds no text" check_bundle good/Larkmoor.app
  in_bundle mv saved "Resources/licenses/$name/copyright"
  expect_success check_bundle good/Larkmoor.app
  in_bundle sed -i.bak '/libqxcb/d' Resources/licenses/index.txt
  expect_failure "Contents/Frameworks/$library has no licence" check_bundle good/Larkmoor.app
  expect_not_said "libqoffscreen.so has no licence"
  in_bundle rm -r Resources/licenses
  expect_failure "libqoffscreen.so has no licence" check_bundle good/Larkmoor.app
}

TestLicencesOfLibrariesFromElsewhereComeFromAGivenFolder() {
  make_good_bundle
  mkdir -p texts/qt
  echo "the licence" >texts/qt/LICENSE
  expect_failure "there is no file 'texts/index.txt'" \
    make_bundle --licenses texts --package client.lpk good/Larkmoor.app
  echo 'Contents/Frameworks/plugins/*/lib*.so: qt 5.15' >texts/index.txt
  expect_success make_bundle --licenses texts/ --package client.lpk good/Larkmoor.app
  expect_equal qt "$(origin_of plugins/platforms/libqxcb.so)"
  expect_equal "index.txt qt" "$(in_bundle ls Resources/licenses | tr '\n' ' ' | sed 's/ $//')"
  cmp texts/qt/LICENSE good/Larkmoor.app/Contents/Resources/licenses/qt/LICENSE || fail "another text"
}

# make_keg FORMULA VERSION: an installation of Homebrew's, in the folder "homebrew".
make_keg() {
  mkdir -p "homebrew/Cellar/$1/$2" homebrew/opt
  ln -s "../Cellar/$1/$2" "homebrew/opt/$1"
}

# make_library FILE: enough of one to be taken for a Mac's.
make_library() {
  mkdir -p "$(dirname "$1")"
  printf '\317\372\355\376%s' "$1" >"$1"
}

TestHomebrewsLicencesAreFoundByTheNamesOfTheLibraries() {
  local formula frameworks=Larkmoor.app/Contents/Frameworks
  for formula in "qt@5 5.15.16" "qt 6.8.1" "zstd 1.5.7" "lost 1.0"; do
    # shellcheck disable=SC2086  # two words
    make_keg $formula
  done
  make_library homebrew/opt/qt@5/lib/QtCore.framework/Versions/5/QtCore
  make_library homebrew/opt/qt@5/plugins/platforms/libqcocoa.dylib
  make_library homebrew/opt/qt/lib/QtCore.framework/Versions/A/QtCore
  make_library homebrew/opt/qt/share/qt/plugins/platforms/libqcocoa.dylib
  make_library homebrew/opt/zstd/lib/libzstd.1.dylib
  make_library homebrew/opt/lost/lib/liblost.dylib
  echo "of Qt 5" >homebrew/opt/qt@5/LICENSE.LGPL3
  echo "of Qt 6" >homebrew/opt/qt/LICENSE.LGPL3
  echo "of zstd" >homebrew/opt/zstd/COPYING
  echo "no licence" >homebrew/opt/zstd/README.md
  # As macdeployqt leaves them.
  make_library $frameworks/QtCore.framework/Versions/5/QtCore
  ln -s Versions/5/QtCore $frameworks/QtCore.framework/QtCore
  make_library $frameworks/plugins/platforms/libqcocoa.dylib
  make_library $frameworks/libzstd.1.dylib
  make_library $frameworks/liblost.dylib
  mkdir bin
  printf '#!/bin/sh\nexit 1\n' >bin/dpkg
  printf '#!/bin/sh\necho "%s/homebrew"\n' "$PWD" >bin/brew
  chmod +x bin/*
  expect_success env PATH="$PWD/bin:$PATH" python3 "$SCRIPTS/lib/licences.py" copy Larkmoor.app
  expect_equal "no licence is found for Contents/Frameworks/liblost.dylib" "$(cat out)"
  cd Larkmoor.app/Contents/Resources/licenses || fail "no licences"
  expect_equal "Contents/Frameworks/QtCore.framework/Versions/5/QtCore: qt@5 5.15.16
Contents/Frameworks/libzstd.1.dylib: zstd 1.5.7
Contents/Frameworks/plugins/platforms/libqcocoa.dylib: qt@5 5.15.16" "$(cat index.txt)"
  expect_equal "./index.txt ./qt@5/LICENSE.LGPL3 ./zstd/COPYING" \
    "$(find . -type f | LC_ALL=C sort | tr '\n' ' ' | sed 's/ $//')"
}

TestPlainInstallTakesThePackageFromTheEnvironment() {
  make_good_bundle
  expect_success env LARKMOOR_PACKAGE="$PWD/client.lpk" \
    cmake --install "$BUILD" --prefix "$PWD/installed" --component bundle
  expect_success check_bundle installed/Larkmoor.app
}

TestArchiveForDownloadHoldsTheBundle() {
  make_good_bundle
  expect_success env LARKMOOR_PACKAGE="$PWD/client.lpk" \
    cpack --config "$BUILD/CPackConfig.cmake" -G TGZ -B "$PWD/cpack"
  mkdir unpacked
  bsdtar -xf cpack/*.tar.gz -C unpacked || fail "can't be unpacked"
  expect_success check_bundle unpacked/Larkmoor.app
}

# copy_libraries TOOL: as the installation of a Mac's bundle does. What the tool itself does can be
# seen on a Mac alone.
copy_libraries() {
  cmake -Dlarkmoor_app="$PWD/Larkmoor.app" -Dmacdeployqt="$1" -P "$PROJECT/cmake/CopyLibraries.cmake"
}

make_mac_bundle() {
  mkdir -p Larkmoor.app/Contents/Frameworks/plugins/platforms
  touch Larkmoor.app/Contents/Frameworks/plugins/platforms/libqcocoa.dylib
}

TestOnAMacTheLibrariesOfThePluginsAreCopiedToo() {
  make_mac_bundle
  # shellcheck disable=SC2016  # for the stand-in itself
  printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"%s/arguments"\n' "$PWD" >tool
  chmod +x tool
  expect_success copy_libraries "$PWD/tool"
  expect_equal "$PWD/Larkmoor.app
-no-plugins
-always-overwrite
-executable=$PWD/Larkmoor.app/Contents/Frameworks/plugins/platforms/libqcocoa.dylib" \
    "$(cat arguments)"
}

TestOnAMacAFailureToCopyLibrariesIsOne() {
  make_mac_bundle
  printf '#!/bin/sh\nexit 1\n' >tool
  chmod +x tool
  expect_failure "can't copy the libraries" copy_libraries "$PWD/tool"
  expect_failure "macdeployqt is missing" copy_libraries "$PWD/no-tool"
}

run_tests
