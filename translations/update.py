#!/usr/bin/env python3
"""Brings the catalogues up to the texts of the tree. Usage: update.py --lupdate TOOL [--into FOLDER]

New texts are unfinished, until translators have worked on them; what is no longer requested is removed. The long
catalogue, which nobody translates, is made here: the English texts, 40 % longer, with accents, between brackets. What is
cut off on a page has lost its bracket.
"""
import argparse
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

TREE = pathlib.Path(__file__).resolve().parents[1]
LANGUAGES = ('ar', 'de', 'es', 'fr', 'ja')
# What users of an instrument see. The programs for the command line are in English.
ROOMS = ('base', 'platform', 'lib', 'qml', 'apps/common', 'apps/demo', 'apps/inspector', 'apps/pdf_viewer')
# Pages that have their catalogues beside them.
EXAMPLES = 'docs/examples'
SERVICES = 'platform/reference/services'
# Of what service files say, which no source requests by itself. A test compares the list with that of uiutils-describe,
# which this script cannot use: it also runs where nothing is built.
LABELS = 'ServiceItem'
# The units of the formatters that have one of their own.
UNITS = {'frequency': 'Hz', 'distance': 'm', 'bitrate': 'bit/s', 'dB': 'dB', 'dBm': 'dBm'}
# Places for values, and names of settings, options and files, which stay as they are.
KEPT = re.compile(r'%L?\d+|%n|&\w+;|--[\w-]+|\b[A-Z]+_[A-Z_]+\b')
ACCENTS = str.maketrans('AaBCcDdEeGgHhIiJjKkLlNnOoRrSsTtUuWwYyZz', 'ÅåßÇçÐđÉéĜĝĤĥÎîĴĵĶķĻļÑñÖöŔŕŠšŢţÛûŴŵÝýŽž')


def texts_of(item):
    """What an item says to people: its label, choices, units and errors."""
    formatter = item.get('attributes', {}).get('formatter', '')
    yield from (item.get('label'), item.get('unit'), item.get('refuse'), item.get('does', {}).get('fail'),
                UNITS.get(formatter) or formatter.partition(':')[2])
    yield from (choice.get('label') or choice['name'] for choice in item.get('choices', []))


def labels_of(tree):
    """What the service files of the tree say."""
    for file in sorted((tree / SERVICES).glob('*.service.json')):
        service = json.loads(file.read_text(encoding='utf-8'))
        said = [text for item in service['items'] for text in texts_of(item)]
        said += [happening.get(key) for happening in service.get('happens', []) for key in ('refuse', 'error')]
        # What has no letter reads the same everywhere.
        yield from (text for text in said if text and re.search(r'[^\W\d_]', text))


def label_source(tree):
    """The labels as a source that lupdate reads."""
    labels = sorted(set(labels_of(tree)))
    return ''.join(f'const char* label{number} = QT_TRANSLATE_NOOP("{LABELS}", {json.dumps(label, ensure_ascii=False)});\n'
                   for number, label in enumerate(labels))


def update(lupdate, tree, files, rooms=ROOMS, options=()):
    """Runs the tool over the tree. Returns its complaints."""
    with tempfile.TemporaryDirectory() as folder:
        labels = pathlib.Path(folder, 'labels.cpp')
        labels.write_text('' if rooms == (EXAMPLES,) else label_source(tree), encoding='utf-8')
        run = subprocess.run([lupdate, '-silent', '-no-obsolete', '-locations', 'none', '-source-language', 'en', '-extensions', 'cpp,h,qml,js',
                              *[room for room in rooms if (tree / room).is_dir()], labels, *options, '-ts', *files], cwd=tree, capture_output=True, text=True)
    complaints = [line.strip() for line in run.stderr.splitlines() if line.strip()]
    return complaints + ([f'lupdate ended with {run.returncode}'] if run.returncode else [])


def lengthened(text):
    """The text with accents, 40 % longer, between brackets; the beginning of a line keeps its blank."""
    # "%1 %" is no longer in any language.
    if not re.search(r'[A-Za-z]{2}', KEPT.sub('', text)):
        return text
    parts, end = [], 0
    for kept in KEPT.finditer(text):
        parts += [text[end:kept.start()].translate(ACCENTS), kept.group()]
        end = kept.end()
    parts.append(text[end:].translate(ACCENTS))
    wanted = max(1, round(len(text) * 0.4) - 2)
    padding = ('~ ' * wanted)[:wanted].strip()
    return f'[{"".join(parts).strip(" ")} {padding}]{" " * text.endswith(" ")}'


def lengthen(file):
    """Translates every message of a catalogue that lupdate has written."""
    catalogue = xml.etree.ElementTree.parse(file)
    # The tool changes no catalogue without a language, and knows its plural forms by it.
    catalogue.getroot().set('language', 'en')
    for message in catalogue.getroot().iter('message'):
        translation = message.find('translation')
        translation.attrib.clear()
        forms = translation.findall('numerusform')
        for place in forms or [translation]:
            place.text = lengthened(message.findtext('source'))
    text = xml.etree.ElementTree.tostring(catalogue.getroot(), encoding='unicode')
    file.write_text(f'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n{text}\n', encoding='utf-8')


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('--lupdate', required=True)
    parser.add_argument('--into', type=pathlib.Path, default=TREE / 'translations')
    options = parser.parse_args()
    beside = TREE / EXAMPLES / 'translations' if options.into == TREE / 'translations' else options.into
    long = options.into / 'uiutils_pseudo.ts'
    long_examples = beside / 'examples_pseudo.ts'
    complaints = update(options.lupdate, TREE, [options.into / f'uiutils_{language}.ts' for language in LANGUAGES] + [long])
    # English needs no translations, but has a singular.
    complaints += update(options.lupdate, TREE, [options.into / 'uiutils_en.ts'], options=['-pluralonly'])
    complaints += update(options.lupdate, TREE, [beside / f'examples_{language}.ts' for language in LANGUAGES] + [long_examples], (EXAMPLES,))
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    if not complaints:
        lengthen(long)
        lengthen(long_examples)
    return 1 if complaints else 0


if __name__ == '__main__':
    sys.exit(main())
