"""Prints the includes that include-what-you-use finds unused, and fails if there are any.

usage: unused-includes.py BUILD JOBS MAPPING FILE...

Its suggestions to add includes are ignored: a header that another one includes on purpose needn't be
included again. Where the tool is wrong, add "IWYU pragma: keep" to the include.
"""

import re
import subprocess
import sys

BLOCK = re.compile(r"^(\S+) should (add|remove) these lines:\n((?:.+\n)*)", re.MULTILINE)


def main():
    build, jobs, mapping, *files = sys.argv[1:]
    report = subprocess.run(
        ["iwyu_tool", "-j", jobs, "-p", build, *files, "--",
         "-Xiwyu", f"--mapping_file={mapping}", "-Xiwyu", "--no_fwd_decls"],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True).stdout
    # The tool's exit status is the same for a suggestion and a failure, so require a verdict on each file.
    checked = {path for path, _, _ in BLOCK.findall(report)}
    checked.update(re.findall(r"^\((\S+) has correct #includes/fwd-decls\)$", report, re.MULTILINE))
    missing = sorted(set(files) - checked)
    unused = sorted({(path, line[2:].split("  //")[0])
                     for path, what, lines in BLOCK.findall(report) if what == "remove"
                     for line in lines.splitlines()})
    for path, line in unused:
        print(f"{path}: unused: {line}")
    if missing:
        print(report, "\nno verdict, see above:", *missing, sep="\n")
    sys.exit(1 if unused or missing else 0)


if __name__ == "__main__":
    main()
