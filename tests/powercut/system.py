"""Commands, mounts and kernel settings."""

import contextlib
import os
import signal
import subprocess
import time

IMAGE_SIZE = 300 << 20  # the minimum for mkfs.xfs

MKFS = {
    "ext4": ["mkfs.ext4", "-q", "-F", "-b", "4096", "-E", "lazy_itable_init=0"],
    "xfs": ["mkfs.xfs", "-q", "-f"],
    "btrfs": ["mkfs.btrfs", "-q", "-f"],
    "ext2": ["mkfs.ext2", "-q", "-F", "-b", "4096", "-E", "lazy_itable_init=0"],
}

# A tenth of the kernel's default write-back intervals.
FAST_WRITE_BACK = {
    "vm/dirty_expire_centisecs": 200,
    "vm/dirty_writeback_centisecs": 40,
    "fs/xfs/xfssyncd_centisecs": 100,
}
# Write-back starts immediately, while the launcher is still unpacking.
IMMEDIATE_WRITE_BACK = {
    "vm/dirty_expire_centisecs": 10,
    "vm/dirty_writeback_centisecs": 5,
    "vm/dirty_background_bytes": 256 << 10,
    "fs/xfs/xfssyncd_centisecs": 100,
}


def run(*command, **options):
    """Runs a command and returns its output; raises RuntimeError if it fails."""
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
    """Retries while the volume is busy: the client may still be exiting."""
    wait_for(f"unmounting {folder}", lambda: subprocess.run(
        ["umount", folder], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0)


class KernelSettings:
    """Numbers below /proc/sys. A child process restores them when this process ends, even if it is
    killed."""

    def __init__(self):
        names = [*FAST_WRITE_BACK, "vm/dirty_background_ratio", "vm/dirty_background_bytes"]
        self.saved = {name: open(self.path(name)).read() for name in names if os.path.exists(self.path(name))}
        reader, self.writer = os.pipe()
        self.keeper = os.fork()
        if self.keeper == 0:
            os.close(self.writer)
            for each in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
                signal.signal(each, signal.SIG_IGN)
            os.read(reader, 1)  # returns when the last writer is closed
            self.restore()
            os._exit(0)
        os.close(reader)
        os.set_inheritable(self.writer, False)

    @staticmethod
    def path(name):
        return "/proc/sys/" + name

    def set(self, values):
        self.restore()
        for name, value in values.items():
            if name in self.saved:
                with open(self.path(name), "w") as file:
                    file.write(str(value))

    def restore(self):
        # Of dirty_background_ratio and dirty_background_bytes one is always 0: the other applies.
        for name, value in self.saved.items():
            if not (name.startswith("vm/dirty_background") and int(value) == 0):
                with open(self.path(name), "w") as file:
                    file.write(value)

    def close(self):
        os.close(self.writer)
        os.waitpid(self.keeper, 0)


@contextlib.contextmanager
def small_requests(loop):
    """Limits the loop device's requests to 64 KiB, so that the kernel can't send everything at once."""
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
