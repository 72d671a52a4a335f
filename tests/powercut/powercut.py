#!/usr/bin/env python3
"""Simulates a power loss at any moment of an upgrade, and checks that the next start recovers.

The launcher runs on a file system whose disk records each write and flush (recording-disk). A cut is
the disk's image with everything covered by a completed flush, and none, all, some or torn pieces of
the later writes. The test mounts it, which recovers the journal, compares the trees with the complete
ones, and starts the launcher again.

Needs Linux, root, FUSE and loop devices; exits with status 77 if one of them is missing. All mounts
are in a mount namespace of its own. The kernel's write-back intervals are shortened while it records,
and always restored.
"""

import argparse
import collections
import concurrent.futures
import fcntl
import os
import shutil
import signal
import sys
import tempfile

from clients import Material
from cutting import BAD_RESULTS, LOST, NEW, RECOVERED, RESULTS, UNDETECTED, Cutter
from recording import PROFILES, SCENARIOS, Recording
from system import FAST_WRITE_BACK, IMAGE_SIZE, IMMEDIATE_WRITE_BACK, MKFS, KernelSettings, run, unmount

SKIPPED = 77

# Of the largest file. With the neighbour, whose fsync commits the journal, it is more than write-back
# takes of one file at a time (half a second's worth, initially at 100 MB/s), so that small files reach
# the disk before the rest of it.
SIZES = {"small": 1_500_000, "large": 64_000_000}


def reason_to_skip():
    if os.geteuid() != 0:
        return "mounting needs root"
    if not os.path.exists("/dev/fuse"):
        return "this kernel has no FUSE"
    if not os.path.exists("/dev/loop-control"):
        return "this kernel has no loop devices"
    if not os.access("/proc/sys/vm/dirty_expire_centisecs", os.W_OK):
        return "the kernel's write-back intervals can't be changed here"
    for tool in ("losetup", "mount", "fallocate", "e2fsck"):
        if not shutil.which(tool):
            return f"'{tool}' is missing: run scripts/setup test"
    return None


def usable_file_systems(wanted):
    """Those that can be made and mounted here; prints why others can't. `wanted` selects one."""
    usable = []
    for name, mkfs in MKFS.items():
        if wanted and name != wanted:
            continue
        with tempfile.TemporaryDirectory() as folder:
            try:
                with open(f"{folder}/image", "wb") as file:
                    file.truncate(IMAGE_SIZE)
                run(*mkfs, f"{folder}/image")
                os.mkdir(f"{folder}/volume")
                run("mount", "-t", name, "-o", "loop", f"{folder}/image", f"{folder}/volume")
                unmount(f"{folder}/volume")
                usable.append(name)
            except (RuntimeError, FileNotFoundError) as error:
                print(f"skipped: {name}: {error}", flush=True)
    return usable


def plan(arguments, usable):
    if arguments.without_flushes:
        wanted = [(name, "upgrade", "neighbour") for name in ("ext4", "ext2", "xfs") * (1 if arguments.short else 2)
                  if name in usable]
        wanted += [("ext4", "bundle just copied", "quiet")] * ("ext4" in usable)
        return [Recording(*each, arguments.seed + i) for i, each in enumerate(wanted)]
    if arguments.short:
        wanted = {
            "ext4": [("upgrade", "neighbour"), ("bundle just copied", "quiet"), ("rollback", "overlapping")],
            "xfs": [("upgrade", "neighbour"), ("bundle just copied", "overlapping")],
            "btrfs": [("upgrade", "overlapping"), ("first installation", "neighbour")],
            "ext2": [("upgrade", "neighbour"), ("first installation", "slow disk")],
        }
    else:
        wanted = {name: [(s, p) for s in SCENARIOS for p in PROFILES] for name in MKFS}
    every = [(name, *each) for name in MKFS for each in wanted[name]]
    return [Recording(*each, arguments.seed + i) for i, each in enumerate(every) if each[0] in usable]


def batches(recordings, size=8):
    """A few at a time, since each takes about 150 MB. A batch shares the kernel's settings."""
    for is_immediate in (False, True):
        due = [each for each in recordings if (each.profile == "overlapping") == is_immediate]
        yield from (due[i:i + size] for i in range(0, len(due), size))


def record_all(recordings, scratch):
    settings = KernelSettings()
    try:
        settings.set(IMMEDIATE_WRITE_BACK if recordings[0].profile == "overlapping" else FAST_WRITE_BACK)
        for recording in recordings:
            recording.folder = tempfile.mkdtemp(dir=scratch)
        with concurrent.futures.ThreadPoolExecutor(4) as pool:
            list(pool.map(lambda each: each.record(), recordings))
    finally:
        settings.close()


def cut_one(recording, budget):
    """The results of a recording: (result, moment, pending writes, whether the launcher had exited)."""
    cutter = Cutter(recording, recording.seed)
    cutter.cut_everywhere(budget)
    ended = cutter.log.notes["ended"]
    shutil.rmtree(recording.folder, ignore_errors=True)
    return [(result, moment, pending, moment > ended) for result, moment, pending in cutter.results]


def print_table(counts, columns):
    width = max(map(len, RESULTS))
    print(f"{'':{width}}" + "".join(f"{column:>20}" for column in columns) + f"{'all':>8}")
    for result in RESULTS:
        cells = [counts[column][result] for column in columns]
        print(f"{result:{width}}" + "".join(f"{cell:>20}" for cell in cells) + f"{sum(cells):>8}")
    cells = [sum(counts[column].values()) for column in columns]
    print(f"{'cuts':{width}}" + "".join(f"{cell:>20}" for cell in cells) + f"{sum(cells):>8}", flush=True)


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--source", required=True, help="the project's folder")
    parser.add_argument("--launcher", required=True)
    parser.add_argument("--plugins", required=True, help="Qt's plug-ins")
    parser.add_argument("--disk", required=True, help="the program recording-disk")
    parser.add_argument("--no-flush", required=True, help="the library no-flush")
    parser.add_argument("--without-flushes", action="store_true",
                        help="preload no-flush, and fail unless the cuts then leave undetected and lost trees")
    parser.add_argument("--short", action="store_true", default=bool(os.environ.get("LARKMOOR_SHORT_SWEEPS")),
                        help="about 200 cuts instead of 2,560; LARKMOOR_SHORT_SWEEPS does the same")
    parser.add_argument("--file-system", choices=list(MKFS), help="only this one")
    parser.add_argument("--seed", type=int, default=int(os.environ.get("LARKMOOR_SEED") or 1))
    arguments = parser.parse_args()
    arguments.no_flush = os.path.abspath(arguments.no_flush)  # the loader ignores a library that it can't find
    return arguments


def main():
    arguments = parse_arguments()
    os.environ["PATH"] += ":/usr/sbin:/sbin"
    reason = reason_to_skip()
    if reason:
        print(f"skipped: {reason}")
        return SKIPPED
    if os.environ.get("LARKMOOR_OWN_MOUNTS") != "1":
        os.environ["LARKMOOR_OWN_MOUNTS"] = "1"
        os.execvp("unshare", ["unshare", "--mount", "--propagation", "private", sys.executable, *sys.argv])
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))

    recordings = plan(arguments, usable_file_systems(arguments.file_system))
    if not recordings:
        print("skipped: none of the file systems can be mounted here")
        return SKIPPED
    budget = 24 if arguments.short else 40
    counts = collections.defaultdict(collections.Counter)
    by_scenario = collections.defaultdict(collections.Counter)
    bad, late = [], []
    # The kernel's settings are global: a second run waits.
    with open(KernelSettings.path("vm/dirty_expire_centisecs")) as lock, tempfile.TemporaryDirectory() as scratch:
        fcntl.flock(lock, fcntl.LOCK_EX)
        materials = {name: Material(f"{scratch}/{name}", arguments, size) for name, size in SIZES.items()}
        for each in recordings:
            each.material = materials["large" if each.profile == "neighbour" else "small"]
        for batch in batches(recordings):
            record_all(batch, scratch)
            with concurrent.futures.ProcessPoolExecutor(os.cpu_count()) as pool:
                jobs = [(each, pool.submit(cut_one, each, budget)) for each in batch]
                for recording, job in jobs:
                    results = job.result()
                    found = collections.Counter(result for result, *_ in results)
                    print(f"{recording}: " + ", ".join(f"{found[name]} {name}" for name in RESULTS if found[name]),
                          flush=True)
                    for result, moment, pending, is_late in results:
                        counts[recording.file_system][result] += 1
                        by_scenario[recording.scenario][result] += 1
                        where = f"{recording}: {result} at moment {moment}, pending writes: {pending}"
                        # The old tree must exist until the new one is on the disk.
                        had_tree = recording.scenario != "first installation"
                        if result in BAD_RESULTS or (had_tree and result == RECOVERED):
                            bad.append(where)
                        if is_late and recording.scenario != "rollback" and result != NEW:
                            late.append(where)

    print_table(counts, [name for name in MKFS if name in counts])
    print_table(by_scenario, [name for name in SCENARIOS if name in by_scenario])
    print(f"seed {arguments.seed}, {len(recordings)} recordings")
    if arguments.without_flushes:
        found = sum(counts.values(), collections.Counter())
        for result in (UNDETECTED, LOST):
            print(f"without flushes, {result}: {found[result]}")
        return 0 if found[UNDETECTED] and found[LOST] else 1
    for where in bad:
        print(f"FAILED: {where}")
    for where in late:
        print(f"FAILED after the launcher's exit: {where}")
    return 1 if bad or late else 0


if __name__ == "__main__":
    sys.exit(main())
