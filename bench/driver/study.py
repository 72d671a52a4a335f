#!/usr/bin/env python3
"""Compares the filters and levels for packages. Run by scripts/bench study."""

import argparse
import dataclasses
import functools
import json
import os
import pathlib
import random
import shutil
import sys

import inputs
import report as reports
import workspace
from measure import Runner

MB = 1000**2


def small_files(folder, size):
    """Text files and modules of the system's programs, about 3,000 bytes each."""
    place = folder / "Contents/Resources"
    inputs.client(folder)
    taken = 0
    for source in ("/usr/lib/python3", "/usr/share/perl", "/usr/share/doc"):
        for path in sorted(pathlib.Path(source).rglob("*")):
            if taken >= size:
                return
            if path.is_symlink() or not path.is_file() or path.stat().st_size > 20000:
                continue
            target = place / path.relative_to("/usr")
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(path, target)
            taken += path.stat().st_size


def media(folder, size):
    """Incompressible files, such as pictures and films."""
    source = random.Random(inputs.SEED)
    place = folder / "Contents/Resources"
    inputs.client(folder)
    for i in range(40):
        (place / f"picture-{i:02}.jpg").write_bytes(source.randbytes(size // 40))


CLIENTS = {
    "libraries": functools.partial(inputs.system_tree, size=64 * MB),
    "small files": functools.partial(small_files, size=5 * MB),
    "media": functools.partial(media, size=8 * MB),
}


@dataclasses.dataclass
class Setting:
    filter: str
    level: int = None
    window: int = None  # its binary logarithm, if not the default of the level

    @property
    def name(self):
        level = "" if self.level is None else f" {self.level}"
        window = f", {2 ** (self.window - 20)} MiB" if self.window else ""
        return self.filter + level + window

    def command(self, tar, package):
        """bsdtar, or zstd itself, which supports a window and uses all cores."""
        if self.filter == "zstd":
            window = [f"--zstd=wlog={self.window}"] if self.window else []
            return ["zstd", "-q", "-f", f"-T{os.cpu_count()}", "--ultra", f"-{self.level}", *window,
                    tar, "-o", package]
        options = ["--" + self.filter] if self.filter != "none" else []
        if self.level is not None:
            options += ["--options", f"{self.filter}:compression-level={self.level}"]
        return ["bsdtar", "-cf", package, "--format", "gnutar", *options, f"@{tar}"]


SETTINGS = [
    Setting("none"), Setting("compress"),
    *[Setting("lz4", level) for level in (1, 9)],
    *[Setting("gzip", level) for level in (1, 6, 9)],
    *[Setting("bzip2", level) for level in (1, 9)],
    *[Setting("zstd", level) for level in (1, 3, 6, 9, 12, 16, 19, 22)],
    *[Setting("zstd", level, window) for level in (16, 19) for window in (21, 22)],
    *[Setting("xz", level) for level in (0, 3, 6, 9)],
    *[Setting("lzma", level) for level in (0, 6)],
]


def measure(runner, floor, folder, tar, setting):
    """Returns sizes and memory in bytes, processor times in seconds."""
    package = folder / "package"
    unpacked = folder / "unpacked"
    packing = runner.run(setting.command(tar, package))
    best = None
    for _ in range(3):
        inputs.remove(unpacked)
        unpacked.mkdir()
        run = runner.run([floor, package, unpacked])
        best = run if best is None or run.cpu < best.cpu else best
    return {"size": package.stat().st_size, "pack": packing.cpu, "unpack": best.cpu,
            "memory": best.memory}


def table(found):
    """One row per setting: the total size, then the size for each client."""
    names = list(found)
    rows = []
    for setting in (setting.name for setting in SETTINGS):
        if not all(setting in found[name] for name in names):
            continue
        all_of = [found[name][setting] for name in names]
        rows.append([setting, f"{sum(one['size'] for one in all_of) / MB:.1f}",
                     *[f"{one['size'] / MB:.1f}" for one in all_of],
                     f"{sum(one['pack'] for one in all_of):.1f} s",
                     f"{sum(one['unpack'] for one in all_of):.2f} s",
                     f"{max(one['memory'] for one in all_of) / 2**20:.0f} MiB"])
    return reports.table(rows, ["filter, level", "MB", *names, "pack", "unpack twice", "memory"], 1)


def draw(found, path):
    """Size against time to unpack: one point per setting, one colour per filter."""
    lines = {}
    for setting in SETTINGS:
        if setting.level is None or setting.name not in found["libraries"]:
            continue
        one = [found[name][setting.name] for name in found]
        window = f", window of {2 ** (setting.window - 20)} MiB" if setting.window else ""
        name = setting.filter + window
        lines.setdefault(name, []).append(
            (sum(o["unpack"] for o in one), sum(o["size"] for o in one) / MB, setting.level))
    commands = [
        "set terminal svg size 720,520 font 'sans-serif,12' background 'white'",
        f"set output '{path}'", "set logscale x", "set grid", "set key top right",
        "set xlabel 'processor time of both passes, s'", "set ylabel 'size of the packages, MB'",
        "set xtics (0.2, 0.5, 1, 2, 5, 10, 20)", "set offsets graph 0.05, graph 0.05",
    ]
    blocks, plots = [], []
    for i, (name, points) in enumerate(lines.items()):
        rows = "\n".join(f'{x} {y} "{label}"' for x, y, label in points)
        blocks.append(f"$line{i} << end\n{rows}\nend")
        plots.append(f"$line{i} with points pointtype 7 linecolor {i + 1} title \"{name}\"")
        plots.append(f"$line{i} using 1:2:3 with labels offset 0,0.7 font ',9' notitle")
    reports.plot([*commands, *blocks, "plot " + ", ".join(plots)])


def main():
    parser = argparse.ArgumentParser(prog="scripts/bench study")
    parser.add_argument("--build", type=pathlib.Path, required=True, help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    kept = arguments.build / "study.json"
    found = json.loads(kept.read_text()) if kept.exists() else {}
    runner = Runner(arguments.build / "bench/bench-timed-run",
                    arguments.build / "bench/bench-warm-memory")
    floor = arguments.build / "bench/bench-install-floor"
    for name, make_tree in CLIENTS.items():
        with workspace.memory(1024**3) as folder:
            missing = [setting for setting in SETTINGS if setting.name not in found.get(name, {})]
            if missing:
                make_tree(folder / "tree")
                inputs.pack(folder / "tree", folder / "client.tar", ["--format", "gnutar"])
                inputs.remove(folder / "tree")
            for setting in missing:
                one = measure(runner, floor, folder, folder / "client.tar", setting)
                found.setdefault(name, {})[setting.name] = one
                kept.write_text(json.dumps(found, indent=1) + "\n")
                print(f"{name}, {setting.name}: {one}", flush=True)
    print(table(found))
    draw(found, arguments.build / "packages.svg")


try:
    main()
except workspace.Failure as failure:
    sys.exit(f"study: {failure}")
