"""Rebuilds a recorded disk as power losses leave it, and classifies what the next start makes of it."""

import os
import random
import re
import struct
import subprocess

from clients import NEW_BUILD, OLD_BUILD, launch, read_tree
from system import IMAGE_SIZE, unmount

PAGE = 4096
MOUNT_OPTIONS = {"ext4": "defaults", "xfs": "nouuid", "btrfs": "nodiscard", "ext2": "defaults"}

# What a cut leaves, and the effect of the next start.
OLD = "old tree"
NEW = "new tree"
RECOVERED_WITH_BACKUP = "recovered, complete backup"
RECOVERED = "recovered, no complete backup"
RECOVERED_BY_DOWNLOAD = "recovered by another download, complete backup"
UNDETECTED = "UNDETECTED partial tree"
LOST = "LOST"
UNMOUNTABLE = "UNMOUNTABLE"
RESULTS = [OLD, NEW, RECOVERED_WITH_BACKUP, RECOVERED, RECOVERED_BY_DOWNLOAD, UNDETECTED, LOST, UNMOUNTABLE]
BAD_RESULTS = {UNDETECTED, LOST, UNMOUNTABLE}


class Write:
    def __init__(self, place, data, arrived):
        self.place, self.data, self.arrived, self.completed = place, data, arrived, None


class Log:
    """The log of recording-disk. A moment is the number of a record."""

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
                self.flushes.append((self.end, arrived[request]))  # when it completed, when it arrived
            self.end += 1

    def split(self, moment):
        """The writes that a completed flush has made durable by then, and all others that have
        arrived."""
        covered = max((arrived for completed, arrived in self.flushes if completed < moment), default=-1)
        durable, pending = [], []
        for write in self.writes.values():
            if write.completed is not None and write.completed < covered:
                durable.append(write)
            elif write.arrived < moment:
                pending.append(write)
        return durable, pending


class Cutter:
    """Cuts the power at many moments of one recording. A cut keeps the durable writes, and of the
    pending ones "none", "all", "some" or "torn" pieces."""

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

    def cut_everywhere(self, budget):
        """Cuts at every flush, between any two, and then halfway wherever the tree changes."""
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
            self.cut(first, "none")
            states[last - 1] = self.cut(last - 1, "all")
            if last - first > 3:
                for pending in ("some", "torn"):
                    self.cut(self.draw.randrange(first + 1, last), pending)
        while len(self.results) < budget and self.halve(states):
            pass
        while len(self.results) < budget:
            self.cut(self.draw.randrange(begin, end), self.draw.choice(["some", "torn"]))

    def halve(self, states):
        """Cuts in the middle of the largest gap with different states at its ends; False if there is
        none."""
        moments = sorted(states)
        gaps = [(b - a, a, b) for a, b in zip(moments, moments[1:]) if states[a] != states[b] and b - a > 1]
        if not gaps:
            return False
        _, a, b = max(gaps)
        middle = (a + b) // 2
        states[middle] = self.cut(middle, "all")
        return True

    def cut(self, moment, pending):
        """Adds the result of one cut. Returns the state that it left."""
        self.make_image(moment, pending)
        result, state = self.mount_and_classify()
        self.results.append((result, moment, pending))
        return state

    def make_image(self, moment, pending):
        durable_writes, pending_writes = self.log.split(moment)
        self.share = self.draw.choice([0.2, 0.5, 0.8])
        with open(self.image, "wb", buffering=0) as file:
            file.truncate(IMAGE_SIZE)
            for at, data in self.base:
                os.pwrite(file.fileno(), data, at)
            for write in durable_writes:
                os.pwrite(file.fileno(), write.data, write.place)
            for write in pending_writes:
                for at, data in self.pieces(write, pending):
                    os.pwrite(file.fileno(), data, at)

    def pieces(self, write, pending):
        """What reaches the disk of a pending write. A disk writes 4 KiB atomically."""
        if pending == "none":
            return
        if pending == "all":
            yield write.place, write.data
            return
        if self.draw.random() < self.share:
            if pending == "torn" and len(write.data) > PAGE:
                for at in range(0, len(write.data), PAGE):
                    if self.draw.random() < 0.5:
                        yield write.place + at, write.data[at:at + PAGE]
            else:
                yield write.place, write.data

    def mount_and_classify(self):
        if self.recording.file_system == "ext2":
            # There is no journal; a system checks such a volume when it boots.
            subprocess.run(["e2fsck", "-fy", self.image], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        options = "loop," + MOUNT_OPTIONS[self.recording.file_system]
        mounted = subprocess.run(["mount", "-t", self.recording.file_system, "-o", options, self.image, self.volume],
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if mounted.returncode != 0:
            return UNMOUNTABLE, UNMOUNTABLE
        try:
            return self.classify()
        finally:
            unmount(self.volume)

    def classify(self):
        """The result of the cut, and the state before the launcher was started again."""
        tree = read_tree(f"{self.volume}/home/.Larkmoor/Larkmoor.app")
        before, has_backup = self.material.identify(tree), self.has_complete_backup()
        own_bundle = self.recording.scenario == "bundle just copied"
        bundle = f"{self.volume}/Larkmoor.app"
        bundle_is_complete = not own_bundle or read_tree(bundle) == self.material.bundle_tree
        state = (tree, has_backup, bundle_is_complete)
        home = f"{self.volume}/home"
        os.makedirs(home, exist_ok=True)

        launch(bundle if own_bundle else f"{self.recording.folder}/intact.app", home)
        after = self.installed()
        if before == NEW_BUILD:
            return (NEW if after == NEW_BUILD else LOST), state
        if after == NEW_BUILD:
            if before == OLD_BUILD:
                return OLD, state
            return (RECOVERED_WITH_BACKUP if has_backup else RECOVERED), state
        if bundle_is_complete:
            return UNDETECTED, state
        # The bundle is lost as well: the user downloads it again.
        launch(f"{self.recording.folder}/intact.app", home)
        if self.installed() != NEW_BUILD:
            return UNDETECTED, state
        if before == OLD_BUILD:
            return OLD, state
        return (RECOVERED_BY_DOWNLOAD if has_backup else LOST), state

    def installed(self):
        return self.material.identify(read_tree(f"{self.volume}/home/.Larkmoor/Larkmoor.app"))

    def has_complete_backup(self):
        root = f"{self.volume}/home/.Larkmoor"
        backups = [name for name in os.listdir(root) if re.fullmatch(r"Larkmoor\.app_tmp\d?", name)] \
            if os.path.isdir(root) else []
        return any(self.material.identify(read_tree(f"{root}/{name}")) in (OLD_BUILD, NEW_BUILD)
                   for name in backups)
