"""Reads the string table and reads and writes the translation catalogues."""

import argparse
import os
import re
import sys
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass, field

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), '..', '..'))
LOCALISATION = os.path.join(ROOT, 'src', 'localisation')
CONTEXT = 'global'
IDENTITY = 'enu'  # the catalogue in which every text translates to itself

_ROW = re.compile(r'ROW\((\d+), "(\w+)", "((?:[^"\\]|\\.)*)"\)')
_ESCAPE = re.compile(r'\\(u[0-9a-fA-F]{4}|.)')


@dataclass(frozen=True)
class Row:
    id: int
    key: str
    text: str


@dataclass
class Message:
    source: str
    translation: str = ''
    kind: str = ''  # the translation's type: '', 'unfinished', 'vanished' or 'obsolete'
    note: str = ''  # the translator's comment
    context: str = CONTEXT
    comment: str = ''
    is_plain: bool = True  # no plural or length forms, which the program never uses

    @property
    def is_finished(self):
        return bool(self.translation) and not self.kind and self.is_plain


@dataclass
class Catalogue:
    name: str
    messages: list = field(default_factory=list)
    language: str = ''
    has_dependencies: bool = False


def _unescape(match):
    escape = match.group(1)
    if escape[0] == 'u':
        return chr(int(escape[1:], 16))
    if escape not in '\\"':
        raise ValueError(f'the escape \\{escape} is not known here')
    return escape


def read_rows(path):
    """The rows of str-table-rows.inc in the order of their ids."""
    rows = []
    with open(path, encoding='utf-8') as file:
        for number, line in enumerate(file, 1):
            if not line.startswith('ROW('):
                continue
            match = _ROW.fullmatch(line.strip())
            if not match:
                raise ValueError(f'{path}:{number}: not a row: {line.strip()}')
            text = _ESCAPE.sub(_unescape, match.group(3))
            rows.append(Row(int(match.group(1)), match.group(2), text))
    return rows


def rows_by_text(rows):
    """The rows of each distinct text, in order of first occurrence."""
    groups = {}
    for row in rows:
        groups.setdefault(row.text, []).append(row)
    return groups


def _parse(path):
    try:
        return ElementTree.parse(path).getroot()
    except ElementTree.ParseError as error:
        raise ValueError(f'{path} is not well-formed XML: {error}') from error


def read_names(qrc):
    """The names of the catalogues in the resource file, in its order."""
    files = _parse(qrc).iter('file')
    return [os.path.splitext(os.path.basename(file.text))[0] for file in files]


def read_catalogue(path):
    root = _parse(path)
    catalogue = Catalogue(os.path.splitext(os.path.basename(path))[0])
    catalogue.language = root.get('language', '')
    catalogue.has_dependencies = root.find('dependencies') is not None
    for context in root.iter('context'):
        for message in context.iter('message'):
            translation = message.find('translation')
            if translation is None:
                translation = ElementTree.Element('translation', type='unfinished')
            catalogue.messages.append(Message(
                source=message.findtext('source', ''),
                translation=''.join(translation.itertext()),
                kind=translation.get('type', ''),
                note=message.findtext('translatorcomment', ''),
                context=context.findtext('name', ''),
                comment=message.findtext('comment', ''),
                is_plain=message.get('numerus') != 'yes' and not len(translation)))
    return catalogue


def _escape(text):
    for plain, entity in (('&', '&amp;'), ('<', '&lt;'), ('>', '&gt;'), ('"', '&quot;'),
                          ("'", '&apos;'), ('\u200b', '&#x200b;'), ('\u00a0', '&#xa0;'),
                          ('\u202f', '&#x202f;')):
        text = text.replace(plain, entity)
    return text


def write_catalogue(path, groups, messages):
    """Writes a catalogue of all texts; `messages` is by source. A text without a translation is unfinished.

    It has no language attribute, which would add a language record and plural rules to the compiled
    catalogue.
    """
    out = ['<?xml version="1.0" encoding="utf-8"?>', '<!DOCTYPE TS>', '<TS version="2.1">',
           '<context>', f'    <name>{CONTEXT}</name>']
    for source, rows in groups.items():
        message = messages.get(source, Message(source))
        kind = '' if message.is_finished else ' type="unfinished"'
        places = ', '.join(f'{row.id} {row.key}' for row in rows)
        out += ['    <message>',
                f'        <source>{_escape(source)}</source>',
                f'        <extracomment>{places}</extracomment>']
        if message.note:
            out.append(f'        <translatorcomment>{_escape(message.note)}</translatorcomment>')
        out += [f'        <translation{kind}>{_escape(message.translation)}</translation>',
                '    </message>']
    out += ['</context>', '</TS>', '']
    # Renamed into place, because the old file holds hours of a translator's work.
    with open(path + '.new', 'w', encoding='utf-8', newline='\n') as file:
        file.write('\n'.join(out))
    os.replace(path + '.new', path)


def read_options(help_text, *positional):
    """The options that the scripts share, and a list for each positional argument. -h prints the help text
    and exits."""
    parser = argparse.ArgumentParser(add_help=False)
    parser.add_argument('-h', '--help', action='store_true')
    parser.add_argument('--localisation', default=LOCALISATION)
    for name in positional:
        parser.add_argument(name, nargs='*')
    options = parser.parse_args()
    if options.help:
        print(help_text.strip())
        sys.exit()
    return options


def run(main):
    """Runs a script, and exits with a message if a file is missing or damaged."""
    try:
        sys.exit(main())
    except (OSError, ValueError) as error:
        sys.exit(f'{os.path.basename(sys.argv[0])}: {error}')
