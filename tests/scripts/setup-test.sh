#!/usr/bin/env bash
# scripts/setup and the other scripts' words, without installing anything.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

# fake NAME COMMAND: a program in the folder "bin" that does this.
fake() {
  mkdir -p bin
  printf '#!/bin/sh\n%s\n' "$2" >"bin/$1"
  chmod +x "bin/$1"
}

# Runs a script with nothing on the path but the fakes and the few programs that every system has.
with_fakes() {
  local program
  for program in bash sh awk sed tr sort uname dirname basename env cat; do
    [ -e "bin/$program" ] || ln -s "$(command -v $program)" "bin/$program"
  done
  PATH=$PWD/bin "$@"
}

setup() { with_fakes "$SCRIPTS/setup" "$@"; }

TestDoesNothingWhenAllIsThere() {
  fake dpkg-query 'echo installed'
  fake apt-get 'echo called >>calls'
  expect_success setup all
  expect_said "Everything for build test lint fuzz coverage bench docs is installed"
  [ ! -e calls ] || fail "apt-get was called"
}

TestInstallsOnlyWhatIsMissing() {
  fake dpkg-query 'case "$*" in *ninja*|*cmake*) exit 1 ;; esac; echo installed'
  fake id 'echo 0'
  fake apt-get 'echo "$@" >>calls'
  expect_success setup build
  expect_equal "update -qq -o APT::Update::Error-Mode=any
install -y -qq --no-install-recommends -o DPkg::Lock::Timeout=300 cmake ninja-build" "$(cat calls)"
}

TestUsesSudoForAUser() {
  fake dpkg-query 'case "$*" in *cmake*) exit 1 ;; esac; echo installed'
  fake id 'echo 1000'
  # shellcheck disable=SC2016  # the argument is the fake's
  fake apt-get 'echo "apt-get $1" >>calls'
  fake sudo 'echo sudo >>calls; exec "$@"'
  expect_success setup build
  expect_equal "sudo
apt-get update
sudo
apt-get install" "$(cat calls)"
}

TestSaysWhatAUserWithoutSudoLacks() {
  fake dpkg-query 'case "$*" in *cmake*) exit 1 ;; esac; echo installed'
  fake id 'echo 1000'
  fake apt-get 'echo called >>calls'
  expect_failure "installing them needs root: cmake. Run this as root" setup build
  [ ! -e calls ] || fail "apt-get was called"
}

TestListsThePackagesWhereThereIsNoApt() {
  fake dpkg-query 'exit 1'
  expect_failure "this system has no apt-get" setup build
  expect_said "libarchive-dev"
}

TestNamesTheNetworkWhenTheListsCannotBeFetched() {
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

TestRefusesUnknownGroup() {
  expect_failure "there is no group 'kitchen'" "$SCRIPTS/setup" kitchen
}

TestEveryScriptExplainsItself() {
  local script
  for script in "$SCRIPTS"/*; do
    case $script in */common.sh | *.py) continue ;; esac
    expect_success "$script" -h
    expect_said "usage: scripts/${script##*/}"
  done
}

TestTestRefusesUnknownModesAndStrayWords() {
  expect_failure "there is no mode 'quick'" "$SCRIPTS/test" -n quick
  expect_failure "is no number of seconds" "$SCRIPTS/test" -n fuzz soon
  expect_failure "only the mode fuzz" "$SCRIPTS/test" -n asan 60
}

# A copy of the project's scripts whose tools do nothing; ctest writes down what it is given.
test_with_fakes() {
  cp -r "$SCRIPTS" .
  mkdir -p build/release bin
  fake cmake :
  fake ctest 'echo "$@" >../../calls'
  PATH=$PWD/bin:$PATH expect_success "$PWD/scripts/test" -n "$@"
}

TestTestHandsOnWhatFollowsTheDashesWithAndWithoutAMode() {
  local words
  for words in "-- -R Extractor" "default -- -R Extractor"; do
    # shellcheck disable=SC2086  # a list of words
    test_with_fakes $words
    grep -q -e ' -R Extractor$' calls || fail "with '$words' ctest was given: $(cat calls)"
    rm -r scripts calls
  done
}

run_tests
