#!/usr/bin/env python3
"""Writes the shapes of reports that layouts are judged by, each as a document: shapes.py FOLDER"""
import json
import pathlib
import sys

PASS, MARGINAL, FAIL = 16, 32, 64
WORD = 'The splice at the closure was cleaned, inspected and measured again in both directions. '
NETWORKS = ['Guest', 'Café Réseau', 'Ωμέγα', 'Гостевая сеть', '会議室', 'עמדת בדיקה', 'شبكة الضيوف', 'ネットワーク',
            'site-17_warehouse-north_access-point', 'plant/line-2/robot_cell', 'A very long name of a network!!']


def cell(text, status=0, align=None):
    leaf = {'label': str(text)}
    if status:
        leaf['attr_status'] = str(status)
    if align is not None:
        leaf['attr_align'] = str(align)
    return leaf


def table(title, columns, rows, labels=True):
    """Rows are lists that begin with the row's label if the table has such labels."""
    node = {'node_type': 'table', 'tag': 't', 'title': title, 'use_row_labels': labels, 'num_columns': len(columns)}
    for i, name in enumerate(columns):
        node[f'col_label_{i}'] = name
    for i, row in enumerate(rows):
        values = row[1:] if labels else row
        entry = {'label': str(row[0]) if labels else ''}
        for column, value in enumerate(values):
            if value is not None:
                entry[f'cell_{column}'] = value if isinstance(value, dict) else cell(value)
        node[f'row_{i:06}'] = entry
    return node


def section(title, *children, **keys):
    node = {'node_type': 'section', 'tag': 's', 'title': title, **keys}
    for child in children:
        family = child['node_type']
        node[f'{family}_{sum(key.startswith(family + "_") for key in node) :03}'] = child
    return node


def report(title, *children, **keys):
    return {**section(title, *children, **keys), 'node_type': 'report', 'tag': 'shape'}


def optical_events():
    kinds = ['Launch', 'Splice', 'Connector', 'Macrobend', 'Splitter 1:8', 'End']
    remarks = ['', WORD.strip(), '', 'Cleaned', '', 'Attenuation is above the threshold of the acceptance test.']
    rows = []
    for i in range(40):
        status = FAIL if i % 13 == 5 else MARGINAL if i % 7 == 3 else PASS
        rows.append([i + 1, kinds[i % 6] if i < 39 else 'End', f'{i * 1.273:.3f} km', cell(f'{0.04 + i % 5 * 0.11:.2f} dB', status),
                     f'{-38.2 - i % 9 * 2.4:.1f} dB', f'{0.18 + i % 3 * 0.013:.3f}', f'{i * 0.31:.2f}',
                     cell({PASS: 'Pass', MARGINAL: 'Marginal', FAIL: 'Fail'}[status], status),
                     f'{i * 0.09:.2f}-{i * 0.09 + 1:.2f} s', remarks[i % 6]])
    columns = ['Event', 'Distance', 'Splice loss', 'Reflectance', 'Attenuation', 'Total loss', 'Verdict', 'Window', 'Remark']
    return report('Optical line test', section('Events', table('Events at 1550 nm', columns, rows)))


def wireless_survey():
    rows = []
    for i in range(300):
        level = -38 - i * 7 % 55
        status = PASS if level > -65 else MARGINAL if level > -78 else FAIL
        rows.append([NETWORKS[i * 5 % 11], ':'.join(f'{(i * 37 + k * 91) % 256:02X}' for k in range(6)), 1 + i * 4 % 165,
                     cell(f'{level} dBm', status), f'{20 << i % 3} MHz', ['WPA2', 'WPA3-SAE', 'Open', 'WPA2-Enterprise'][i % 4]])
    columns = ['SSID', 'BSSID', 'Channel', 'Level', 'Width', 'Security']
    return report('Wireless survey', section('Networks', table('Networks in range', columns, rows, labels=False)))


def many_columns(count, rows):
    names = ['Level', 'Frequency', 'Modulation', 'MER', 'Pre-FEC BER', 'Post-FEC BER', 'Attenuation']
    columns = [f'{names[i % 7]} {i + 1}' for i in range(count)]
    lines = [[f'Port {row}'] + [f'{(row * 7 + i) % 90 / 7:.2f}' if i % 7 != 2 else 'QAM-256' for i in range(count)]
             for row in range(1, rows + 1)]
    return table(f'{count} columns', columns, lines)


def levels():
    node = None
    for level in range(5, 0, -1):
        facts = table(f'Settings of level {level}', ['Value'], [['Wavelength', '1550 nm'], ['Pulse', f'{level * 10} ns'], ['Mode', 'Automatic']])
        node = section(f'Level {level}', facts, *([node] if node else []), log_1=f'What level {level} reports. ' + WORD)
    return report('Five levels', node, section('Another of level 1', section('One of level 2')))


def long_cells():
    rows = [[f'Step {i}', cell(f'{i * 0.25:.2f} dB', PASS if i % 3 else FAIL), WORD * (34 if i % 4 == 1 else 1), 'ok']
            for i in range(12)]
    return report('Long cells', table('Procedure', ['Loss', 'What was done', 'State'], rows))


def long_words():
    path = '/opt/measure/' + '/'.join(f'series-{i:02}_fiberCharacterization' for i in range(4)) + '.sor'
    rows = [['1', 'x' * 120, '', '0.25 dB', ''], ['2', path[:120], 'short', '0.5 dB', ''],
            ['3', 'serviceNameOfTheOpticalNetworkTerminal' * 3, '', '-12.30 dB', 'An ordinary remark of several words.']]
    return report('Long words', table('Words of 120 characters', ['Word', 'Kind', 'Loss', 'Remark'], rows),
                  table('Beside nothing', ['A', 'B', 'C'], [['w' * 120, None, None], [None, None, None]], labels=False))


def right_to_left():
    rows = [[f'אירוע {i}', f'{i * 1.25:.2f} km', cell(f'-{i}.5 dB', PASS if i % 3 else FAIL), 'מחבר נקי' if i % 2 else 'ריתוך תקין, נמדד שוב בשני הכיוונים']
            for i in range(1, 31)]
    facts = [['אורך גל', '1550 nm'], ['טווח', '0.00-12.50 km'], ['מפעיל', 'Network 7']]
    return report('בדיקת קו אופטי', section('סיכום', table('הגדרות', ['ערך'], facts), log_1='הבדיקה הסתיימה בהצלחה לאחר 12.5 שניות. ' * 6),
                  section('أحداث', table('אירועים', ['מרחק', 'ניחות', 'הערה'], rows)))


def verdicts():
    rows = [[name, cell(word, code), cell(value, code), 'Limit: 0.50 dB'] for name, word, code, value in
            [('Loss', 'Pass', PASS, '0.21 dB'), ('Return loss', 'Marginal', MARGINAL, '-31.0 dB'), ('Length', 'Fail', FAIL, '12.7 km'),
             ('Polarity', 'Passed', PASS, ''), ('Continuity', '', PASS, 'ok')]]
    facts = [['Unit', 'A-12'], ['Passed', 17], ['Failed', cell(2, FAIL)], ['Longest link', '88.2 m']]
    return report('Cable certification', table('Summary', ['Value'], facts), table('Link 1', ['Verdict', 'Worst value', 'Rule'], rows),
                  *[table(f'Link {i}', ['Verdict', 'Worst value', 'Rule'], rows) for i in range(2, 14)])


def extremes():
    return report(WORD * 34, section(WORD * 34, table(WORD * 34, ['Only column'], [[f'Row {i}', i] for i in range(50)])),
                  table('One column', ['Number'], [[i] for i in range(9)], labels=False), many_columns(200, 3), many_columns(25, 1))


SHAPES = {
    'optical-events': optical_events, 'wireless-survey': wireless_survey,
    'wide': lambda: report('Wide tables', many_columns(25, 60)), 'levels': levels, 'long-cells': long_cells,
    'long-words': long_words, 'right-to-left': right_to_left, 'verdicts': verdicts, 'extremes': extremes,
}

if __name__ == '__main__':
    folder = pathlib.Path(sys.argv[1])
    for name, shape in SHAPES.items():
        (folder / f'{name}.json').write_text(json.dumps(shape(), ensure_ascii=False), encoding='utf-8')
