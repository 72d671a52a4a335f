#!/usr/bin/env bash
# usage: fake-cmake.sh TOOL ARGUMENT...
# Replaces TOOL, which is cmake or ctest. With a preset, it only checks that the preset exists. A build
# without one prints the commands that it would run. Everything else runs TOOL.
tool=$1
shift
case " $* " in
  *" --preset "*) ;;
  " --build "*) exec "$tool" "$@" -- -n ;;
  *) exec "$tool" "$@" ;;
esac

case "$(basename "$tool") $1" in
  "cmake --build") kind=build ;;
  cmake*) kind=configure ;;
  *) kind="test" ;;
esac
while [ "$1" != --preset ]; do shift; done
python3 - "$(dirname "$0")/../../CMakePresets.json" "$kind" "$2" <<'END'
import json
import sys

file, kind, name = sys.argv[1:]
presets = json.load(open(file, encoding="utf-8"))[kind + "Presets"]
if name not in [preset["name"] for preset in presets if not preset.get("hidden")]:
    sys.exit(f"there is no {kind} preset {name}")
END
