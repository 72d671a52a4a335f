"""Reads the string table and reads and writes the translation catalogues."""

import os
import re
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass, field

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
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
    translation: str
    finished: bool
    context: str = CONTEXT
    kind: str = ''  # the translation's type: '', 'unfinished', 'vanished' or 'obsolete'
    comment: str = ''


@dataclass
class Catalogue:
    name: str
    messages: list = field(default_factory=list)
    language: str = ''


def _unescape(match):
    escape = match.group(1)
    if escape[0] == 'u':
        return chr(int(escape[1:], 16))
    if escape not in '\\"':
        raise ValueError(f'the escape \\{escape} is not known here')
    return escape


def read_rows(path):
    """The rows of str-table-rows.inc in id order."""
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
    """The rows under each different text, in the order in which the texts first occur."""
    groups = {}
    for row in rows:
        groups.setdefault(row.text, []).append(row)
    return groups


def read_names(qrc):
    """The catalogue names that the resource file lists."""
    files = ElementTree.parse(qrc).getroot().iter('file')
    return [os.path.splitext(os.path.basename(file.text))[0] for file in files]


def read_catalogue(path):
    root = ElementTree.parse(path).getroot()
    catalogue = Catalogue(os.path.splitext(os.path.basename(path))[0])
    catalogue.language = root.get('language', '')
    for context in root.iter('context'):
        for message in context.iter('message'):
            translation = message.find('translation')
            kind = '' if translation is None else translation.get('type', '')
            catalogue.messages.append(Message(
                source=message.findtext('source', ''),
                translation='' if translation is None else ''.join(translation.itertext()),
                finished=translation is not None and not kind,
                context=context.findtext('name', ''),
                kind=kind,
                comment=message.findtext('comment', '')))
    return catalogue


def _escape(text):
    for plain, entity in (('&', '&amp;'), ('<', '&lt;'), ('>', '&gt;'), ('"', '&quot;'),
                          ("'", '&apos;'), ('\u200b', '&#x200b;'), ('\u00a0', '&#xa0;')):
        text = text.replace(plain, entity)
    return text


def write_catalogue(path, groups, translations):
    """Writes a catalogue of all texts. A text without a translation is left unfinished.

    There is no language attribute on purpose: the compiled catalogue would get a language record
    and plural rules from it.
    """
    out = ['<?xml version="1.0" encoding="utf-8"?>', '<!DOCTYPE TS>', '<TS version="2.1">',
           '<context>', f'    <name>{CONTEXT}</name>']
    for source, rows in groups.items():
        translation = translations.get(source, '')
        kind = '' if translation else ' type="unfinished"'
        places = ', '.join(f'{row.id} {row.key}' for row in rows)
        out += ['    <message>',
                f'        <source>{_escape(source)}</source>',
                f'        <extracomment>{places}</extracomment>',
                f'        <translation{kind}>{_escape(translation)}</translation>',
                '    </message>']
    out += ['</context>', '</TS>', '']
    with open(path, 'w', encoding='utf-8', newline='\n') as file:
        file.write('\n'.join(out))
