#!/usr/bin/env bash
# preset-stand-in.sh TOOL ARGUMENT...: stands in the place of cmake or ctest. With a preset it only
# looks whether the tool has that one. A build without one prints what it would do; anything else is
# the tool's own business.
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
