#!/usr/bin/env bash
# What the documents promise is there: commands, files, pictures, presets and log lines.
#
# usage: documents-test.sh BUILD

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

PROJECT=$(dirname "$SCRIPTS")
BUILD=$(cd "$1" && pwd -P)

documents() { ls "$PROJECT"/*.md "$PROJECT"/docs/*.md "$PROJECT"/src/*/README.md 2>/dev/null; }

# expect_found WHAT COMMAND...: reads words from standard input; the command takes each.
expect_found() {
  local what=$1 word count=0 missing=''
  shift
  while IFS= read -r word; do
    count=$((count + 1))
    "$@" "$word" || missing="$missing
  $word"
  done
  [ -z "$missing" ] || fail "$what:$missing"
  [ $count -gt 0 ] || fail "the documents name nothing of this kind: the test looks in vain"
}

TestNoMergeIsLeftHalfDone() {
  local marks
  # shellcheck disable=SC2046  # our own files have no blanks in their names
  marks=$(grep -nE '^(<<<<<<<|=======$|>>>>>>>)' $(documents))
  [ -z "$marks" ] || fail "marks of a conflict:" "$marks"
}

TestScriptsThatAreNamedExist() {
  # shellcheck disable=SC2046
  grep -ohE '(scripts|resources|\.ci)/[a-z][a-z.-]+' $(documents) | sort -u |
    expect_found "named but missing" is_in_project
}

is_in_project() { [ -e "$PROJECT/${1%.}" ]; }

TestModesOfTheTestScriptExist() {
  # shellcheck disable=SC2046
  grep -ohE 'scripts/test [a-z][a-z0-9]+' $(documents) | awk '{ print $2 }' | sort -u |
    expect_found "no mode of scripts/test" is_mode
}

is_mode() { "$SCRIPTS/test" -h | grep -qE "^  $1 "; }

TestGroupsOfTheSetupScriptExist() {
  # shellcheck disable=SC2046
  grep -ohE 'scripts/setup [a-z][a-z0-9]+`' $(documents) | tr -d '`' | awk '{ print $2 }' | sort -u |
    expect_found "no group of scripts/setup" is_group
}

is_group() { "$SCRIPTS/setup" -l "$1" >/dev/null; }

TestPresetsThatAreNamedExist() {
  # shellcheck disable=SC2046
  grep -ohE -e '--preset [a-z0-9-]+' $(documents) | awk '{ print $2 }' | sort -u |
    expect_found "no such preset" is_preset
  # shellcheck disable=SC2016  # these are Markdown's
  sed -n '/^| Preset/,/^$/s/^| `\([a-z0-9-]*\)`.*/\1/p' "$PROJECT/CONTRIBUTING.md" |
    expect_found "no such preset" is_preset
}

TestTheTableOfPresetsHasAllOfThem() {
  # shellcheck disable=SC2016
  sed -n '/"buildPresets"/,/]/s/.*"name": "\([a-z0-9-]*\)".*/| `\1` |/p' "$PROJECT/CMakePresets.json" |
    expect_found "missing in CONTRIBUTING.md" is_in_contributing
}

is_in_contributing() { grep -qF -e "$1" "$PROJECT/CONTRIBUTING.md"; }

is_preset() { grep -q "\"name\": \"$1\"" "$PROJECT/CMakePresets.json"; }

TestLinksLeadSomewhere() {
  # shellcheck disable=SC2046
  grep -oHE '\]\([^)#:]+' $(documents) | grep -v '(https*$' | sed 's/:\](/ /' | expect_found "leads nowhere" is_link
}

# is_link "DOCUMENT TARGET"
is_link() { [ -e "$(dirname "${1% *}")/${1#* }" ]; }

TestLinksToHeadingsLeadToOne() {
  # shellcheck disable=SC2046
  grep -oHE '\]\([^)#:]*#[^)]+' $(documents) | sed 's/:\](/ /' | expect_found "no such heading" is_heading
}

# is_heading "DOCUMENT TARGET#HEADING", the heading as GitHub writes it in a link.
is_heading() {
  local document=${1% *} target=${1#* } file
  file=${target%%#*}
  if [ -n "$file" ]; then document=$(dirname "$document")/$file; fi
  sed -n 's/^##* //p' "$document" | tr '[:upper:] ' '[:lower:]-' | tr -d "'\`,.:" | grep -qxF "${target#*#}"
}

TestTheReadmeLeadsToEveryDocument() {
  documents | sed "s|^$PROJECT/||" | grep -v '^README.md$' | expect_found "not in the README" is_in_readme
}

# A link to a folder shows its README.
is_in_readme() { grep -qF -e "]($1)" -e "](${1%/README.md})" "$PROJECT/README.md"; }

# The newest section, "## [1.2.3] - 2030-12-31", is that of the version which is being worked on.
TestTheChangelogBeginsWithTheProjectsVersion() {
  local version
  version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' "$PROJECT/CMakeLists.txt")
  expect_equal "$version" "$(sed -n 's/^## \[\(.*\)\] - .*/\1/p' "$PROJECT/CHANGELOG.md" | head -n 1)"
  ! grep '^## ' "$PROJECT/CHANGELOG.md" |
    grep -vE '^## \[[0-9]+\.[0-9]+\.[0-9]+\] - ([0-9]{4}-[0-9]{2}-[0-9]{2}|Unreleased)$' ||
    fail "a section isn't headed by its version and date"
}

TestLogLinesOfTheReadmeAreInTheSources() {
  # Formats that are broken over two lines are joined.
  find "$PROJECT/src" -name '*.cpp' -exec cat {} + | tr '\n' '\001' |
    sed "s/\"$(printf '\001') *\"//g" | tr '\001' '\n' >sources
  # shellcheck disable=SC2016
  sed -n '/^| Symptom/,$s/^|[^|]*| `\([^`]*\)`.*/\1/p' "$PROJECT/README.md" |
    expect_found "logged nowhere" is_logged
}

# Numbers and texts of a line stand for the conversions of its format.
is_logged() {
  local text=$1
  case $text in "target_version = (, , , )") text="target_version = (%s, %s, %s, %s)" ;; esac
  grep -qF "$text" sources
}

TestFilesOfTheSourcesThatAreNamedExist() {
  # shellcheck disable=SC2046,SC2016
  grep -ohE '`(src|tests|cmake|resources|docs)/[A-Za-z0-9/._-]+`' $(documents) | tr -d '`' | sort -u |
    expect_found "named but missing" is_in_project
}

TestTheLogsDocumentListsEveryFormatUnderItsComponentAndNoOther() {
  python3 "$PROJECT/tests/scripts/log-formats.py" "$PROJECT/src" | sort -u >logged
  [ "$(wc -l <logged)" -gt 50 ] || fail "hardly any format found in the sources"
  # shellcheck disable=SC2016
  awk -F '`' '/^### Component/ { component = $2; sub(/_debug$/, "", component) }
    /^\| `\[/ { print component "\t" substr($2, 2, index($2, "]") - 2) "\t" $2 }' \
    "$PROJECT/docs/log-file.md" | sort >documented
  diff logged documented >difference || fail "< only logged, > only documented:" "$(cat difference)"
}

# Every block of commands runs, in a folder that looks like the project. What would take long is asked
# for its help there, and a build only for its commands, which shows that they take their options.
TestCommandLinesRun() {
  local document count=0
  make_stand_ins
  for document in $(documents); do
    # shellcheck disable=SC2016
    sed -n '/^```sh$/,/^```$/{/^```/!p;}' "$document" >commands
    [ -s commands ] || continue
    count=$((count + 1))
    PATH=$PWD/bin:$PATH bash -e commands >out 2>&1 </dev/null ||
      fail "a command of ${document#"$PROJECT"/} fails:" "$(cat out)"
  done
  [ $count -gt 1 ] || fail "the documents hold no commands: the test looks in vain"
}

TestNoCommandHidesInABlockThatIsOnlyIndented() {
  local hidden
  # shellcheck disable=SC2046
  hidden=$(grep -nE '^    ([A-Z_]+=[^ ]+ )*(scripts/|cmake |ctest |cpack )' $(documents))
  [ -z "$hidden" ] || fail "not run by TestCommandLinesRun:" "$hidden"
}

# A selection of tests that has become empty is an error of ctest's.
TestSelectionsOfTestsMatchSome() {
  # From a folder of its own, since even a list takes the place of the log of CTest's last run.
  printf 'subdirs("%s")\n' "$BUILD" >CTestTestfile.cmake
  ctest -N -L '^faults$' | grep -q '^Total Tests: 0$' &&
    skip "this build has no fault tests to select from"
  # shellcheck disable=SC2046
  grep -ohE "(scripts/test [a-z -]*|\`)-[RL] ('[^']+'|[A-Za-z]+)" $(documents) |
    grep -oE -e '-[RL] .*' | tr -d "'" | sort -u | expect_found "selects no test" is_selection
}

# is_selection "-R PATTERN"
is_selection() { ! ctest -N "${1%% *}" "${1#* }" | grep -q '^Total Tests: 0$'; }

make_stand_ins() {
  local name
  mkdir -p scripts bin build path/to/client
  for name in "$PROJECT"/*; do
    case ${name##*/} in build | scripts | dist) ;; *) ln -s "$name" . ;; esac
  done
  # What scripts/setup doesn't install is of no use here either.
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
      make-package | check-bundle | check-catalogues) write_stand_in "scripts/$name" '"$@"' ;;
      make-bundle) write_stand_in "scripts/$name" "--launcher '$BUILD' \"\$@\"" ;;
      *) write_stand_in "scripts/$name" -h ;;
    esac
  done
  for name in cmake ctest; do
    printf '#!/usr/bin/env bash\nexec bash %s %s "$@"\n' \
      "'$PROJECT/tests/scripts/preset-stand-in.sh'" "'$(command -v $name)'" >"bin/$name"
    chmod +x "bin/$name"
  done
}

# write_stand_in FILE ARGUMENTS
write_stand_in() {
  printf '#!/usr/bin/env bash\nexec %s %s\n' "'$SCRIPTS/$(basename "$1")'" "$2" >"$1"
  chmod +x "$1"
}

# Those for a Mac are only read: a shell says whether they are well formed.
TestCommandLinesForAMacAreWellFormed() {
  local document count=0
  for document in $(documents); do
    # shellcheck disable=SC2016
    sed -n '/^```sh mac$/,/^```$/{/^```/!p;}' "$document" >commands
    [ -s commands ] || continue
    count=$((count + 1))
    expect_success bash -n commands
  done
  [ $count -gt 0 ] || fail "the documents hold no commands for a Mac: the test looks in vain"
}

run_tests
