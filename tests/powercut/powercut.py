#!/usr/bin/env python3
"""Cuts the power at any moment of an upgrade, and looks what the next start makes of it.

The launcher works on a file system whose disk notes each write and each flush (recording-disk). A
cut then is the disk's image with all that a completed flush covers, and nothing, all, some or torn
pieces of what came behind it. It is mounted, which recovers the journal, its trees are compared with
the whole ones, and the launcher is started again.

Needs Linux, root, FUSE and loop devices; ends with status 77 where one of them is missing. All
mounts are in a namespace of its own. The kernel's times of write-back are shortened while it
records, and put back at the end, however that comes.
"""

import argparse
import collections
import concurrent.futures
import contextlib
import fcntl
import hashlib
import os
import random
import re
import shutil
import signal
import stat
import struct
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
FORMER, CARRIED = 100, 200
EXECUTABLE = "Contents/MacOS/larkmoor-drive-ui"
INFO = "Contents/Resources/INFO"
IMAGE_SIZE = 300 << 20  # the least that mkfs.xfs takes
PAGE = 4096

MKFS = {
    "ext4": ["mkfs.ext4", "-q", "-F", "-b", "4096", "-E", "lazy_itable_init=0"],
    "xfs": ["mkfs.xfs", "-q", "-f"],
    "btrfs": ["mkfs.btrfs", "-q", "-f"],
    "ext2": ["mkfs.ext2", "-q", "-F", "-b", "4096", "-E", "lazy_itable_init=0"],
}
# Journals are committed each second, as the rest of write-back is sped up.
RECORD_OPTIONS = {"ext4": "commit=1", "xfs": "defaults", "btrfs": "commit=1,nodiscard", "ext2": "defaults"}
RECOVER_OPTIONS = {"ext4": "defaults", "xfs": "nouuid", "btrfs": "nodiscard", "ext2": "defaults"}

# How long data stay in memory, a tenth of what the kernel makes of it by itself.
TIMES = {
    "vm/dirty_expire_centisecs": 200,
    "vm/dirty_writeback_centisecs": 40,
    "fs/xfs/xfssyncd_centisecs": 100,
}
# Write-back begins at once, while the launcher is still unpacking.
EAGER = {
    "vm/dirty_expire_centisecs": 10,
    "vm/dirty_writeback_centisecs": 5,
    "vm/dirty_background_bytes": 256 << 10,
    "fs/xfs/xfssyncd_centisecs": 100,
}
TAIL_SECONDS = {"quiet": 4.0, "neighbour": 6.0, "slow disk": 5.0, "overlapping": 1.5}
LATENCY = {"quiet": 300, "neighbour": 1000, "slow disk": 15000, "overlapping": 1000}  # microseconds
RATE = {"quiet": 400, "neighbour": 30, "slow disk": 10, "overlapping": 100}  # MB/s

# Of the largest file. Where a neighbour makes the journal commit, it is more than write-back takes of
# a file at a time (half a second's worth, at first at 100 MB/s): small files are on the disk then
# before the rest of it.
SIZES = {"small": 1_500_000, "large": 64_000_000}

PROFILES = ["quiet", "neighbour", "slow disk", "overlapping"]
SCENARIOS = ["first installation", "upgrade", "rollback", "bundle just copied"]

OLD = "old tree"
NEW = "new tree"
HEALED_ASIDE = "healed, a whole tree aside"
HEALED = "healed, no whole tree aside"
DOWNLOAD = "healed by another download, a whole tree aside"
UNNOTICED = "UNNOTICED half tree"
LOST = "NO WAY BACK"
UNMOUNTABLE = "UNMOUNTABLE"
CLASSES = [OLD, NEW, HEALED_ASIDE, HEALED, DOWNLOAD, UNNOTICED, LOST, UNMOUNTABLE]
BAD = {UNNOTICED, LOST, UNMOUNTABLE}


def run(*command, **options):
    """Runs a command that has to succeed."""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)
    if done.returncode != 0:
        raise RuntimeError(f"{' '.join(command)}: {done.stdout.strip()}")
    return done.stdout.strip()


def wait_for(what, done, seconds=30):
    deadline = time.monotonic() + seconds
    while not done():
        if time.monotonic() > deadline:
            raise RuntimeError(f"{what} didn't happen within {seconds} s")
        time.sleep(0.01)


def unmount(folder):
    """The client that was started may still be at its end."""
    wait_for(f"unmounting {folder}", lambda: subprocess.run(
        ["umount", folder], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0)


class KernelSettings:
    """Numbers below /proc/sys. A process of its own puts them back when this one is gone."""

    def __init__(self):
        names = [*TIMES, "vm/dirty_background_ratio", "vm/dirty_background_bytes"]
        self.saved = {name: open(self.path(name)).read() for name in names if os.path.exists(self.path(name))}
        reader, self.writer = os.pipe()
        self.keeper = os.fork()
        if self.keeper == 0:
            os.close(self.writer)
            for each in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
                signal.signal(each, signal.SIG_IGN)
            os.read(reader, 1)  # returns when no writer is left
            self.put_back()
            os._exit(0)
        os.close(reader)
        os.set_inheritable(self.writer, False)

    @staticmethod
    def path(name):
        return "/proc/sys/" + name

    def set(self, values):
        self.put_back()
        for name, value in values.items():
            if name in self.saved:
                with open(self.path(name), "w") as file:
                    file.write(str(value))

    def put_back(self):
        # Of a ratio and its number of bytes one is always 0, which says that the other counts.
        for name, value in self.saved.items():
            if not (name.startswith("vm/dirty_background") and int(value) == 0):
                with open(self.path(name), "w") as file:
                    file.write(value)

    def close(self):
        os.close(self.writer)
        os.waitpid(self.keeper, 0)


# Trees ---------------------------------------------------------------------------------------------


def noise(size, seed):
    return random.Random(seed).randbytes(size)


def write_file(path, data, mode=0o644):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as file:
        file.write(data)
    os.chmod(path, mode)


def make_client(folder, build, text_size):
    """Small files and large ones, those that can be compressed and those that can't."""
    at = lambda name: f"{folder}/Contents/{name}"
    line = b"%d the same words again and again\n" % build
    write_file(at("Frameworks/libsync"), noise(1_500_000, build))
    write_file(at("Frameworks/libtext"), line * (text_size // len(line)))
    write_file(at("Frameworks/libzero"), bytes(400_000) + b"%d" % build)
    for i in range(40):
        body = noise(200 + 211 * i, build + i) if i % 2 else b"%d %d\n" % (build, i) * (20 * i + 1)
        write_file(at(f"Resources/{'deep/er/' if i % 3 == 0 else ''}part{i:02}"), body)
    write_file(at("Resources/nothing"), b"")
    os.symlink("../Frameworks/libsync", at("Resources/link"))
    script = b'#!/bin/sh\necho %d >>"$LARKMOOR_STARTS"\nexit\n' % build
    write_file(f"{folder}/{EXECUTABLE}", script + b"# %d\n" % build * 4000, 0o755)
    write_file(f"{folder}/{INFO}", b"[Version]\nbuild_version=%d\n" % build)


def read_tree(folder):
    """Every path with its kind, mode and bytes; None without the folder. What can't be read counts,
    and equals nothing that can."""
    if not os.path.lexists(folder):
        return None
    tree = {}
    for parent, folders, files in os.walk(folder, onerror=lambda error: tree.update({error.filename: "unreadable"})):
        for name in folders + files:
            path = os.path.join(parent, name)
            key = os.path.relpath(path, folder)
            try:
                info = os.lstat(path)
                if stat.S_ISLNK(info.st_mode):
                    tree[key] = os.readlink(path)
                elif stat.S_ISREG(info.st_mode):
                    with open(path, "rb") as file:
                        tree[key] = (info.st_mode, hashlib.sha1(file.read()).digest())
                else:
                    tree[key] = info.st_mode
            except OSError as error:
                tree[key] = f"unreadable: {error.errno}"
    return tree


class Material:
    """What all recordings share: two clients, packages, bundles, and the whole trees."""

    def __init__(self, folder, arguments, text_size):
        self.folder = folder
        self.arguments = arguments
        make_client(f"{folder}/client{FORMER}", FORMER, 700_000)
        make_client(f"{folder}/client{CARRIED}", CARRIED, text_size)
        make_package = os.path.join(arguments.source, "scripts/make-package")
        run(make_package, "--quiet", "--filter", "gzip", f"{folder}/client{CARRIED}", f"{folder}/sound.lpk")
        run(make_package, "--quiet", "--filter", "none", f"{folder}/client{CARRIED}", f"{folder}/damaged.lpk")
        size = os.path.getsize(f"{folder}/damaged.lpk")
        os.truncate(f"{folder}/damaged.lpk", size * 4 // 5 // 512 * 512 + 100)
        self.make_bundle("sound")
        self.make_bundle("damaged")
        self.trees = {build: read_tree(f"{folder}/client{build}") for build in (FORMER, CARRIED)}
        self.bundle_tree = read_tree(f"{folder}/sound.app")

    def make_bundle(self, package):
        contents = f"{self.folder}/{package}.app/Contents"
        os.makedirs(f"{contents}/MacOS")
        os.makedirs(f"{contents}/Frameworks/plugins/platforms")
        shutil.copy(self.arguments.launcher, f"{contents}/MacOS/launcher")
        shutil.copy(f"{self.arguments.plugins}/platforms/libqoffscreen.so",
                    f"{contents}/Frameworks/plugins/platforms")
        write_file(f"{contents}/Resources/INFO", b"[Version]\nbuild_version=%d\n" % CARRIED)
        os.makedirs(f"{contents}/Resources/package")
        shutil.copy(f"{self.folder}/{package}.lpk", f"{contents}/Resources/package/larkmoor.lpk")

    def name_of(self, tree):
        if tree is None:
            return "nothing"
        return next((build for build, whole in self.trees.items() if tree == whole), "part")


def launch(bundle, home, preload=None):
    """One start of a launcher, and its client to its end; whether a client was started. Nobody minds
    a launcher that can't run."""
    with tempfile.TemporaryDirectory() as runtime:
        starts = f"{runtime}/starts"
        environment = {**os.environ, "HOME": home, "LARKMOOR_STARTS": starts,
                       "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C", "XDG_RUNTIME_DIR": runtime}
        if preload:
            environment["LD_PRELOAD"] = preload
        try:
            done = subprocess.run([f"{bundle}/Contents/MacOS/launcher"], env=environment, cwd="/", timeout=120,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        except OSError:
            return False
        if done.returncode != 0 or not can_start(f"{home}/.Larkmoor/Larkmoor.app/{EXECUTABLE}"):
            return False
        wait_for("the client's start", lambda: os.path.exists(starts))
        return True


def can_start(client):
    """Whether a client's executable is there, and is more than its name."""
    try:
        with open(client, "rb") as file:
            return file.read(10) == b"#!/bin/sh\n" and os.access(client, os.X_OK)
    except OSError:
        return False


# Recording -----------------------------------------------------------------------------------------


@contextlib.contextmanager
def short_queue(loop):
    """For the scope a disk takes requests of 64 KiB at most, so that the kernel can't hand it
    everything at once."""
    setting = f"/sys/block/{os.path.basename(loop)}/queue/max_sectors_kb"
    with open(setting) as file:
        before = file.read()
    with open(setting, "w") as file:
        file.write("64")
    try:
        yield
    finally:
        with open(setting, "w") as file:
            file.write(before)


class Recording:
    """One run of the launcher on a recorded disk."""

    def __init__(self, file_system, scenario, profile, seed):
        self.file_system, self.scenario, self.profile, self.seed = file_system, scenario, profile, seed
        self.folder = None

    def __str__(self):
        return f"{self.file_system}, {self.scenario}, {self.profile}, seed {self.seed}"

    def prepare(self, material):
        os.makedirs(f"{self.folder}/fuse")
        os.makedirs(f"{self.folder}/volume")
        image = f"{self.folder}/image"
        with open(image, "wb") as file:
            file.truncate(IMAGE_SIZE)
        run(*MKFS[self.file_system], image)
        run("mount", "-o", "loop," + RECORD_OPTIONS[self.file_system], image, f"{self.folder}/volume")
        home = f"{self.folder}/volume/home"
        os.makedirs(f"{home}/.Larkmoor")
        if self.scenario != "first installation":
            shutil.copytree(f"{material.folder}/client{FORMER}", f"{home}/.Larkmoor/Larkmoor.app", symlinks=True)
        unmount(f"{self.folder}/volume")
        run("fallocate", "--dig-holes", image)
        run("cp", "--sparse=always", image, f"{self.folder}/base")
        # One of its own: two starts from the same place are one too many for the guard.
        for bundle in ("sound.app", "damaged.app"):
            shutil.copytree(f"{material.folder}/{bundle}", f"{self.folder}/{bundle}")

    def record(self):
        material = self.material
        self.prepare(material)
        fuse, volume = f"{self.folder}/fuse", f"{self.folder}/volume"
        disk = subprocess.Popen(
            [material.arguments.disk, f"{self.folder}/image", f"{self.folder}/log",
             str(LATENCY[self.profile]), str(RATE[self.profile]), str(self.seed), fuse],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        loop = None
        try:
            wait_for("the recorded disk", lambda: os.path.exists(f"{fuse}/disk"))
            try:
                loop = run("losetup", "--find", "--show", "--direct-io=on", f"{fuse}/disk")
            except RuntimeError:  # then one request after the other
                loop = run("losetup", "--find", "--show", f"{fuse}/disk")
            with short_queue(loop):
                run("mount", "-t", self.file_system, "-o", RECORD_OPTIONS[self.file_system], loop, volume)
                try:
                    self.work(material, volume, f"{fuse}/note")
                finally:
                    unmount(volume)
        finally:
            if loop:
                run("losetup", "--detach", loop)
            unmount(fuse)
            disk.wait()
        os.remove(f"{self.folder}/image")

    def work(self, material, volume, notes):
        def note(text):
            with open(notes, "w") as file:
                file.write(text)

        note("begin")
        neighbour = None
        if self.profile == "neighbour":
            neighbour = subprocess.Popen([sys.executable, "-c", NEIGHBOUR, f"{volume}/neighbour", str(self.seed)])
        try:
            bundle = f"{self.folder}/{'damaged' if self.scenario == 'rollback' else 'sound'}.app"
            if self.scenario == "bundle just copied":
                shutil.copytree(bundle, f"{volume}/Larkmoor.app", symlinks=True)
                bundle = f"{volume}/Larkmoor.app"
            preload = material.arguments.no_flush if material.arguments.without_flushes else None
            if not launch(bundle, f"{volume}/home", preload):
                raise RuntimeError(f"{self}: the launcher started no client")
            note("ended")
            # What the kernel writes by itself afterwards belongs to the record.
            time.sleep(TAIL_SECONDS[self.profile])
            note("end")
        finally:
            if neighbour:
                neighbour.kill()
                neighbour.wait()


NEIGHBOUR = """
import os, random, sys, time
draw = random.Random(int(sys.argv[2]))
while True:
    with open(sys.argv[1], "a") as file:
        file.write("a line\\n")
        file.flush()
        os.fsync(file.fileno())
    time.sleep(draw.uniform(0.01, 0.1))
"""


# Cutting -------------------------------------------------------------------------------------------


class Write:
    def __init__(self, place, data, arrived):
        self.place, self.data, self.arrived, self.completed = place, data, arrived, None


class Log:
    """The record of a disk: moments are numbered by the records."""

    def __init__(self, path):
        self.writes, self.flushes, self.notes = {}, [], {}
        with open(path, "rb") as file:
            raw = file.read()
        arrived, at, self.end = {}, 0, 0
        while at < len(raw):
            kind, request, place, size = struct.unpack_from("<cQQI", raw, at)
            at += 21
            if kind in b"WN":
                data, at = raw[at:at + size], at + size
            if kind == b"N":
                self.notes[data.decode()] = self.end
            elif kind == b"W":
                self.writes[request] = Write(place, data, self.end)
            elif kind == b"w":
                self.writes[request].completed = self.end
            elif kind == b"F":
                arrived[request] = self.end
            else:
                self.flushes.append((self.end, arrived[request]))  # when it completed, and arrived
            self.end += 1

    def split(self, moment):
        """The writes that a flush has made durable by then, and those that are only on their way."""
        covered = max((arrived for completed, arrived in self.flushes if completed < moment), default=-1)
        durable, pending = [], []
        for write in self.writes.values():
            if write.completed is not None and write.completed < covered:
                durable.append(write)
            elif write.arrived < moment:
                pending.append(write)
        return durable, pending


class Cutter:
    """Makes the disk as cuts leave it, and looks what becomes of each."""

    def __init__(self, recording, seed):
        self.recording, self.material = recording, recording.material
        self.draw = random.Random(seed)
        self.log = Log(f"{recording.folder}/log")
        self.image, self.volume = f"{recording.folder}/cut", f"{recording.folder}/volume"
        self.base = list(self.extents(f"{recording.folder}/base"))
        self.results = []

    @staticmethod
    def extents(path):
        with open(path, "rb", buffering=0) as file:
            at = 0
            while True:
                try:
                    at = os.lseek(file.fileno(), at, os.SEEK_DATA)
                except OSError:
                    return
                end = os.lseek(file.fileno(), at, os.SEEK_HOLE)
                yield at, os.pread(file.fileno(), end - at, at)
                at = end

    def pieces(self, write, how):
        """What reaches the disk of a write that no flush covers. A disk writes 4 KiB whole."""
        if how == "nothing":
            return
        if how == "everything":
            yield write.place, write.data
            return
        if self.draw.random() < self.share:
            if how == "torn" and len(write.data) > PAGE:
                for at in range(0, len(write.data), PAGE):
                    if self.draw.random() < 0.5:
                        yield write.place + at, write.data[at:at + PAGE]
            else:
                yield write.place, write.data

    def make_image(self, moment, how):
        durable, pending = self.log.split(moment)
        self.share = self.draw.choice([0.2, 0.5, 0.8])
        with open(self.image, "wb", buffering=0) as file:
            file.truncate(IMAGE_SIZE)
            for at, data in self.base:
                os.pwrite(file.fileno(), data, at)
            for write in durable:
                os.pwrite(file.fileno(), write.data, write.place)
            for write in pending:
                for at, data in self.pieces(write, how):
                    os.pwrite(file.fileno(), data, at)
        return len(pending)

    def cut(self, moment, how):
        self.make_image(moment, how)
        kind, state = self.look(moment)
        self.results.append((kind, moment, how))
        return state

    def look(self, moment):
        if self.recording.file_system == "ext2":
            # Without a journal this is what a system does at its start.
            subprocess.run(["e2fsck", "-fy", self.image], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        options = "loop," + RECOVER_OPTIONS[self.recording.file_system]
        mounted = subprocess.run(["mount", "-t", self.recording.file_system, "-o", options, self.image, self.volume],
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if mounted.returncode != 0:
            return UNMOUNTABLE, UNMOUNTABLE
        try:
            return self.classify(moment)
        finally:
            unmount(self.volume)

    def app(self):
        return self.material.name_of(read_tree(f"{self.volume}/home/.Larkmoor/Larkmoor.app"))

    def whole_tree_aside(self):
        root = f"{self.volume}/home/.Larkmoor"
        asides = [name for name in os.listdir(root) if re.fullmatch(r"Larkmoor\.app_tmp\d?", name)] \
            if os.path.isdir(root) else []
        return any(self.material.name_of(read_tree(f"{root}/{name}")) in (FORMER, CARRIED) for name in asides)

    def classify(self, moment):
        """The class of the cut, and the state before the launcher was started again."""
        tree = read_tree(f"{self.volume}/home/.Larkmoor/Larkmoor.app")
        app, aside = self.material.name_of(tree), self.whole_tree_aside()
        own_bundle = self.recording.scenario == "bundle just copied"
        bundle = f"{self.volume}/Larkmoor.app"
        whole_bundle = not own_bundle or read_tree(bundle) == self.material.bundle_tree
        state = (tree, aside, whole_bundle)
        home = f"{self.volume}/home"
        os.makedirs(home, exist_ok=True)

        launch(bundle if own_bundle else f"{self.recording.folder}/sound.app", home)
        after = self.app()
        if app == CARRIED:
            return (NEW if after == CARRIED else LOST), state
        if after == CARRIED:
            if app == FORMER:
                return OLD, state
            return (HEALED_ASIDE if aside else HEALED), state
        if whole_bundle:
            return UNNOTICED, state
        # The bundle is gone as well: the user downloads another one.
        launch(f"{self.recording.folder}/sound.app", home)
        if self.app() != CARRIED:
            return UNNOTICED, state
        if app == FORMER:
            return OLD, state
        return (DOWNLOAD if aside else LOST), state

    def cut_everywhere(self, budget):
        begin = self.log.notes["begin"] + 1
        end = self.log.notes["end"]
        edges = [begin] + [done + 1 for done, _ in self.log.flushes if begin < done < end] + [end]
        spans = [(a, b) for a, b in zip(edges, edges[1:]) if b > a]
        self.draw.shuffle(spans)
        states = {}
        halvings = budget // 2
        for first, last in spans:
            if len(self.results) >= budget - halvings:
                break
            self.cut(first, "nothing")
            states[last - 1] = self.cut(last - 1, "everything")
            if last - first > 3:
                for how in ("some", "torn"):
                    self.cut(self.draw.randrange(first + 1, last), how)
        while len(self.results) < budget and self.halve(states):
            pass
        while len(self.results) < budget:
            self.cut(self.draw.randrange(begin, end), self.draw.choice(["some", "torn"]))

    def halve(self, states):
        """One cut in the middle of two between which the tree changes; False when there are none."""
        moments = sorted(states)
        gaps = [(b - a, a, b) for a, b in zip(moments, moments[1:]) if states[a] != states[b] and b - a > 1]
        if not gaps:
            return False
        _, a, b = max(gaps)
        middle = (a + b) // 2
        states[middle] = self.cut(middle, "everything")
        return True


# The whole -----------------------------------------------------------------------------------------


def reason_to_skip(arguments):
    if os.geteuid() != 0:
        return "mounting needs root"
    if not os.path.exists("/dev/fuse"):
        return "this kernel has no FUSE"
    if not os.path.exists("/dev/loop-control"):
        return "this kernel has no loop devices"
    if not os.access("/proc/sys/vm/dirty_expire_centisecs", os.W_OK):
        return "the times of write-back can't be changed here"
    for tool in ("losetup", "mount", "fallocate", "e2fsck"):
        if not shutil.which(tool):
            return f"'{tool}' is missing: run scripts/setup test"
    return None


def file_systems(wanted):
    """Those that can be made and mounted here; says why for the others."""
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
    """Few at a time, since each takes some 150 MB, and those of a batch with the same settings."""
    for is_eager in (False, True):
        due = [each for each in recordings if (each.profile == "overlapping") == is_eager]
        yield from (due[i:i + size] for i in range(0, len(due), size))


def record_all(recordings, scratch):
    settings = KernelSettings()
    try:
        settings.set(EAGER if recordings[0].profile == "overlapping" else TIMES)
        for recording in recordings:
            recording.folder = tempfile.mkdtemp(dir=scratch)
        with concurrent.futures.ThreadPoolExecutor(4) as pool:
            list(pool.map(lambda each: each.record(), recordings))
    finally:
        settings.close()


def cut_one(recording, budget):
    cutter = Cutter(recording, recording.seed)
    cutter.cut_everywhere(budget)
    ended = cutter.log.notes["ended"]
    shutil.rmtree(recording.folder, ignore_errors=True)
    return [(kind, moment, how, moment > ended) for kind, moment, how in cutter.results]


def print_table(counts, rows):
    width = max(map(len, CLASSES))
    print(f"{'':{width}}" + "".join(f"{row:>20}" for row in rows) + f"{'all':>8}")
    for kind in CLASSES:
        cells = [counts[row][kind] for row in rows]
        print(f"{kind:{width}}" + "".join(f"{cell:>20}" for cell in cells) + f"{sum(cells):>8}")
    cells = [sum(counts[row].values()) for row in rows]
    print(f"{'cuts':{width}}" + "".join(f"{cell:>20}" for cell in cells) + f"{sum(cells):>8}", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--source", required=True, help="the project's folder")
    parser.add_argument("--launcher", required=True)
    parser.add_argument("--plugins", required=True, help="Qt's plug-ins")
    parser.add_argument("--disk", required=True, help="the program recording-disk")
    parser.add_argument("--no-flush", required=True, help="the library no-flush")
    parser.add_argument("--without-flushes", action="store_true",
                        help="succeed when a launcher that flushes nothing is found out")
    parser.add_argument("--short", action="store_true", default=bool(os.environ.get("LARKMOOR_SHORT_SWEEPS")),
                        help="some 200 cuts instead of 2,000; LARKMOOR_SHORT_SWEEPS asks for the same")
    parser.add_argument("--file-system", choices=list(MKFS), help="only this one")
    parser.add_argument("--seed", type=int, default=int(os.environ.get("LARKMOOR_SEED") or 1))
    arguments = parser.parse_args()
    arguments.no_flush = os.path.abspath(arguments.no_flush)  # the loader passes over what it can't find

    os.environ["PATH"] += ":/usr/sbin:/sbin"
    reason = reason_to_skip(arguments)
    if reason:
        print(f"skipped: {reason}")
        return SKIPPED
    if os.environ.get("LARKMOOR_OWN_MOUNTS") != "1":
        os.environ["LARKMOOR_OWN_MOUNTS"] = "1"
        os.execvp("unshare", ["unshare", "--mount", "--propagation", "private", sys.executable, *sys.argv])
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))

    usable = file_systems(arguments.file_system)
    recordings = plan(arguments, usable)
    if not recordings:
        print("skipped: no file system that is looked at can be mounted here")
        return SKIPPED
    budget = 24 if arguments.short else 40
    counts = collections.defaultdict(collections.Counter)
    by_scenario = collections.defaultdict(collections.Counter)
    bad, late = [], []
    # The kernel's settings are one for all: another run waits.
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
                    found = collections.Counter(kind for kind, *_ in results)
                    print(f"{recording}: " + ", ".join(f"{found[kind]} {kind}" for kind in CLASSES if found[kind]),
                          flush=True)
                    for kind, moment, how, is_late in results:
                        counts[recording.file_system][kind] += 1
                        by_scenario[recording.scenario][kind] += 1
                        where = f"{recording}: {kind} at moment {moment}, {how} of what was on its way"
                        # The old tree has to be there until the new one is.
                        if kind in BAD or (kind == HEALED and recording.scenario != "first installation"):
                            bad.append(where)
                        if is_late and recording.scenario != "rollback" and kind != NEW:
                            late.append(where)

    print_table(counts, [name for name in MKFS if name in counts])
    print_table(by_scenario, [name for name in SCENARIOS if name in by_scenario])
    print(f"seed {arguments.seed}, {len(recordings)} recordings")
    if arguments.without_flushes:
        found = sum(counts.values(), collections.Counter())
        for kind in (UNNOTICED, LOST):
            print(f"without flushes, {kind}: {found[kind]}")
        return 0 if found[UNNOTICED] and found[LOST] else 1
    for where in bad:
        print(f"FAILED: {where}")
    for where in late:
        print(f"FAILED: the launcher had ended, and {where}")
    return 1 if bad or late else 0


if __name__ == "__main__":
    sys.exit(main())
