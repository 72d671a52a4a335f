"""Names the includes that include-what-you-use finds unused, and fails if there are any.

usage: unused-includes.py BUILD JOBS MAPPING FILE...

What it would add is no concern here: a header that another one promises to bring needs no second
mention. Where the tool is mistaken, "IWYU pragma: keep" stands behind the include.
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
    # The tool's status doesn't tell a suggestion from a failure: each file has to be accounted for.
    judged = {path for path, _, _ in BLOCK.findall(report)}
    judged.update(re.findall(r"^\((\S+) has correct #includes/fwd-decls\)$", report, re.MULTILINE))
    missing = sorted(set(files) - judged)
    unused = sorted({(path, line[2:].split("  //")[0])
                     for path, what, lines in BLOCK.findall(report) if what == "remove"
                     for line in lines.splitlines()})
    for path, line in unused:
        print(f"{path}: unused: {line}")
    if missing:
        print(report, "\nnot judged, see above:", *missing, sep="\n")
    sys.exit(1 if unused or missing else 0)


if __name__ == "__main__":
    main()
