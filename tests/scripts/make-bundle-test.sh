#!/usr/bin/env bash
# usage: make-bundle-test.sh BUILD
# What scripts/make-bundle and the installation assemble from a build folder.

# shellcheck source=tests/scripts/bundle-harness.sh
. "$(dirname "$0")/bundle-harness.sh"

TestBundleIsComplete() {
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
  cmp client.lpk good/Larkmoor.app/Contents/Resources/package/larkmoor.lpk || fail "the package differs"
  cmp client/Contents/Resources/INFO good/Larkmoor.app/Contents/Resources/INFO || fail "INFO differs"
}

TestBundleHasTheProjectsVersion() {
  make_good_bundle
  expect_success check_bundle good/Larkmoor.app
  local version
  version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' "$PROJECT/CMakeLists.txt")
  expect_said "version $version, build 7, 6 entries, no fault"
}

TestPropertyListRequiresTheMacOSThatTheLauncherIsCompiledFor() {
  make_good_bundle
  local target
  target=$(sed -n 's/^CMAKE_OSX_DEPLOYMENT_TARGET:[A-Z]*=//p' "$BUILD/CMakeCache.txt")
  [ -n "$target" ] || fail "the build sets no deployment target"
  expect_equal "  <string>$target</string>" \
    "$(grep -A 1 LSMinimumSystemVersion good/Larkmoor.app/Contents/Info.plist | tail -n 1)"
}

TestInfoCanBeGivenSeparately() {
  make_client client 7
  expect_success "$SCRIPTS/make-package" client client.lpk
  printf '[Version]\nbuild_version=8\n' >INFO
  expect_failure "INFO in the bundle has build '8', INFO in the package '7'" \
    make_bundle --package client.lpk --info INFO out.app
  [ ! -e out.app ] || fail "a bundle that isn't fit to ship was left behind"
  expect_success make_bundle --no-check --package client.lpk --info INFO out.app
  cmp INFO out.app/Contents/Resources/INFO || fail "INFO differs"
}

TestPathsMayContainSpaces() {
  make_good_bundle
  mkdir "my folder"
  cp client.lpk "my folder/client 7.lpk"
  expect_success make_bundle --package "my folder/client 7.lpk" "my folder/Larkmoor 7.app"
  expect_success check_bundle "my folder/Larkmoor 7.app"
  expect_equal "Larkmoor 7.app
client 7.lpk" "$(LC_ALL=C ls -A "my folder")"
}

TestDestdirDoesNotMoveTheBundle() {
  make_good_bundle
  expect_success env DESTDIR="$PWD/elsewhere" "$SCRIPTS/make-bundle" --launcher "$BUILD" --package client.lpk out.app
  [ ! -e elsewhere ] || fail "DESTDIR moved the bundle"
  expect_success check_bundle out.app
}

TestReportsABundleWithoutAPackage() {
  expect_success make_bundle out.app
  expect_said "The bundle has no package"
}

TestRefusesASecondBundle() {
  expect_failure "'other.app' is a second one" make_bundle out.app other.app
}

TestFailureKeepsTheOlderBundle() {
  make_good_bundle
  head -c 100 client.lpk >short.lpk
  expect_failure "make-bundle:" make_bundle --package short.lpk good/Larkmoor.app
  expect_success check_bundle good/Larkmoor.app
  expect_equal Larkmoor.app "$(ls -A good)"
}

TestRefusesToReplaceAFolderThatIsNotABundle() {
  mkdir photos
  expect_failure "isn't a bundle" make_bundle photos
  [ -d photos ] || fail "the folder is gone"
}

TestRefusesATargetThatCannotBeWritten() {
  echo text >file
  expect_failure "choose another folder for the bundle" make_bundle file/Larkmoor.app
}

TestRefusesMissingPackageAndBuild() {
  expect_failure "there is no file 'none.lpk'" make_bundle --package none.lpk out.app
  expect_failure "isn't a build folder" "$SCRIPTS/make-bundle" --launcher . out.app
}

TestPlainInstallTakesThePackageFromTheEnvironment() {
  make_good_bundle
  expect_success env LARKMOOR_PACKAGE="$PWD/client.lpk" \
    cmake --install "$BUILD" --prefix "$PWD/installed" --component bundle
  expect_success check_bundle installed/Larkmoor.app
}

TestDownloadArchiveContainsTheBundle() {
  make_good_bundle
  expect_success env LARKMOOR_PACKAGE="$PWD/client.lpk" \
    cpack --config "$BUILD/CPackConfig.cmake" -G TGZ -B "$PWD/cpack"
  mkdir unpacked
  bsdtar -xf cpack/*.tar.gz -C unpacked || fail "can't unpack the archive"
  expect_success check_bundle unpacked/Larkmoor.app
}

# copy_libraries TOOL: the installation step that copies libraries on a Mac, with TOOL as macdeployqt.
# Only a Mac can test macdeployqt itself.
copy_libraries() {
  cmake -Dlarkmoor_app="$PWD/Larkmoor.app" -Dmacdeployqt="$1" -P "$PROJECT/cmake/CopyLibraries.cmake"
}

make_mac_bundle() {
  mkdir -p Larkmoor.app/Contents/Frameworks/plugins/platforms
  touch Larkmoor.app/Contents/Frameworks/plugins/platforms/libqcocoa.dylib
}

TestOnAMacTheLibrariesOfThePluginsAreCopied() {
  make_mac_bundle
  # shellcheck disable=SC2016  # expanded by the stub
  printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"%s/arguments"\n' "$PWD" >tool
  chmod +x tool
  expect_success copy_libraries "$PWD/tool"
  expect_equal "$PWD/Larkmoor.app
-no-plugins
-always-overwrite
-executable=$PWD/Larkmoor.app/Contents/Frameworks/plugins/platforms/libqcocoa.dylib" \
    "$(cat arguments)"
}

TestOnAMacAFailureToCopyLibrariesIsReported() {
  make_mac_bundle
  printf '#!/bin/sh\nexit 1\n' >tool
  chmod +x tool
  expect_failure "can't copy the libraries" copy_libraries "$PWD/tool"
  expect_failure "macdeployqt is missing" copy_libraries "$PWD/no-tool"
}

run_tests
