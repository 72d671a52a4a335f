"""The measures. Each takes a Session and adds to its report."""

import json
import re

import inputs
import workspace
from measure import Contender, median

MIB = 2**20

ONE_PASS = 'bsdtar -xf "$1" -C "$2"'
TWO_PASSES = 'bsdtar -tf "$1" >/dev/null && bsdtar -xf "$1" -C "$2"'


# ---- start ----

def _starts(session, display=None, fonts=None):
    """The launcher, two peers, the floor."""
    bundle = session.bundle
    environment = bundle.environment(display, fonts)
    names = {
        "launcher": "launcher",
        "minimal with dialog, thread, catalogue": "bench-minimal-dialog",
        "bare minimal": "bench-minimal",
        "start floor": "bench-start-floor",
    }
    return [Contender(name, [bundle.program(program)], environment, bundle.install_same_build)
            for name, program in names.items()]


def start(session):
    """A plain start: nothing to upgrade. Also with a single font, because the configuration of fonts takes a
    large part of each start."""
    places = [(where, display, None) for where, display in session.displays()]
    places.append(("offscreen, one font", None, session.bundle.one_font))
    for where, display, fonts in places:
        launcher, dialog, bare, floor = _starts(session, display, fonts)
        rounds = session.plan.starts
        session.compare(f"plain start, {where}", [launcher, dialog, floor], rounds, 1.10)
        session.compare(f"plain start, {where}", [launcher, bare, floor], rounds, 1.30)


def memory(session):
    """Peaks of a plain start and of an installation."""
    launcher, _, bare, _ = _starts(session)
    ours, least = session.in_turn([launcher, bare], session.plan.memory_runs)
    limit = median(least, "memory") + 4 * MIB
    session.memory("plain start, offscreen", "bare minimal + 4 MiB", median(ours, "memory"), limit)
    package = session.folder / "default.lpk"
    with _Source(session, session.plan.big[1]) as tree:
        inputs.make_package(tree, package)
    for where, display in session.displays():
        installing = _install(session, package, display)
        peak = median(session.in_turn([installing], session.plan.memory_runs)[0], "memory")
        session.memory(f"install, {where}", "", peak, (40 if display else 32) * MIB)


def notify(session):
    """The memory must not grow with the number of notifications, if the window keeps up."""
    few, many = session.plan.notifications
    peaks = []
    for count in (few, many):
        sender = Contender("", [session.bundle.program("bench-notify"), count],
                           session.bundle.environment())
        peaks.append(median(session.in_turn([sender], session.plan.memory_runs)[0],
                            "memory"))
    session.memory(f"growth from {few} to {many} notifications", "", max(0, peaks[1] - peaks[0]),
                   2 * MIB)


def calls(session):
    """The system calls of a plain start, counted."""
    counts = []
    for contender in _starts(session)[:2]:
        log = session.folder / "calls"
        contender.prepare()
        workspace.run(["strace", "-f", "-qq", "-o", log, *contender.command],
                      env=contender.environment)
        counts.append(_count_calls(log.read_text(errors="replace").splitlines()))
        (session.results / f"calls-{contender.command[0].name}.txt").write_bytes(log.read_bytes())
        log.unlink()
    names = sorted(set(counts[0]) | set(counts[1]))
    session.report["calls"] = {name: [count.get(name, 0) for count in counts] for name in names}


def _count_calls(lines):
    """By name, over all threads, without those of the client after its exec."""
    count, ours, gone = {}, None, set()
    for line in lines:
        call = re.match(r"(\d+) +(\w+)\(", line)
        if not call or call[1] in gone:
            continue
        ours = ours or call[1]
        count[call[2]] = count.get(call[2], 0) + 1
        if call[2] == "execve" and call[1] != ours:
            gone.add(call[1])
    return count


# ---- upgrade ----

def _upgrade(session, name, package, tree):
    """A whole upgrade: an older client of the same size is installed."""
    bundle = session.bundle

    def prepare():
        bundle.install_older_build(tree)
        bundle.carry(package)

    return Contender(name, [bundle.program("launcher")], bundle.environment(), prepare,
                     bundle.check_installation, 2 * session.plan.install_memory)


def upgrade(session):
    """What a user waits for, with the default package of scripts/make-package, and the cost of making it."""
    plan = session.plan
    default, gzip, none = (session.folder / f"{each}.lpk" for each in ("default", "gzip", "none"))
    with _Source(session, plan.big[1]) as tree:
        make = [inputs.MAKE_PACKAGE, "--quiet"]
        session.compare(f"packing of {plan.big_name}", [
            Contender("default", [*make, tree, default]),
            Contender("gzip", [*make, "--filter", "gzip", tree, gzip]),
        ], plan.packings, 3.0)
        smallest = session.packages.xz(plan.big[0], tree)
        size = default.stat().st_size
        name = f"package of {plan.big_name}"
        session.memory(name, "gzip", size, gzip.stat().st_size)
        session.memory(name, "1.05 of xz at level 6", size, 1.05 * smallest.stat().st_size)
        ours = _upgrade(session, "default", default, tree)
        # The floor: all of an upgrade but for the decoding, which no choice of a filter can save.
        inputs.make_package(tree, none, "--filter", "none")
        session.compare(f"upgrade of {plan.big_name}",
                        [ours, _upgrade(session, "gzip", gzip, tree),
                         _upgrade(session, "none", none, tree)], plan.installs, 0.35)
        copied = session.folder / "copied"
        session.compare(f"upgrade of {plan.big_name}", [
            ours,
            _into_fresh_folder(session, default, "bsdtar -xf alone", ["sh", "-c", ONE_PASS, "sh"]),
            Contender("cp -r", ["cp", "-r", tree, copied], None, lambda: inputs.remove(copied),
                      memory=plan.install_memory),
        ], plan.installs)


# ---- qt ----

def qt(session):
    """The launcher with Qt 6, against the one with Qt 5. It needs a bundle of its own, since it finds
    its plug-ins there."""
    bundles = {"Qt 6": inputs.Bundle(session.folder / "qt6", session.build.with_name("release-qt6"), ()),
               "Qt 5": session.bundle}
    package = session.big_package("tar.zst")
    for where, display in session.displays():
        starts = [Contender(name, [bundle.program("launcher")], bundle.environment(display),
                            bundle.install_same_build) for name, bundle in bundles.items()]
        session.compare(f"plain start with Qt 6, {where}", starts, session.plan.starts)
        session.compare(f"install {session.plan.big_name} with Qt 6, {where}",
                        [_install(session, package, display, name, bundle)
                         for name, bundle in bundles.items()], session.plan.installs)


# ---- install ----

def _install(session, package, display=None, name="launcher", bundle=None):
    bundle = bundle or session.bundle

    def prepare():
        bundle.forget_installation()
        bundle.carry(package)

    return Contender(name, [bundle.program("launcher")], bundle.environment(display), prepare,
                     bundle.check_installation, session.plan.install_memory)


def _into_fresh_folder(session, package, name, command):
    """A command that unpacks the package in the bundle."""
    folder = session.folder / "unpacked"

    def prepare():
        session.bundle.carry(package)
        inputs.remove(folder)
        folder.mkdir()

    return Contender(name, [*command, session.bundle.package, folder], session.bundle.environment(),
                     prepare, memory=session.plan.install_memory)


def _against_bsdtar(session, package):
    floor = session.build / "bench/bench-install-floor"
    return [
        _install(session, package),
        _into_fresh_folder(session, package, "bsdtar -tf, -xf", ["sh", "-c", TWO_PASSES, "sh"]),
        _into_fresh_folder(session, package, "libarchive alone", [floor]),
    ]


def install(session):
    plan = session.plan
    for kind in inputs.FORMATS:
        session.compare(f"install {plan.big_name}, {kind}",
                        _against_bsdtar(session, session.big_package(kind)), plan.installs, 1.00)
    many = session.packages.get(*plan.many)
    for kind, package in many.items():
        goal = 0.90 if kind == "tar.xz" else 0.65
        session.compare(f"install {plan.many_name}, {kind}", _against_bsdtar(session, package),
                        plan.installs, goal)
    package = many["tar.gz"]
    session.compare(f"install {plan.many_name}, tar.gz", [
        _install(session, package),
        _into_fresh_folder(session, package, "bsdtar -xf alone", ["sh", "-c", ONE_PASS, "sh"]),
        _into_fresh_folder(session, package, "libarchive alone",
                           [session.build / "bench/bench-install-floor"]),
    ], plan.installs, 0.80)
    for where, display in session.displays()[1:]:
        session.compare(f"install {plan.many_name}, {where}", [
            _install(session, package, display), _install(session, package, name="offscreen"),
        ], plan.installs, 1.10)
    for kind, package in session.packages.get(*plan.tiny).items():
        session.compare(f"install {plan.tiny_name}, {kind}", _against_bsdtar(session, package),
                        plan.installs, 0.75)
    for kind, package in session.packages.get(*plan.system).items():
        session.compare(f"install the system's libraries, {kind}",
                        _against_bsdtar(session, package), plan.installs)


def install_growth(session):
    plan = session.plan
    for file, name, work, series in plan.install_series:
        lines = {}
        for x, tree_name, make_tree in series:
            package = session.packages.get(tree_name, ["tar.gz"], make_tree)["tar.gz"]
            session.add_points(lines, x, _against_bsdtar(session, package), plan.growth_rounds)
        session.growth(file, name, work, lines)


# ---- remove and copy ----

class _Source:
    """A tree or file, created once and copied before each run."""

    def __init__(self, session, make):
        self.path = session.folder / "source"
        self.make = make

    def __enter__(self):
        inputs.remove(self.path)
        self.make(self.path)
        return self.path

    def __exit__(self, *_):
        inputs.remove(self.path)


def _make_room(target, ext4):
    """Removes what the previous run left; an ext4 is recreated."""
    if ext4:
        ext4.renew()
    else:
        inputs.remove(target)


def _growth_with_source(session, all_series, contenders_of):
    for file, name, work, series in all_series:
        lines = {}
        for x, make in series:
            with _Source(session, make) as source:
                session.add_points(lines, x, contenders_of(session, source), session.plan.growth_rounds)
        session.growth(file, name, work, lines)


def _removals(session, source, ext4=None):
    """Each removes a copy of the tree."""
    target = (ext4.folder if ext4 else session.folder) / "removed"

    def prepare():
        _make_room(target, ext4)
        workspace.run(["cp", "-r", source, target])
        if ext4:
            workspace.run(["sync", "-f", target])

    programs = session.build / "bench"
    return [
        Contender("FSRemove", [programs / "bench-remove", target], None, prepare),
        Contender("rm -rf", ["rm", "-rf", target], None, prepare),
        Contender("each object checked", [programs / "bench-remove-floor", target], None, prepare),
    ]


def remove(session):
    plan = session.plan
    for name, make_tree in plan.removals:
        with _Source(session, make_tree) as source:
            session.compare(f"remove {name}, tmpfs", _removals(session, source),
                            plan.removal_rounds, 1.6)
            if session.ext4:
                session.compare(f"remove {name}, ext4", _removals(session, source, session.ext4),
                                plan.removal_rounds, 1.25)
                session.ext4.close()


def remove_growth(session):
    _growth_with_source(session, session.plan.removal_series, _removals)


def _copies(session, source, ext4=None):
    target = (ext4.folder if ext4 else session.folder) / "copied"

    def prepare():
        _make_room(target, ext4)

    synced = 'cp -r "$1" "$2" && find "$2" -type f -exec sync {} +'
    programs = session.build / "bench"
    # On ext4 a file takes its size twice: in the page cache, and in the image.
    memory = inputs.size(source) * (2 if ext4 else 1)
    contenders = [
        Contender("FSCopyPath", [programs / "bench-copy", source, target], None, prepare,
                  memory=memory),
        Contender("cp, fsync", ["sh", "-c", synced, "sh", source, target], None, prepare,
                  memory=memory),
    ]
    if source.is_file():
        contenders.append(Contender("pieces of 32 MiB",
                                    [programs / "bench-copy-floor", source, target], None, prepare,
                                    memory=memory))
    return contenders


def copy(session):
    plan = session.plan
    for name, make, goal in plan.copies:
        with _Source(session, make) as source:
            session.compare(f"copy {name}, tmpfs", _copies(session, source), plan.copy_rounds, goal)
            if session.ext4:
                session.compare(f"copy {name}, ext4", _copies(session, source, session.ext4),
                                plan.copy_rounds, goal)
                session.ext4.close()
    inputs.remove(session.folder / "copied")


def copy_growth(session):
    _growth_with_source(session, session.plan.copy_series, _copies)
    inputs.remove(session.folder / "copied")


# ---- parts ----

_PART = re.compile(r"(?P<group>[^/]+)/(?P<operation>[^/]+)/(?P<who>[^/]+?)"
                   r"(/(?P<size>\d+))?(/real_time)?(/threads:(?P<threads>\d+))?$")

# Our name, the goal against the fastest peer, and the parameter of the series.
_GROUPS = {
    "level file": ("Config", 1.0, "lines"),
    "log filtered": ("Logger", 1.0, "threads"),
    "log written": ("Logger", 1.2, "threads"),
    "ustring": ("ustring", 1.5, "characters"),
}


def parts(session):
    """Runs Google Benchmark in random order. It uses processor time for several threads, too: waiting for
    each other shows as system calls."""
    plan = session.plan
    out = session.folder / "parts.json"
    workspace.run(
        [session.build / "bench/bench-parts", f"--benchmark_repetitions={plan.part_repetitions}",
         f"--benchmark_min_time={plan.part_seconds}", "--benchmark_enable_random_interleaving=true",
         f"--benchmark_out={out}", "--benchmark_out_format=json"],
        env={"LARKMOOR_BENCH_FOLDER": str(session.folder), "LC_ALL": "C.UTF-8"})
    runs = [run for run in json.loads(out.read_text())["benchmarks"]
            if run["run_type"] == "iteration"]
    for run in runs:
        if run.get("error_occurred"):
            raise RuntimeError(f"{run['name']}: {run['error_message']}")
    series = {}
    for run in runs:
        part = _PART.match(run["name"])
        x = int(part["size"] or part["threads"])
        key = (part["group"], part["operation"])
        series.setdefault(key, {}).setdefault(part["who"], {}).setdefault(x, []).append(run)
    for (group, operation), lines in series.items():
        _add_part(session, group, operation, lines)


def _add_part(session, group, operation, lines):
    ours, goal, work = _GROUPS[group]
    scale = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3}

    def seconds(runs):
        values = sorted(run["cpu_time"] * scale[run["time_unit"]] for run in runs)
        return values[len(values) // 2]

    medians = {who: [[x, seconds(runs)] for x, runs in sorted(points.items())]
               for who, points in sorted(lines.items())}
    ordered = {ours: medians.pop(ours), **medians}
    name = f"{group}: {operation}"
    session.growth(name.replace(": ", "-").replace(" ", "-"), name, work, ordered,
                   peers=len(medians))
    for i, (x, value) in enumerate(ordered[ours]):
        peer, against = min(((who, points[i][1]) for who, points in medians.items()),
                            key=lambda pair: pair[1])
        session.report["parts"].append({
            "name": name, "work": work, "size": x, "ours": value, "peer": peer, "peer_time": against,
            "ratio": value / against, "goal": goal,
            "repetitions": len(lines[ours][x]),
        })


ALL = {
    "start": start, "memory": memory, "notify": notify, "calls": calls, "upgrade": upgrade, "qt": qt,
    "install": install,
    "remove": remove, "copy": copy, "parts": parts, "install-growth": install_growth,
    "remove-growth": remove_growth, "copy-growth": copy_growth,
}
