"""Feeds scripts/check-catalogues broken catalogues and looks for each finding, and has
scripts/update-catalogues follow a changed table."""

import contextlib
import io
import json
import os
import re
import runpy
import shutil
import subprocess
import sys
import tempfile
import unittest
import unittest.mock

sys.dont_write_bytecode = True
ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), '..', '..', '..'))
sys.path.insert(0, os.path.join(ROOT, 'scripts', 'lib'))
import catalogues

ROWS = r'''// A table in little.
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


class InAFolder(unittest.TestCase):
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
        """In this process, since an interpreter takes longer to start than a script to run."""
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


class CheckCatalogues(InAFolder):
    def assert_finds(self, fault, changes, name='deu', base=None):
        self.write_catalogue(name, changes, base)
        status, output = self.check(name)
        self.assertEqual(status, 1, output)
        self.assertIn(fault, output)
        return output

    def assert_clean(self, name, changes=None, base=None):
        self.write_catalogue(name, changes, base)
        status, output = self.check(name)
        self.assertEqual((status, output), (0, f'1 catalogues of {len(self.groups)} texts: '
                                               'no findings\n'))

    def test_passes_a_sound_catalogue(self):
        self.assert_clean('deu')

    def test_names_catalogue_row_and_text_of_a_finding(self):
        output = self.assert_finds('lost', {'%1 of %2 files': '%1 Dateien'})
        self.assertEqual(output, 'deu: row 2 file_count: placeholder lost "%2"\n'
                                 '    English      "%1 of %2 files"\n'
                                 '    translation  "%1 Dateien"\n'
                                 f'1 catalogues of {len(self.groups)} texts: 1 findings\n')

    def test_names_every_row_that_shares_the_text(self):
        self.assert_finds('deu: row 5 open_folder, 6 tray_opendir: doubled blank',
                          {'Open folder': 'Ordner  öffnen'})

    def test_finds_an_added_placeholder(self):
        self.assert_finds('placeholder added "%3"', {'%1 of %2 files': '%1 %2 %3 Dateien'})

    def test_finds_a_placeholder_that_is_there_twice(self):
        self.assert_finds('placeholder added "%1"', {'%1 of %2 files': '%1 %1 %2 Dateien'})

    def test_finds_a_changed_placeholder(self):
        self.assert_finds('placeholder lost "%2" and added "%1"',
                          {'%1 of %2 files': '%1 von %1 Dateien'})

    def test_accepts_placeholders_in_another_order(self):
        self.assert_clean('deu', {'%1 of %2 files': 'Von %2 Dateien %1'})

    def test_finds_a_missing_text(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<source>OK</source>', '<source>Yes</source>')
        status, output = self.check('deu')
        self.assertEqual(status, 1)
        self.assertIn('deu: row 1 btn_ok: missing\n    English      "OK"', output)
        self.assertIn('deu: not in the string table\n    English      "Yes"', output)

    def test_finds_a_text_that_is_there_twice(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<source>OK</source>', '<source>NAS</source>')
        self.assertIn('deu: row 0 nas: there twice', self.check('deu')[1])

    def test_finds_a_text_that_nobody_has_translated(self):
        output = self.assert_finds('row 1 btn_ok: untranslated', {'OK': ''})
        self.assertEqual(output.count('row 1 btn_ok'), 1)

    def test_finds_an_empty_text_that_counts_as_finished(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<translation>OK<', '<translation><')
        self.assertIn('row 1 btn_ok: empty', self.check('deu')[1])

    def test_finds_a_text_that_a_translator_left_unfinished(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<translation>&amp;Weiter', '<translation type="unfinished">&amp;Weiter')
        self.assertIn('row 4 msi_button_next: marked as unfinished', self.check('deu')[1])

    def test_finds_another_context(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<name>global</name>', '<name>Launcher</name>')
        self.assertIn('in the context "Launcher"', self.check('deu')[1])

    def test_finds_a_comment(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<source>OK</source>', '<source>OK</source><comment>a button</comment>')
        self.assertIn('with the comment "a button"', self.check('deu')[1])

    def test_finds_a_language_attribute(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<TS version="2.1">', '<TS version="2.1" language="de_DE">')
        self.assertIn('deu: has the language attribute "de_DE"', self.check('deu')[1])

    def test_finds_lost_markup(self):
        source = '{\\DlgFont8}[ProductName] Setup'
        self.assert_finds('markup lost "[ProductName]"', {source: '{\\DlgFont8}Setup Assistent'})
        self.assert_finds('markup lost "{\\DlgFont8}"', {source: '[ProductName] einrichten'})

    def test_finds_markup_with_another_number_of_backslashes(self):
        self.assert_finds('markup lost "{\\DlgFont8}" and added "{\\\\DlgFont8}"', {
            '{\\DlgFont8}[ProductName] Setup': '{\\\\DlgFont8}[ProductName] einrichten'})

    def test_finds_a_style_that_is_no_longer_first(self):
        self.assert_finds('"{\\DlgFont8}" no longer stands first', {
            '{\\DlgFont8}[ProductName] Setup': '[ProductName]{\\DlgFont8} einrichten'})

    def test_finds_a_lost_and_an_added_accelerator(self):
        self.assert_finds('markup lost "&"', {'&Next': 'Weiter'})
        self.assert_finds('markup added "&"', {'Open folder': '&Ordner öffnen'})

    def test_finds_an_added_escape(self):
        self.assert_finds('markup added "\\n"', {'Open folder': 'Ordner\\nöffnen'})

    def test_finds_doubled_blanks_where_the_source_has_none(self):
        self.assert_finds('doubled blank', {'Open folder': 'Ordner  öffnen'})
        self.assert_finds('doubled blank', {'Open folder': 'Ordner\u00a0 öffnen'})
        self.assert_clean('deu', {'One.  Two.': 'Eins.  Zwei.'})

    def test_finds_added_blanks_at_the_ends(self):
        self.assert_finds('blank at the beginning', {'Open folder': ' Ordner öffnen'})
        self.assert_finds('blank at the end', {'Open folder': 'Ordner öffnen '})

    def test_finds_invisible_characters(self):
        self.assert_finds('invisible character U+200B', {'Open folder': 'Ordner\u200b öffnen'})
        self.assert_finds('invisible character U+000A', {'Open folder': 'Ordner\nöffnen'})
        self.assert_clean('deu', {'All done\u200b.': 'Fertig\u200b.'})

    def test_finds_too_many_texts_left_in_english(self):
        rows = ''.join(f'ROW({i}, "key{i}", "Text {i}")\n' for i in range(21))
        self.write_table(rows)
        output = self.assert_finds('row 20 key20: untranslated, one of 21',
                                   {}, base={text: text for text in self.groups})
        self.assertEqual(output.count('untranslated'), 21)
        self.assert_clean('deu', {'Text 0': 'Wort 0'}, base={text: text for text in self.groups})

    def test_finds_too_few_texts_that_read_like_their_source(self):
        self.assert_finds('1 texts read like their source', {'OK': 'In Ordnung'})

    def test_finds_another_count_in_the_languages_that_have_the_fewest_and_the_most(self):
        base = dict(GERMAN, **self.chinese('資料夾'))
        self.assert_clean('cht', base=base)
        self.assert_finds('cht: 3 texts read like their source, but 2 do, such as names and '
                          'abbreviations: "NAS", "OK", "&Next"', {'&Next': '&Next'}, 'cht', base)
        self.assert_finds('dan: 2 texts read like their source, but 20 do', {}, 'dan')

    def test_finds_any_change_in_the_english_catalogue(self):
        english = {text: text for text in self.groups}
        self.assert_clean('enu', base=english)
        self.assert_finds('row 1 btn_ok: differs from its source', {'OK': 'Okay'}, 'enu', english)

    def chinese(self, word):
        return {'%1 of %2 files': '%1/%2 ' + word, '&Next': word + '(&N)', 'Open folder': word,
                '{\\DlgFont8}[ProductName] Setup': '{\\DlgFont8}[ProductName] ' + word,
                'One.  Two.': word, 'All done\u200b.': word, 'File added: ': word}

    def test_finds_kana_in_chinese(self):
        self.assert_clean('chs', self.chinese('文件夹'))
        self.assert_finds('wrong script: "フ", "ォ"', {'Open folder': '文件フォ'}, 'chs',
                          dict(GERMAN, **self.chinese('文件夹')))

    def test_finds_simplified_forms_in_traditional_chinese(self):
        base = dict(GERMAN, **self.chinese('資料夾'))
        self.assert_clean('cht', base=base)
        self.assert_finds('simplified form: "资", "夹"', {'Open folder': '资料夹'}, 'cht', base)
        self.assert_finds('simplified form: "网"', {'Open folder': '网路'}, 'cht', base)

    def test_finds_traditional_forms_in_simplified_chinese(self):
        base = dict(GERMAN, **self.chinese('文件夹'))
        self.assert_finds('traditional form: "資", "夾"', {'Open folder': '資料夾'}, 'chs', base)

    def test_finds_latin_only_text_in_another_script(self):
        base = dict(GERMAN, **self.chinese('Папка'))
        self.assert_clean('rus', base=base)
        self.assert_clean('rus', {'All done\u200b.': 'NAS: SSL.'}, base)
        self.assert_finds('row 5 open_folder, 6 tray_opendir: Latin letters only',
                          {'Open folder': 'Otkryt papku'}, 'rus', base)

    def test_finds_a_latin_letter_in_a_cyrillic_word(self):
        base = dict(GERMAN, **self.chinese('Папка'))
        self.assert_finds('Latin and Cyrillic letters in one word: "Пaпка"',
                          {'Open folder': 'Пaпка'}, 'rus', base)

    def test_finds_cyrillic_in_a_language_written_in_latin(self):
        self.assert_finds('wrong script: "о"', {'Open folder': 'Оrdner öffnen'.lower()})

    def test_finds_a_term_that_breaks_the_glossary(self):
        self.write_glossary({'terms': {'folder': 'ordner|verzeichnis'}})
        self.assert_clean('deu')
        self.assert_clean('deu', {'Open folder': 'Verzeichnis öffnen'})
        self.assert_finds('the glossary says "ordner|verzeichnis" for "folder"',
                          {'Open folder': 'Mappe öffnen'})

    def test_accepts_a_term_with_an_accelerator_inside(self):
        self.write_glossary({'terms': {'next': 'weiter'}})
        self.assert_clean('deu', {'&Next': 'We&iter'})

    def glossary_table(self, terms, **texts):
        self.write_glossary({'terms': terms})
        rows = ''.join(f'ROW({i}, "{key}", "{text}")\n'
                       for i, (key, text) in enumerate(dict(nas='NAS', ok='OK', **texts).items()))
        self.write_table(rows)
        return {'NAS': 'NAS', 'OK': 'OK'}

    def test_asks_for_the_longer_term_where_two_would_match(self):
        base = self.glossary_table({'link': 'verknüpf', 'sharing link|get link': 'freigabelink'},
                                   pair='Link this computer', share='Sharing link', get='Get link')
        right = {'Link this computer': 'Computer verknüpfen', 'Sharing link': 'Freigabelink',
                 'Get link': 'Freigabelink abrufen'}
        self.assert_clean('deu', right, base)
        base.update(right)
        self.assert_finds('the glossary says "freigabelink" for "sharing link|get link"',
                          {'Get link': 'Verknüpfung abrufen'}, base=base)
        self.assert_finds('the glossary says "verknüpf" for "link"',
                          {'Link this computer': 'Freigabelink'}, base=base)

    def test_does_not_take_the_word_of_another_term_that_holds_this_one(self):
        base = self.glossary_table({'connection': 'ligaç', 'sharing link': 'hiperligaç'},
                                   connection='Connection lost', share='Sharing link')
        self.assert_clean('deu', {'Connection lost': 'Ligação perdida',
                                  'Sharing link': 'Hiperligação'}, base)
        self.assert_finds('the glossary says "ligaç" for "connection"',
                          {'Connection lost': 'Hiperligação perdida',
                           'Sharing link': 'Hiperligação'}, base=base)

    def test_finds_a_word_that_two_terms_have_in_common(self):
        for connection, link in (('연결', '링크|연결'), ('bağlantı', 'bağl'), ('связ', 'связь')):
            self.write_glossary({'terms': {'connection': connection, 'link': link}})
            self.assert_finds('deu: the glossary has one word for "connection" and "link": ', {})

    def test_accepts_a_word_that_a_term_and_its_own_part_have_in_common(self):
        self.write_glossary({'terms': {'folder': 'ordner', 'shared folder': 'ordner, freigegeben',
                                       'connect|connection': 'verbind', 'disconnect': 'verbind'}})
        self.assert_clean('deu')

    def test_finds_a_mark_without_its_space(self):
        self.write_glossary({'spaces': {'before': ':?»', 'after': '«', 'character': 'U+00A0'}})
        self.assert_clean('deu', {'OK': 'À 12:30\u00a0: «\u00a0OK\u00a0»\u00a0?', '&Next': '&NAS',
                                  'Open folder': 'Open folder',
                                  'File added: ': 'Ajout\u00a0: '})
        for text, fault in (('Dossier ?', 'no U+00A0 before "?"'),
                            ('Dossier?', 'no U+00A0 before "?"'),
                            ('Dossier\u202f: OK', 'no U+00A0 before ":"'),
                            ('« OK\u00a0»', 'no U+00A0 after "«"'),
                            ('«\u00a0OK »', 'no U+00A0 before "»"')):
            self.assert_finds(f'row 1 btn_ok: {fault}',
                              {'OK': text, 'File added: ': 'Ajout\u00a0: '})

    def dialog(self, *buttons):
        return self.glossary_table({}, **{f'msi_{key}': f'&{key}' for key in buttons})

    def test_finds_an_accelerator_that_one_dialog_has_twice(self):
        base = self.dialog('button_retry', 'button_ignore', 'button_next')
        right = {'&button_retry': '&Wiederholen', '&button_ignore': '&Ignorieren',
                 '&button_next': '&Weiter'}
        self.assert_clean('deu', right, base)
        base.update(right)
        output = self.assert_finds('row 3 msi_button_ignore: the accelerator W is taken in the '
                                   'dialog of files in use: "&Wiederholen"',
                                   {'&button_ignore': '&weglassen'}, base=base)
        self.assertIn('in the dialog of an error', output)
        self.assertEqual(output.count('accelerator'), 2)

    def test_finds_a_doubled_accelerator_of_the_english_table(self):
        self.write_table('ROW(0, "msi_button_yes", "&Yes")\nROW(1, "msi_button_no", "Na&y")\n')
        self.assert_finds('row 1 msi_button_no: the accelerator Y is taken in the dialog of an error',
                          {}, 'enu', {text: text for text in self.groups})

    def test_finds_a_term_that_begins_with_a_turkish_capital(self):
        base = self.glossary_table({'cancel': 'iptal', 'slow': 'ağır|ısı'},
                                   cancel='Cancel', slow='Slow', heat='Slowly')
        self.assert_clean('deu', {'Cancel': 'İptal', 'Slow': 'AĞIR', 'Slowly': 'Isı'}, base)

    def test_repeats_why_a_text_is_kept_with_a_finding_in_it(self):
        self.write_glossary({'kept': {'tray_opendir': 'so heißt es hier'}})
        self.assert_clean('deu')
        output = self.assert_finds('doubled blank', {'Open folder': 'Ordner  öffnen'})
        self.assertIn('    kept         so heißt es hier\n', output)
        self.assertNotIn('kept', self.assert_finds('added "%1"', {'OK': '%1'}))

    def test_finds_a_kept_text_that_is_no_row_or_has_no_reason(self):
        self.write_glossary({'kept': {'btn_okay': 'kurz', 'nas': ' '}})
        output = self.assert_finds('deu: the glossary names "btn_okay" as kept, which is no row of '
                                   'the string table', {})
        self.assertIn('deu: the glossary names "nas" as kept without words', output)

    def test_finds_a_field_that_a_glossary_does_not_have(self):
        self.write_glossary({'folder': 'ordner'})
        self.assert_finds('deu: cannot be read: the glossary has a field "folder"; it knows '
                          '"terms", "spaces", "kept", "fixed"', {})

    def test_finds_a_changed_text_that_is_fixed(self):
        self.write_glossary({'fixed': {'add': 'Datei hinzugefügt: ', 'nas': 'NAS'}})
        self.assert_clean('deu')
        self.assert_finds('deu: row 9 add: is fixed and reads "Datei hinzugefügt: "',
                          {'File added: ': 'Neue Datei: '})

    def test_finds_a_fixed_text_of_the_table_that_was_changed_with_its_catalogue(self):
        self.write_glossary({'fixed': {'btn_ok': 'OK'}}, 'enu')
        self.assert_clean('enu', base={text: text for text in self.groups})
        self.write_table(ROWS.replace('"OK"', '"Okay"'))
        self.assert_finds('enu: row 1 btn_ok: is fixed and reads "OK"', {}, 'enu',
                          {text: text for text in self.groups})

    def test_finds_a_catalogue_and_a_glossary_that_the_resource_does_not_list(self):
        self.list_names('deu')
        self.write_catalogue('deu')
        self.write_catalogue('rus')
        self.write_glossary({}, 'hun')
        status, output = self.check()
        self.assertEqual(status, 1)
        self.assertIn('rus: not listed in texts.qrc', output)
        self.assertIn('hun: not listed in texts.qrc', output)
        self.assertIn('hun: cannot be read: ', output)
        self.assertIn('rus: not listed in texts.qrc', self.check('rus')[1])

    def test_finds_a_missing_glossary_and_checks_the_rest(self):
        self.write_catalogue('deu', {'OK': 'Gut'})
        os.remove(os.path.join(self.folder, 'glossary', 'deu.json'))
        status, output = self.check('deu')
        self.assertEqual(status, 1)
        self.assertIn('deu: has no glossary: create glossary/deu.json', output)
        self.assertIn('1 texts read like their source', output)

    def test_finds_swapped_messages(self):
        self.write_catalogue('deu')
        text = self.read('catalogues/deu.ts')
        messages = re.findall(r' *<message>.*?</message>\n', text, re.DOTALL)
        self.write('catalogues/deu.ts', text.replace(
            messages[1] + messages[2], messages[2] + messages[1]))
        status, output = self.check('deu')
        self.assertEqual(status, 1)
        self.assertIn('deu: row 1 btn_ok: not in the order of the table', output)
        self.assertIn(' 1 findings', output)

    def test_finds_dependencies(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<context>', '<dependencies><dependency catalog="qtbase_de"/>'
                                     '</dependencies>\n<context>')
        self.assertIn('deu: names dependencies', self.check('deu')[1])

    def test_finds_plural_forms(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<message>', '<message numerus="yes">')
        self.assertIn('deu: row 0 nas: has plural or length forms', self.check('deu')[1])
        self.write_catalogue('deu')
        self.edit(path, '>&amp;Weiter<', '><numerusform>&amp;Weiter</numerusform><')
        self.assertIn('row 4 msi_button_next: has plural or length forms', self.check('deu')[1])

    def test_holds_three_placeholders_for_lost(self):
        self.write_table(ROWS.replace('"file_count"', '"status_desc_syncing"')
                         .replace('%1 of %2 files', '%1 files'))
        self.assert_clean('hun', {'%1 files': 'Szinkron'})
        self.assert_finds('placeholder added "%1"', {'%1 files': 'Szinkron %1'}, 'hun')
        self.assert_finds('placeholder lost "%1"', {'%1 files': 'Dateien'})

    def test_reports_a_catalogue_that_is_missing_or_damaged(self):
        status, output = self.check('deu')
        self.assertEqual(status, 1)
        self.assertIn('deu: cannot be read: ', output)
        self.write('catalogues/deu.ts', '<TS version="2.1"><context>')
        self.assertIn('deu: cannot be read: ', self.check('deu')[1])

    def test_checks_all_that_the_resource_lists(self):
        self.list_names('enu', 'deu')
        self.write_catalogue('enu', base={text: text for text in self.groups})
        self.write_catalogue('deu', {'Open folder': ''})
        status, output = self.check()
        self.assertEqual(status, 1)
        self.assertIn('2 catalogues', output)
        self.assertIn('deu: row 5 open_folder', output)

    def test_explains_itself(self):
        status, output = self.check('-h')
        self.assertEqual(status, 0)
        self.assertIn('usage: scripts/check-catalogues', output)


class UpdateCatalogues(InAFolder):
    def setUp(self):
        super().setUp()
        self.list_names('enu', 'deu')
        self.write_catalogue('deu')
        self.write_glossary({}, 'enu')
        self.run_script('update-catalogues')

    def test_writes_the_english_catalogue(self):
        self.assertEqual(self.check()[0], 0)

    def test_changes_nothing_that_is_up_to_date(self):
        before = self.read('catalogues/deu.ts')
        self.assertEqual(self.run_script('update-catalogues'),
                         (0, 'enu: 9 texts, 0 of them untranslated\n'
                             'deu: 9 texts, 0 of them untranslated\n'))
        self.assertEqual(self.read('catalogues/deu.ts'), before)

    def test_leaves_a_new_text_to_the_translator_and_keeps_the_others(self):
        self.write('str-table-rows.inc', ROWS + 'ROW(10, "new", "Brand new")\n')
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: 10 texts, 1 of them untranslated', output)
        _, findings = self.check()
        self.assertIn('deu: row 10 new: untranslated', findings)
        self.assertIn(' 1 findings', findings)

    def test_drops_a_text_that_has_left_the_table_and_says_what_it_read(self):
        self.write('str-table-rows.inc', ROWS.replace('Open folder', 'Show folder'))
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: dropped "Open folder", which read "Ordner öffnen"', output)
        self.assertNotIn('Ordner', self.read('catalogues/deu.ts'))

    def german(self, entry):
        """The German catalogue with this in the place of the message "&Next"."""
        text = self.read('catalogues/deu.ts')
        self.write('catalogues/deu.ts', re.sub(
            r' *<message>\n *<source>&amp;Next.*?</message>\n', lambda _: entry, text,
            flags=re.DOTALL))

    def message(self, kind, text, note=''):
        return (f'<message><source>&amp;Next</source>{note}'
                f'<translation{kind}>{text}</translation></message>\n')

    def test_keeps_an_unfinished_translation_unfinished(self):
        self.german(self.message(' type="unfinished"', 'Weiter?'))
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: 9 texts, 1 of them untranslated', output)
        self.assertIn('<translation type="unfinished">Weiter?</translation>',
                      self.read('catalogues/deu.ts'))

    def test_keeps_the_comment_of_a_translator(self):
        note = '<translatorcomment>Knopf; &lt;kurz&gt;</translatorcomment>'
        self.german(self.message('', '&amp;Weiter', note))
        self.run_script('update-catalogues')
        self.assertIn(note, self.read('catalogues/deu.ts'))
        self.assertEqual(self.check('deu')[0], 0)

    def test_prefers_a_finished_translation_to_a_vanished_one(self):
        finished = self.message('', '&amp;Weiter')
        vanished = self.message(' type="vanished"', '&amp;Nächstes')
        unfinished = self.message(' type="unfinished"', '&amp;Vor')
        for entries in (finished + vanished + unfinished, unfinished + vanished + finished):
            self.german(entries)
            _, output = self.run_script('update-catalogues')
            self.assertIn('<translation>&amp;Weiter</translation>', self.read('catalogues/deu.ts'))
            self.assertIn('deu: dropped "&Next", which read "&Nächstes"', output)
            self.assertIn('deu: dropped "&Next", which read "&Vor"', output)
            self.assertEqual(self.check('deu')[0], 0)

    def test_offers_a_vanished_translation_when_its_text_is_back(self):
        self.german(self.message(' type="vanished"', '&amp;Weiter'))
        self.run_script('update-catalogues')
        self.assertIn('<translation type="unfinished">&amp;Weiter</translation>',
                      self.read('catalogues/deu.ts'))

    def test_says_what_a_dropped_comment_was(self):
        self.write_table(ROWS.replace('&Next', '&Continue'))
        self.german(self.message('', '&amp;Weiter',
                                 '<translatorcomment>Knopf</translatorcomment>'))
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: dropped "&Next", which read "&Weiter"', output)
        self.assertIn('deu: dropped "&Next", with the comment "Knopf"', output)

    def test_leaves_plural_forms_to_the_translator(self):
        self.german('<message numerus="yes"><source>&amp;Next</source><translation>'
                    '<numerusform>&amp;Weiter</numerusform></translation></message>\n')
        self.run_script('update-catalogues')
        self.assertIn('<translation type="unfinished">&amp;Weiter</translation>',
                      self.read('catalogues/deu.ts'))

    def test_changes_nothing_and_names_the_file_when_a_catalogue_is_damaged(self):
        self.write('catalogues/deu.ts', '<TS version="2.1"><context>')
        run = subprocess.run([sys.executable, os.path.join(ROOT, 'scripts', 'update-catalogues'),
                              '--localisation', self.folder],
                             capture_output=True, encoding='utf-8', check=False)
        self.assertEqual(run.returncode, 1)
        self.assertRegex(run.stderr, r'^update-catalogues: .*deu\.ts is not well-formed XML: .*\n$')
        self.assertEqual(self.read('catalogues/deu.ts'), '<TS version="2.1"><context>')

    def test_starts_a_language_that_has_no_catalogue(self):
        os.remove(os.path.join(self.folder, 'catalogues', 'deu.ts'))
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: 9 texts, 9 of them untranslated', output)


if __name__ == '__main__':
    unittest.main()
