#!/usr/bin/env bash
# usage: bsd-test.sh TEST [ARGUMENT...]
# Runs a test of the scripts with stand-ins first on the path that know only what a Mac's tools know,
# and that pad their output as these do. TEST is a file of this folder.
#
# Some macOS have more than is let through here, sort -z for instance: the oldest decides.
set -euo pipefail

bin=$(mktemp -d "${TMPDIR:-/tmp}/larkmoor-bsd.XXXXXX")
trap 'rm -rf "$bin"' EXIT

# tool NAME OPTIONS: OPTIONS as getopts takes them.
tool() {
  local real
  real=$(command -v "$1") || return 0
  {
    printf '#!%s\nname=%s\nreal=%s\noptions=%s\n' "$BASH" "$1" "$real" "$2"
    cat <<'END'
refuse() {
  printf '%s: not on a Mac: %s\n' "$name" "$*" >&2
  exit 64
}
given=("$@")
case $name in
  # Folders come first, then what to look for.
  find)
    while getopts ":$options" option; do
      case $option in \?) break ;; esac
    done
    for word in "$@"; do
      case $word in
        -printf | -fprintf | -fprint* | -fls | -regextype | -readable | -writable | -executable | -xtype)
          refuse "$word" ;;
      esac
    done
    ;;
  *)
    while getopts ":$options" option; do
      case $option in
        \?) refuse "-$OPTARG in: $name ${given[*]}" ;;
        :) refuse "-$OPTARG without a value in: $name ${given[*]}" ;;
        i) [ "$name" != sed ] || [ "${OPTARG#.}" != "$OPTARG" ] || refuse "-i without a suffix" ;;
        n | c) [ "$name" != head ] || [ "${OPTARG#-}" = "$OPTARG" ] || refuse "-$option $OPTARG" ;;
      esac
    done
    # Here an option ends with the first word that is none.
    shift $((OPTIND - 1))
    for word in "$@"; do
      case $name:$word in grep:-* | cp:-* | sort:-* | rm:-* | ls:-*)
        [ "$word" = - ] || [ "${given[$((OPTIND - 2))]}" = -- ] || refuse "$word behind a name" ;;
      esac
    done
    ;;
esac
case $name in
  wc) "$real" "${given[@]}" | sed 's/^/       /' ;;
  od) "$real" "${given[@]}" | sed 's/ /      /g; s/$/     /' ;;
  *) exec "$real" ${given[@]+"${given[@]}"} ;;
esac
END
  } >"$bin/$1"
  chmod +x "$bin/$1"
}

tool basename as:
tool cat belnstuv
tool cmp blszhi:n:
tool cp HLPRXacfilnprv
tool cut b:c:d:f:nsw
tool date jnRuf:v:r:I:
tool df PabgHhIiklmnT:
tool diff abBcdefghHiI:lnNopPqrsStTuU:wx:X:y
tool du HLPasdcghkmnrxd:B:I:t:
tool find EHLPXdsxf:
tool grep abcdDEFGHhIiJLlm:noOpqRSsUVvwxZA:B:C:e:f:
tool head n:c:
tool ln FLPfhinsvw
tool ls 'ABCDFGHILOPRSTUWabcdefghiklmnopqrstuvwxy1%'
tool mkdir pvm:
tool mktemp dqut:
tool mv fhinv
tool od aBbcDdeFfHhIiLlOosvXxA:j:N:t:
tool paste sd:
tool readlink n
tool rm dfiPRrvWx
tool sed Eae:f:i:lnru
tool sort bcCdfghiMmnrsuRk:o:t:T:S:
tool stat FLnqf:lrst:x
tool tail Frqfb:c:n:
tool tee ai
tool touch A:acfhmr:t:
tool tr Ccdsu
tool uname amnoprsv
tool uniq cdDiuf:s:
tool wc clmwL
tool xargs 0optxE:I:J:L:n:P:R:S:s:
# What a Mac hasn't at all; what the scripts look for before they call it isn't here.
for name in tac shuf timeout realpath sha256sum md5sum numfmt stdbuf setsid; do
  printf '#!/bin/sh\necho "%s: not on a Mac" >&2\nexit 127\n' $name >"$bin/$name"
  chmod +x "$bin/$name"
done

test=$(cd "$(dirname "$0")" && pwd -P)/$1
shift
PATH=$bin:$PATH bash "$test" "$@"
