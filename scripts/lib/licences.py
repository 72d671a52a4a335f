"""Copies the licences of the libraries in a bundle into it, and names those that lack one.

Run by the installation as: licences.py copy BUNDLE [TEXTS]
Run by scripts/check-bundle as: licences.py check BUNDLE

Contents/Resources/licenses/index.txt has a line for each library, "Contents/PATH: NAME VERSION", and
the folder NAME beside it holds the texts. "copy" takes them from Debian's package or Homebrew's
formula that the library is from. TEXTS is a folder of the same form, whose lines may hold the
wildcards * and ?; it serves libraries from elsewhere. "copy" prints the libraries that it found nothing
for, "check" prints faults; both exit with 0 then.
"""

import dataclasses
import filecmp
import fnmatch
import pathlib
import re
import shutil
import subprocess
import sys

# Debian's copyright files refer to the texts that many packages share.
COMMON = pathlib.Path('/usr/share/common-licenses')
REFERENCE = re.compile(r'/usr/share/common-licenses/([A-Za-z][A-Za-z0-9.+-]*[A-Za-z0-9+])')
# LGPL-3 is a supplement to GPL-3.
INCLUDED = {'LGPL-3': 'GPL-3', 'LGPL': 'GPL-3'}

LIBRARY_MAGIC = (b'\x7fELF', b'\xcf\xfa\xed\xfe', b'\xca\xfe\xba\xbe')
TEXT_NAME = re.compile(r'(licen[cs]e|copying|copyright|notice)', re.IGNORECASE)


@dataclasses.dataclass
class Origin:
    """What a library is from: its name and version, and the files that hold its licence."""

    name: str
    version: str
    texts: list


def libraries(bundle):
    """Paths below the bundle."""
    frameworks = bundle / 'Contents/Frameworks'
    return [path.relative_to(bundle) for path in sorted(frameworks.rglob('*'))
            if path.is_file() and not path.is_symlink() and is_library(path)]


def is_library(path):
    with open(path, 'rb') as file:
        return file.read(4) in LIBRARY_MAGIC


def read_index(folder):
    """Path to name and version, in the order of the lines."""
    try:
        lines = (folder / 'index.txt').read_text().splitlines()
    except OSError:
        return {}
    return {path: tuple((about + ' ').split(' ', 1))
            for path, colon, about in (line.partition(': ') for line in lines) if colon}


def output(*command):
    """What a command prints; nothing when it fails or is missing."""
    try:
        return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              text=True, check=False).stdout.strip()
    except OSError:
        return ''


def given_origins(texts, paths):
    index = read_index(texts) if texts else {}
    found = {}
    for path in paths:
        for pattern, (name, version) in index.items():
            if fnmatch.fnmatchcase(str(path), pattern):
                found[path] = Origin(name, version.strip(), texts_in(texts / name))
                break
    return found


def texts_in(folder):
    return sorted(path for path in folder.rglob('*') if path.is_file()) if folder.is_dir() else []


def debian_origins(bundle, paths):
    """A library is that of a package when the package's file has the same name and the same bytes."""
    if not paths:
        return {}
    owners = {}
    for line in output('dpkg', '-S', *sorted({'*/' + path.name for path in paths})).splitlines():
        package, _, file = line.partition(': ')
        owners.setdefault(pathlib.Path(file).name, []).append((package.split(',')[0], file))
    found = {}
    for path in paths:
        for package, file in owners.get(path.name, []):
            copyright_file = pathlib.Path('/usr/share/doc', package.split(':')[0], 'copyright')
            if copyright_file.is_file() and same_bytes(bundle / path, file):
                version = output('dpkg-query', '-W', '-f', '${Version}', package)
                found[path] = Origin(package.split(':')[0], version, [copyright_file])
                break
    return found


def same_bytes(one, other):
    try:
        return filecmp.cmp(one, other, shallow=False)
    except OSError:
        return False


def homebrew_origins(paths):
    """A library is known by its name alone: macdeployqt changes its bytes. Where several formulae have
    one of this name, as two versions of Qt do, that counts which another library is from for certain."""
    prefix = output('brew', '--prefix') if paths else ''
    if not prefix:
        return {}
    kegs = {path: homebrew_kegs(pathlib.Path(prefix), path) for path in paths}
    certain = {keg for candidates in kegs.values() if len(candidates) == 1 for keg in candidates}
    found = {}
    for path, candidates in kegs.items():
        for keg in sorted(candidates, key=lambda keg: (keg not in certain, keg)):
            texts = sorted(file for file in keg.iterdir()
                           if file.is_file() and TEXT_NAME.match(file.name))
            if texts:
                # PREFIX/Cellar/FORMULA/VERSION
                found[path] = Origin(keg.parent.name, keg.name, texts)
                break
    return found


def homebrew_kegs(prefix, path):
    inside = path.relative_to('Contents/Frameworks')
    places = ['lib', 'plugins', 'share/qt/plugins']
    if inside.parts[0] == 'plugins':
        inside = inside.relative_to('plugins')
    return {keg.resolve() for keg in (prefix / 'opt').glob('*')
            if any((keg / place / inside).exists() for place in places)}


def copy(bundle, texts):
    """Returns the libraries that no licence is found for."""
    target = bundle / 'Contents/Resources/licenses'
    if target.exists():
        shutil.rmtree(target)
    paths = libraries(bundle)
    origins = {}
    for find in (lambda missing: given_origins(texts, missing),
                 lambda missing: debian_origins(bundle, missing), homebrew_origins):
        origins.update(find([path for path in paths if path not in origins]))
    for origin in origins.values():
        for text in origin.texts:
            place = target / origin.name / text.name
            if place.exists() and place.read_bytes() != text.read_bytes():
                sys.exit(f'licences: {origin.name} has two texts named {text.name}: rename one')
            copy_text(text, place)
            copy_common(text, target / COMMON.name)
    if origins:
        lines = [f'{path}: {origins[path].name} {origins[path].version}'.rstrip() + '\n'
                 for path in paths if path in origins]
        target.mkdir(parents=True, exist_ok=True)
        (target / 'index.txt').write_text(''.join(lines))
    return [path for path in paths if path not in origins]


def copy_text(source, target):
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copyfile(source, target)
    target.chmod(0o644)


def common_names(text):
    names = set(REFERENCE.findall(text.read_text(errors='replace')))
    return sorted(names | {INCLUDED[name] for name in names if name in INCLUDED})


def copy_common(text, target):
    for name in common_names(text):
        if (COMMON / name).is_file():
            copy_text(COMMON / name, target / name)


def check(bundle):
    """The faults."""
    folder = bundle / 'Contents/Resources/licenses'
    index = read_index(folder)
    names = set()
    for path in libraries(bundle):
        name, _ = index.get(str(path), ('', ''))
        if name:
            names.add(name)
        else:
            yield (f'{path} has no licence in {folder.relative_to(bundle)}: make the bundle with '
                   'scripts/make-bundle, and name a library that neither Debian nor Homebrew has '
                   'in a folder for --licenses')
    for name in sorted(names):
        texts = [text for text in texts_in(folder / name) if text.stat().st_size]
        if not texts:
            yield f'Contents/Resources/licenses/{name} holds no text: make the bundle again'
        for text in texts:
            for common in common_names(text):
                if not (folder / COMMON.name / common).is_file():
                    yield (f'{text.relative_to(bundle)} refers to {common}, which is missing in '
                           f'Contents/Resources/licenses/{COMMON.name}: make the bundle again')


def main():
    task, bundle = sys.argv[1], pathlib.Path(sys.argv[2])
    if task == 'copy':
        texts = pathlib.Path(sys.argv[3]) if len(sys.argv) > 3 else None
        for path in copy(bundle, texts):
            print(f'no licence is found for {path}')
    else:
        for line in check(bundle):
            print('fault: ' + line)


main()
