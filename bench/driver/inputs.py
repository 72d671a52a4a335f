"""The inputs: trees from a fixed seed, packages of them, and the bundle and home in which the launcher
runs."""

import os
import pathlib
import random
import re
import shutil
import subprocess
import sysconfig

import workspace

SEED = 20140915
VERSION = 2  # changes with the contents of the trees, so that older packages aren't used

EXECUTABLE = "Contents/MacOS/larkmoor-drive-ui"
INFO = "Contents/Resources/INFO"
INFO_TEXT = "[Version]\nmajor_version=3\nminor_version=1\nbuild_version={}\nicon_overlay_version=12\n"

MAKE_PACKAGE = pathlib.Path(__file__).parents[2] / "scripts/make-package"
ICON = pathlib.Path(__file__).parents[2] / "resources/images/ico_72_larkmoor.png"

# Without the system's forty or so configuration files for fonts, which every program with a window parses.
ONE_FONT = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig><dir>/usr/share/fonts/truetype/dejavu</dir><cachedir>{cache}</cachedir></fontconfig>
"""

FORMATS = {
    "tar.gz": ["--format", "gnutar", "--gzip"],
    "tar.zst": ["--format", "gnutar", "--zstd"],
    "tar.xz": ["--format", "gnutar", "--xz", "--options", "xz:compression-level=1"],
    "zip": ["--format", "zip"],
}


def _vocabulary():
    """Words as short and as frequent as those in a program's texts."""
    source = random.Random(SEED)
    return [bytes(source.choices(b"etaoinshrdlucmfw_.", k=source.randint(2, 10))) + b" "
            for _ in range(4000)]


_WORDS = _vocabulary()


def content(source, size):
    """A quarter is incompressible, as in pictures, half is words, a quarter repeats earlier bytes: gzip
    compresses it to about half."""
    quarter = size // 4
    words = b"".join(source.choices(_WORDS, k=size // 14 + 1))[: 2 * quarter]
    start = source.randbytes(quarter) + words
    repeated = start[-4096:]
    return (start + repeated * (size // max(1, len(repeated)) + 1))[:size]


def client(folder):
    """What makes a tree a client: an executable and a version."""
    executable = folder / EXECUTABLE
    executable.parent.mkdir(parents=True, exist_ok=True)
    executable.write_text("#!/bin/sh\n")
    executable.chmod(0o755)
    info = folder / INFO
    info.parent.mkdir(parents=True, exist_ok=True)
    info.write_text(INFO_TEXT.format(2))


def tree(folder, files, size, folders):
    """`files` files of similar size, `size` bytes in total, in `folders` folders."""
    source = random.Random(SEED)
    places = [folder / "Contents/Resources" / f"group-{i % 40:02}" / f"folder-{i:05}"
              for i in range(folders)]
    for place in places:
        place.mkdir(parents=True)
    for i in range(files):
        share = int(size / files * source.uniform(0.5, 1.5))
        (places[i % folders] / f"file-{i:06}.dat").write_bytes(content(source, share))
    client(folder)


def deep_tree(folder, files, depth):
    """`files` small files at the end of a chain of `depth` folders."""
    source = random.Random(SEED)
    place = folder / "Contents/Resources"
    for level in range(depth):
        place = place / f"level-{level:03}"
    place.mkdir(parents=True)
    for i in range(files):
        (place / f"file-{i:06}.dat").write_bytes(content(source, 100))
    client(folder)


def system_tree(folder, size):
    """The system's libraries, in order of their names, up to `size` bytes."""
    libraries = pathlib.Path("/usr/lib") / (sysconfig.get_config_var("MULTIARCH") or "")
    place = folder / "Contents/Frameworks"
    place.mkdir(parents=True)
    taken = 0
    for path in sorted(libraries.rglob("*")):
        if taken >= size:
            break
        if path.is_symlink() or not path.is_file() or not os.access(path, os.R_OK):
            continue
        target = place / path.relative_to(libraries)
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(path, target)
        taken += path.stat().st_size
    client(folder)


def pack(folder, package, options):
    """The client's executable and INFO are last, as in every package."""
    paths = sorted(str(path.relative_to(folder)) for path in folder.rglob("*"))
    paths = [path for path in paths if path not in (EXECUTABLE, INFO)] + [EXECUTABLE, INFO]
    partial = package.with_name(package.name + ".partial")
    subprocess.run(["bsdtar", "-cf", partial, *options, "-C", folder, "--null", "-n", "-T", "-"],
                   input="\0".join(paths).encode(), check=True)
    partial.rename(package)


def make_package(folder, package, *options):
    """As for a release."""
    subprocess.run([MAKE_PACKAGE, "--quiet", *options, folder, package], check=True)


class Packages:
    """Packages, kept for the next run: packing takes longer than measuring."""

    def __init__(self, cache, scratch):
        self.cache = cache / f"inputs-{VERSION}"
        self.cache.mkdir(parents=True, exist_ok=True)
        self.scratch = scratch

    def get(self, name, kinds, make_tree):
        """A package of the tree for each of the kinds."""
        missing = [kind for kind in kinds if not (self.cache / f"{name}.{kind}").exists()]
        if missing:
            folder = self.scratch / "tree"
            make_tree(folder)
            for kind in missing:
                pack(folder, self.cache / f"{name}.{kind}", FORMATS[kind])
            remove(folder)
        return {kind: self.cache / f"{name}.{kind}" for kind in kinds}

    def xz(self, name, tree):
        """The smallest package that unpacks in moderate memory."""
        package = self.cache / f"{name}.xz.lpk"
        if not package.exists():
            make_package(tree, package, "--filter", "xz", "--level", "6")
        return package


def qt_plugins(build):
    """The folder of the Qt that a build is linked with."""
    cache = (build / "CMakeCache.txt").read_text()
    return pathlib.Path(re.search("^larkmoor_qt_plugins:INTERNAL=(.+)$", cache, re.MULTILINE)[1])


class Bundle:
    """The bundle as a user has it, with the peers beside the launcher, and a home."""

    PEERS = ("bench-minimal", "bench-minimal-dialog", "bench-start-floor", "bench-notify")

    def __init__(self, folder, build, peers=PEERS):
        self.root = folder / "Larkmoor.app"
        self.home = folder / "home"
        programs = self.root / "Contents/MacOS"
        platforms = self.root / "Contents/Frameworks/plugins/platforms"
        self.resources = self.root / "Contents/Resources"
        self.package = self.resources / "package/larkmoor.lpk"
        self.carried = None
        # Qt makes a runtime folder in /tmp if there is none.
        self.runtime = folder / "runtime"
        for made in (programs, platforms, self.package.parent, self.home, self.runtime):
            made.mkdir(parents=True)
        self.runtime.chmod(0o700)
        shutil.copy(build / "src/launcher/launcher", programs)
        for peer in peers:
            shutil.copy(build / "bench" / peer, programs)
        for plugin in ("libqoffscreen.so", "libqxcb.so"):
            (platforms / plugin).symlink_to(qt_plugins(build) / "platforms" / plugin)
        (self.resources / "INFO").write_text(INFO_TEXT.format(2))
        (self.resources / "images").mkdir()
        shutil.copy(ICON, self.resources / "images")
        self.one_font = folder / "fonts.conf"
        self.one_font.write_text(ONE_FONT.format(cache=folder / "fonts"))

    def program(self, name):
        return self.root / "Contents/MacOS" / name

    @property
    def installed(self):
        return self.home / ".Larkmoor/Larkmoor.app"

    def environment(self, display=None, fonts=None):
        chosen = {"HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.runtime),
                  "LC_ALL": "C.UTF-8", "PATH": os.environ["PATH"],
                  "QT_QPA_PLATFORM": "xcb" if display else "offscreen"}
        if display:
            chosen["DISPLAY"] = display
        if fonts:
            chosen["FONTCONFIG_FILE"] = str(fonts)
        return chosen

    def carry(self, package):
        if self.carried != package:
            shutil.copyfile(package, self.package)
            self.carried = package

    def empty(self):
        """Back to the initial state: no package, nothing installed."""
        self.package.unlink(missing_ok=True)
        self.carried = None
        self.forget_installation()

    def forget_installation(self):
        remove(self.home / ".Larkmoor")

    def install_same_build(self):
        """Installs the build of the bundle, so that a start has nothing to upgrade."""
        if not self.installed.exists():
            client(self.installed)

    def install_older_build(self, tree):
        self.forget_installation()
        self.installed.parent.mkdir(parents=True)
        workspace.run(["cp", "-r", tree, self.installed])
        (self.installed / INFO).write_text(INFO_TEXT.format(1))

    def check_installation(self):
        info = self.installed / INFO
        if not info.exists() or info.read_text() != INFO_TEXT.format(2):
            log = (self.home / ".Larkmoor/log/launcher.log").read_text(errors="replace")
            raise workspace.Failure(f"the launcher installed nothing and logged:\n{log}")


def size(path):
    """Bytes that a file, or all files of a tree, take on the file system."""
    files = [path] if path.is_file() else path.rglob("*")
    return sum(file.stat().st_blocks for file in files) * 512


def remove(path):
    subprocess.run(["rm", "-rf", path], check=True)
