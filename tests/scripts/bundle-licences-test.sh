#!/usr/bin/env bash
# usage: bundle-licences-test.sh BUILD
# The licences that scripts/make-bundle copies and scripts/check-bundle requires.

# shellcheck source=tests/scripts/bundle-harness.sh
. "$(dirname "$0")/bundle-harness.sh"

# origin_of LIBRARY: the name of the system's package that a library of the bundle comes from.
origin_of() {
  sed -n "s|^Contents/Frameworks/$1: \([^ ]*\) .*|\1|p" \
    good/Larkmoor.app/Contents/Resources/licenses/index.txt
}

TestBundleContainsTheLicencesOfItsLibraries() {
  local library name text licenses=good/Larkmoor.app/Contents/Resources/licenses
  make_good_bundle
  in_bundle find Frameworks -type f >libraries
  [ -s libraries ] || fail "the bundle has no library, so the test checks nothing"
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

TestLicencesCanComeFromAGivenFolder() {
  make_good_bundle
  mkdir -p texts/qt
  echo "the licence" >texts/qt/LICENSE
  expect_failure "there is no file 'texts/index.txt'" \
    make_bundle --licenses texts --package client.lpk good/Larkmoor.app
  echo 'Contents/Frameworks/plugins/*/lib*.so: qt 5.15' >texts/index.txt
  expect_success make_bundle --licenses texts/ --package client.lpk good/Larkmoor.app
  expect_equal qt "$(origin_of plugins/platforms/libqxcb.so)"
  expect_equal "index.txt qt" "$(in_bundle ls Resources/licenses | tr '\n' ' ' | sed 's/ $//')"
  cmp texts/qt/LICENSE good/Larkmoor.app/Contents/Resources/licenses/qt/LICENSE || fail "LICENSE differs"
}

# make_keg FORMULA VERSION: a formula as Homebrew installs it, in the folder "homebrew".
make_keg() {
  mkdir -p "homebrew/Cellar/$1/$2" homebrew/opt
  ln -s "../Cellar/$1/$2" "homebrew/opt/$1"
}

# make_library FILE: a file that passes for a Mac's library.
make_library() {
  mkdir -p "$(dirname "$1")"
  printf '\317\372\355\376%s' "$1" >"$1"
}

TestHomebrewsLicencesAreFoundByTheNamesOfLibraries() {
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

run_tests
