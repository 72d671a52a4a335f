"""A small string table and its catalogues, in a folder that tests of the scripts can change."""

import contextlib
import io
import json
import os
import runpy
import shutil
import sys
import tempfile
import unittest
import unittest.mock

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), '..', '..', '..'))
sys.path.insert(0, os.path.join(ROOT, 'scripts', 'lib'))
import catalogues

ROWS = r'''// A small table.
ROW(0, "nas", "NAS")
ROW(1, "btn_ok", "OK")
ROW(2, "file_count", "%1 of %2 files")
ROW(3, "msi_title", "{\\DlgFont8}[ProductName] Setup")
ROW(4, "msi_button_next", "&Next")
ROW(5, "open_folder", "Open folder")
ROW(6, "tray_opendir", "Open folder")
ROW(7, "double", "One.  Two.")
ROW(8, "hidden", "All done\u200b.")
ROW(9, "add", "File added: ")
'''

GERMAN = {
    'NAS': 'NAS',
    'OK': 'OK',
    '%1 of %2 files': '%1 von %2 Dateien',
    '{\\DlgFont8}[ProductName] Setup': '{\\DlgFont8}[ProductName] einrichten',
    '&Next': '&Weiter',
    'Open folder': 'Ordner öffnen',
    'One.  Two.': 'Eins. Zwei.',
    'All done\u200b.': 'Fertig.',
    'File added: ': 'Datei hinzugefügt: ',
}


class CatalogueFolder(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.folder)
        for inner in ('catalogues', 'glossary'):
            os.mkdir(os.path.join(self.folder, inner))
        self.write_table(ROWS)
        self.list_names('enu', 'deu', 'chs', 'cht', 'rus', 'hun', 'dan')

    def write_table(self, rows):
        self.write('str-table-rows.inc', rows)
        self.groups = catalogues.rows_by_text(
            catalogues.read_rows(os.path.join(self.folder, 'str-table-rows.inc')))

    def list_names(self, *names):
        files = ''.join(f'<file>{name}.qm</file>' for name in names)
        self.write('texts.qrc', f'<RCC><qresource>{files}</qresource></RCC>')

    def write(self, name, text):
        with open(os.path.join(self.folder, name), 'w', encoding='utf-8') as file:
            file.write(text)

    def write_catalogue(self, name, changes=None, base=None):
        translations = dict(GERMAN if base is None else base, **(changes or {}))
        path = os.path.join(self.folder, 'catalogues', name + '.ts')
        catalogues.write_catalogue(path, self.groups, {
            source: catalogues.Message(source, text) for source, text in translations.items()})
        if not os.path.exists(os.path.join(self.folder, 'glossary', name + '.json')):
            self.write_glossary({}, name)
        return path

    def write_glossary(self, fields, name='deu'):
        self.write(f'glossary/{name}.json', json.dumps(fields))

    def edit(self, path, old, new):
        with open(path, encoding='utf-8') as file:
            text = file.read()
        self.assertIn(old, text)
        with open(path, 'w', encoding='utf-8') as file:
            file.write(text.replace(old, new, 1))

    def read(self, name):
        with open(os.path.join(self.folder, name), encoding='utf-8') as file:
            return file.read()

    def run_script(self, script, *arguments):
        """Runs a script in this process, since starting an interpreter would take longer."""
        output, errors = io.StringIO(), io.StringIO()
        command = [script, '--localisation', self.folder, *arguments]
        with unittest.mock.patch.object(sys, 'argv', command), \
                contextlib.redirect_stdout(output), contextlib.redirect_stderr(errors), \
                self.assertRaises(SystemExit) as end:
            runpy.run_path(os.path.join(ROOT, 'scripts', script), run_name='__main__')
        self.assertEqual(errors.getvalue(), '')
        return end.exception.code or 0, output.getvalue()

    def check(self, *names):
        return self.run_script('check-catalogues', *names)
