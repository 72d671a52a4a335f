#!/usr/bin/env bash
# usage: documents-test.sh BUILD
# What the documents mention exists: commands, files, pictures, presets and log lines.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

PROJECT=$(dirname "$SCRIPTS")
BUILD=$(cd "$1" && pwd -P)

documents() { ls "$PROJECT"/*.md "$PROJECT"/docs/*.md "$PROJECT"/src/*/README.md 2>/dev/null; }

# expect_found MESSAGE COMMAND...: the command succeeds with each line of standard input, of which there
# is at least one. MESSAGE introduces the lines with which it fails.
expect_found() {
  local message=$1 word count=0 missing=''
  shift
  while IFS= read -r word; do
    count=$((count + 1))
    "$@" "$word" || missing="$missing
  $word"
  done
  [ -z "$missing" ] || fail "$message:$missing"
  [ $count -gt 0 ] || fail "the documents mention nothing of this kind, so the test checks nothing"
}

TestNoConflictMarkersAreLeft() {
  local marks
  # shellcheck disable=SC2046  # the names have no spaces
  marks=$(grep -nE '^(<<<<<<<|=======$|>>>>>>>)' $(documents))
  [ -z "$marks" ] || fail "conflict markers:" "$marks"
}

TestMentionedScriptsExist() {
  # shellcheck disable=SC2046
  grep -ohE '(scripts|resources|\.ci)/[a-z][a-z.-]+' $(documents) | sort -u |
    expect_found "mentioned but missing" is_in_project
}

is_in_project() { [ -e "$PROJECT/${1%.}" ]; }

TestModesOfTheTestScriptExist() {
  # shellcheck disable=SC2046
  grep -ohE 'scripts/test [a-z][a-z0-9]+' $(documents) | awk '{ print $2 }' | sort -u |
    expect_found "not a mode of scripts/test" is_mode
}

is_mode() { "$SCRIPTS/test" -h | grep -qE "^  $1 "; }

TestGroupsOfTheSetupScriptExist() {
  # shellcheck disable=SC2046
  grep -ohE 'scripts/setup [a-z][a-z0-9]+`' $(documents) | tr -d '`' | awk '{ print $2 }' | sort -u |
    expect_found "not a group of scripts/setup" is_group
}

is_group() { "$SCRIPTS/setup" -l "$1" >/dev/null; }

TestMentionedPresetsExist() {
  # shellcheck disable=SC2046
  grep -ohE -e '--preset [a-z0-9-]+' $(documents) | awk '{ print $2 }' | sort -u |
    expect_found "no such preset" is_preset
  # shellcheck disable=SC2016  # backticks of Markdown
  sed -n '/^| Preset/,/^$/s/^| `\([a-z0-9-]*\)`.*/\1/p' "$PROJECT/CONTRIBUTING.md" |
    expect_found "no such preset" is_preset
}

TestTheTableOfPresetsIsComplete() {
  # shellcheck disable=SC2016
  sed -n '/"buildPresets"/,/]/s/.*"name": "\([a-z0-9-]*\)".*/| `\1` |/p' "$PROJECT/CMakePresets.json" |
    expect_found "missing in CONTRIBUTING.md" is_in_contributing
}

is_in_contributing() { grep -qF -e "$1" "$PROJECT/CONTRIBUTING.md"; }

is_preset() { grep -q "\"name\": \"$1\"" "$PROJECT/CMakePresets.json"; }

TestLinkTargetsExist() {
  # shellcheck disable=SC2046
  grep -oHE '\]\([^)#:]+' $(documents) | grep -v '(https*$' | sed 's/:\](/ /' | expect_found "broken link" is_link
}

# is_link "DOCUMENT TARGET"
is_link() { [ -e "$(dirname "${1% *}")/${1#* }" ]; }

TestLinkedHeadingsExist() {
  # shellcheck disable=SC2046
  grep -oHE '\]\([^)#:]*#[^)]+' $(documents) | sed 's/:\](/ /' | expect_found "no such heading" is_heading
}

# is_heading "DOCUMENT TARGET#HEADING": HEADING is GitHub's anchor.
is_heading() {
  local document=${1% *} target=${1#* } file
  file=${target%%#*}
  if [ -n "$file" ]; then document=$(dirname "$document")/$file; fi
  sed -n 's/^##* //p' "$document" | tr '[:upper:] ' '[:lower:]-' | tr -d "'\`,.:" | grep -qxF "${target#*#}"
}

TestTheReadmeLinksToEveryDocument() {
  documents | sed "s|^$PROJECT/||" | grep -v '^README.md$' | expect_found "not linked in the README" is_in_readme
}

# is_in_readme DOCUMENT: a link to a folder leads to its README.
is_in_readme() { grep -qF -e "]($1)" -e "](${1%/README.md})" "$PROJECT/README.md"; }

# The first section, "## [1.2.3] - 2030-12-31", is the version in development.
TestTheChangelogStartsWithTheProjectsVersion() {
  local version
  version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' "$PROJECT/CMakeLists.txt")
  expect_equal "$version" "$(sed -n 's/^## \[\(.*\)\] - .*/\1/p' "$PROJECT/CHANGELOG.md" | head -n 1)"
  ! grep '^## ' "$PROJECT/CHANGELOG.md" |
    grep -vE '^## \[[0-9]+\.[0-9]+\.[0-9]+\] - ([0-9]{4}-[0-9]{2}-[0-9]{2}|Unreleased)$' ||
    fail "a section's heading isn't its version and date"
}

TestLogLinesOfTheReadmeAreInTheSources() {
  # Joins string literals that span two lines.
  find "$PROJECT/src" -name '*.cpp' -exec cat {} + | tr '\n' '\001' |
    sed "s/\"$(printf '\001') *\"//g" | tr '\001' '\n' >sources
  # shellcheck disable=SC2016
  sed -n '/^| Symptom/,$s/^|[^|]*| `\([^`]*\)`.*/\1/p' "$PROJECT/README.md" |
    expect_found "never logged" is_logged
}

# is_logged TEXT: a format contains TEXT. The README leaves the conversions of one out.
is_logged() {
  local text=$1
  case $text in "target_version = (, , , )") text="target_version = (%s, %s, %s, %s)" ;; esac
  grep -qF "$text" sources
}

TestMentionedSourceFilesExist() {
  # shellcheck disable=SC2046,SC2016
  grep -ohE '`(src|tests|cmake|resources|docs)/[A-Za-z0-9/._-]+`' $(documents) | tr -d '`' | sort -u |
    expect_found "mentioned but missing" is_in_project
}

TestTheLogDocumentListsExactlyTheFormatsOfEachComponent() {
  python3 "$PROJECT/tests/scripts/log-formats.py" "$PROJECT/src" | sort -u >logged
  [ "$(wc -l <logged)" -gt 50 ] || fail "too few formats found in the sources"
  # shellcheck disable=SC2016
  awk -F '`' '/^### Component/ { component = $2; sub(/_debug$/, "", component) }
    /^\| `\[/ { print component "\t" substr($2, 2, index($2, "]") - 2) "\t" $2 }' \
    "$PROJECT/docs/log-file.md" | sort >documented
  diff logged documented >difference || fail "< only logged, > only documented:" "$(cat difference)"
}

# Runs every block of commands in a folder that looks like the project. There, slow scripts only print
# their help and builds only their commands, which still checks the options of cmake.
TestCommandLinesRun() {
  local document count=0
  make_fake_project
  for document in $(documents); do
    # shellcheck disable=SC2016
    sed -n '/^```sh$/,/^```$/{/^```/!p;}' "$document" >commands
    [ -s commands ] || continue
    count=$((count + 1))
    PATH=$PWD/bin:$PATH bash -e commands >out 2>&1 </dev/null ||
      fail "a command of ${document#"$PROJECT"/} fails:" "$(cat out)"
  done
  [ $count -gt 1 ] || fail "the documents have no commands, so the test checks nothing"
}

TestNoCommandIsInAnIndentedBlock() {
  local hidden
  # shellcheck disable=SC2046
  hidden=$(grep -nE '^    ([A-Z_]+=[^ ]+ )*(scripts/|cmake |ctest |cpack )' $(documents))
  [ -z "$hidden" ] || fail "not run by TestCommandLinesRun:" "$hidden"
}

# ctest fails on a selection without tests.
TestSelectionsOfTestsMatchSome() {
  # In a separate folder, since even -N overwrites the log of CTest's last run.
  printf 'subdirs("%s")\n' "$BUILD" >CTestTestfile.cmake
  ctest -N -L '^faults$' | grep -q '^Total Tests: 0$' &&
    skip "this build has no fault tests to select from"
  # shellcheck disable=SC2046
  grep -ohE "(scripts/test [a-z -]*|\`)-[RL] ('[^']+'|[A-Za-z]+)" $(documents) |
    grep -oE -e '-[RL] .*' | tr -d "'" | sort -u | expect_found "selects no test" is_selection
}

# is_selection "-R PATTERN"
is_selection() { ! ctest -N "${1%% *}" "${1#* }" | grep -q '^Total Tests: 0$'; }

make_fake_project() {
  local name
  mkdir -p scripts bin build path/to/client
  for name in "$PROJECT"/*; do
    case ${name##*/} in build | scripts | dist) ;; *) ln -s "$name" . ;; esac
  done
  # Commands can't rely on tools that scripts/setup doesn't install.
  for name in make gmake; do
    printf '#!/bin/sh\necho "scripts/setup installs no %s" >&2\nexit 1\n' $name >"bin/$name"
    chmod +x "bin/$name"
  done
  ln -s "$BUILD" build/release
  make_client path/to/client/Larkmoor.app 100
  for name in "$SCRIPTS"/*; do
    [ -f "$name" ] || continue
    name=$(basename "$name")
    case $name in
      make-package | check-bundle | check-catalogues) write_wrapper "scripts/$name" '"$@"' ;;
      make-bundle) write_wrapper "scripts/$name" "--launcher '$BUILD' \"\$@\"" ;;
      *) write_wrapper "scripts/$name" -h ;;
    esac
  done
  for name in cmake ctest; do
    printf '#!/usr/bin/env bash\nexec bash %s %s "$@"\n' \
      "'$PROJECT/tests/scripts/fake-cmake.sh'" "'$(command -v $name)'" >"bin/$name"
    chmod +x "bin/$name"
  done
}

# write_wrapper FILE ARGUMENTS: makes FILE run the script of its name with these arguments.
write_wrapper() {
  printf '#!/usr/bin/env bash\nexec %s %s\n' "'$SCRIPTS/$(basename "$1")'" "$2" >"$1"
  chmod +x "$1"
}

# bash checks the syntax of these without running them.
TestCommandLinesForAMacAreValidSyntax() {
  local document count=0
  for document in $(documents); do
    # shellcheck disable=SC2016
    sed -n '/^```sh mac$/,/^```$/{/^```/!p;}' "$document" >commands
    [ -s commands ] || continue
    count=$((count + 1))
    expect_success bash -n commands
  done
  [ $count -gt 0 ] || fail "the documents have no commands for a Mac, so the test checks nothing"
}

run_tests
