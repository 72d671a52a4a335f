# What the scripts share. Sourced, never run. Written for bash 3.2, the bash of macOS.
# shellcheck shell=bash
set -euo pipefail

PROJECT=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
SELF=$(basename "$0")

say() { printf '== %s\n' "$*"; }

warn() { printf '%s: warning: %s\n' "$SELF" "$*" >&2; }

die() {
  printf '%s: %s\n' "$SELF" "$*" >&2
  exit 1
}

# The comment at the top of a script is its help text.
show_help() { awk 'NR > 1 { if (!/^#/) exit; sub(/^# ?/, ""); print }' "$0"; }

have() { command -v "$1" >/dev/null 2>&1; }

on_mac() { [ "$(uname -s)" = Darwin ]; }

# wait_until SECONDS COMPLAINT COMMAND...: polls until the command succeeds.
wait_until() {
  local deadline=$((SECONDS + $1)) complaint=$2
  shift 2
  until "$@"; do
    [ $SECONDS -lt $deadline ] || die "$complaint"
    sleep 0.1
  done
}

# Whether a window manager runs on $DISPLAY.
manager_runs() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# Number of parallel jobs: LARKMOOR_JOBS, or one per core.
jobs_wanted() {
  if [ -n "${LARKMOOR_JOBS:-}" ]; then
    printf '%s\n' "$LARKMOOR_JOBS"
  elif have nproc; then
    nproc
  else
    sysctl -n hw.ncpu 2>/dev/null || printf '2\n'
  fi
}

# configure_preset PRESET: configures build/PRESET, with ccache if it is installed.
configure_preset() {
  if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ] && have ccache; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
  fi
  say "Configuring build/$1"
  (cd "$PROJECT" && cmake --preset "$1" -Wno-dev >"$PROJECT/build/$1.configure.log" 2>&1) || {
    cat "$PROJECT/build/$1.configure.log" >&2
    die "CMake can't configure build/$1, see above. If a package is missing, run scripts/setup;" \
      "if the folder belongs to another checkout, remove build/$1."
  }
}

# build_preset PRESET [TARGET...]: builds the targets, or everything.
build_preset() {
  local preset=$1 targets=()
  shift
  if [ $# -gt 0 ]; then targets=(--target "$@"); fi
  mkdir -p "$PROJECT/build"
  configure_preset "$preset"
  say "Building build/$preset"
  cmake --build "$PROJECT/build/$preset" -j "$(jobs_wanted)" ${targets[@]+"${targets[@]}"} ||
    die "can't build build/$preset, see the message above"
}

# keep_out_of_home FOLDER: makes Qt and fontconfig use this folder instead of the home, or of /tmp in a
# session without a runtime folder. Call it after building, because ccache must not move.
keep_out_of_home() {
  export XDG_CACHE_HOME=$1/cache
  if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    export XDG_RUNTIME_DIR=$1/runtime
    mkdir -p "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
  fi
}

# version_value INFO KEY: the value of a key in the group "Version", or nothing.
version_value() {
  awk -v key="$2" '
    { sub(/\r$/, "") }
    /^[ \t]*\[/ { inside = /^[ \t]*\[Version\][ \t]*$/; next }
    inside && index($0, "=") {
      name = substr($0, 1, index($0, "=") - 1)
      value = substr($0, index($0, "=") + 1)
      gsub(/^[ \t]+|[ \t]+$/, "", name)
      gsub(/^[ \t"]+|[ \t"]+$/, "", value)
      if (name == key) found = value
    }
    END { print found }' "$1"
}

# leads_out PATH TARGET: whether a symlink at this path of a bundle leads out of it.
leads_out() {
  local rest part depth
  case $2 in /*) return 0 ;; esac
  rest=${1//[!\/]/}
  depth=${#rest}
  rest=$2/
  while [ -n "$rest" ]; do
    part=${rest%%/*}
    rest=${rest#*/}
    case $part in
      "" | .) ;;
      ..) depth=$((depth - 1)) ;;
      *) depth=$((depth + 1)) ;;
    esac
    [ "$depth" -ge 0 ] || return 0
  done
  return 1
}

# The launcher compares builds as signed 32-bit numbers.
readonly GREATEST_BUILD=2147483647

# is_build STRING: whether the launcher parses the string as the number that it shows.
is_build() {
  case $1 in "" | *[!0-9]* | ???????????*) return 1 ;; esac
  [ $((10#$1)) -le $GREATEST_BUILD ]
}

# libarchive's tar: "bsdtar" on Debian, both names on macOS.
bsdtar_name() {
  if have bsdtar; then
    echo bsdtar
  elif on_mac; then
    echo tar
  else
    die "bsdtar is missing: run scripts/setup test"
  fi
}

# A locale that can convert names to and from UTF-8.
utf8_locale() { if on_mac; then echo en_US.UTF-8; else echo C.UTF-8; fi; }
