#!/usr/bin/env bash
# What the documents promise is there: commands, files, pictures, presets and log lines.

# shellcheck source=tests/scripts/harness.sh
. "$(dirname "$0")/harness.sh"

PROJECT=$(dirname "$SCRIPTS")

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

TestScriptsThatAreNamedExist() {
  # shellcheck disable=SC2046  # our own files have no blanks in their names
  grep -ohE '(scripts|resources|\.ci)/[a-z][a-z.-]+' $(documents) | sort -u |
    expect_found "named but missing" is_in_project
}

is_in_project() { [ -e "$PROJECT/${1%.}" ]; }

TestModesOfTheTestScriptExist() {
  # shellcheck disable=SC2046
  grep -ohE 'scripts/test [a-z]+' $(documents) | awk '{ print $2 }' | sort -u |
    expect_found "no mode of scripts/test" is_mode
}

is_mode() { "$SCRIPTS/test" -h | grep -qE "^  $1 "; }

TestGroupsOfTheSetupScriptExist() {
  # shellcheck disable=SC2046
  grep -ohE 'scripts/setup [a-z]+`' $(documents) | tr -d '`' | awk '{ print $2 }' | sort -u |
    expect_found "no group of scripts/setup" "$SCRIPTS/setup" -l
}

TestPresetsThatAreNamedExist() {
  # shellcheck disable=SC2046
  grep -ohE -e '--preset [a-z]+' $(documents) | awk '{ print $2 }' | sort -u |
    expect_found "no such preset" is_preset
  # shellcheck disable=SC2016  # these are Markdown's
  sed -n '/^| Preset/,/^$/s/^| `\([a-z]*\)`.*/\1/p' "$PROJECT/CONTRIBUTING.md" |
    expect_found "no such preset" is_preset
}

is_preset() { grep -q "\"name\": \"$1\"" "$PROJECT/CMakePresets.json"; }

TestLinksLeadSomewhere() {
  # shellcheck disable=SC2046
  grep -oHE '\]\([^)#:]+' $(documents) | sed 's/:\](/ /' | expect_found "leads nowhere" is_link
}

# is_link "DOCUMENT TARGET"
is_link() { [ -e "$(dirname "${1% *}")/${1#* }" ]; }

TestLogLinesOfTheReadmeAreInTheSources() {
  # Formats that are broken over two lines are joined.
  find "$PROJECT/src" -name '*.cpp' -exec cat {} + | tr '\n' '\001' |
    sed "s/\"$(printf '\001') *\"//g" | tr '\001' '\n' >sources
  # shellcheck disable=SC2016
  sed -n '/^| What one sees/,$s/^|[^|]*| `\([^`]*\)`.*/\1/p' "$PROJECT/README.md" |
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

run_tests
