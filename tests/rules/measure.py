#!/usr/bin/env python3
"""Prints measures of the tree: functions, files, includes, circles. Usage: measure.py TREE

A function's length is its lines of code, without blank lines, comments and the lines of its outer braces; a function on one
line has 1. Lambdas count with the function around them. Functions are found by their braces, so that macros hide some.
"""

import os
import re
import statistics
import sys

sys.dont_write_bytecode = True
import includegraph  # noqa: E402
import includerule  # noqa: E402

LITERAL = re.compile(r'"(?:\\.|[^"\\\n])*"|(?<![0-9A-Fa-f])\'(?:\\.|[^\'\\\n])*\'')
RAW_LITERAL = re.compile(r'R"(\w*)\(.*?\)\1"', re.DOTALL)
# What precedes a brace that does not open a function.
NO_FUNCTION = re.compile(r"(?:^|[^\w])(?:namespace|class|struct|union|enum|extern)\b[^()]*$|[=,]\s*$|^\s*$")
INITIALIZER = re.compile(r"[)\s]:[^:].*[\w>]\s*$", re.DOTALL)


def plain(text):
    """The code without comments and texts, so that every brace counts."""
    code = LITERAL.sub('""', RAW_LITERAL.sub('""', includegraph.without_comments(text)))
    return re.sub(r"^[ \t]*#(?:.*\\\n)*.*$", "", code, flags=re.MULTILINE)


def closing(code, opening):
    depth = 0
    for at in range(opening, len(code)):
        depth += {"{": 1, "}": -1}.get(code[at], 0)
        if depth == 0:
            return at
    return len(code)


def functions(text):
    """The lengths of all functions that a source defines."""
    code = plain(text)
    lengths, begin, at = [], 0, 0
    while at < len(code):
        if code[at] == "{":
            before, end = code[begin:at], closing(code, at)
            if "(" not in before or NO_FUNCTION.search(before):
                begin = at + 1
            elif INITIALIZER.search(before) and not re.search(r"\b(const|noexcept|override|final)\s*$", before):
                # A member's initial value: the body follows.
                at = end
            else:
                lines = [line for line in code[at + 1:end].split("\n") if line.strip()]
                lengths.append(len(lines))
                at = begin = end
        elif code[at] in ";}":
            begin = at + 1
        at += 1
    return lengths


def lines_of_code(text):
    return sum(1 for line in includegraph.without_comments(text).split("\n") if line.strip())


def is_measured(path):
    return not path.startswith(("tests/", "benchmarks/"))


def main():
    texts = includegraph.read_tree(sys.argv[1])
    rule = includerule.Rule(texts)
    sources = {path: text for path, text in texts.items() if path in rule.graph.texts and is_measured(path)}
    lengths = sorted(length for text in sources.values() for length in functions(text))
    print(f"functions: {len(lengths)}; lines: median {statistics.median(lengths):g}, "
          f"p90 {lengths[int(len(lengths) * 0.9)]}, maximum {lengths[-1]}")
    longest = sorted(sources, key=lambda path: -sources[path].count("\n"))[:3]
    print("largest sources: " + ", ".join(f"{path} {sources[path].count(chr(10))} lines ({lines_of_code(sources[path])} of code)"
                                          for path in longest))
    headers = [path for path in sources if path.endswith(includegraph.HEADERS)]
    units = {rule.units[path] for path in sources}
    print(f"files: {len(sources)}, of them {len(headers)} headers, {len(rule.graph.installed)} installed; units: {len(units)}")
    between = [arrow for arrow in rule.graph.arrows
               if is_measured(arrow.source) and rule.units[arrow.source] != rule.units[arrow.target]]
    circles = includegraph.circles_of((rule.units[arrow.source], rule.units[arrow.target]) for arrow in between)
    in_circles = sum(map(len, circles))
    print(f"includes: {len(rule.graph.arrows)} of files of the tree; {len(rule.exceptions)} exceptions, "
          f"{len(rule.faults())} against the rule")
    print(f"circles of units: {len(circles)} with {in_circles} units ({100 * in_circles / len(units):.0f} %), exceptions counted")
    for circle in sorted(circles, key=len, reverse=True):
        print(f"  {len(circle)}: {os.path.dirname(circle[0])}: {', '.join(map(os.path.basename, circle))}")


if __name__ == "__main__":
    main()
