"""The extent of a run: full, or short to test the measuring."""

import functools
import random

import inputs

MB = 1000**2
GIB = 1024**3
MIB = 1024**2


def _tree(files, size, folders):
    return functools.partial(inputs.tree, files=files, size=size, folders=folders)


def _deep(files, depth):
    return functools.partial(inputs.deep_tree, files=files, depth=depth)


def _file(size):
    def make(path):
        source = random.Random(inputs.SEED)
        with open(path, "wb") as file:
            for begin in range(0, size, MIB):
                file.write(source.randbytes(min(MIB, size - begin)))
    return make


def _doublings(first, last):
    while first <= last:
        yield first
        first *= 2


class Full:
    every_order = False
    starts = 250
    memory_runs = 5
    notifications = (1000, 1000000)
    packings = 3
    installs = 7
    removal_rounds = 7
    copy_rounds = 7
    growth_rounds = 3
    part_repetitions = 5
    part_seconds = 0.05
    needs = 6 * GIB
    install_memory = 512 * MIB
    ext4_size = 2 * GIB

    big_name = "300 MB in 2,000 files"
    big = ("big", _tree(2000, 300 * MB, 200))
    many_name = "70 MB in 20,000 files"
    many = ("many", list(inputs.FORMATS), _tree(20000, 70 * MB, 4000))
    tiny_name = "100,000 tiny files"
    tiny = ("tiny", ["tar.gz", "tar.zst"], _tree(100000, 10 * MB, 1000))
    system = ("system", ["tar.gz", "tar.zst"], functools.partial(inputs.system_tree, size=300 * MB))

    removals = [("20,000 files", _tree(20000, 2 * MB, 4000)),
                ("100,000 files", _tree(100000, 10 * MB, 1000))]
    copies = [("1 GiB", _file(GIB), 1.05), ("2,000 small files", _tree(2000, 8 * MB, 50), 1.5)]

    install_series = [
        ("install-size", "Install of 64 files, tar.gz", "bytes",
         [(n * MB, f"size-{n}", _tree(64, n * MB, 8)) for n in _doublings(4, 256)]),
        ("install-entries", "Install of tiny files, tar.gz", "files",
         [(n, f"entries-{n}", _tree(n, n * 100, n // 100)) for n in _doublings(1000, 64000)]),
        ("install-depth", "Install of 2,000 tiny files, tar.gz", "folders above them",
         [(n, f"depth-{n}", _deep(2000, n)) for n in _doublings(1, 64)]),
    ]
    removal_series = [
        ("remove-entries", "Removal of tiny files", "files",
         [(n, _tree(n, n * 100, n // 100)) for n in _doublings(1000, 64000)]),
        ("remove-depth", "Removal of 2,000 files", "folders above them",
         [(n, _deep(2000, n)) for n in _doublings(1, 64)]),
    ]
    copy_series = [
        ("copy-size", "Copy of one file", "bytes",
         [(n * MIB, _file(n * MIB)) for n in _doublings(16, 1024)]),
        ("copy-entries", "Copy of small files", "files",
         [(n, _tree(n, n * 4000, n // 25)) for n in _doublings(250, 8000)]),
    ]

    def limit(self, pairs):
        """Limits every measure to that many pairs."""
        if pairs:
            for name in ("starts", "memory_runs", "packings", "installs", "removal_rounds", "copy_rounds",
                         "growth_rounds", "part_repetitions"):
                setattr(self, name, min(pairs, getattr(self, name)))

    def __init__(self):
        name, make_tree = self.big
        self.big_of = lambda packages, kind: packages.get(name, [kind], make_tree)[kind]


class Short(Full):
    """Everything on tiny inputs, in every order of the contenders. The figures mean nothing."""

    every_order = True
    notifications = (100, 1000)
    part_repetitions = 1
    part_seconds = 0.001
    needs = GIB
    install_memory = 16 * MIB
    ext4_size = 64 * MIB

    big_name = "2 MB in 20 files"
    big = ("short-big", _tree(20, 2 * MB, 2))
    many_name = "1 MB in 200 files"
    many = ("short-many", list(inputs.FORMATS), _tree(200, MB, 40))
    tiny_name = "500 tiny files"
    tiny = ("short-tiny", ["tar.gz"], _tree(500, 50000, 10))
    system = ("short-system", ["tar.gz"], functools.partial(inputs.system_tree, size=3 * MB))

    removals = [("200 files", _tree(200, 20000, 40))]
    copies = [("16 MiB", _file(16 * MIB), 1.05), ("50 small files", _tree(50, 200000, 5), 1.5)]
    install_series = [("install-entries", "Install of tiny files, tar.gz", "files",
                       [(n, f"short-entries-{n}", _tree(n, n * 100, 4)) for n in (100, 200)])]
    removal_series = [("remove-entries", "Removal of tiny files", "files",
                       [(n, _tree(n, n * 100, 4)) for n in (100, 200)])]
    copy_series = [("copy-size", "Copy of one file", "bytes",
                    [(n * MIB, _file(n * MIB)) for n in (1, 2)])]
