"""Runs scripts/check-catalogues on faulty catalogues, and expects the finding."""

import os
import re
import sys
import unittest

sys.dont_write_bytecode = True
from catalogue_folder import GERMAN, ROWS, CatalogueFolder


class CheckCatalogues(CatalogueFolder):
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

    def test_accepts_a_correct_catalogue(self):
        self.assert_clean('deu')

    def test_prints_catalogue_row_and_text_of_a_finding(self):
        output = self.assert_finds('lost', {'%1 of %2 files': '%1 Dateien'})
        self.assertEqual(output, 'deu: row 2 file_count: placeholder lost "%2"\n'
                                 '    English      "%1 of %2 files"\n'
                                 '    translation  "%1 Dateien"\n'
                                 f'1 catalogues of {len(self.groups)} texts: 1 findings\n')

    def test_prints_every_row_that_shares_the_text(self):
        self.assert_finds('deu: row 5 open_folder, 6 tray_opendir: double space',
                          {'Open folder': 'Ordner  öffnen'})

    def test_finds_an_added_placeholder(self):
        self.assert_finds('placeholder added "%3"', {'%1 of %2 files': '%1 %2 %3 Dateien'})

    def test_finds_a_repeated_placeholder(self):
        self.assert_finds('placeholder added "%1"', {'%1 of %2 files': '%1 %1 %2 Dateien'})

    def test_finds_a_changed_placeholder(self):
        self.assert_finds('placeholder lost "%2" and added "%1"',
                          {'%1 of %2 files': '%1 von %1 Dateien'})

    def test_accepts_placeholders_in_another_order(self):
        self.assert_clean('deu', {'%1 of %2 files': 'Von %2 Dateien %1'})

    def test_finds_a_missing_message(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<source>OK</source>', '<source>Yes</source>')
        status, output = self.check('deu')
        self.assertEqual(status, 1)
        self.assertIn('deu: row 1 btn_ok: missing\n    English      "OK"', output)
        self.assertIn('deu: not in the string table\n    English      "Yes"', output)

    def test_finds_a_duplicate_message(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<source>OK</source>', '<source>NAS</source>')
        self.assertIn('deu: row 0 nas: occurs twice', self.check('deu')[1])

    def test_finds_an_untranslated_message(self):
        output = self.assert_finds('row 1 btn_ok: untranslated', {'OK': ''})
        self.assertEqual(output.count('row 1 btn_ok'), 1)

    def test_finds_an_empty_translation_marked_as_finished(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<translation>OK<', '<translation><')
        self.assertIn('row 1 btn_ok: empty', self.check('deu')[1])

    def test_finds_an_unfinished_translation(self):
        path = self.write_catalogue('deu')
        self.edit(path, '<translation>&amp;Weiter', '<translation type="unfinished">&amp;Weiter')
        self.assertIn('row 4 msi_button_next: marked as unfinished', self.check('deu')[1])

    def test_finds_a_wrong_context(self):
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

    def test_finds_markup_with_a_different_number_of_backslashes(self):
        self.assert_finds('markup lost "{\\DlgFont8}" and added "{\\\\DlgFont8}"', {
            '{\\DlgFont8}[ProductName] Setup': '{\\\\DlgFont8}[ProductName] einrichten'})

    def test_finds_a_style_that_is_no_longer_first(self):
        self.assert_finds('"{\\DlgFont8}" is no longer first', {
            '{\\DlgFont8}[ProductName] Setup': '[ProductName]{\\DlgFont8} einrichten'})

    def test_finds_a_lost_and_an_added_accelerator(self):
        self.assert_finds('markup lost "&"', {'&Next': 'Weiter'})
        self.assert_finds('markup added "&"', {'Open folder': '&Ordner öffnen'})

    def test_finds_an_added_escape(self):
        self.assert_finds('markup added "\\n"', {'Open folder': 'Ordner\\nöffnen'})

    def test_finds_added_double_spaces(self):
        self.assert_finds('double space', {'Open folder': 'Ordner  öffnen'})
        self.assert_finds('double space', {'Open folder': 'Ordner\u00a0 öffnen'})
        self.assert_clean('deu', {'One.  Two.': 'Eins.  Zwei.'})

    def test_finds_added_leading_and_trailing_spaces(self):
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

    def test_finds_too_few_texts_equal_to_their_source(self):
        self.assert_finds('1 texts read like their source', {'OK': 'In Ordnung'})

    def test_expects_other_counts_in_the_languages_with_the_fewest_and_the_most(self):
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

    def test_requires_the_longer_of_two_matching_terms(self):
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

    def test_does_not_accept_a_longer_word_that_belongs_to_another_term(self):
        base = self.glossary_table({'connection': 'ligaç', 'sharing link': 'hiperligaç'},
                                   connection='Connection lost', share='Sharing link')
        self.assert_clean('deu', {'Connection lost': 'Ligação perdida',
                                  'Sharing link': 'Hiperligação'}, base)
        self.assert_finds('the glossary says "ligaç" for "connection"',
                          {'Connection lost': 'Hiperligação perdida',
                           'Sharing link': 'Hiperligação'}, base=base)

    def test_finds_a_word_shared_by_two_terms(self):
        for connection, link in (('연결', '링크|연결'), ('bağlantı', 'bağl'), ('связ', 'связь')):
            self.write_glossary({'terms': {'connection': connection, 'link': link}})
            self.assert_finds('deu: the glossary has one word for "connection" and "link": ', {})

    def test_accepts_a_word_shared_by_a_term_and_a_part_of_it(self):
        self.write_glossary({'terms': {'folder': 'ordner', 'shared folder': 'ordner, freigegeben',
                                       'connect|connection': 'verbind', 'disconnect': 'verbind'}})
        self.assert_clean('deu')

    def test_finds_a_punctuation_mark_without_its_space(self):
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

    def test_finds_a_duplicate_accelerator_in_a_dialog(self):
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

    def test_finds_a_duplicate_accelerator_in_the_english_table(self):
        self.write_table('ROW(0, "msi_button_yes", "&Yes")\nROW(1, "msi_button_no", "Na&y")\n')
        self.assert_finds('row 1 msi_button_no: the accelerator Y is taken in the dialog of an error',
                          {}, 'enu', {text: text for text in self.groups})

    def test_recognises_a_term_that_starts_with_a_turkish_capital(self):
        base = self.glossary_table({'cancel': 'iptal', 'slow': 'ağır|ısı'},
                                   cancel='Cancel', slow='Slow', heat='Slowly')
        self.assert_clean('deu', {'Cancel': 'İptal', 'Slow': 'AĞIR', 'Slowly': 'Isı'}, base)

    def test_prints_why_a_text_is_kept_with_its_finding(self):
        self.write_glossary({'kept': {'tray_opendir': 'so heißt es hier'}})
        self.assert_clean('deu')
        output = self.assert_finds('double space', {'Open folder': 'Ordner  öffnen'})
        self.assertIn('    kept         so heißt es hier\n', output)
        self.assertNotIn('kept', self.assert_finds('added "%1"', {'OK': '%1'}))

    def test_finds_a_kept_text_that_is_not_a_row_or_has_no_reason(self):
        self.write_glossary({'kept': {'btn_okay': 'kurz', 'nas': ' '}})
        output = self.assert_finds('deu: the glossary names "btn_okay" as kept, which is no row of '
                                   'the string table', {})
        self.assertIn('deu: the glossary names "nas" as kept without words', output)

    def test_finds_an_unknown_field_of_a_glossary(self):
        self.write_glossary({'folder': 'ordner'})
        self.assert_finds('deu: cannot be read: the glossary has a field "folder"; it knows '
                          '"terms", "spaces", "kept", "fixed"', {})

    def test_finds_a_changed_translation_of_a_fixed_text(self):
        self.write_glossary({'fixed': {'add': 'Datei hinzugefügt: ', 'nas': 'NAS'}})
        self.assert_clean('deu')
        self.assert_finds('deu: row 9 add: is fixed and reads "Datei hinzugefügt: "',
                          {'File added: ': 'Neue Datei: '})

    def test_finds_a_fixed_text_changed_in_both_table_and_catalogue(self):
        self.write_glossary({'fixed': {'btn_ok': 'OK'}}, 'enu')
        self.assert_clean('enu', base={text: text for text in self.groups})
        self.write_table(ROWS.replace('"OK"', '"Okay"'))
        self.assert_finds('enu: row 1 btn_ok: is fixed and reads "OK"', {}, 'enu',
                          {text: text for text in self.groups})

    def test_finds_a_catalogue_and_a_glossary_missing_in_the_resource(self):
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

    def test_accepts_only_the_known_lost_placeholders(self):
        self.write_table(ROWS.replace('"file_count"', '"status_desc_syncing"')
                         .replace('%1 of %2 files', '%1 files'))
        self.assert_clean('hun', {'%1 files': 'Szinkron'})
        self.assert_finds('placeholder added "%1"', {'%1 files': 'Szinkron %1'}, 'hun')
        self.assert_finds('placeholder lost "%1"', {'%1 files': 'Dateien'})

    def test_reports_a_missing_or_damaged_catalogue(self):
        status, output = self.check('deu')
        self.assertEqual(status, 1)
        self.assertIn('deu: cannot be read: ', output)
        self.write('catalogues/deu.ts', '<TS version="2.1"><context>')
        self.assertIn('deu: cannot be read: ', self.check('deu')[1])

    def test_checks_every_catalogue_of_the_resource(self):
        self.list_names('enu', 'deu')
        self.write_catalogue('enu', base={text: text for text in self.groups})
        self.write_catalogue('deu', {'Open folder': ''})
        status, output = self.check()
        self.assertEqual(status, 1)
        self.assertIn('2 catalogues', output)
        self.assertIn('deu: row 5 open_folder', output)

    def test_prints_its_help(self):
        status, output = self.check('-h')
        self.assertEqual(status, 0)
        self.assertIn('usage: scripts/check-catalogues', output)


if __name__ == '__main__':
    unittest.main()
