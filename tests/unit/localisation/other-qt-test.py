"""Compiles the catalogues with the programs of the other Qt, and compares the results with the build's.

usage: other-qt-test.py LOCALISATION-FOLDER-OF-THE-BUILD LRELEASE RCC
"""

import os
import re
import struct
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), '..', '..', '..'))
NOT_COMPRESSED, COMPRESSED = 0, 1
SOURCES = os.path.join(ROOT, 'src', 'localisation')


def read(*parts):
    with open(os.path.join(*parts), 'rb') as file:
        return file.read()


def resource(source):
    """Returns the format versions of a compiled resource, and its files: flags and stored bytes by
    name. Compilers order the files differently."""
    arrays = {name.decode(): bytes(int(byte, 16) for byte in re.findall(rb'0x(\w+)', re.sub(rb'//.*', b'', body)))
              for name, body in re.findall(
                  rb'static const unsigned char qt_resource_(\w+)\[\] = \{(.*?)\};', source, re.DOTALL)}
    data, names, tree = arrays['data'], arrays['name'], arrays['struct']
    files = {}
    # The first node is the root.
    for name, flags, _, offset in struct.iter_unpack('>IHII', tree[14:]):
        length, = struct.unpack_from('>H', names, name)
        size, = struct.unpack_from('>I', data, offset)
        files[names[name + 6:name + 6 + 2 * length].decode('utf-16-be')] = (
            flags, data[offset + 4:offset + 4 + size])
    return re.findall(rb'int version = (\d+);', source), files


class OtherQt(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.names = re.findall(r'<file>(\w+)\.qm</file>', read(SOURCES, 'texts.qrc').decode())
        for name in cls.names:
            subprocess.run([LRELEASE, '-silent', os.path.join(SOURCES, 'catalogues', name + '.ts'),
                            '-qm', os.path.join(cls.folder.name, name + '.qm')], check=True)

    def test_the_programs_belong_to_the_other_qt(self):
        own = re.search(rb'version (\d)', read(BUILD, 'texts.cpp')[:500]).group(1).decode()
        for program in LRELEASE, RCC:
            version = subprocess.run([program, '-version'], check=True, capture_output=True, text=True)
            self.assertRegex(version.stdout, rf' [{"56".replace(own, "")}]\.\d', program)

    def test_the_catalogues_are_the_same_bytes(self):
        self.assertEqual(len(self.names), 20)
        for name in self.names:
            with self.subTest(name):
                # assertEqual would take minutes to describe the difference.
                self.assertTrue(read(self.folder.name, name + '.qm') == read(BUILD, name + '.qm'))

    def test_the_resource_has_the_same_files(self):
        with open(os.path.join(self.folder.name, 'texts.qrc'), 'wb') as file:
            file.write(read(SOURCES, 'texts.qrc'))
        made = os.path.join(self.folder.name, 'texts.cpp')
        subprocess.run([RCC, '--format-version', '1', '--compress-algo', 'zlib', '--name', 'texts',
                        '--output', made, file.name], check=True)
        version, files = resource(read(made))
        own_version, own_files = resource(read(BUILD, 'texts.cpp'))
        self.assertEqual((version, own_version), ([b'1', b'1'], [b'1', b'1']))
        self.assertEqual(sorted(files), sorted(name + '.qm' for name in self.names))
        self.assertEqual(sorted(files), sorted(own_files))
        plain = {'cht.qm', 'chs.qm', 'jpn.qm', 'krn.qm'}
        for name, file in files.items():
            with self.subTest(name):
                self.assertEqual(file[0], NOT_COMPRESSED if name in plain else COMPRESSED)
                self.assertTrue(file == own_files[name])


if __name__ == '__main__':
    BUILD, LRELEASE, RCC = sys.argv[1:]
    if not (os.path.exists(LRELEASE) and os.path.exists(RCC)):
        print('skipped: the other Qt is not installed (scripts/setup qt5 qt6)')
        sys.exit()
    unittest.main(argv=sys.argv[:1])
