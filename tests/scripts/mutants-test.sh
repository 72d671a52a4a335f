#!/usr/bin/env bash
# Runs tests/mutants/mutants.py on a project of one function.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

MUTANTS=$(dirname "$SCRIPTS")/tests/mutants/mutants.py

# make_project: a project whose test leaves out 0.
make_project() {
  mkdir -p tiny/src/foundation tiny/tests/unit/foundation tiny/tests/mutants
  cat >tiny/CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.21)
project(tiny LANGUAGES CXX)
enable_testing()
set(CMAKE_CXX_STANDARD 17)
add_library(tiny STATIC src/foundation/sign.cpp)
add_subdirectory(tests/unit/foundation)
END
  cat >tiny/tests/unit/foundation/CMakeLists.txt <<'END'
add_executable(unit-sign sign-test.cpp)
target_link_libraries(unit-sign tiny)
add_test(NAME unit-sign COMMAND unit-sign)
END
  cat >tiny/tests/unit/foundation/sign-test.cpp <<'END'
int Sign(int number);
int main() { return Sign(5) == 1 && Sign(-5) == -1 ? 0 : 1; }
END
  cat >tiny/src/foundation/sign.cpp <<'END'
// if (number < 0) return 1;
static_assert(sizeof(char) == 1);
int Sign(int number) {
  int const known = 7;
  if (number < 0) return -known / known;
  return number == 0 ? 0 : 1;
}
END
  cat >tiny/tests/mutants/equivalent.txt <<'END'
= src/foundation/sign.cpp
- static_assert(sizeof(char) == 1);
+ static_assert(sizeof(char) != 1);
  every other change of the line is planted
- int const known = 7;
  any number will do
END
}

mutants() { python3 "$MUTANTS" tiny 2 "$@"; }

# The sandbox needs privileges that some containers lack.
skip_without_sandbox() {
  skip_without bwrap
  bwrap --ro-bind / / --dev-bind /dev /dev --proc /proc --unshare-pid true 2>/dev/null ||
    skip "bwrap can't create a sandbox here"
}

TestEveryMutantIsJudged() {
  skip_without_sandbox
  make_project
  expect_failure "mistakes, seed 1: " mutants 1000 1
  awk '/^(killed|surviving|not compiling) / { verdict = $0; sub(/ +src.*/, "", verdict) }
    /^ +-> / { sub(/^ +-> /, ""); print verdict ": " $0 }' out | LC_ALL=C sort >judged
  cat >expected <<'END'
killed: if (number < 0) return !(-known / known);
killed: if (number < 0) return -known * known;
killed: if (number < 0) return {};
killed: if (number >= 0) return -known / known;
killed: return !(number == 0 ? 0 : 1);
killed: return number != 0 ? 0 : 1;
killed: return number == 0 ? 0 : 0;
killed: return number == 0 ? 0 : 2;
killed: return number == 0 ? 1 : 0;
killed: return {};
not compiling: static_assert(sizeof(char) == 0);
not compiling: static_assert(sizeof(char) == 2);
surviving: if (number < -1) return -known / known;
surviving: if (number < 1) return -known / known;
surviving: if (number <= 0) return -known / known;
surviving: return number == -1 ? 0 : 1;
surviving: return number == 0 ? -1 : 1;
surviving: return number == 0 ? 1 : 1;
surviving: return number == 1 ? 0 : 1;
END
  diff expected judged >difference || fail "< expected, > judged:" "$(cat difference)"
  expect_said "19 mistakes, seed 1: 10 killed, 7 surviving, 2 not compiling"
  [ ! -e tiny/build/mutants ] || fail "the copies were left behind"
}

TestASeedRepeatsTheSameMutants() {
  skip_without_sandbox
  make_project
  mutants 2 5 >first
  mutants 2 5 >second
  grep -q 'mistakes, seed 5: ' first || fail "$(cat first)"
  diff <(grep -e '->' first | sort) <(grep -e '->' second | sort) || fail "the second run made other mutants"
}

TestRefusesAnEquivalentThatIsNotAMutant() {
  skip_without_sandbox
  make_project
  printf -- '- return 5;\n' >>tiny/tests/mutants/equivalent.txt
  expect_failure "return 5;" mutants 1 1
}

run_tests
