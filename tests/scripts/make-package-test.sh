#!/usr/bin/env bash
# What scripts/make-package packs, refuses and warns about.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

pack() { "$SCRIPTS/make-package" "$@"; }
names() { bsdtar -tf "$1"; }

TestSameFolderGivesSameBytesDespiteOtherTimesAndModes() {
  make_client client 7
  echo one >client/Contents/one
  expect_success pack client first.lpk
  cp -R client copy
  touch -t 200101010000 copy/Contents/one copy/Contents/Resources/INFO
  chmod 0600 copy/Contents/one
  expect_success pack copy second.lpk
  cmp first.lpk second.lpk || fail "the packages differ"
}

# Large enough for zstd to use several threads.
TestSameFolderGivesSameBytesOnAnyNumberOfCores() {
  make_client client 7
  seq 1 3000000 >client/Contents/numbers
  local cores
  for cores in 1 2 3; do
    LARKMOOR_JOBS=$cores expect_success pack --level 1 client $cores.lpk
    cmp 1.lpk $cores.lpk || fail "the packages differ"
  done
}

TestOtherFormatsAreReproducible() {
  make_client client 7
  local form
  for form in pax ustar cpio zip 7zip; do
    expect_success pack --format $form client first.lpk
    touch client/Contents/Resources/INFO
    expect_success pack --format $form client second.lpk
    cmp first.lpk second.lpk || fail "$form: the packages differ"
  done
}

# In gzip's header the time follows the magic number, the method and the flags.
TestGzipRecordsNoTime() {
  make_client client 7
  expect_success pack --filter gzip client out.lpk
  expect_equal " 00 00 00 00" "$(od -An -tx1 -j4 -N4 out.lpk | tr -s ' ' | sed 's/ *$//')"
}

TestEntriesAreDated1980OrSourceDateEpoch() {
  make_client client 7
  expect_success pack client out.lpk
  expect_equal 315532800 "$(times_in out.lpk)"
  expect_success env SOURCE_DATE_EPOCH=1000000000 "$SCRIPTS/make-package" client out.lpk
  expect_equal 1000000000 "$(times_in out.lpk)"
}

# times_in PACKAGE: the times of its entries, in seconds since 1970.
times_in() {
  bsdtar -cf - --format mtree --options '!all,time' "@$1" | sed -n 's/.*time=\([0-9]*\).*/\1/p' | sort -u
}

TestPathsMayContainSpaces() {
  make_client "my client/Larkmoor 2.app" 7
  mkdir "the packages" "temporary files"
  expect_success env TMPDIR="$PWD/temporary files" \
    "$SCRIPTS/make-package" "my client/Larkmoor 2.app" "the packages/out 2.lpk"
  expect_equal 5 "$(names "the packages/out 2.lpk" | wc -l | tr -d ' ')"
  expect_equal "out 2.lpk" "$(ls "the packages")"
}

TestLeavesNoTemporaryFiles() {
  make_client client 7
  mkdir temporary
  expect_success env TMPDIR="$PWD/temporary" "$SCRIPTS/make-package" client out.lpk
  ln -s /etc client/Contents/out
  expect_failure "outside the bundle" env TMPDIR="$PWD/temporary" "$SCRIPTS/make-package" client out.lpk
  expect_equal "" "$(ls -A temporary)"
}

TestQuietPrintsNothing() {
  make_client client 7
  expect_success pack --quiet client out.lpk
  expect_equal "" "$(cat out err)"
}

TestRequiresOneFolderAndOnePackage() {
  make_client client 7
  expect_failure "name the client's bundle and the package" pack client
  expect_failure "name the client's bundle and the package" pack client out.lpk more.lpk
}

# Like the launcher: the last value of a key counts, without quotes and carriage return.
TestReadsTheBuildNumberInAnyForm() {
  make_client client 7
  local text
  for text in 'build_version=7\nbuild_version=8' 'build_version="8"' 'build_version = 8\r' \
    '[Other]\nbuild_version=9\n[Version]\r\nbuild_version=8\r'; do
    printf '[Version]\n%b\n' "$text" >client/Contents/Resources/INFO
    expect_success pack client out.lpk
    expect_said "build 8"
    expect_not_said "warning"
  done
}

TestChangedByteGivesOtherBytes() {
  make_client client 7
  expect_success pack client first.lpk
  echo more >>client/Contents/MacOS/larkmoor-drive-ui
  expect_success pack client second.lpk
  ! cmp -s first.lpk second.lpk || fail "the packages are equal"
}

TestExecutableIsSecondToLastAndInfoIsLast() {
  make_client client 7
  mkdir -p client/Contents/zzz client/Contents/Resources/zzz
  echo z >client/Contents/zzz/z
  expect_success pack client out.lpk
  expect_equal "Contents/MacOS/larkmoor-drive-ui
Contents/Resources/INFO" "$(names out.lpk | tail -n 2)"
  expect_equal 8 "$(names out.lpk | wc -l | tr -d ' ')"
}

TestFoldersComeBeforeTheirContents() {
  make_client client 7
  mkdir -p client/Contents/b/c client/Contents/b-c
  echo x >client/Contents/b/c/x
  expect_success pack client out.lpk
  expect_equal "Contents/
Contents/MacOS/
Contents/Resources/
Contents/b/
Contents/b-c/
Contents/b/c/
Contents/b/c/x" "$(names out.lpk | head -n 7)"
}

TestUnpacksToTheSameTree() {
  make_client client 7
  mkdir -p "client/Contents/a b/ü" client/top
  echo 1 >"client/Contents/a b/ü/#=\\ x"
  echo 2 >client/Contents/$'new\nline'
  : >client/Contents/empty
  ln -s ../Resources/INFO client/Contents/MacOS/link
  ln client/Contents/empty client/Contents/other-name
  expect_success pack client out.lpk
  mkdir unpacked
  bsdtar -xf out.lpk -C unpacked || fail "bsdtar can't unpack it"
  diff -r client unpacked || fail "the trees differ"
  expect_equal ../Resources/INFO "$(readlink unpacked/Contents/MacOS/link)"
  [ -x unpacked/Contents/MacOS/larkmoor-drive-ui ] || fail "the client isn't executable"
}

TestHardLinksBecomeFiles() {
  make_client client 7
  echo x >client/Contents/a
  ln client/Contents/a client/Contents/b
  expect_success pack client out.lpk
  ! bsdtar -tvf out.lpk | grep '^h' || fail "there is a hard link in the package"
}

TestEveryFilterCanBeReadBack() {
  make_client client 7
  local each
  for each in gzip zstd xz bzip2 none; do
    expect_success pack --filter $each client out.lpk
    names out.lpk >/dev/null || fail "$each: can't be read back"
  done
}

TestDefaultFilterIsZstdWithASmallWindow() {
  make_client client 7
  # Larger than the window, and quick to compress at any level.
  head -c 6000000 /dev/zero >client/Contents/zeros
  local level window
  for level in "" 1 19 22; do
    expect_success pack ${level:+--level $level} client out.lpk
    zstd -lv out.lpk >list 2>&1 || fail "not a zstd file" "$(cat list)"
    window=$(sed -n 's/^Window Size:.*(\([0-9]*\) B)$/\1/p' list)
    [ -z "$(cat err)" ] || fail "level $level: $(cat err)"
    [ "$window" -le 4194304 ] || fail "level $level: the window has $window bytes"
    grep -q '^Check: XXH64' list || fail "level $level: there is no checksum" "$(cat list)"
  done
}

TestLevelMakesAPackageSmallerOrLarger() {
  make_client client 7
  cat "$SCRIPTS"/make-* "$SCRIPTS"/check-* >client/Contents/text
  local each
  for each in zstd gzip; do
    expect_success pack --filter $each --level 1 client fast.lpk
    expect_success pack --filter $each --level 9 client small.lpk
    [ "$(wc -c <small.lpk)" -lt "$(wc -c <fast.lpk)" ] || fail "$each: the level makes no difference"
  done
  # Without its option "ultra", zstd uses level 19 instead of 22.
  expect_success pack --level 19 client 19.lpk
  expect_success pack --level 22 client 22.lpk
  [ "$(wc -c <22.lpk)" -lt "$(wc -c <19.lpk)" ] || fail "level 22 compresses like level 19"
}

TestRefusesUnknownLevels() {
  make_client client 7
  expect_failure "'high' isn't a level" pack --level high client out.lpk
  expect_failure "'x9' isn't a level" pack --level x9 client out.lpk
  expect_failure "zstd has no level 23" pack --level 23 client out.lpk
  expect_failure "zstd has no level 0" pack --level 0 client out.lpk
  expect_failure "with the filter xz at level 77" pack --filter xz --level 77 client out.lpk
  expect_failure "--level needs a value" pack client out.lpk --level
}

TestReportsMissingZstd() {
  make_client client 7
  mkdir bin
  local each
  for each in bash dirname basename awk uname; do ln -s "$(command -v $each)" bin/; done
  expect_failure "zstd is missing: run scripts/setup" env PATH="$PWD/bin" "$SCRIPTS/make-package" client out.lpk
}

TestWarnsAboutNonAsciiNamesInAllFormatsButGnutar() {
  make_client client 7
  expect_success pack --format pax client out.lpk
  expect_not_said "warning"
  echo x >client/Contents/ü
  expect_success pack client out.lpk
  expect_not_said "warning"
  local form
  for form in pax zip cpio; do
    expect_success pack --format $form client out.lpk
    expect_said "Use gnutar"
  done
}

TestWarnsAboutAFormatThatReordersEntries() {
  make_client client 7
  : >client/Contents/empty
  expect_success pack --format 7zip client out.lpk
  expect_said "so INFO isn't the last"
}

TestRefusesAFolderWithoutTheClient() {
  make_client client 7
  rm client/Contents/MacOS/larkmoor-drive-ui
  expect_failure "has no Contents/MacOS/larkmoor-drive-ui" pack client out.lpk
  [ ! -e out.lpk ] || fail "a package was written"
}

TestRefusesAClientThatIsNotExecutable() {
  make_client client 7
  chmod -x client/Contents/MacOS/larkmoor-drive-ui
  expect_failure "chmod +x" pack client out.lpk
}

TestRefusesAFolderWithoutInfo() {
  make_client client 7
  rm client/Contents/Resources/INFO
  expect_failure "has no Contents/Resources/INFO" pack client out.lpk
}

TestRefusesContentsInsteadOfTheBundle() {
  make_client client 7
  expect_failure "name the folder that has Contents" pack client/Contents out.lpk
}

TestRefusesAMissingFolder() {
  expect_failure "isn't a folder" pack client out.lpk
}

TestRefusesAPackageInsideTheFolder() {
  make_client client 7
  expect_failure "can't be in the folder" pack client client/Contents/out.lpk
}

TestRefusesSymlinksThatLeadOutside() {
  make_client client 7
  ln -s /etc/passwd client/Contents/absolute
  expect_failure "make it relative" pack client out.lpk
  rm client/Contents/absolute
  ln -s ../../outside client/Contents/relative
  expect_failure "points to '../../outside', outside the bundle" pack client out.lpk
  rm client/Contents/relative
  ln -s ./../../outside client/Contents/dotted
  expect_failure "points to './../../outside', outside the bundle" pack client out.lpk
  rm client/Contents/dotted
  ln -s Resources/../../Contents/Resources/INFO client/Contents/inside
  expect_success pack client out.lpk
}

TestRefusesASymlinkThatLeadsOutsideThroughAnother() {
  make_client client 7
  mkdir -p client/Contents/a/b/c
  ln -s a/b/c client/Contents/deep
  mkdir client/Contents/MacOS/x
  ln -s ../.. client/Contents/MacOS/x/up
  ln -s MacOS/x/up/../../outside client/Contents/out
  expect_failure "outside the bundle" pack client out.lpk
}

TestRefusesNamesThatAMacCannotUnpack() {
  make_client client 7
  echo x >client/Contents/$'latin\374'
  expect_failure "isn't UTF-8" pack client out.lpk
  rm client/Contents/latin*
  echo x >client/Contents/Read
  echo x >client/Contents/READ
  expect_failure "differ only in case" pack client out.lpk
  rm client/Contents/READ
  echo x >client/Contents/Über
  echo x >client/Contents/über
  expect_failure "differ only in case" pack client out.lpk
  rm client/Contents/Über
  echo x >client/Contents/$'u\xcc\x88ber'
  expect_failure "differ only in case" pack client out.lpk
  rm client/Contents/*ber
  echo x >client/Contents/._Read
  expect_failure "metadata of another file" pack client out.lpk
}

TestRefusesAFolderAsThePackage() {
  make_client client 7
  mkdir folder
  expect_failure "can't be the package" pack client folder
  expect_failure "can't be the package" pack client ""
  expect_equal "" "$(ls -A folder)"
}

TestRefusesAFolderThatCannotBeRead() {
  make_client client 7
  mkdir client/Contents/closed
  chmod 0 client/Contents/closed
  if [ "$(id -u)" = 0 ]; then
    skip_without setpriv
    cp -R "$SCRIPTS" scripts
    chmod 755 . && mkdir -m 777 place
    expect_failure "change the mode, or remove" setpriv --reuid 65534 --clear-groups \
      env TMPDIR="$PWD/place" scripts/make-package client place/out.lpk
  else
    expect_failure "change the mode, or remove" pack client out.lpk
    chmod 755 client/Contents/closed
  fi
}

TestRefusesAFileThatCannotBeRead() {
  make_client client 7
  echo text >client/Contents/closed
  chmod 0 client/Contents/closed
  if [ "$(id -u)" = 0 ]; then
    skip_without setpriv
    cp -R "$SCRIPTS" scripts
    chmod 755 . && mkdir -m 777 place
    expect_failure "'Contents/closed' isn't readable" setpriv --reuid 65534 --clear-groups \
      env TMPDIR="$PWD/place" scripts/make-package client place/out.lpk
  else
    expect_failure "'Contents/closed' isn't readable" pack client out.lpk
  fi
}

TestRefusesSpecialFiles() {
  make_client client 7
  mkfifo client/Contents/pipe
  expect_failure "neither a file nor a folder nor a symlink" pack client out.lpk
}

TestRefusesUnknownFormatsAndFilters() {
  make_client client 7
  expect_failure "can't write the format tarball" pack --format tarball client out.lpk
  expect_failure "with the filter squeeze" pack --filter squeeze client out.lpk
}

TestFailureKeepsTheOlderPackage() {
  make_client client 7
  expect_success pack client out.lpk
  cp out.lpk before.lpk
  ln -s /etc client/Contents/out
  expect_failure "outside the bundle" pack client out.lpk
  cmp out.lpk before.lpk || fail "the package has changed"
}

TestWarnsAboutABuildThatIsNotANumber() {
  make_client client seven
  expect_success pack client out.lpk
  expect_said "under [Version]: the launcher would read"
  make_client client 2147483648
  expect_success pack client out.lpk
  expect_said "has no build_version from 0 to 2147483647"
  make_client client 18446744073709551617
  expect_success pack client out.lpk
  expect_said "has no build_version from 0 to 2147483647"
  make_client client 08
  expect_success pack client out.lpk
  expect_equal "" "$(cat err)"
  make_client client 2147483647
  expect_success pack client out.lpk
  expect_not_said "warning"
}

TestDrawsAProgressBarOnATerminal() {
  skip_without script
  make_client client 7
  expect_success script -qec "'$SCRIPTS/make-package' client out.lpk" /dev/null
  expect_said "[########################################] 100%"
  expect_success pack client out.lpk
  expect_not_said "100%"
}

run_tests
