"""Runs the launcher on a disk that records its writes and flushes."""

import os
import shutil
import subprocess
import sys
import time

from clients import OLD_BUILD, launch
from system import IMAGE_SIZE, MKFS, run, small_requests, unmount, wait_for

# The journal is committed every second, to match the faster write-back.
MOUNT_OPTIONS = {"ext4": "commit=1", "xfs": "defaults", "btrfs": "commit=1,nodiscard", "ext2": "defaults"}

SCENARIOS = ["first installation", "upgrade", "rollback", "bundle just copied"]

# "neighbour": beside a program that calls fsync continuously. "overlapping": with immediate
# write-back.
PROFILES = ["quiet", "neighbour", "slow disk", "overlapping"]
TAIL_SECONDS = {"quiet": 4.0, "neighbour": 6.0, "slow disk": 5.0, "overlapping": 1.5}
LATENCY = {"quiet": 300, "neighbour": 1000, "slow disk": 15000, "overlapping": 1000}  # microseconds
RATE = {"quiet": 400, "neighbour": 30, "slow disk": 10, "overlapping": 100}  # MB/s

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


class Recording:
    """One run of the launcher. The caller sets `folder` and `material` before record(), which leaves
    in the folder the disk's initial image, "base", and the log of what reached the disk, "log"."""

    def __init__(self, file_system, scenario, profile, seed):
        self.file_system, self.scenario, self.profile, self.seed = file_system, scenario, profile, seed
        self.folder = None
        self.material = None

    def __str__(self):
        return f"{self.file_system}, {self.scenario}, {self.profile}, seed {self.seed}"

    def record(self):
        self.prepare()
        fuse, volume = f"{self.folder}/fuse", f"{self.folder}/volume"
        disk = subprocess.Popen(
            [self.material.arguments.disk, f"{self.folder}/image", f"{self.folder}/log",
             str(LATENCY[self.profile]), str(RATE[self.profile]), str(self.seed), fuse],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        loop = None
        try:
            wait_for("mounting the recorded disk", lambda: os.path.exists(f"{fuse}/disk"))
            try:
                loop = run("losetup", "--find", "--show", "--direct-io=on", f"{fuse}/disk")
            except RuntimeError:  # without direct I/O there is one request at a time
                loop = run("losetup", "--find", "--show", f"{fuse}/disk")
            with small_requests(loop):
                run("mount", "-t", self.file_system, "-o", MOUNT_OPTIONS[self.file_system], loop, volume)
                try:
                    self.work(volume, f"{fuse}/note")
                finally:
                    unmount(volume)
        finally:
            if loop:
                run("losetup", "--detach", loop)
            unmount(fuse)
            disk.wait()
        os.remove(f"{self.folder}/image")

    def prepare(self):
        os.makedirs(f"{self.folder}/fuse")
        os.makedirs(f"{self.folder}/volume")
        image = f"{self.folder}/image"
        with open(image, "wb") as file:
            file.truncate(IMAGE_SIZE)
        run(*MKFS[self.file_system], image)
        run("mount", "-o", "loop," + MOUNT_OPTIONS[self.file_system], image, f"{self.folder}/volume")
        home = f"{self.folder}/volume/home"
        os.makedirs(f"{home}/.Larkmoor")
        if self.scenario != "first installation":
            shutil.copytree(f"{self.material.folder}/client{OLD_BUILD}", f"{home}/.Larkmoor/Larkmoor.app",
                            symlinks=True)
        unmount(f"{self.folder}/volume")
        run("fallocate", "--dig-holes", image)
        run("cp", "--sparse=always", image, f"{self.folder}/base")
        # A copy for each recording: a launcher exits if another one runs from the same path.
        for bundle in ("intact.app", "damaged.app"):
            shutil.copytree(f"{self.material.folder}/{bundle}", f"{self.folder}/{bundle}")

    def work(self, volume, notes):
        """What happens on the recorded volume."""
        def note(text):
            with open(notes, "w") as file:
                file.write(text)

        note("begin")
        neighbour = None
        if self.profile == "neighbour":
            neighbour = subprocess.Popen([sys.executable, "-c", NEIGHBOUR, f"{volume}/neighbour", str(self.seed)])
        try:
            bundle = f"{self.folder}/{'damaged' if self.scenario == 'rollback' else 'intact'}.app"
            if self.scenario == "bundle just copied":
                shutil.copytree(bundle, f"{volume}/Larkmoor.app", symlinks=True)
                bundle = f"{volume}/Larkmoor.app"
            arguments = self.material.arguments
            preload = arguments.no_flush if arguments.without_flushes else None
            if not launch(bundle, f"{volume}/home", preload):
                raise RuntimeError(f"{self}: the launcher started no client")
            note("ended")
            # Also record the kernel's own write-back after the launcher's exit.
            time.sleep(TAIL_SECONDS[self.profile])
            note("end")
        finally:
            if neighbour:
                neighbour.kill()
                neighbour.wait()
