"""Runs scripts/update-catalogues after changes of the string table and of a catalogue."""

import os
import re
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True
from catalogue_folder import ROOT, ROWS, CatalogueFolder


class UpdateCatalogues(CatalogueFolder):
    def setUp(self):
        super().setUp()
        self.list_names('enu', 'deu')
        self.write_catalogue('deu')
        self.write_glossary({}, 'enu')
        self.run_script('update-catalogues')

    def test_writes_the_english_catalogue(self):
        self.assertEqual(self.check()[0], 0)

    def test_leaves_up_to_date_catalogues_unchanged(self):
        before = self.read('catalogues/deu.ts')
        self.assertEqual(self.run_script('update-catalogues'),
                         (0, 'enu: 9 texts, 0 of them untranslated\n'
                             'deu: 9 texts, 0 of them untranslated\n'))
        self.assertEqual(self.read('catalogues/deu.ts'), before)

    def test_adds_a_new_text_as_untranslated_and_keeps_the_others(self):
        self.write('str-table-rows.inc', ROWS + 'ROW(10, "new", "Brand new")\n')
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: 10 texts, 1 of them untranslated', output)
        _, findings = self.check()
        self.assertIn('deu: row 10 new: untranslated', findings)
        self.assertIn(' 1 findings', findings)

    def test_drops_a_text_removed_from_the_table_and_prints_its_translation(self):
        self.write('str-table-rows.inc', ROWS.replace('Open folder', 'Show folder'))
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: dropped "Open folder", which read "Ordner öffnen"', output)
        self.assertNotIn('Ordner', self.read('catalogues/deu.ts'))

    def replace_next(self, messages):
        """Replaces the message "&Next" in the German catalogue."""
        text = self.read('catalogues/deu.ts')
        self.write('catalogues/deu.ts', re.sub(
            r' *<message>\n *<source>&amp;Next.*?</message>\n', lambda _: messages, text,
            flags=re.DOTALL))

    def message(self, kind, text, note=''):
        return (f'<message><source>&amp;Next</source>{note}'
                f'<translation{kind}>{text}</translation></message>\n')

    def test_keeps_an_unfinished_translation_unfinished(self):
        self.replace_next(self.message(' type="unfinished"', 'Weiter?'))
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: 9 texts, 1 of them untranslated', output)
        self.assertIn('<translation type="unfinished">Weiter?</translation>',
                      self.read('catalogues/deu.ts'))

    def test_keeps_a_translators_comment(self):
        note = '<translatorcomment>Knopf; &lt;kurz&gt;</translatorcomment>'
        self.replace_next(self.message('', '&amp;Weiter', note))
        self.run_script('update-catalogues')
        self.assertIn(note, self.read('catalogues/deu.ts'))
        self.assertEqual(self.check('deu')[0], 0)

    def test_prefers_a_finished_translation_to_a_vanished_one(self):
        finished = self.message('', '&amp;Weiter')
        vanished = self.message(' type="vanished"', '&amp;Nächstes')
        unfinished = self.message(' type="unfinished"', '&amp;Vor')
        for entries in (finished + vanished + unfinished, unfinished + vanished + finished):
            self.replace_next(entries)
            _, output = self.run_script('update-catalogues')
            self.assertIn('<translation>&amp;Weiter</translation>', self.read('catalogues/deu.ts'))
            self.assertIn('deu: dropped "&Next", which read "&Nächstes"', output)
            self.assertIn('deu: dropped "&Next", which read "&Vor"', output)
            self.assertEqual(self.check('deu')[0], 0)

    def test_restores_a_vanished_translation_as_unfinished(self):
        self.replace_next(self.message(' type="vanished"', '&amp;Weiter'))
        self.run_script('update-catalogues')
        self.assertIn('<translation type="unfinished">&amp;Weiter</translation>',
                      self.read('catalogues/deu.ts'))

    def test_prints_a_dropped_comment(self):
        self.write_table(ROWS.replace('&Next', '&Continue'))
        self.replace_next(self.message('', '&amp;Weiter',
                                 '<translatorcomment>Knopf</translatorcomment>'))
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: dropped "&Next", which read "&Weiter"', output)
        self.assertIn('deu: dropped "&Next", with the comment "Knopf"', output)

    def test_turns_plural_forms_into_an_unfinished_translation(self):
        self.replace_next('<message numerus="yes"><source>&amp;Next</source><translation>'
                    '<numerusform>&amp;Weiter</numerusform></translation></message>\n')
        self.run_script('update-catalogues')
        self.assertIn('<translation type="unfinished">&amp;Weiter</translation>',
                      self.read('catalogues/deu.ts'))

    def test_leaves_a_damaged_catalogue_unchanged_and_names_it(self):
        self.write('catalogues/deu.ts', '<TS version="2.1"><context>')
        run = subprocess.run([sys.executable, os.path.join(ROOT, 'scripts', 'update-catalogues'),
                              '--localisation', self.folder],
                             capture_output=True, encoding='utf-8', check=False)
        self.assertEqual(run.returncode, 1)
        self.assertRegex(run.stderr, r'^update-catalogues: .*deu\.ts is not well-formed XML: .*\n$')
        self.assertEqual(self.read('catalogues/deu.ts'), '<TS version="2.1"><context>')

    def test_creates_a_missing_catalogue(self):
        os.remove(os.path.join(self.folder, 'catalogues', 'deu.ts'))
        _, output = self.run_script('update-catalogues')
        self.assertIn('deu: 9 texts, 9 of them untranslated', output)


if __name__ == '__main__':
    unittest.main()
