#!/usr/bin/env python3
"""Runs scripts/explain-log on logs of real runs, on synthetic ones, and on garbage.

usage: explain-log-test.py LAUNCHER QT-PLUGINS
"""

import os
import pathlib
import pty
import random
import re
import shutil
import subprocess
import sys
import tarfile
import tempfile
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
SCRIPT = PROJECT / 'scripts/explain-log'
CLIENT = 'Contents/MacOS/larkmoor-drive-ui'
RUNNING = 'Nov 21 13:05:07 [DEBUG] launcher(42): running\n'
DONE = 'Nov 21 13:05:09 [DEBUG] launcher(58): done\n'


def explain(*arguments, text=None):
    data = None if text is None else text if isinstance(text, bytes) else text.encode()
    return subprocess.run([SCRIPT, *arguments], input=data, capture_output=True, check=False)


def explained(text):
    run = explain(text=text)
    assert run.returncode == 0 and not run.stderr, run
    return run.stdout.decode('utf-8', 'surrogateescape')


def titles(text):
    return [line for line in text.splitlines() if line and not line.startswith(' ')]


class Bundle:
    """A bundle with its own home folder."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.contents = self.folder / 'Some.app/Contents'
        (self.folder / 'home').mkdir()
        for path in ('MacOS', 'Resources/package', 'Frameworks'):
            (self.contents / path).mkdir(parents=True)
        shutil.copy(LAUNCHER, self.contents / 'MacOS/launcher')
        (self.contents / 'Frameworks/plugins').symlink_to(PLUGINS)
        (self.contents.parent / 'log').mkdir()
        self.log = self.folder / 'home/.Larkmoor/log/launcher.log'

    def log_everything(self):
        (self.contents.parent / 'log/launcher.debug').write_text(
            'launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=7\n')

    def carry(self, build, damaged=False):
        info = f'[Version]\nbuild_version={build}\n'
        (self.contents / 'Resources/INFO').write_text(info)
        inside = self.folder / 'inside'
        (inside / CLIENT).parent.mkdir(parents=True, exist_ok=True)
        (inside / 'Contents/Resources').mkdir(exist_ok=True)
        (inside / CLIENT).write_text('#!/bin/sh\n')
        (inside / CLIENT).chmod(0o755)
        (inside / 'Contents/Resources/INFO').write_text(info)
        package = self.contents / 'Resources/package/larkmoor.lpk'
        with tarfile.open(package, 'w', format=tarfile.GNU_FORMAT) as archive:
            archive.add(inside / 'Contents', 'Contents')
        if damaged:
            package.write_bytes(package.read_bytes()[:1100])

    def start(self):
        # Without these, Qt and fontconfig leave folders in /tmp and in the home folder.
        own = {name: self.folder / name for name in ('XDG_CACHE_HOME', 'XDG_RUNTIME_DIR')}
        for folder in own.values():
            folder.mkdir(mode=0o700, exist_ok=True)
        environment = {'PATH': os.environ['PATH'], 'HOME': str(self.folder / 'home'),
                       'LC_ALL': 'C.UTF-8', 'QT_QPA_PLATFORM': 'offscreen',
                       **{name: str(folder) for name, folder in own.items()}}
        for name in ('ASAN_OPTIONS', 'LSAN_OPTIONS', 'TSAN_OPTIONS', 'UBSAN_OPTIONS', 'QT_NO_GLIB'):
            if name in os.environ:
                environment[name] = os.environ[name]
        subprocess.run([self.contents / 'MacOS/launcher'], env=environment, check=True, timeout=60,
                       capture_output=True)


class RealRuns(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix='larkmoor-test-')
        self.addCleanup(folder.cleanup)
        self.bundle = Bundle(folder.name)

    def explained(self):
        return explained(self.bundle.log.read_bytes())

    def test_distinguishes_installation_plain_start_upgrade_and_rollback(self):
        self.bundle.log_everything()
        self.bundle.carry(100)
        self.bundle.start()
        self.bundle.start()
        self.bundle.carry(101)
        self.bundle.start()
        self.bundle.carry(102, damaged=True)
        self.bundle.start()
        said = self.explained()
        ends = [re.sub(r'^\w+ \d+ [\d:]+, |(\d+ s|under a second), ', '', line)
                for line in titles(said)]
        self.assertEqual(ends, [
            'build 0 -> 100, the new client is installed',
            'build 100 -> 100, nothing to upgrade',
            'build 100 -> 101, the new client is installed',
            'build 101 -> 102, the upgrade failed, and the old client was put back'])
        self.assertIn('Meaning: The unpacked part is removed and the old installation put back.',
                      said)
        self.assertNotIn('?', said)

    def test_explains_a_failed_start_without_a_level_file(self):
        self.bundle.carry(100, damaged=True)
        self.bundle.start()
        said = self.explained()
        self.assertEqual(len(titles(said)), 1, said)
        self.assertIn('the first installation failed; the client could not be started', said)
        self.assertNotIn('?', said)


class SyntheticLogs(unittest.TestCase):
    def test_explains_every_error_and_warning_that_the_document_lists(self):
        rows = re.findall(r'^\| `(\[(?:ERROR|WARNING)\] .*?)(?:\\n)?` \| (.*?) \|',
                          (PROJECT / 'docs/log-file.md').read_text(encoding='utf-8'), re.M)
        self.assertGreater(len(rows), 40)
        made = [(text.replace('%d', '7').replace('%s', '/a path/x'), meaning)
                for text, meaning in rows]
        said = explained(''.join(f'Nov 21 13:05:07 {record}\n' for record, _ in made))
        for record, meaning in made:
            self.assertIn(f'  Nov 21 13:05:07 {record}\n      Meaning: ' + meaning.replace('`', ''),
                          said)
        self.assertNotIn('As above', said)
        self.assertNotIn('  ?', said)

    def test_recognises_ends_only_by_documented_messages(self):
        document = (PROJECT / 'docs/log-file.md').read_text(encoding='utf-8')
        source = SCRIPT.read_text(encoding='utf-8')
        words = re.findall(r"^    \('([^']*)', '", source, re.M)
        words += re.findall(r"^[A-Z_]+ = '([^']*%d[^']*|[A-Za-z ,]{12,})'$", source, re.M)
        self.assertGreater(len(words), 9)
        for said in words:
            self.assertIn(said, document)

    def test_splits_records_that_share_a_line(self):
        said = explained(RUNNING + 'Nov 21 13:05:08 [ERROR] mac/mac-service(9): Cannot unregister '
                         'bundle, /h/Larkmoor.app' + DONE)
        self.assertIn('Cannot unregister bundle, /h/Larkmoor.app\n', said)
        self.assertIn(', 2 s,', said)
        self.assertNotIn('killed', said)

    def test_knows_the_months_of_other_languages(self):
        said = explained((RUNNING + 'Nov 21 13:05:08 [ERROR] extractor(1): archive_entry_pathname '
                          'failed' + DONE).replace('Nov', '11月'))
        self.assertIn('archive_entry_pathname failed\n', said)
        self.assertTrue(said.startswith('11月 21 13:05:07, 2 s,'), said)

    def test_says_when_a_start_has_no_end(self):
        said = explained(RUNNING + RUNNING + DONE)
        self.assertEqual(len(titles(said)), 2)
        self.assertIn('killed', titles(said)[0])
        self.assertNotIn('killed', titles(said)[1])

    def test_keeps_a_start_together_when_another_interrupts_it(self):
        said = explained(RUNNING + 'Nov 21 13:05:08 [DEBUG] main(51): app has already launched, '
                         'return\n' + DONE)
        self.assertEqual(len(titles(said)), 2)
        self.assertIn(', 2 s,', titles(said)[0])
        self.assertIn('another launcher was running', titles(said)[1])

    def test_splits_starts_at_a_pause_without_other_evidence(self):
        error = 'Nov 21 %s [ERROR] launcher(99): Failed to upgrade package\n'
        said = explained(error % '23:59:50' + error % '00:00:20' + error % '00:01:20')
        self.assertEqual(len(titles(said)), 2, said)
        self.assertIn(', 30 s,', titles(said)[0])

    def test_explains_successive_equal_errors_once(self):
        error = "Nov 21 13:05:07 [ERROR] larkmoor-service(1): failed to backup app from '/a' -> '/%d'\n"
        said = explained(error % 1 + error % 2)
        self.assertEqual(said.count("-> '/"), 2)
        self.assertEqual(said.count('Meaning:'), 1)

    def test_reads_the_oldest_generation_first(self):
        with tempfile.TemporaryDirectory(prefix='larkmoor-test-') as folder:
            names = ['launcher.log', 'launcher.log_0', 'launcher.log_1', 'launcher.log_10']
            for number, name in enumerate(names):
                (pathlib.Path(folder) / name).write_text(RUNNING.replace(':07', f':0{number}') + DONE)
            run = explain(*(f'{folder}/{name}' for name in names))
        stamps = [line[7:15] for line in titles(run.stdout.decode())]
        self.assertEqual(stamps, ['13:05:03', '13:05:02', '13:05:01', '13:05:00'])

    def test_reports_a_log_that_cannot_be_read(self):
        run = explain('/no/such/launcher.log')
        self.assertEqual(run.returncode, 1)
        self.assertIn(b'/no/such/launcher.log: No such file', run.stderr)

    def test_says_that_an_empty_log_is_empty(self):
        self.assertIn('The log is empty', explained(''))


class Garbage(unittest.TestCase):
    def test_prints_unknown_lines_unchanged(self):
        line = b'\x00\xff\xfe [ERROR] nothing(\x1b[31m) %s \xc3('
        run = explain(text=RUNNING.encode() + line + b'\n' + DONE.encode())
        self.assertIn(b'  ? ' + line + b'\n', run.stdout)

    def test_survives_a_damaged_log(self):
        whole = (RUNNING + "Nov 21 13:05:08 [ERROR] extractor(1): archive_read_extract2 failed: 'x'\n"
                 + DONE).encode()
        chance = random.Random(20261122)
        damaged = bytearray(whole * 300)
        for _ in range(4000):
            damaged[chance.randrange(len(damaged))] = chance.randrange(256)
        explained(bytes(damaged))
        explained(bytes(chance.randrange(256) for _ in range(200000)))

    def test_parses_a_long_line_in_linear_time(self):
        stem = 'Nov 21 13:05:07 [INFO] larkmoor-service(1): target_version = ('
        run = subprocess.run([SCRIPT], input=(stem + ', ' * 500000 + '\n').encode(), timeout=60,
                             capture_output=True, check=False)
        self.assertEqual(run.returncode, 0)


class Terminal(unittest.TestCase):
    def on_a_terminal(self, text, **environment):
        ours, theirs = pty.openpty()
        with tempfile.NamedTemporaryFile(prefix='larkmoor-test-') as log:
            log.write(text)
            log.flush()
            run = subprocess.Popen([SCRIPT, log.name], stdout=theirs,
                                   env={'PATH': os.environ['PATH'], 'TERM': 'xterm', **environment})
            os.close(theirs)
            said = b''
            while True:
                try:
                    piece = os.read(ours, 4096)
                except OSError:  # Linux: the other side is closed
                    break
                if not piece:
                    break
                said += piece
            os.close(ours)
            self.assertEqual(run.wait(), 0)
        return said

    def test_has_colours_on_a_terminal_only(self):
        error = b'Nov 21 13:05:07 [ERROR] launcher(9): Failed to upgrade package\n'
        self.assertIn(b'\x1b[31m', self.on_a_terminal(error))
        self.assertNotIn(b'\x1b', self.on_a_terminal(error, NO_COLOR='1'))
        self.assertNotIn(b'\x1b', self.on_a_terminal(error, TERM='dumb'))
        self.assertNotIn(b'\x1b', explain(text=error).stdout)

    def test_escapes_control_sequences_on_a_terminal(self):
        said = self.on_a_terminal(b'\x1b]0;mine\x07 \x9b \xff\n', NO_COLOR='1')
        self.assertIn(rb'\x1b]0;mine\x07 \x9b \xff', said)


if __name__ == '__main__':
    LAUNCHER, PLUGINS = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
