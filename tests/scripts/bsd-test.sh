#!/usr/bin/env bash
# usage: bsd-test.sh TEST [ARGUMENT...]
# Runs TEST, a file of this folder, with wrappers of the tools first on the path. They accept only the
# options of a Mac's tools, and pad their output like them.
#
# The oldest macOS decides: newer ones know more options, sort -z for instance.
set -euo pipefail

bin=$(mktemp -d "${TMPDIR:-/tmp}/larkmoor-bsd.XXXXXX")
trap 'rm -rf "$bin"' EXIT

# tool NAME OPTIONS: wraps a tool; OPTIONS are in the form of getopts.
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
  # Folders follow the options, then the expression.
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
    # BSD tools end their options at the first operand.
    shift $((OPTIND - 1))
    for word in "$@"; do
      case $name:$word in grep:-* | cp:-* | sort:-* | rm:-* | ls:-*)
        [ "$word" = - ] || [ "${given[$((OPTIND - 2))]}" = -- ] || refuse "$word after an operand" ;;
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
# Tools that a Mac lacks, except those that the scripts check for before they call them.
for name in tac shuf timeout realpath sha256sum md5sum numfmt stdbuf setsid; do
  printf '#!/bin/sh\necho "%s: not on a Mac" >&2\nexit 127\n' $name >"$bin/$name"
  chmod +x "$bin/$name"
done

test=$(cd "$(dirname "$0")" && pwd -P)/$1
shift
PATH=$bin:$PATH bash "$test" "$@"
