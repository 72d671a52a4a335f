"""Prints the log formats in a folder of sources, one per line: component, level, format as written.

usage: log-formats.py FOLDER
"""

import pathlib
import re
import sys

CALL = re.compile(
    r'LOG_MSG\(\s*LEVEL_(\w+),\s*log_component::(\w+)\(\),\s*(?://.*\s*)?((?:"(?:[^"\\]|\\.)*"\s*)+)[,)]'
)
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')
# Comments show the macro too.
CALLS = re.compile(r"^(?!\s*//).*\bLOG_MSG\(LEVEL_", re.MULTILINE)


def formats_of(text):
    found = CALL.findall(text)
    if len(found) != len(CALLS.findall(text)):
        sys.exit("can't parse a call of LOG_MSG: its format must be a literal")
    for level, component, literals in found:
        yield component, level, "".join(LITERAL.findall(literals))


def main():
    for path in sorted(pathlib.Path(sys.argv[1]).rglob("*.cpp")):
        for line in formats_of(path.read_text(encoding="utf-8")):
            print("\t".join(line))


if __name__ == "__main__":
    main()
