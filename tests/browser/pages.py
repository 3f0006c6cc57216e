#!/usr/bin/env python3
"""Modern pages in a browser: on a phone and a desktop, light and dark, printed, and judged by a checker of accessibility.
Usage: pages.py TREE BUILD FOLDER. Keeps pages, pictures and sheets in FOLDER. Status 77: something is missing here."""

import collections
import html
import json
import pathlib
import re
import shutil
import subprocess
import sys

sys.dont_write_bytecode = True
from chromium import Chromium  # noqa: E402

CHECKER = 'axe-core@4.14.1'
DOCUMENTS = ['everything', 'field', 'hostile', 'odd-keys', 'empty']
SCREENS = [('phone', 390, 844, 'light'), ('phone-dark', 390, 844, 'dark'), ('desktop', 1024, 768, 'light'), ('desktop-dark', 1024, 768, 'dark')]
# A word of up to so many letters, between hyphens, is on one line, whatever else a row holds.
UNTORN = 14
# The height of a line on paper, in points.
SMALLEST = 6.5
WORD = re.compile(r'<word xMin="([-0-9.]+)" yMin="([-0-9.]+)" xMax="([-0-9.]+)" yMax="([-0-9.]+)">(.*?)</word>')

# What lies under labels that stay in sight, or outside of its frame, has colours that the checker leaves open: once more
# with open frames.
CHECK = """(async () => {
    const found = (await axe.run(document, {resultTypes: ['violations', 'incomplete']}));
    const style = document.createElement('style');
    style.textContent = `th, caption bdi { position: static !important; } .scroll { overflow: visible !important; }
        html, body { width: max-content; max-width: none; }`;
    document.head.append(style);
    const colors = await axe.run(document, {runOnly: ['color-contrast']});
    style.remove();
    const open = found.incomplete.filter(rule => rule.id != 'color-contrast');
    const unclear = colors.incomplete.filter(rule => !rule.nodes[0].any[0].message.includes('non-text characters'));
    return [...found.violations, ...open, ...colors.violations, ...unclear].map(
        rule => rule.id + ': ' + rule.nodes[0].html.slice(0, 120) + ' ' + rule.nodes[0].any.map(check => check.message).join(' '));
})()"""

MEASURE = """(() => {
    const faults = [];
    const root = document.documentElement;
    if (document.scrollingElement.scrollWidth > root.clientWidth)
        faults.push(`the page is ${document.scrollingElement.scrollWidth} pixels wide`);
    for (const cell of document.querySelectorAll('th, td'))
        if (cell.scrollWidth > cell.clientWidth + 1)
            faults.push('a text leaves its cell: ' + cell.textContent.slice(0, 80));
    for (const cell of document.querySelectorAll('.scroll td:not(:empty)'))
        if (cell.clientWidth > cell.closest('.scroll').clientWidth)
            faults.push('a cell is wider than its frame: ' + cell.textContent.slice(0, 80));
    const range = document.createRange();
    const box = (node, from, to) => { range.setStart(node, from); range.setEnd(node, to); return range.getClientRects(); };
    const texts = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    for (let node = texts.nextNode(); node; node = texts.nextNode()) {
        const parent = node.parentElement;
        for (const word of node.data.matchAll(/[^\\s\\u3000-\\uffff\\/-]+/g)) {
            const end = word.index + word[0].length;
            const lines = new Set([...box(node, word.index, end)].map(line => Math.round(line.top)));
            if (word[0].length <= UNTORN && lines.size > 1)
                faults.push('a word is torn: ' + word[0]);
        }
        const number = /^[-+]?\\d[\\d.]*( [a-zA-Z]+)?$/.exec(node.data);
        if (number && node.length > 1 && parent.closest('td')
                && box(node, 0, 1)[0].left >= box(node, node.length - 1, node.length)[0].left)
            faults.push('a number is turned round: ' + node.data);
    }
    for (const text of document.querySelectorAll('p, h1, h2')) {
        const side = getComputedStyle(text).direction == 'rtl' ? 'right' : 'left';
        range.selectNodeContents(text);
        const words = range.getBoundingClientRect(), place = text.getBoundingClientRect();
        if (/^[\\u0590-\\u06ff]/.test(text.textContent) != (side == 'right') || Math.abs(words[side] - place[side]) > 2)
            faults.push('a text does not begin at its side: ' + text.textContent.slice(0, 40));
    }
    return [faults, document.body.innerText, getComputedStyle(document.body).backgroundColor];
})()""".replace('UNTORN', str(UNTORN))

# What is wrong on purpose: in a page, on which screen, what must be found.
PLANTED = [
    ('field', r'<html lang="\w+"', '<html', 'html-has-lang'),
    ('field', r' tabindex="0"', '', 'scrollable-region-focusable'),
    ('field', r' aria-labelledby="\w+"', ' aria-labelledby="none"', 'aria-valid-attr-value|axe'),
    ('field', r' alt="[^"]*"', '', 'image-alt'),
    ('field', r'--quiet: #4d565e', '--quiet: #b0b0b0', 'color-contrast'),
    ('field', r'--fail: #a8201a', '--fail: #f07070', 'color-contrast'),
    ('levels', r'<h4', '<h6', 'heading-order'),
    ('wide', r'overflow-x: auto', 'overflow-x: visible', 'pixels wide'),
    ('long-words', r'<wbr/>', '', 'wider than its frame'),
    ('optical-events', r'overflow-wrap: normal', 'overflow-wrap: anywhere', 'torn'),
    ('right-to-left', r'<bdi>', '<bdi dir="rtl">', 'turned round'),
    ('right-to-left', r'<p dir="auto">', '<p dir="ltr">', 'begin at its side'),
    ('wide', r'class="cards"', '', 'not printed'),
    ('optical-events', r'\.scroll \{ overflow: visible', '.scroll { overflow: hidden; height: 3cm', 'not printed'),
    ('wireless-survey', r'thead \{ display: table-header-group', 'thead { display: table-row-group', 'repeated'),
]


class Missing(Exception):
    """What the test needs is not here."""


def checker(folder):
    """The checker's script, which is fetched once."""
    script = folder / 'node_modules/axe-core/axe.min.js'
    if not script.exists():
        if not shutil.which('npm'):
            raise Missing('npm is not installed, which fetches the checker of accessibility')
        fetched = subprocess.run(['npm', 'install', '--prefix', folder, '--no-audit', '--no-fund', '--ignore-scripts', CHECKER],
                                 capture_output=True, text=True, check=False)
        if fetched.returncode != 0:
            raise Missing('npm cannot fetch the checker of accessibility: ' + fetched.stderr.strip()[-300:])
    return script.read_text(encoding='utf-8')


def broad(columns):
    """Columns whose words are as long as words remain whole."""
    word = 'Characterizations-'
    row = {'label': 'Row', **{f'cell_{i}': {'label': f'{word}{i}'} for i in range(columns)}}
    return {'node_type': 'table', 'tag': 't', 'title': f'Words in {columns} columns', 'use_row_labels': True, 'num_columns': columns,
            **{f'col_label_{i}': f'{word}{i}' for i in range(columns)}, 'row_1': row, 'row_2': row}


def convert(tree, build, folder):
    """The pages, by name."""
    shapes = folder / 'shapes'
    shutil.rmtree(shapes, ignore_errors=True)
    shapes.mkdir(parents=True)
    data = tree / 'tests/data'
    subprocess.run([sys.executable, '-B', data / 'shapes/shapes.py', shapes], check=True)
    tables = {f'table_{columns}': broad(columns) for columns in (4, 5, 7, 8, 9, 11, 12)}
    (shapes / 'broad.json').write_text(json.dumps({'node_type': 'report', 'tag': 'r', 'title': 'Broad', **tables}), encoding='utf-8')
    documents = [data / f'documents/{name}.json' for name in DOCUMENTS] + sorted(shapes.glob('*.json'))
    subprocess.run([build / 'bin/reportconvert', '--format', 'html', '--style', 'modern', '--services', data / 'services', '--output',
                    f'{folder / "pages"}/', *documents], check=True, stderr=subprocess.DEVNULL)
    return {document.stem: folder / 'pages' / f'{document.stem}.html' for document in documents}


def untorn_words(text):
    return collections.Counter(re.findall(rf'(?<![^\s]){"[!-~]"}{{1,{UNTORN}}}(?![^\s])', text))


def judge_sheets(sheets, shown):
    """All words are on paper, and inside it; a table that goes on has its header again."""
    boxes = subprocess.run(['pdftotext', '-bbox', sheets, '-'], capture_output=True, check=True, encoding='utf-8',
                           errors='replace').stdout
    pages = boxes.split('<page width="')[1:]
    printed = collections.Counter()
    for number, page in enumerate(pages, 1):
        width = float(page[:page.index('"')])
        for left, top, right, bottom, word in re.findall(WORD, page):
            printed[html.unescape(word)] += 1
            if float(right) > width or float(left) < 0:
                yield f'sheet {number}: a word beyond the sheet: {word}'
            if float(bottom) - float(top) < SMALLEST:
                yield f'sheet {number}: a word too small to read: {word}'
    lost = untorn_words(shown) - printed
    if lost:
        yield f'not printed: {sorted(lost)[:10]}'
    # Title and facts, and the system's information, have sheets of their own.
    if 'Wireless survey' in shown and printed['BSSID'] < len(pages) - 2:
        yield f'the header is not repeated: it is on {printed["BSSID"]} of {len(pages)} sheets'


def judge(browser, axe, page, picture=None, screens=SCREENS):
    """What is wrong with a page."""
    found = []
    for name, width, height, scheme in screens:
        browser.show(page, width, height, scheme)
        faults, shown, ground = browser.evaluate(MEASURE)
        if (sum(map(int, re.findall(r'\d+', ground)[:3])) < 150) != (scheme == 'dark'):
            faults.append(f'the ground is {ground}')
        if picture:
            browser.picture(picture / f'{page.stem}-{name}.png')
        browser.evaluate(axe)
        found += [f'{page.stem}, {name}: {fault}' for fault in faults[:5] + browser.evaluate(CHECK)]
    sheets = page.with_suffix('.pdf')
    browser.sheets(sheets)
    found += [f'{page.stem}, printed: {fault}' for fault in list(judge_sheets(sheets, shown))[:5]]
    return found


def judge_planted(browser, axe, pages, folder):
    """The faults that are not found."""
    for name, pattern, replacement, expected in PLANTED:
        planted = folder / 'planted.html'
        text, count = re.subn(pattern, replacement, pages[name].read_text(encoding='utf-8'))
        planted.write_text(text, encoding='utf-8')
        found = judge(browser, axe, planted, screens=SCREENS[:1] + SCREENS[2:3])
        if not count or not any(re.search(expected, fault) for fault in found):
            yield f'planted {pattern!r} in {name} ({count} times) and not found; found {found[:4]}'


def main(tree, build, folder):
    tree, build, folder = map(pathlib.Path, (tree, build, folder))
    program = shutil.which('chromium')
    if not program:
        raise Missing('chromium is not installed')
    axe = checker(folder)
    pages = convert(tree, build, folder)
    pictures = folder / 'pictures'
    pictures.mkdir(exist_ok=True)
    with Chromium(program) as browser:
        found = [fault for page in pages.values() for fault in judge(browser, axe, page, pictures)]
        found += judge_planted(browser, axe, pages, folder)
    print('\n'.join(found) or f'{len(pages)} pages on {len(SCREENS)} screens and on paper: no finding; {len(PLANTED)} planted faults found')
    return 1 if found else 0


if __name__ == '__main__':
    try:
        sys.exit(main(*sys.argv[1:4]))
    except Missing as missing:
        print(missing)
        sys.exit(77)
