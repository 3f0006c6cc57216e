"""The include graph: every include of the tree, resolved to a file as a compiler does it, with its units and circles."""

import collections
import functools
import os
import re

SOURCES = (".h", ".hh", ".hpp", ".inc", ".ipp", ".c", ".cc", ".cpp", ".cxx")
HEADERS = SOURCES[:5]

# The include folders of all targets of the tree together: an include that a target cannot resolve is still an arrow when it
# is written.
INCLUDE_ROOTS = ("", "lib", "lib/ui_utils", "platform/contract", "platform/reference", "platform/reference/embedded", "apps",
                 "apps/demo", "apps/pdf_viewer", "qml/UiUtils/Controls", "qml/UiUtils/Plot", "tests")
# The first words of our headers in angle brackets.
OUR_FOLDERS = {"base", "common", "embedded", "formatters", "kiv", "ui_host", "uiutils"}

TOKEN = re.compile(r'//(?:[^\\\n]|\\.)*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', re.DOTALL)
DIRECTIVE = re.compile(r'^[ \t]*#[ \t]*(?:include|include_next|import)\b[ \t]*(?:"([^"\n]+)"|<([^>\n]+)>|(.*))', re.MULTILINE)

# An include as it is written: the line, the name, whether in angle brackets.
Include = collections.namedtuple("Include", "line name is_angled")
# An include of a file of the tree; both ends are paths from its root.
Arrow = collections.namedtuple("Arrow", "source line target")
Fault = collections.namedtuple("Fault", "source line text")


def read_tree(root):
    """The texts, by path, of all sources and pages, and of the files that list installed headers."""
    texts = {}
    for folder, folders, names in os.walk(root):
        here = os.path.relpath(folder, root)
        # What is below tests/data is wrong on purpose.
        folders[:] = sorted(name for name in folders if not name.startswith(".") and (here, name) not in ((".", "build"), ("tests", "data")))
        for name in names:
            if name.endswith(SOURCES + (".qml",)) or name == "CMakeLists.txt":
                with open(os.path.join(folder, name), encoding="utf-8", errors="replace") as file:
                    texts[os.path.normpath(os.path.join(here, name))] = file.read()
    return texts


def without_comments(text):
    """The same lines without the parts that the compiler does not read."""
    def kept(match):
        token = match.group()
        return token if token[0] in "\"'" else "\n" * token.count("\n") or " "
    return TOKEN.sub(kept, text)


@functools.lru_cache(maxsize=None)
def includes_of(text):
    code = without_comments(text)
    found = []
    for match in DIRECTIVE.finditer(code):
        quoted, angled, other = match.groups()
        line = code.count("\n", 0, match.start()) + 1
        found.append(Include(line, quoted or angled or other.strip(), bool(angled)))
    return found


def our_imports(text):
    """The lines and names of our modules that a page imports."""
    code = without_comments(text)
    return [(code.count("\n", 0, match.start()) + 1, match.group(1))
            for match in re.finditer(r"^[ \t]*import[ \t]+(UiUtils\b[\w.]*)", code, re.MULTILINE)]


def stem_of(path):
    """The same for x.h, x.cpp and x_p.h."""
    stem = os.path.splitext(path)[0]
    return stem[:-2] if stem.endswith("_p") else stem


class Graph:
    """The arrows of a tree. `texts` is the result of read_tree(), which a test may have changed."""

    def __init__(self, texts):
        self.texts = {path: text for path, text in texts.items() if path.endswith(SOURCES)}
        self.installed = installed_headers(texts)
        self._flat = {"uiutils/" + os.path.basename(path): path for path in self.installed if path.startswith("lib/")}
        self._our_folders = OUR_FOLDERS | {path.split("/")[2] for path in self.texts if path.startswith("lib/ui_utils/")}
        self.arrows = []
        self.faults = []
        for source in sorted(self.texts):
            for include in includes_of(self.texts[source]):
                self._follow(source, include)

    def _follow(self, source, include):
        if ".." in include.name.split("/"):
            self.faults.append(Fault(source, include.line, f'"{include.name}" leads out of its folder; write the path from the root'))
        target = self._resolved(source, include)
        if target:
            self.arrows.append(Arrow(source, include.line, target))
        elif self._looks_like_ours(include):
            self.faults.append(Fault(source, include.line, f'"{include.name}" is no file of the tree'))

    def _resolved(self, source, include):
        roots = INCLUDE_ROOTS
        if not include.is_angled:
            roots = (os.path.dirname(source),) + roots
        for root in roots:
            path = f"{root}/{include.name}" if root else include.name
            path = os.path.normpath(path) if "./" in path else path
            if path in self.texts:
                return path
        return self._flat.get(include.name)

    def _looks_like_ours(self, include):
        if include.is_angled:
            return include.name.split("/")[0] in self._our_folders
        return not include.name.endswith(".moc")

    def units(self):
        """The unit of every file. A header and its source are one unit. A source without a header that continues a class
        belongs to it: it includes the class's header first, and its name begins with the class's."""
        units = {path: stem_of(path) for path in self.texts}
        of_headers = {units[path] for path in self.texts if path.endswith(HEADERS)}
        first = {}
        for arrow in self.arrows:
            first.setdefault(arrow.source, arrow.target)
        for path, stem in list(units.items()):
            begun = stem_of(first.get(path, ""))
            if stem not in of_headers and begun and stem.startswith(begun):
                units[path] = begun
        return units


def installed_headers(texts):
    """As in the rooms' CMakeLists.txt: the headers after PUBLIC in a room, or those of a library."""
    headers = set()
    for path, text in texts.items():
        if os.path.basename(path) != "CMakeLists.txt":
            continue
        for listed in re.findall(r"uiutils_room\(\s*PUBLIC\b(.*?)(?:\bPRIVATE\b|\))", text, re.DOTALL) \
                + re.findall(r"\bset\(headers\b(.*?)\)", text, re.DOTALL):
            headers.update(os.path.join(os.path.dirname(path), name) for name in listed.split())
    return headers


def circles_of(pairs):
    """The sets of nodes that reach each other, or of one that reaches itself, in the order of their names."""
    onward = collections.defaultdict(set)
    for begin, end in pairs:
        onward[begin].add(end)
    number, lowest, path, circles = {}, {}, [], []

    def visit(node):
        number[node] = lowest[node] = len(number)
        path.append(node)
        for other in sorted(onward[node]):
            if other not in number:
                visit(other)
            if other in path:
                lowest[node] = min(lowest[node], lowest[other])
        if lowest[node] == number[node]:
            begin = path.index(node)
            circle = sorted(path[begin:])
            del path[begin:]
            if len(circle) > 1 or node in onward[node]:
                circles.append(circle)

    for node in sorted(onward):
        if node not in number:
            visit(node)
    return sorted(circles)
