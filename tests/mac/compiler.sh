#!/usr/bin/env bash
# A cross-compiler in place of a Mac's c++: compiles or links separately for each -arch, and joins the
# outputs into a universal file. Zig has the headers, and LLVM the linker. make-sdk links it as
# build/mac-sdk/bin/c++, next to what it needs.
set -euo pipefail

sdk=$(cd "$(dirname "$0")/.." && pwd -P)
export ZIG_GLOBAL_CACHE_DIR=$sdk/cache ZIG_LOCAL_CACHE_DIR=$sdk/cache

architectures=()
arguments=()
output=a.out
oldest=10.13
step='link'
while [ $# -gt 0 ]; do
  case $1 in
    -arch)
      architectures+=("$2")
      shift
      ;;
    -isysroot) shift ;;
    -o)
      output=$2
      shift
      ;;
    -mmacosx-version-min=*) oldest=${1#*=} ;;
    -E) step=preprocess ;;
    -c)
      step=compile
      arguments+=(-c)
      ;;
    *) arguments+=("$1") ;;
  esac
  shift
done
[ ${#architectures[@]} -gt 0 ] || architectures=(arm64)

# for_architecture ARCHITECTURE ARGUMENT...: runs one step for one processor.
for_architecture() {
  local architecture=$1 processor=$1 system=$oldest
  shift
  if [ "$architecture" = arm64 ]; then
    processor=aarch64
    # The oldest version for arm64. Apple's linker raises it as well.
    case $system in 10.*) system=11.0 ;; esac
  fi
  if [ $step = link ]; then
    clang++ -target "$architecture-apple-macosx$system" -stdlib=libc++ -fuse-ld=lld -isysroot "$sdk" \
      -Wno-unused-command-line-argument "$@"
  else
    # Apple's C++ headers say which macOS introduced each function; Zig's do so only with this macro.
    # By default Zig also adds checks for undefined behaviour to unoptimised code.
    "$sdk/bin/zig" c++ -target "$processor-macos.$system" \
      -U_LIBCPP_HAS_VENDOR_AVAILABILITY_ANNOTATIONS -D_LIBCPP_HAS_VENDOR_AVAILABILITY_ANNOTATIONS=1 \
      -fno-sanitize=all -g0 -isystem "$sdk/headers" "$@"
  fi
}

if [ $step = preprocess ]; then
  for_architecture "${architectures[0]}" -E ${arguments[@]+"${arguments[@]}"}
  exit
fi
thin=()
for architecture in "${architectures[@]}"; do
  for_architecture "$architecture" ${arguments[@]+"${arguments[@]}"} -o "$output.$architecture"
  thin+=("$output.$architecture")
done
"$sdk/bin/lipo" -create "${thin[@]}" -output "$output"
rm -f "${thin[@]}"
