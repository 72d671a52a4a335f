#!/usr/bin/env python3
"""Makes mutants of src/, each with one mistake, and prints those that no test kills.

usage: mutants.py PROJECT JOBS [N [SEED]]

A mistake is one edit of one line of C++. JOBS copies of the project are tested in parallel, each with
its own unoptimised build. The unit tests of the mutant's folder run first, then the other unit tests,
then the rest of the default mode.

Everything runs under bubblewrap, where all but the copy is read-only and the system's processes are
invisible: a mistake in code that removes folders and kills processes could destroy the machine.

equivalent.txt lists mistakes that change no behaviour: these mutants aren't made.
"""

import collections
import itertools
import json
import os
import pathlib
import queue
import random
import re
import resource
import shutil
import subprocess
import sys
import threading
import time

Mutant = collections.namedtuple("Mutant", "file line start end text before after")
# A GoogleTest program, run as a whole, or another test of CTest.
Test = collections.namedtuple("Test", "name command folder target")

BUILD = "build/mutants"
EQUIVALENT = "tests/mutants/equivalent.txt"
# These tests depend neither on src/ nor on what is built from it.
BLIND = re.compile(r"^script-(make-package|bundle|setup|configure|mutants)$|^reference$|catalogue")
HEAVY = {"bsd", "faults", "fuzz", "lint", "includes", "powercut", "mac"}
MEMORY = 4 << 30

COMMENTS_AND_LITERALS = re.compile(
    r"""//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|(?<!\w)'(?:\\.|[^'\\\n])+'|^[ ]*\#(?:\\\n|[^\n])*""",
    re.DOTALL | re.MULTILINE)
# An operator has a space on both sides, unlike a template's bracket, a pointer or a sign.
SWAPS = {
    " == ": [" != "], " != ": [" == "],
    " < ": [" <= ", " >= "], " <= ": [" < ", " > "], " > ": [" >= ", " <= "], " >= ": [" > ", " < "],
    " && ": [" || "], " || ": [" && "], " | ": [" & "], " & ": [" | "],
    " + ": [" - "], " - ": [" + "], " * ": [" / "], " / ": [" * "], " % ": [" / "],
    " += ": [" -= "], " -= ": [" += "], " << ": [" >> "], " >> ": [" << "],
    "++": ["--"], "--": ["++"], "std::min": ["std::max"], "std::max": ["std::min"],
    "true": ["false"], "false": ["true"], "break;": ["continue;"], "continue;": ["break;"],
}
SWAP = re.compile("|".join(re.escape(s) if not s.isalpha() else rf"\b{s}\b"
                           for s in sorted(SWAPS, key=len, reverse=True)))
NUMBER = re.compile(r"(?<![\w.])(-?)(0[xX][0-9A-Fa-f]+|\d+)([uUlL]*)(?![\w.])")
LEVEL = re.compile(r"\bLEVEL_(ERROR|WARNING|NOTE|INFO|DEBUG)\b(?=, )")
NOT = re.compile(r"(?<=[( ])!(?=[\w(])")
CONDITION = re.compile(r"\b(?:if|while) \((?=.*\))")
RETURN = re.compile(r"\breturn ([^;{}\"]+);")
CHOICE = re.compile(r"(?<=\? )([^?:;]+?)( : )([^?:;]+?)(?=[;,)])")
# Two arguments, except where their order makes no difference.
PAIR = re.compile(r"(?<!swap\()(?<!::min\()(?<!::max\()(?<!strcmp\()(?<!Needed\()(?<=[\w>]\()([\w.>*&-]+)(, )([\w.>*&-]+)(?=\))")
STATEMENT = re.compile(r"^[ ]+(?!(?:return|using|friend|static|constexpr|case|default|for|if|while|do|"
                       r"else|switch|struct|class|private|public)\b)(?=(?:delete |throw |emit |\*|\+\+|--)?\w)", re.MULTILINE)
INNER = re.compile(r"(?<=\) )(?=(?:delete |throw |emit |\*|\+\+|--)?\w[\w:.>*-]*(?:\(| [-+|]?= |;))"
                   r"(?!return\b|const\b|override\b|noexcept\b)")
DECLARATION = re.compile(r"(?!delete |throw |emit )[\w:<>,]+(?: const)?(?: |[*&]+ )(?:const )?[\w:]*\w"
                         r"(?:[ ({\[;])(?<! =)")


def blanked(source):
    """The source with comments, directives and the contents of literals replaced by spaces."""
    def blank(match):
        text = match.group()
        quoted = text[0] in "\"'"
        inside = re.sub(r"[^\n]", " ", text[1:-1] if quoted else text)
        return text[0] + inside + text[-1] if quoted else inside
    return COMMENTS_AND_LITERALS.sub(blank, source)


def closing(code, at):
    """The position of the bracket that closes the one at this position."""
    depth = 0
    for i in range(at, len(code)):
        depth += {"(": 1, "{": 1, "[": 1, ")": -1, "}": -1, "]": -1}.get(code[i], 0)
        if depth == 0:
            return i
    return -1


def statement_end(code, at):
    """The position of the semicolon of the simple statement that begins here, or -1."""
    while at < len(code) and code[at] not in ";{}":
        at = closing(code, at) + 1 if code[at] in "([" else at + 1
        if at == 0:
            return -1
    return at if code[at:at + 1] == ";" else -1


def edits(source):
    """All edits of a source: (start, end, new text)."""
    code = blanked(source)
    for match in SWAP.finditer(code):
        yield from ((*match.span(), new) for new in SWAPS[match.group()])
    for match in NUMBER.finditer(code):
        sign, digits, suffix = match.groups()
        number = int(digits, 8 if re.match("0[0-7]", digits) else 0)
        steps = (1 - number,) if sign else (number + 1, number - 1)
        yield from ((*match.span(), f"{new}{suffix}") for new in steps)
    for match in LEVEL.finditer(code):
        yield from ((*match.span(1), new) for new in ("ERROR", "WARNING", "NOTE", "INFO", "DEBUG")
                    if new != match.group(1))
    for match in NOT.finditer(code):
        yield (*match.span(), "")
    for match in CONDITION.finditer(code):
        end = closing(code, match.end() - 1)
        # Not in a declaration; a single comparison or "!" is inverted by other edits.
        if re.fullmatch(r"(?!!)[^\n=<>!;]*|[^\n;]* (?:&&|\|\|) [^\n;]*", code[match.end():end]):
            yield match.end(), end, f"!({source[match.end():end]})"
    for match in RETURN.finditer(code):
        value = source[slice(*match.span(1))]
        for new in ("0", "-1") if re.fullmatch(r"-?\d+|\w+Err", value) else ("{}", f"!({value})"):
            if (value, new) != ("noErr", "0") and new != value and "\n" not in value \
                    and value not in ("true", "false", "nullptr", "*this"):
                yield (*match.span(1), new)
    for pattern in (CHOICE, PAIR):
        for match in pattern.finditer(code):
            first, between, second = (source[slice(*match.span(i))] for i in (1, 2, 3))
            if first != second and "\n" not in match.group() and first.count("(") == first.count(")") \
                    and second.count("(") == second.count(")"):
                yield (*match.span(), second + between + first)
    for match in itertools.chain(STATEMENT.finditer(code), INNER.finditer(code)):
        start, end = match.end(), statement_end(code, match.end())
        if end > 0 and "= delete" not in code[start:end] and code[:start].rstrip()[-1:] in ";{}:)" \
                and not DECLARATION.match(code, start, end):
            yield start, end, ""
    for match in COMMENTS_AND_LITERALS.finditer(source):
        text = match.group()
        if code[:match.start()].rpartition("\n")[2].lstrip().startswith("static_assert("):
            continue
        if text[0] == '"':
            yield (*match.span(), '"X' + text[1:])
            if len(text) > 2:
                yield (*match.span(), '""')
        elif text[0] == "'":
            yield (*match.span(), "'x'")


def mutants_of(root, file):
    """All mutants of a file, by line."""
    source = (root / file).read_text(encoding="utf-8")
    by_line = collections.defaultdict(list)
    for start, end, text in sorted(set(edits(source))):
        line = source.count("\n", 0, start) + 1
        first, last = source.rfind("\n", 0, start) + 1, source.find("\n", end)
        before = " ".join(source[first:last].split())
        after = " ".join((source[first:start] + text + source[end:last]).split())
        if before != after:
            by_line[file, line].append(Mutant(file, line, start, end, text, before, after))
    return by_line


def equivalents(root):
    """The list as pairs (file, line) and triples (file, line, changed line)."""
    listed, file, line = set(), None, None
    path = root / EQUIVALENT
    for text in path.read_text(encoding="utf-8").splitlines() if path.exists() else []:
        prefix, rest = text[:2], text[2:].strip()
        if prefix == "= ":
            file = rest
        elif prefix == "- ":
            line = rest
            listed.add((file, line))
        elif prefix == "+ ":
            listed.discard((file, line))
            listed.add((file, line, rest))
    return listed


def draw(root, files, count, seed):
    """The mutants to make, in random order: one of each line before the second of any."""
    chance = random.Random(seed)
    listed, met = equivalents(root), set()
    drawn = []
    for file in sorted(files):
        for line in mutants_of(root, file).values():
            chance.shuffle(line)
            kept = []
            for mutant in line:
                entries = {mutant[:1] + mutant[5:6], mutant[:1] + mutant[5:]} & listed
                met |= entries
                if not entries:
                    kept.append(mutant)
            drawn += [(turn, chance.random(), mutant) for turn, mutant in enumerate(kept)]
    for entry in sorted(listed - met):
        sys.exit(f"mutants: {EQUIVALENT} lists a mistake that can't be made in {entry[0]}: {entry[1:]}")
    return [mutant for *_, mutant in sorted(drawn)[:count]]


class Box:
    """A copy of the project. What runs in it sees each copy at the same path."""

    def __init__(self, root, number):
        self.root = root
        self.copy = root / BUILD / str(number)
        self.tree = root / BUILD / "tree"

    def run(self, command, folder=None, timeout=None, with_cache=False):
        """The exit status of a command and its output; None instead of the status after a timeout."""
        cache = []
        if with_cache and shutil.which("ccache"):
            place = subprocess.run(["ccache", "-k", "cache_dir"], capture_output=True, text=True,
                                   check=True).stdout.strip()
            os.makedirs(place, exist_ok=True)
            cache = ["--bind", place, place]
        room = ["--perms", "1777", "--size", str(MEMORY), "--tmpfs"]
        sandbox = ["bwrap", "--ro-bind", "/", "/", "--dev-bind", "/dev", "/dev", "--proc", "/proc",
                   *room, "/tmp", *room, "/dev/shm", "--tmpfs", "/run", "--bind", self.copy, self.tree, *cache,
                   "--unshare-pid", "--unshare-ipc", "--die-with-parent", "--new-session",
                   "--chdir", folder or self.tree,
                   "--setenv", "XDG_CACHE_HOME", self.tree / "cache",
                   "--setenv", "XDG_RUNTIME_DIR", self.tree / "runtime",
                   "--unsetenv", "DISPLAY", "--unsetenv", "WAYLAND_DISPLAY"]
        try:
            done = subprocess.run([*map(str, sandbox), *map(str, command)], timeout=timeout,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                  stderr=subprocess.STDOUT, check=False, errors="replace",
                                  preexec_fn=limit_memory)
        except subprocess.TimeoutExpired:
            return None, ""
        return done.returncode, done.stdout

    def build(self, target):
        return self.run(["ninja", "-C", self.tree / "build", "-j1", target], with_cache=True)

    def prepare(self):
        """Builds everything. Returns the compiled sources and the tests."""
        self.copy.mkdir(parents=True)
        self.tree.mkdir(exist_ok=True)
        for part in self.root.iterdir():
            if part.name not in ("build", ".git"):
                copy = shutil.copytree if part.is_dir() else shutil.copy2
                copy(part, self.copy / part.name)
        for name in ("cache", "runtime"):
            (self.copy / name).mkdir(mode=0o700)
        launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        for command in (["cmake", "-G", "Ninja", "-S", self.tree, "-B", self.tree / "build",
                         "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-Wno-dev",
                         "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON", *launcher,
                         "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"],
                        ["ninja", "-C", self.tree / "build"]):
            status, output = self.run(command, with_cache=True)
            if status != 0:
                sys.exit(f"{output}\nmutants: the unchanged project doesn't build, see above")
        status, output = self.run(["ctest", "--test-dir", "build", "--show-only=json-v1"])
        if status != 0:
            sys.exit(f"{output}\nmutants: CTest can't list the tests, see above")
        commands = json.loads((self.copy / "build/compile_commands.json").read_text())
        compiled = {pathlib.Path(entry["file"]) for entry in commands}
        return compiled, self.tests_of(json.loads(output)["tests"])

    def tests_of(self, listed):
        tests = {}
        for test in listed:
            properties = {p["name"]: p["value"] for p in test["properties"]}
            command = test["command"]
            if HEAVY & set(properties.get("LABELS", [])) or BLIND.match(test["name"]):
                continue
            build = str(self.tree / "build") + "/"
            target = command[0][len(build):] if command[0].startswith(build) else "all"
            name = test["name"]
            if any(word.startswith("--gtest_filter=") for word in command):
                name, command = target, [command[0], "--gtest_fail_fast", "--gtest_brief=1"]
            tests[name] = Test(name, command, properties["WORKING_DIRECTORY"], target)
        return list(tests.values())


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def in_order(tests, file, kills):
    """The tests of the file's own folder first, then unit tests, then other programs, then the rest.
    Within each group, those first that have killed most of the file's mutants."""
    folder = "unit/" + pathlib.PurePath(file).parent.name
    return sorted(tests, key=lambda t: (not str(t.folder).endswith(folder), t.target == "all",
                                        "/unit/" not in str(t.folder), -kills[file, t.name]))


def judge(box, mutant, tests, seconds, kills):
    """Makes and tests the mutant: "killed", "surviving" or "not compiling", and what killed it."""
    path = box.copy / mutant.file
    source = path.read_text(encoding="utf-8")
    path.write_text(source[:mutant.start] + mutant.text + source[mutant.end:], encoding="utf-8")
    try:
        for test in in_order(tests, mutant.file, kills):
            status, output = box.build(test.target)
            if status != 0:
                return "not compiling", ""
            limit = 30 + 5 * seconds[test.name]
            status, output = box.run(test.command, test.folder, limit)
            if status != 0:
                kills[mutant.file, test.name] += 1
                failed = re.search(r"\[  FAILED  \] (\S+?)[,\s]", output)
                return "killed", ("timeout of " if status is None else "") + (
                    failed.group(1) if failed else test.name)
        return "surviving", ""
    finally:
        path.write_text(source, encoding="utf-8")


def measure(box, tests):
    """The duration of each test in seconds. All must pass."""
    seconds = {}
    for test in tests:
        started = time.monotonic()
        status, output = box.run(test.command, test.folder)
        if status != 0:
            sys.exit(f"{output}\nmutants: {test.name} fails on the unchanged project, see above")
        seconds[test.name] = time.monotonic() - started
    return seconds


def main():
    if len(sys.argv) not in (3, 4, 5):
        sys.exit(__doc__)
    if not shutil.which("bwrap"):
        sys.exit("mutants: bwrap is missing: run scripts/setup test")
    root = pathlib.Path(sys.argv[1]).resolve()
    jobs = int(sys.argv[2])
    count = int(sys.argv[3]) if len(sys.argv) > 3 else 100
    seed = int(sys.argv[4]) if len(sys.argv) > 4 else random.randrange(1000000)
    shutil.rmtree(root / BUILD, ignore_errors=True)
    first = Box(root, 1)
    print("== Building", flush=True)
    compiled, tests = first.prepare()
    files = [str(path.relative_to(root)) for path in (root / "src").rglob("*")
             if path.suffix == ".h" or first.tree / path.relative_to(root) in compiled]
    mutants = draw(root, files, count, seed)
    print("== Running the tests on the unchanged project", flush=True)
    seconds = measure(first, tests)
    boxes = [first]
    for number in range(2, jobs + 1):
        boxes.append(Box(root, number))
        subprocess.run(["cp", "-a", first.copy, boxes[-1].copy], check=True)

    print(f"== Testing {len(mutants)} mutants, seed {seed}", flush=True)
    kills = collections.Counter()
    waiting, results, lock = queue.SimpleQueue(), collections.defaultdict(list), threading.Lock()
    for mutant in sorted(mutants):  # the next build of a file also undoes the last mistake
        waiting.put(mutant)

    def work(box):
        while True:
            try:
                mutant = waiting.get_nowait()
            except queue.Empty:
                return
            verdict, by = judge(box, mutant, tests, seconds, kills)
            with lock:
                results[verdict].append(mutant)
                print(f"{verdict:13} {mutant.file}:{mutant.line}: {mutant.before}\n"
                      f"{'':13} -> {mutant.after}" + (f"\n{'':13} by {by}" if by else ""), flush=True)

    workers = [threading.Thread(target=work, args=(box,), daemon=True) for box in boxes]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()

    if results["surviving"]:
        print("== Surviving")
    for mutant in sorted(results["surviving"]):
        print(f"{mutant.file}:{mutant.line}:\n- {mutant.before}\n+ {mutant.after}")
    counts = ", ".join(f"{len(results[verdict])} {verdict}"
                       for verdict in ("killed", "surviving", "not compiling"))
    print(f"== {len(mutants)} mistakes, seed {seed}: {counts}")
    shutil.rmtree(root / BUILD, ignore_errors=True)
    sys.exit(1 if results["surviving"] else 0)


if __name__ == "__main__":
    main()
