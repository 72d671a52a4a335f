"""Finds what would keep the programs and libraries of a Mac's bundle from starting.

Parses the headers of Mach-O files, so the result is the same on every system. Run by
scripts/check-bundle as: macho.py BUNDLE. Each line of output begins with "fault: " or "note: ".
"""

import os
import plistlib
import struct
import sys

PROCESSORS = {0x01000007: 'x86_64', 0x0100000C: 'arm64'}
EXECUTABLE = 2

LOAD_DYLIB, LOAD_WEAK_DYLIB, REEXPORT_DYLIB = 0xC, 0x80000018, 0x8000001F
LAZY_LOAD_DYLIB, LOAD_UPWARD_DYLIB = 0x20, 0x80000023
RPATH, VERSION_MIN_MACOSX, BUILD_VERSION = 0x8000001C, 0x24, 0x32
LIBRARIES = {LOAD_DYLIB, LOAD_WEAK_DYLIB, REEXPORT_DYLIB, LAZY_LOAD_DYLIB, LOAD_UPWARD_DYLIB}

# The first macOS for Apple silicon.
FIRST_FOR_ARM64 = (11, 0, 0)


class Image:
    """The part of a file for one architecture."""

    def __init__(self, data, processor):
        self.architecture = PROCESSORS.get(processor, hex(processor))
        self.kind, count, _ = struct.unpack_from('<III', data, 12)
        self.libraries, self.rpaths, self.oldest = [], [], (0, 0, 0)
        at = 32
        for _ in range(count):
            command, size = struct.unpack_from('<II', data, at)
            if size < 8 or at + size > len(data):
                raise ValueError('a load command reaches past the end of the file')
            if command in LIBRARIES:
                self.libraries.append(_text(data, at, size))
            elif command == RPATH:
                self.rpaths.append(_text(data, at, size))
            elif command == VERSION_MIN_MACOSX:
                self.oldest = _version(struct.unpack_from('<I', data, at + 8)[0])
            elif command == BUILD_VERSION:
                self.oldest = _version(struct.unpack_from('<I', data, at + 12)[0])
            at += size


def _text(data, at, size):
    offset, = struct.unpack_from('<I', data, at + 8)
    return data[at + offset:at + size].split(b'\0')[0].decode()


def _version(packed):
    return packed >> 16, packed >> 8 & 0xFF, packed & 0xFF


def read(path):
    """The images of a file; none if it isn't a 64-bit Mach-O file. Raises ValueError for a damaged one."""
    with open(path, 'rb') as file:
        data = file.read()
    try:
        if data[:4] == b'\xca\xfe\xba\xbe':
            count, = struct.unpack_from('>I', data, 4)
            # Java class files have the same magic number; none has so low a version.
            if count > 30:
                return []
            parts = [struct.unpack_from('>IIII', data, 8 + 20 * i) for i in range(count)]
            return [Image(data[offset:offset + size], processor)
                    for processor, _, offset, size in parts]
        if data[:4] == b'\xcf\xfa\xed\xfe':
            return [Image(data, struct.unpack_from('<I', data, 4)[0])]
    except (struct.error, UnicodeDecodeError) as error:
        raise ValueError(f'its headers are truncated or damaged ({error})') from None
    return []


def _numbers(text):
    numbers = [int(part) for part in str(text).split('.')]
    return tuple((numbers + [0, 0, 0])[:3])


def _name(version):
    return '.'.join(str(part) for part in version[:2 if version[2] == 0 else 3])


class Bundle:
    """The bundle's code, and the promises of its Info.plist."""

    def __init__(self, path):
        self.path = path
        self.contents = os.path.join(path, 'Contents')
        self.launcher = os.path.join(self.contents, 'MacOS', 'launcher')
        self.findings = []
        self.images = {}

    def check(self):
        """The lines to print; none for a bundle whose launcher is for another system."""
        if not (os.path.isfile(self.launcher) and self._read(self.launcher)):
            return self.findings
        for folder, _, names in sorted(os.walk(self.contents)):
            for name in sorted(names):
                path = os.path.join(folder, name)
                if os.path.isfile(path) and not os.path.islink(path) and path != self.launcher:
                    self._read(path)
        promised = self._check_plist()
        for path, images in self.images.items():
            self._check_architectures(path, images, promised)
            for image in images:
                self._check_oldest(path, image)
                self._check_libraries(path, image)
        return self.findings

    def fault(self, text):
        self.findings.append('fault: ' + text)

    def _called(self, path):
        return os.path.relpath(path, self.path)

    def _read(self, path):
        try:
            images = read(path)
        except (ValueError, OSError) as error:
            self.fault(f'{self._called(path)} is not a program that a Mac can load: {error}')
            return False
        if images:
            self.images[path] = images
        return bool(images)

    def _check_plist(self):
        """The architectures that the launcher must have."""
        self.oldest = None
        try:
            with open(os.path.join(self.contents, 'Info.plist'), 'rb') as file:
                properties = plistlib.load(file)
            self.oldest = _numbers(properties.get('LSMinimumSystemVersion', ''))
        except (OSError, plistlib.InvalidFileException):
            return PROCESSORS.values()  # reported by the check of Info.plist itself
        except Exception as error:  # of the XML parser, or of the version
            self.fault(f"Info.plist has no LSMinimumSystemVersion that can be read ({error})")
            return PROCESSORS.values()
        return properties.get('LSArchitecturePriority', PROCESSORS.values())

    def _check_architectures(self, path, images, promised):
        has = [image.architecture for image in images]
        wanted = promised
        if path != self.launcher:
            wanted = [image.architecture for image in self.images[self.launcher]]
        for architecture in wanted:
            if architecture not in has:
                self.fault(f'{self._called(path)} lacks the architecture {architecture} (it has '
                           f'{", ".join(has)}): build it for both, or join two builds with lipo')
        if path == self.launcher:
            if any(image.kind != EXECUTABLE for image in images):
                self.fault(f'{self._called(path)} is a library or an object file, not a program')
            for architecture in sorted(set(PROCESSORS.values()) - set(promised)):
                self.findings.append(f"note: the bundle is only for {', '.join(has)}: a Mac with "
                                     f"{architecture} can't start it")

    def _check_oldest(self, path, image):
        if self.oldest is None:
            return
        promised = self.oldest
        if image.architecture == 'arm64':
            promised = max(promised, FIRST_FOR_ARM64)
        if image.oldest > promised:
            self.fault(f'{self._called(path)} ({image.architecture}) requires macOS '
                       f'{_name(image.oldest)}, but Info.plist promises {_name(self.oldest)}: '
                       'use one that was built for it, or raise CMAKE_OSX_DEPLOYMENT_TARGET')

    def _check_libraries(self, path, image):
        start = [image.rpaths] if path == self.launcher else [
            image.rpaths, *[other.rpaths for other in self.images[self.launcher]
                            if other.architecture == image.architecture]]
        rpaths = [rpath for rpaths in start for rpath in rpaths]
        for rpath in image.rpaths:
            if not self._inside(self._place(rpath, path)):
                self.fault(f'{self._called(path)} ({image.architecture}) looks for libraries in '
                           f"'{rpath}', outside the bundle: make the bundle with scripts/make-bundle")
        for library in image.libraries:
            if library.startswith(('/usr/lib/', '/System/Library/')):
                continue
            if library.startswith('@rpath/'):
                places = [self._place(os.path.join(rpath, library[len('@rpath/'):]), path)
                          for rpath in rpaths]
            else:
                places = [self._place(library, path)]
            if not any(self._inside(place) and os.path.isfile(place) for place in places):
                self.fault(f'{self._called(path)} ({image.architecture}) needs {library}, which is '
                           'neither in the bundle nor a library of the system: make the bundle '
                           'with scripts/make-bundle')

    def _place(self, text, loader):
        for token, folder in (('@executable_path', os.path.dirname(self.launcher)),
                              ('@loader_path', os.path.dirname(loader))):
            if text == token or text.startswith(token + '/'):
                return os.path.normpath(folder + text[len(token):])
        return text

    def _inside(self, place):
        return os.path.realpath(place).startswith(os.path.realpath(self.contents) + os.sep)


if __name__ == '__main__':
    for line in Bundle(os.path.abspath(sys.argv[1])).check():
        print(line)
