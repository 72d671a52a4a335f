#!/usr/bin/env bash
# usage: check-bundle-test.sh BUILD
# What scripts/check-bundle reports about a bundle, except about its package and licences.

# shellcheck source=tests/scripts/bundle-harness.sh
. "$(dirname "$0")/bundle-harness.sh"

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

TestCheckNotesWhatMayBeIntended() {
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

TestCheckFindsLauncherThatIsNotExecutable() {
  make_good_bundle
  in_bundle chmod -x MacOS/launcher
  expect_failure "chmod +x" check_bundle good/Larkmoor.app
}

TestCheckFindsPluginOfAnotherQt() {
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

TestCheckFindsMissingLibraries() {
  local library
  for library in libicuuc libarchive; do
    rm -rf client client.lpk good
    make_good_bundle
    in_bundle sed -i.bak -E "s/($library\.so\.)[0-9]/\19/" MacOS/launcher
    expect_failure "needs libraries that this system lacks" check_bundle good/Larkmoor.app
    expect_said "$library.so.9"
  done
}

TestCheckFindsMissingDependenciesOfLibraries() {
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

TestCheckFindsInvalidPropertyLists() {
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

TestCheckFindsBuildThatIsNotANumber() {
  make_good_bundle
  in_bundle sed -i.bak 's/build_version=7/build_version=7b/' Resources/INFO
  expect_failure "'7b'" check_bundle good/Larkmoor.app
  in_bundle sed -i.bak 's/build_version=7b/build_version=2147483648/' Resources/INFO
  expect_failure "isn't a number from 0 to 2147483647" check_bundle good/Larkmoor.app
  in_bundle sed -i.bak '/build_version/d' Resources/INFO
  expect_failure "has no build_version" check_bundle good/Larkmoor.app
}

run_tests
