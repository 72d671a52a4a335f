"""File systems to measure on, and facts about the machine.

Creating files soon after a mass removal on the same ext4 is many times slower, so results from an ordinary
folder would depend on the previous runs.
"""

import contextlib
import os
import pathlib
import platform
import shutil
import subprocess
import tempfile

SHARED_MEMORY = pathlib.Path("/dev/shm")


class Failure(Exception):
    """Its message names the cause and the fix."""


def run(command, **options):
    """Runs a command and discards its output; the exception of a failure has its messages."""
    done = subprocess.run([str(word) for word in command], stdin=subprocess.DEVNULL,
                          stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, **options)
    check(done.returncode, command, done.stderr)


def check(status, command, words):
    if status != 0:
        words = words.decode(errors="replace").strip() or "no message"
        raise Failure(f"{' '.join(map(str, command))}\n   exited with status {status}: {words}")


@contextlib.contextmanager
def memory(size):
    """A folder on a tmpfs with `size` bytes free, removed at the end."""
    if not SHARED_MEMORY.is_dir() or shutil.disk_usage(SHARED_MEMORY).free < size:
        raise Failure(
            f"{SHARED_MEMORY} has less than {size >> 20} MiB free: free some, or run "
            "scripts/bench --short"
        )
    with tempfile.TemporaryDirectory(prefix="larkmoor-bench.", dir=SHARED_MEMORY) as folder:
        yield pathlib.Path(folder)


class FreshExt4:
    """An ext4 in a file on the tmpfs that can be recreated. Needs root and a loop device."""

    def __init__(self, memory_folder, size):
        self.image = memory_folder / "ext4.image"
        self.folder = memory_folder / "ext4"
        self.size = size
        self.mounted = False
        self.folder.mkdir()

    def renew(self):
        self.close()
        with open(self.image, "wb") as image:
            image.truncate(self.size)
        run(["mkfs.ext4", "-q", "-F", "-E", "lazy_itable_init=0,nodiscard", self.image])
        run(["mount", "-o", "loop", self.image, self.folder])
        self.mounted = True
        return self.folder

    def close(self):
        if self.mounted:
            run(["umount", self.folder])
        self.mounted = False
        self.image.unlink(missing_ok=True)

    @staticmethod
    def is_possible():
        return os.geteuid() == 0 and bool(shutil.which("mkfs.ext4")) and (
            pathlib.Path("/dev/loop-control").exists())


def _processor():
    with contextlib.suppress(OSError):
        for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
            if line.startswith("model name"):
                return line.split(":", 1)[1].strip()
    return platform.processor()


def machine():
    return {
        "processor": _processor(),
        "cores": os.cpu_count(),
        "system": f"{platform.system()} {platform.release()}",
    }


def free_memory():
    """Available memory in bytes."""
    for line in pathlib.Path("/proc/meminfo").read_text().splitlines():
        if line.startswith("MemAvailable:"):
            return int(line.split()[1]) * 1024
    return 0


def load():
    """The load average of the last minute."""
    return round(os.getloadavg()[0], 1)
