#!/usr/bin/env python3
"""Checks that every text of the tree can be translated, the extraction tool finding it under the context of the request,
and that the catalogues have all of them.

translations.py extracted --lupdate TOOL           what the tool finds, and what the sources may look like
translations.py catalogues --lupdate TOOL          what the catalogues say
translations.py planted --lupdate TOOL             that the above finds what is wrong
translations.py described --lupdate TOOL --describe PROGRAM
                                                   that uiutils-describe finds the same in service files
translations.py used --lupdate TOOL --build BUILD --recorder LIBRARY
                                                   what programs request at run time, and what they show of it
"""
import argparse
import collections
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

TREE = pathlib.Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(TREE / 'translations'))
import update  # noqa: E402

ROOMS = ('base', 'platform', 'lib', 'apps', 'qml', update.EXAMPLES)
# Contexts of which show() makes no text appear. A context that no longer exists is removed from the list.
UNSEEN = {
    'FileSystemUsage', 'FontTexts', 'Inspector', 'KivAggregateData', 'OwnLibrary', 'PDFFile', 'Paths', 'SchemaValidator',
    'ScreenAudit', 'ServiceState', 'uiutils::ReportDraft', 'uiutils::ReportPaper',
    *(f'uiutils::demo::{name}' for name in ('LoopbackProbe', 'Tour', 'UsbStick')),
}
# Texts that are, by agreement, the beginning of a line. All others are complete: translators cannot reorder parts.
BEGINNINGS = {'ID: ', 'Tech: ', 'BAN: '}
CONTEXTS_OF_QT = re.compile(r'Q[A-Z]')


# --- What the tool finds -----------------------------------------------------------------------------------------

def messages_of(ts):
    """By context, text, comment, and whether it is a count."""
    contexts = xml.etree.ElementTree.parse(ts).getroot().iter('context')
    return {(context.findtext('name'), message.findtext('source'), message.findtext('comment') or '', 'numerus' in message.attrib): message
            for context in contexts for message in context.iter('message')}


def collect(lupdate, tree, rooms):
    """The keys of all messages, and the tool's warnings."""
    with tempfile.TemporaryDirectory() as folder:
        ts = pathlib.Path(folder, 'all.ts')
        complaints = [f'{complaint} (says lupdate)' for complaint in update.update(lupdate, tree, [ts], rooms)]
        return (set(messages_of(ts)) if ts.exists() else set()), complaints


def extract(lupdate, tree):
    """The set of (context, text), and the tool's warnings."""
    keys, complaints = collect(lupdate, tree, ROOMS)
    return {key[:2] for key in keys}, complaints


def judge_texts(extracted):
    for context, text in sorted(extracted):
        if CONTEXTS_OF_QT.match(context):
            yield f'context {context}: the name is one of the toolkit\'s'
        if text != text.strip(' ') and text not in BEGINNINGS:
            yield f'context {context}: "{text}" is a part of a sentence; use a place such as %1'


# --- What the sources look like ----------------------------------------------------------------------------------

LITERAL = r'(?:R"\((?:.|\n)*?\)"|"(?:[^"\\\n]|\\.)*")'
LITERALS = re.compile(rf'{LITERAL}(\s*{LITERAL})*')
# What a table holds, as in "row.label". A plain name would be a parameter, which hides where the text comes from.
MEMBER = re.compile(r'\w+(\(\)|\[\w+\])?((\.|->)\w+)+')
TOKEN = re.compile(rf'(?P<comment>//[^\n]*|/\*(?:.|\n)*?\*/)|{LITERAL}|(?P<sign>[(),])')
CALL = re.compile(r'(?P<name>\b(?:QCoreApplication|QGuiApplication|qApp)(?:::|->)translate|(?:\b(?P<owner>\w+)::|\b)tr|'
                  r'QT_TRANSLATE_NOOP|\bqsTr(?:Id|anslate)?)\s*\(')
DECLARATION = re.compile(r'(?:struct|class)\s+(\w+)[^;{]*\{\s*Q_DECLARE_TR_FUNCTIONS\(([\w:]+)\)')
OBJECT = re.compile(r'class\s+(?:\w+_EXPORT\s+)?(\w+)[^;{}]*\{\s*Q_OBJECT')


def without_comments(text):
    def blank(match):
        return re.sub(r'[^\n]', ' ', match.group()) if match.group('comment') else match.group()
    return TOKEN.sub(blank, text)


def arguments(text, begin):
    """The arguments of the call whose parenthesis opens before `begin`."""
    found, start, depth = [], begin, 0
    for token in TOKEN.finditer(text, begin):
        sign = token.group('sign')
        if sign == '(':
            depth += 1
        elif sign == ')' and depth == 0:
            return found + [text[start:token.start()].strip()]
        elif sign == ')':
            depth -= 1
        elif sign == ',' and depth == 0:
            found.append(text[start:token.start()].strip())
            start = token.end()
    return found


def declared_contexts(sources):
    """The context of each class that has a tr() of its own, by file, by folder and name."""
    contexts = {}
    for file, text in sources.items():
        for name, context in DECLARATION.findall(text) + [(name, name) for name in OBJECT.findall(text)]:
            contexts[file, name] = contexts[file.parent, name] = contexts[name] = context
    return contexts


Call = collections.namedtuple('Call', 'place folder name owner context words')


def calls_in(tree):
    """Every place that requests a text or marks one for a table. A context that is not written out is missing."""
    files = [file for room in ROOMS for file in sorted((tree / room).rglob('*')) if file.suffix in ('.cpp', '.h', '.qml', '.js')]
    sources = {file: without_comments(file.read_text(encoding='utf-8')) for file in files}
    declared = declared_contexts(sources)
    for file, text in sources.items():
        for call in CALL.finditer(text):
            name, owner = call.group('name', 'owner')
            place = f'{file.relative_to(tree)}:{text.count(chr(10), 0, call.start()) + 1}'
            given = arguments(text, call.end())
            if 'translate' in name.lower():
                context = given.pop(0).strip('"') if LITERALS.fullmatch(given[0]) else None
            else:
                context = next((declared[key] for key in ((file, owner), (file.parent, owner), owner) if key in declared), None)
            yield Call(place, file.parent, name, owner, context, given[0])


def judge_sources(tree):
    noted, asked = collections.defaultdict(list), collections.defaultdict(list)
    for call in calls_in(tree):
        if call.owner and not call.context:
            yield f'{call.place}: {call.owner} is not a class with texts of its own'
        elif 'translate' in call.name.lower() and not call.context:
            yield f'{call.place}: the context is not written out'
        elif call.name == 'QT_TRANSLATE_NOOP':
            noted[call.folder].append(call)
        elif call.context and MEMBER.fullmatch(call.words):
            asked[call.folder].append(call)
        elif call.name.startswith('qsTr') and '\\\\' in call.words:
            yield f'{call.place}: lupdate drops the backslash; make it a place such as %1'
        elif call.context != update.LABELS and not LITERALS.fullmatch(call.words):
            yield f'{call.place}: the text is not written out; one of a table is a member of its row'
    yield from judge_tables(noted, asked)


def judge_tables(noted, asked):
    """Texts of tables are in the folder in which they are requested, under the same context."""
    for calls, others, words in ((noted, asked, 'nothing in this folder asks for texts of a table'),
                                 (asked, noted, 'no table in this folder notes texts')):
        for folder in sorted(calls):
            known = {call.context for call in others[folder]}
            yield from (f'{call.place}: {words} under the context {call.context}'
                        for call in calls[folder] if call.context not in known)


def judge_tree(lupdate, tree):
    extracted, complaints = extract(lupdate, tree)
    return complaints + list(judge_texts(extracted)) + list(judge_sources(tree))


# --- What the catalogues say -------------------------------------------------------------------------------------

PLACE = re.compile(r'%L?\d+|%n')
ENDS = {'.': '.。', ':': ':：', '?': '?？؟', '…': '…'}


def judge_form(source, form, is_count):
    if not form.strip():
        yield 'is empty'
        return
    missing = collections.Counter(PLACE.findall(source))
    missing.subtract(PLACE.findall(form))
    # "One report" needs no number.
    if any(number and not (is_count and place == '%n' and number > 0) for place, number in missing.items()):
        yield 'has other places'
    if source.count('\n') != form.count('\n'):
        yield 'has other lines'
    if (form != form.strip()) != (source != source.strip()) or '  ' in form:
        yield 'has stray blanks'
    ends = ENDS.get(source.strip()[-1])
    # A mark of direction may follow.
    if ends and form.strip(' \u200e')[-1] not in ends:
        yield f'does not end in {" or ".join(ends)}'


# A value before the first letter decides the direction of the whole text, unless the text begins with a mark.
VALUE_FIRST = re.compile(r'[^\w\u200f%]*%L?\d')


def judge_direction(message):
    translation = message.find('translation')
    for form in translation.findall('numerusform') or [translation]:
        text = form.text or ''
        if VALUE_FIRST.match(text) and re.search('[\u0600-\u06ff]', text):
            yield 'begins with a value; put the mark U+200F before it'


def judge_message(source, message):
    translation = message.find('translation')
    if translation.get('type'):
        yield f'is {translation.get("type")}'
        return
    is_count = message.get('numerus') == 'yes'
    for form in translation.findall('numerusform') if is_count else [translation]:
        yield from judge_form(source, form.text or '', is_count)


def judge_catalogue(ts, wanted):
    messages = messages_of(ts)
    for key in sorted(wanted ^ set(messages)):
        yield f'{ts.name}: {key}: {"is missing" if key in wanted else "is no longer requested"}; build update-translations'
    for key, message in messages.items():
        if ts.stem.endswith('_pseudo'):
            complaints = [] if update.lengthened(key[1]) in message.find('translation').itertext() else ['is not what update.py makes of it']
        else:
            complaints = [*judge_message(key[1], message), *(judge_direction(message) if ts.stem.endswith('_ar') else ())]
        yield from (f'{ts.name}: {key}: the translation {complaint}' for complaint in complaints)


def judge_catalogues(lupdate):
    wanted, complaints = collect(lupdate, TREE, update.ROOMS)
    of_examples, more = collect(lupdate, TREE, (update.EXAMPLES,))
    complaints += more
    files = sorted((TREE / 'translations').glob('*.ts'))
    names = [f'uiutils_{language}.ts' for language in sorted([*update.LANGUAGES, 'en', 'pseudo'])]
    if [file.name for file in files] != names:
        complaints.append(f'the catalogues are {files}, not {names}')
    beside = sorted((TREE / update.EXAMPLES / 'translations').glob('*.ts'))
    if [file.stem for file in beside] != sorted(f'examples_{language}' for language in [*update.LANGUAGES, 'pseudo']):
        complaints.append(f'the catalogues of the examples are {beside}')
    complaints += [complaint for file in beside for complaint in judge_catalogue(file, of_examples)]
    return complaints + [complaint for file in files
                         for complaint in judge_catalogue(file, {key for key in wanted if key[3]} if file.stem == 'uiutils_en' else wanted)]


# --- What programs request ---------------------------------------------------------------------------------------

class Recording:
    """Programs that run with every text of ours in quotation marks, and what they requested."""

    def __init__(self, build, recorder, folder):
        self.build, self.folder = build, folder
        self.log = folder / 'asked.log'
        self.environment = dict(os.environ, LD_PRELOAD=str(recorder), TRANSLATION_LOG=str(self.log))
        self.environment.pop('UIUTILS_ROOT', None)

    def run(self, program, *words, code=0):
        run = subprocess.run([self.build / 'bin' / program, *words], cwd=self.folder, env=self.environment, capture_output=True,
                             text=True, timeout=300)
        if run.returncode != code:
            raise RuntimeError(f'{program} {words}: {run.returncode}\n{run.stdout}{run.stderr}')
        return run.stdout + run.stderr

    def asked(self):
        records = self.log.read_bytes().decode().split('\x1e')
        return {tuple(record.split('\x1f')) for record in records if record}


def text_of(pdf):
    return subprocess.run(['pdftotext', '-layout', pdf, '-'], capture_output=True, text=True, check=True).stdout


def show(recording):
    """Makes programs show texts. Returns what must be translated, and where it is shown."""
    data = TREE / 'tests' / 'data'
    services = ['--services', data / 'services']
    document = data / 'documents' / 'everything.json'
    root = recording.folder / 'root'
    root.mkdir()
    (root / 'document.json').write_bytes(document.read_bytes())
    words = recording.run('uiutils-qml', TREE / 'tests/translations/page.qml', *services, '--root', root)
    saved = text_of(root / 'cust/public/reports/marked.pdf')
    for form in ('html', 'text'):
        recording.run('reportconvert', '--format', form, *services, document)
    html = pathlib.Path(recording.folder, 'everything.html').read_text()
    text = pathlib.Path(recording.folder, 'everything.txt').read_text()
    item = '{ "id": ":config:odd:twice:", "type": "int" }'
    (recording.folder / 'odd.service.json').write_text(f'{{ "service": "odd", "items": [{item}, {item}] }}')
    odd = recording.run('reportconvert', '--strict', '--format', 'xml', '--services', recording.folder, document, code=1)
    nowhere = recording.run('uiutils-qml', TREE / 'docs/examples/gallery.qml', *services, '--root', root, '--grab', '/nowhere/a.png',
                            code=1)
    for program in ('uiutils-qml', 'uiutils-inspector', 'reportconvert', 'pdf_viewer', 'uiutils-demo', 'kivd', 'kivctl'):
        recording.run(program, '--help')
        recording.run(program, '--nonsense', code=2)
    for example in ('gallery', 'notifications', 'liveplot'):
        recording.run('uiutils-qml', TREE / f'docs/examples/{example}.qml', '--services', TREE / 'platform/reference/services',
                      '--root', root, '--inspect', '--grab', recording.folder / 'page.png')
    recording.run('uiutils-demo', '--tour', '--samples', '20', '--root', root,
                  '--services', TREE / 'platform/reference/services')
    alone = recording.folder / 'alone'
    alone.mkdir()
    (alone / 'kinds.service.json').write_bytes((data / 'services/kinds.service.json').read_bytes())
    moving = '{ "id": ":result:moving:a:", "type": "int", "moves": { "as": "file", "file": "missing.csv" } }'
    (alone / 'moving.service.json').write_text(f'{{ "service": "moving", "items": [{moving}] }}')
    nobody = recording.run('uiutils-demo', '--follow', '--root', root, '--services', alone, code=1)
    none = recording.run('uiutils-qml', '--list', '--services', '/nowhere', '--root', root, code=1)
    unplayed = recording.run('uiutils-qml', '--list', '--replay', TREE / 'README.md', '--root', root, code=1)
    recording.environment['DBUS_SESSION_BUS_ADDRESS'] = 'unix:path=/nowhere/bus'
    lost = recording.run('kivctl', 'list', code=4)
    return [
        ('a saved PDF file', saved, '«Page 1 of '),
        ('a saved PDF file', saved, '«Unit ID: WB1»'),
        ('an HTML page', html, '«Test Information»'),
        ('a plain text', text, '«Pass»'),
        ('a question', words, '«Do you want to overwrite report «Internal:»/reports/marked.pdf?»'),
        ('the rejection of a value', words, '««Level» cannot be set to 11: «out of range». Allowed: «-10 to 10» «dB».»'),
        ('the range of a value', words, '«2 - 8 chars»'),
        ('the rejection of a service', odd, '/items/1: «the id :config:odd:twice: appears twice»'),
        ('a setting that is not there', nobody, '«There is no setting :config:basemgr:'),
        ('an item that stands still', nobody, ' The item :result:moving:a: stands still.»'),
        ('a host without services', none, '«No service could be loaded from /nowhere. '),
        ('what is no recording', unplayed, 'README.md is not a recording of services.»'),
        ('a bus that is not there', lost, '«The session bus cannot be reached: '),
        ('the rejection of a file', nowhere, '«Cannot create a file in the folder of /nowhere/a.png: '),
    ]


def judge_recording(asked, extracted):
    for context, text in sorted(asked - extracted):
        # The tests have services of their own.
        if context != update.LABELS and not CONTEXTS_OF_QT.match(context):
            yield f'context {context}: "{text}" is asked for, and lupdate does not find it there'
    # A page's context is the name of its file, whatever requests the text.
    pages = {file.stem for room in ROOMS for file in (TREE / room).rglob('*') if file.suffix in ('.qml', '.js')}
    known = {context for context, _ in asked} | UNSEEN | pages
    for context in sorted({context for context, _ in extracted} - known):
        yield f'context {context}: it has texts, and no program asked for one'
    for context in sorted(UNSEEN - {context for context, _ in extracted}):
        yield f'context {context}: it is gone; take it off the list of unseen ones'


def judge_programs(lupdate, build, recorder):
    extracted, complaints = extract(lupdate, TREE)
    with tempfile.TemporaryDirectory() as folder:
        recording = Recording(build, recorder, pathlib.Path(folder))
        for what, where, words in show(recording):
            if words not in where:
                complaints.append(f'{what} does not say {words}:\n{where}')
        return complaints + list(judge_recording(recording.asked(), extracted))


# --- What is wrong on purpose ------------------------------------------------------------------------------------

TEXTS = 'struct Texts\n{\n    Q_DECLARE_TR_FUNCTIONS(Sound)\n};\n'
ROWS = 'const struct { const char* label; } rows[] = {{QT_TRANSLATE_NOOP("%s", "Row")}};\n'
SOUND = TEXTS + ROWS % 'Sound' + 'QString all() { return Texts::tr("Whole: %1").arg(Texts::tr(rows[0].label)); }\n'
WRONG = [
    ('a free tr() that hides its context', 'lib/a.cpp',
     'QString tr(const char* text) { return QCoreApplication::translate("Hidden", text); }\nQString a() { return tr("Text"); }\n',
     'a.cpp:1: the text is not written out'),
    ('a free tr() without a context', 'lib/a.cpp', 'QString a() { return tr("Text"); }\n', 'cannot be called without context'),
    ('a tr() under the name of a namespace', 'lib/a.cpp', 'namespace a {\nQString a() { return tr("Text"); }\n}\n', 'lacks Q_OBJECT'),
    ('a struct of texts by another name', 'lib/a.cpp', TEXTS + 'using Words = Texts;\nQString a() { return Words::tr("Text"); }',
     'a.cpp:6: Words is not a class with texts'),
    ('a context that is worked out', 'lib/a.cpp', 'QString a() { return QCoreApplication::translate(name, "Text"); }\n',
     'a.cpp:1: the context is not written out'),
    ('a context of the toolkit', 'lib/a.cpp', 'QString a() { return QCoreApplication::translate("QFile", "Text"); }\n', 'context QFile'),
    ('a table under another context than its call', 'lib/a.cpp', TEXTS + ROWS % 'Other' + 'QString a() { return Texts::tr(rows[0].label); }',
     'a.cpp:5: nothing in this folder asks'),
    ('a call under another context than its table', 'lib/a.cpp',
     ROWS % 'Other' + 'QString a() { return QCoreApplication::translate("Sound", rows[0].label); }', 'a.cpp:2: no table in this folder'),
    ('a text that is put together', 'lib/a.cpp', TEXTS + 'QString a() { return Texts::tr(("Text" + name).constData()); }',
     'a.cpp:5: the text is not written out'),
    ('a part of a sentence', 'base/a.cpp', TEXTS + 'QString a() { return name + Texts::tr(" is gone"); }', 'part of a sentence'),
    ('a number that the tool takes for a letter', 'platform/a.h', "constexpr int most = 10'000;\n", 'Unterminated'),
    ('a backslash, which the tool drops', 'qml/A.qml', 'Text { text: qsTr("a \\\\ b") }', 'drops the backslash'),
    ('a text of a page that is put together', 'qml/A.qml', 'Text { text: qsTr("Text " + name) }', 'A.qml:1: the text is not written out'),
]


WRONG_CATALOGUES = [
    ('<translation type="unfinished">Es fehlt %1.</translation>', 'unfinished'), ('<translation type="vanished">Es fehlt %1.</translation>', 'vanished'),
    ('<translation></translation>', 'empty'), ('<translation>Es fehlt.</translation>', 'other places'),
    ('<translation>Es fehlt %1 %1.</translation>', 'other places'), ('<translation>Es fehlt %1. </translation>', 'stray blanks'),
    ('<translation>Es fehlt %1</translation>', 'does not end'), ('<translation>Es fehlt\n%1.</translation>', 'other lines'),
]


def judge_planted_catalogues():
    def judged(translation, wanted):
        with tempfile.TemporaryDirectory() as folder:
            ts = pathlib.Path(folder, 'a.ts')
            ts.write_text(f'<TS><context><name>A</name><message><source>%1 is missing.</source>{translation}</message></context></TS>')
            return list(judge_catalogue(ts, wanted))

    key = ('A', '%1 is missing.', '', False)
    right = '<translation>Es fehlt %1.</translation>'
    yield from (f'not wrong, and complained of: {complaint}' for complaint in judged(right, {key}))
    plants = [(translation, {key}, words) for translation, words in WRONG_CATALOGUES]
    plants += [(right, {key, ('A', 'Another', '', False)}, 'is missing'), (right, set(), 'no longer requested')]
    yield from (f'planted and not found: {translation}' for translation, wanted, words in plants
                if not any(words in complaint for complaint in judged(translation, wanted)))


def judge_plants(lupdate):
    def judged(file, source):
        with tempfile.TemporaryDirectory() as folder:
            place = pathlib.Path(folder, file)
            place.parent.mkdir(parents=True)
            place.write_text(source)
            return judge_tree(lupdate, pathlib.Path(folder))

    yield from (f'not wrong, and complained of: {complaint}' for complaint in judged('lib/a.cpp', SOUND))
    # The lupdate of Debian 13 reads digit separators.
    version = subprocess.run([lupdate, '-version'], capture_output=True, text=True).stdout.split()[-1]
    reads_separators = tuple(map(int, version.split('.'))) >= (5, 15, 15)
    for name, file, source, words in WRONG:
        if words == 'Unterminated' and reads_separators:
            continue
        found = judged(file, source)
        if not any(words in complaint for complaint in found):
            yield f'planted and not found: {name}; found: {found}'
    pairs = {('Sound', 'Text')}
    for name, asked, extracted in [('asked for and not extracted', {('Sound', 'Another')}, pairs), ('never asked for', set(), pairs),
                                   ('under another context', {('Sound', 'Text'), ('Free', 'Text')}, pairs)]:
        if not any(judge_recording(asked, extracted)):
            yield f'planted and not found: {name}'


def judge_described(describe):
    """Two programs read what services say, and agree."""
    with tempfile.TemporaryDirectory() as folder:
        ts = pathlib.Path(folder, 'all_de.ts')
        subprocess.run([describe, '--services', TREE / update.SERVICES, '--ts', ts], check=True, stdout=subprocess.DEVNULL)
        described = {key[1] for key in messages_of(ts)}
    collected = set(update.labels_of(TREE))
    if not described:
        yield 'uiutils-describe finds nothing'
    yield from (f'only uiutils-describe finds "{text}"' for text in sorted(described - collected))
    yield from (f'uiutils-describe does not find "{text}"' for text in sorted(collected - described))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('task', choices=('extracted', 'catalogues', 'planted', 'described', 'used'))
    parser.add_argument('--lupdate', required=True)
    parser.add_argument('--build', type=pathlib.Path)
    parser.add_argument('--recorder', type=pathlib.Path)
    parser.add_argument('--describe', type=pathlib.Path)
    options = parser.parse_args()
    if options.task == 'extracted':
        complaints = judge_tree(options.lupdate, TREE)
    elif options.task == 'planted':
        complaints = list(judge_plants(options.lupdate)) + list(judge_planted_catalogues())
    elif options.task == 'catalogues':
        complaints = judge_catalogues(options.lupdate)
    elif options.task == 'described':
        complaints = list(judge_described(options.describe))
    else:
        complaints = judge_programs(options.lupdate, options.build, options.recorder)
    for complaint in complaints:
        print(complaint)
    return 1 if complaints else 0


if __name__ == '__main__':
    sys.exit(main())
