#!/usr/bin/env bash
# usage: mac-test.sh BUILD
# Checks what a Mac reads in the programs of a cross-compiled build, and the bundle made from them.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/../scripts/harness.sh"

BUILD=$(cd "$1" && pwd -P)
PROJECT=$(dirname "$SCRIPTS")
SDK=$PROJECT/build/mac-sdk
PATH=$SDK/bin:$PATH

LAUNCHER=$BUILD/src/launcher/launcher
CLIENT=$BUILD/demo/larkmoor-drive-ui

# part ARCHITECTURE FILE: writes that architecture's part of a universal file to the file "part".
part() { lipo "$2" -thin "$1" -output part || fail "$2 isn't for $1"; }

# load_commands NAME FIELD: prints this field of all load commands of "part" with this name.
load_commands() {
  otool -l part | awk -v name="$1" -v field="$2" '
    $1 == "cmd" { inside = $2 == name }
    inside && $1 == field { print $2 }'
}

# The oldest macOS that "part" runs on. The load command that says so depends on the architecture.
oldest() { { load_commands LC_VERSION_MIN_MACOSX version && load_commands LC_BUILD_VERSION minos; }; }

libraries() { load_commands LC_LOAD_DYLIB name | LC_ALL=C sort; }

TestEveryProgramIsForBothProcessors() {
  local program count=0
  find "$BUILD" -type f -perm -u+x ! -path '*/CMakeFiles/*' ! -name '*.*' >programs
  while IFS= read -r program; do
    expect_equal "x86_64 arm64" "$(lipo -archs "$program" 2>&1 | sed 's/ $//')"
    count=$((count + 1))
  done <programs
  for program in launcher larkmoor-drive-ui unit-launcher unit-foundation unit-platform-mac unit-volume; do
    grep -q "/$program\$" programs || fail "$program wasn't built"
  done
  printf '  %d programs\n' $count
}

TestLauncherRunsOnTheOldestMacOSInThePropertyList() {
  part x86_64 "$LAUNCHER"
  expect_equal "$(sed -n 's/^CMAKE_OSX_DEPLOYMENT_TARGET:STRING=//p' "$BUILD/CMakeCache.txt")" "$(oldest)"
  part arm64 "$LAUNCHER"
  expect_equal 11.0 "$(oldest)"
}

TestLauncherAndClientNeedOnlyLibrariesOfTheBundleAndTheSystem() {
  local architecture icu
  icu=$(basename "$SDK"/libraries/libicuuc.*)
  for architecture in x86_64 arm64; do
    part $architecture "$LAUNCHER"
    expect_equal "/System/Library/Frameworks/CoreServices.framework/Versions/A/CoreServices
/usr/lib/libSystem.B.dylib
/usr/lib/libc++.1.dylib
/usr/local/lib/libarchive.13.dylib
/usr/local/lib/$icu
@rpath/QtCore.framework/Versions/5/QtCore
@rpath/QtGui.framework/Versions/5/QtGui
@rpath/QtWidgets.framework/Versions/5/QtWidgets" "$(libraries)"
    part $architecture "$CLIENT"
    expect_equal "/usr/lib/libSystem.B.dylib
/usr/lib/libc++.1.dylib
@rpath/QtCore.framework/Versions/5/QtCore
@rpath/QtGui.framework/Versions/5/QtGui
@rpath/QtWidgets.framework/Versions/5/QtWidgets" "$(libraries)"
  done
}

# The bundle is made once, and then copied.
shared=$(mktemp -d "${TMPDIR:-/tmp}/larkmoor-mac.XXXXXX")
trap 'rm -rf "$shared"' EXIT

make_mac_bundle() {
  if [ ! -d "$shared/complete" ]; then
    mkdir -p "$shared/made"
    make_client "$shared/made/client" 7
    expect_success "$SCRIPTS/make-package" "$shared/made/client" "$shared/made/client.lpk"
    # The bundled libraries are stubs of our own.
    mkdir -p texts/stubs
    echo 'Contents/Frameworks/*: stubs' >texts/index.txt
    echo "free of any" >texts/stubs/LICENSE
    expect_success "$SCRIPTS/make-bundle" --launcher "$BUILD" --package "$shared/made/client.lpk" \
      --licenses texts "$shared/made/Larkmoor.app"
    mv "$shared/made" "$shared/complete"
  fi
  cp -Rp "$shared/complete/Larkmoor.app" .
}

check_bundle() { "$SCRIPTS/check-bundle" Larkmoor.app; }

# The package is excluded because it is compressed.
TestNoPathOfTheBuildMachineIsInTheBundle() {
  make_mac_bundle
  local path
  for path in "$PROJECT" /usr/include /usr/src "$HOME/"; do
    ! grep -rlF --exclude='*.lpk' -e "$path" Larkmoor.app >found || fail "$path is in:" "$(cat found)"
  done
}

TestBundleIsCompleteAndPassesTheCheck() {
  make_mac_bundle
  expect_equal "Contents/Frameworks/QtCore.framework/Versions/5/QtCore
Contents/Frameworks/QtGui.framework/Versions/5/QtGui
Contents/Frameworks/QtWidgets.framework/Versions/5/QtWidgets
Contents/Frameworks/libarchive.13.dylib
Contents/Frameworks/$(basename "$SDK"/libraries/libicuuc.*)
Contents/Frameworks/plugins/platforms/libqcocoa.dylib
Contents/Frameworks/plugins/platforms/libqoffscreen.dylib
Contents/Frameworks/plugins/styles/libqmacstyle.dylib
Contents/Info.plist
Contents/MacOS/launcher
Contents/Resources/INFO
Contents/Resources/images/ico_72_larkmoor.png
Contents/Resources/larkmoor.icns
Contents/Resources/licenses/index.txt
Contents/Resources/licenses/stubs/LICENSE
Contents/Resources/package/larkmoor.lpk" \
    "$(cd Larkmoor.app && find . -type f | sed 's|^\./||' | LC_ALL=C sort)"
  expect_equal "x86_64 arm64" "$(lipo -archs Larkmoor.app/Contents/MacOS/launcher | sed 's/ $//')"
  expect_success check_bundle
}

TestInstalledLauncherSearchesOnlyItsBundleForLibraries() {
  make_mac_bundle
  local architecture
  for architecture in x86_64 arm64; do
    part $architecture Larkmoor.app/Contents/MacOS/launcher
    expect_equal "@executable_path/../Frameworks" "$(load_commands LC_RPATH path)"
  done
}

TestPropertyListDescribesTheLauncher() {
  make_mac_bundle
  python3 - Larkmoor.app/Contents/Info.plist >out <<'END' || fail "Info.plist can't be read"
import plistlib, sys

with open(sys.argv[1], 'rb') as file:
    properties = plistlib.load(file)
for key in ('CFBundleExecutable', 'CFBundleIdentifier', 'CFBundlePackageType',
            'LSArchitecturePriority', 'LSMinimumSystemVersion', 'NSHighResolutionCapable'):
    print(key, properties[key])
END
  expect_equal "CFBundleExecutable launcher
CFBundleIdentifier com.larkmoor.drive.launcher
CFBundlePackageType APPL
LSArchitecturePriority ['x86_64', 'arm64']
LSMinimumSystemVersion 10.13
NSHighResolutionCapable True" "$(cat out)"
}

# thin FILE ARCHITECTURE: removes the other architectures from the file.
thin() { lipo "$1" -thin "$2" -output thin && mv thin "$1" && chmod +x "$1"; }

TestCheckFindsAMissingArchitecture() {
  make_mac_bundle
  cp -R Larkmoor.app saved
  thin Larkmoor.app/Contents/MacOS/launcher arm64
  expect_failure "Contents/MacOS/launcher lacks the architecture x86_64 (it has arm64)" check_bundle
  rm -r Larkmoor.app && mv saved Larkmoor.app
  thin Larkmoor.app/Contents/Frameworks/libarchive.13.dylib x86_64
  expect_failure "libarchive.13.dylib lacks the architecture arm64" check_bundle
}

TestCheckAcceptsABundleIntendedForOneArchitecture() {
  make_mac_bundle
  thin Larkmoor.app/Contents/MacOS/launcher arm64
  sed -i.bak '/<string>x86_64<\/string>/d' Larkmoor.app/Contents/Info.plist
  expect_success check_bundle
  expect_said "note: the bundle is only for arm64: a Mac with x86_64 can't start it"
}

TestCheckFindsLibrariesOutsideTheBundleAndTheSystem() {
  make_mac_bundle
  rm Larkmoor.app/Contents/Frameworks/libarchive.13.dylib
  expect_failure "launcher (arm64) needs @executable_path/../Frameworks/libarchive.13.dylib, which is neither" \
    check_bundle
  cp "$LAUNCHER" Larkmoor.app/Contents/MacOS/launcher
  expect_failure "launcher (x86_64) needs /usr/local/lib/libarchive.13.dylib, which is neither" check_bundle
  cp "$SDK/plugins/platforms/libqcocoa.dylib" Larkmoor.app/Contents/Frameworks/plugins/platforms/
  install-name-tool -add_rpath /usr/local/lib Larkmoor.app/Contents/Frameworks/plugins/platforms/libqcocoa.dylib
  expect_failure "libqcocoa.dylib (arm64) looks for libraries in '/usr/local/lib', outside" check_bundle
}

TestCheckFindsADeploymentTargetNewerThanThePropertyLists() {
  make_mac_bundle
  local library=Larkmoor.app/Contents/Frameworks/libarchive.13.dylib
  c++ -arch x86_64 -arch arm64 -mmacosx-version-min=14.2 -dynamiclib -x c++ /dev/null -o $library ||
    fail "can't make a library"
  expect_failure "libarchive.13.dylib (x86_64) requires macOS 14.2, but Info.plist promises 10.13" check_bundle
  expect_said "libarchive.13.dylib (arm64) requires macOS 14.2"
  sed -i.bak 's|<string>10.13<|<string>14.2<|' Larkmoor.app/Contents/Info.plist
  expect_success check_bundle
}

TestCheckFindsTruncatedPrograms() {
  make_mac_bundle
  local launcher=Larkmoor.app/Contents/MacOS/launcher
  thin $launcher arm64
  head -c 400 $launcher >short && cp short $launcher
  expect_failure "launcher is not a program that a Mac can load" check_bundle
}

# release_step NUMBER: prints the commands of this step in docs/releasing.md.
release_step() {
  awk -v title="### $1." '
    index($0, title) == 1 { here = 1; next }
    /^###? / { here = 0 }
    here && /^```sh mac/ { inside = 1; next }
    /^```/ { inside = 0 }
    here && inside' "$PROJECT/docs/releasing.md"
}

TestReleaseStepsSignTheBundleFromTheInsideOut() {
  make_mac_bundle
  mkdir -p dist bin && mv Larkmoor.app dist
  ln -s "$PROJECT/tests/mac/codesign" bin/codesign
  export CODESIGN_SEALS=$PWD/seals
  release_step 4 >commands
  grep -q codesign commands || fail "docs/releasing.md has no step 4"
  : >seals
  expect_success env PATH="$PWD/bin:$PATH" bash -eu -c "identity=-; $(cat commands)"
  expect_success "$SCRIPTS/check-bundle" dist/Larkmoor.app
  # The fake codesign detects a change.
  echo >>dist/Larkmoor.app/Contents/Frameworks/libarchive.13.dylib
  expect_failure "libarchive.13.dylib: not signed, or changed" bin/codesign --verify dist/Larkmoor.app
}

run_tests
