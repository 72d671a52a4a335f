"""The clients, packages and bundles of the tests, and starting a launcher."""

import hashlib
import os
import random
import shutil
import stat
import subprocess
import tempfile

from system import run, wait_for

OLD_BUILD, NEW_BUILD = 100, 200
EXECUTABLE = "Contents/MacOS/larkmoor-drive-ui"
INFO = "Contents/Resources/INFO"


def noise(size, seed):
    return random.Random(seed).randbytes(size)


def write_file(path, data, mode=0o644):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as file:
        file.write(data)
    os.chmod(path, mode)


def make_client(folder, build, text_size):
    """Small files and large ones, compressible and not."""
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
    """A dict from each path to its type, mode and contents; None if there is no such folder. An
    unreadable entry is included and never equals a readable one."""
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
    """What recordings share: two clients, an intact and a damaged package, a bundle with each, and
    the complete trees to compare with."""

    def __init__(self, folder, arguments, text_size):
        self.folder = folder
        self.arguments = arguments
        make_client(f"{folder}/client{OLD_BUILD}", OLD_BUILD, 700_000)
        make_client(f"{folder}/client{NEW_BUILD}", NEW_BUILD, text_size)
        make_package = os.path.join(arguments.source, "scripts/make-package")
        run(make_package, "--quiet", "--filter", "gzip", f"{folder}/client{NEW_BUILD}", f"{folder}/intact.lpk")
        run(make_package, "--quiet", "--filter", "none", f"{folder}/client{NEW_BUILD}", f"{folder}/damaged.lpk")
        # Never truncated between entries: a tar file without its end is accepted as complete.
        size = os.path.getsize(f"{folder}/damaged.lpk")
        os.truncate(f"{folder}/damaged.lpk", size * 4 // 5 // 512 * 512 + 100)
        self.make_bundle("intact")
        self.make_bundle("damaged")
        self.trees = {build: read_tree(f"{folder}/client{build}") for build in (OLD_BUILD, NEW_BUILD)}
        self.bundle_tree = read_tree(f"{folder}/intact.app")

    def make_bundle(self, package):
        contents = f"{self.folder}/{package}.app/Contents"
        os.makedirs(f"{contents}/MacOS")
        os.makedirs(f"{contents}/Frameworks/plugins/platforms")
        shutil.copy(self.arguments.launcher, f"{contents}/MacOS/launcher")
        shutil.copy(f"{self.arguments.plugins}/platforms/libqoffscreen.so",
                    f"{contents}/Frameworks/plugins/platforms")
        write_file(f"{contents}/Resources/INFO", b"[Version]\nbuild_version=%d\n" % NEW_BUILD)
        os.makedirs(f"{contents}/Resources/package")
        shutil.copy(f"{self.folder}/{package}.lpk", f"{contents}/Resources/package/larkmoor.lpk")

    def identify(self, tree):
        """The build number of a complete tree, "partial" or "nothing"."""
        if tree is None:
            return "nothing"
        return next((build for build, complete in self.trees.items() if tree == complete), "partial")


def launch(bundle, home, preload=None):
    """Runs a launcher until it and its client exit. Returns whether a client was started; False if
    the launcher can't be executed."""
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
    """Whether a client's executable exists and has its contents."""
    try:
        with open(client, "rb") as file:
            return file.read(10) == b"#!/bin/sh\n" and os.access(client, os.X_OK)
    except OSError:
        return False
