#!/usr/bin/env python3
"""Checks the includes of the tree against its rooms. Usage: includerule.py TREE"""

import collections
import os
import re
import sys

sys.dont_write_bytecode = True
import includegraph  # noqa: E402
from includegraph import HEADERS, Fault  # noqa: E402

# Every room, the lower ones first: its name here, its folder, what it may include besides itself. What an included header
# includes counts too.
ROOMS = """
base        base                            -
contract    platform/contract/kiv           base
schema      platform/contract/kiv/schema    contract base
formatters  platform/reference/formatters   base contract
embedded    platform/reference/embedded     base contract formatters
simulation  platform/reference/simulation   base contract formatters embedded replay
bus         platform/reference/bus          base contract formatters embedded
replay      platform/reference/replay       base contract embedded

core        lib/ui_utils/core               base
languages   lib/ui_utils/languages          base core
service     lib/ui_utils/service            base contract core languages
instrument  lib/ui_utils/instrument         base contract core
document    lib/ui_utils/document           base contract core
local       lib/ui_utils/local              base contract core service
files       lib/ui_utils/files              base contract core instrument document
emitter     lib/ui_utils/writers/emitter    base core
fonts       lib/ui_utils/writers/emitter/fonts  base core emitter
plots       lib/ui_utils/writers/plots      base contract core
pdffile     lib/ui_utils/writers/pdffile    base core emitter
podofo      lib/ui_utils/writers/pdffile/podofo  base core pdffile
pages       lib/ui_utils/writers/pages      base core emitter
text        lib/ui_utils/writers/text       base contract core instrument document plots
modern      lib/ui_utils/writers/modern     base contract core instrument document plots pages text
csv         lib/ui_utils/writers/csv        base contract core instrument document plots text
html        lib/ui_utils/writers/html       base contract core instrument document plots pages text modern
xml         lib/ui_utils/templ2xmlwriter    base contract core instrument document
report      lib/ui_utils/report             base contract core languages service instrument document local files WRITERS saving
saving      lib/ui_utils/report/saving      base contract core instrument document files report
drafts      lib/ui_utils/report/drafts      base contract core service document local report
module      lib/ui_utils/module             base contract LIBRARY

host        lib/ui_host                     base contract core languages service module embedded simulation
hostbus     lib/ui_host/bus                 base contract embedded bus host
paper       lib/ui_paper                    core pages

scene       qml/scene                       -
plugin      qml/UiUtils                     LIBRARY base contract
preview     qml/UiUtils/Preview             LIBRARY base contract scene
kit         qml/UiUtils/Controls            scene
liveplot    qml/UiUtils/Plot                base contract core languages document service plots
common      apps/common                     LIBRARY base contract embedded bus host
names       apps/names                      LIBRARY base contract
check       apps/check                      common
servicecheck apps/check/services            LIBRARY base contract formatters embedded simulation common names check
pagecheck   apps/check/pages                LIBRARY base contract common names check
checktool   apps/uiutils-check              base check servicecheck pagecheck common names
modules     apps/modules                    base names
audit       apps/audit                      -
servicetexts apps/servicetexts              base contract embedded
inspector   apps/inspector                  LIBRARY base contract embedded replay host
kivd        apps/kivd                       base contract embedded bus common
kivctl      apps/kivctl                     base contract embedded bus replay common host
viewer      apps/pdf_viewer                 base common scene
demo        apps/demo                       LIBRARY base contract embedded replay common host inspector
convert     apps/reportconvert              LIBRARY base contract embedded common host
qmlviewer   apps/uiutils-qml                LIBRARY base contract embedded replay common names modules audit host inspector check pagecheck servicecheck
describe    apps/uiutils-describe           LIBRARY base contract embedded bus common host names modules servicetexts
inspecttool apps/uiutils-inspector          LIBRARY base contract embedded replay common host inspector
expage      examples/page                   host
exform      examples/form                   LIBRARY contract host
exreport    examples/report                 LIBRARY contract host
exservice   examples/service                contract embedded bus host
explatform  examples/platform               contract host
extutorial  docs/examples/tutorial/9-program  host
benchmarks  benchmarks                      LIBRARY podofo base contract embedded liveplot
startbench  benchmarks/start                -
openbench   benchmarks/inspector            LIBRARY base contract embedded replay host inspector
checkbench  benchmarks/check                base contract embedded simulation benchmarks check servicecheck names
busbench    benchmarks/bus                  LIBRARY base contract embedded bus replay benchmarks
"""
GROUPS = {"WRITERS": "emitter plots pdffile pages text modern csv html xml",
          "LIBRARY": "core languages service instrument document local files emitter plots pdffile pages text modern csv html xml report saving drafts module"}
# Our modules that pages may import. The measures are a resource of the viewer, too.
PAGES = {"qml/UiUtils/Controls/Measures.qml": [], "apps/pdf_viewer/qml": ["UiUtils.Viewer"], "qml/UiUtils/Controls": ["UiUtils", "UiUtils.Controls", "UiUtils.Preview"],
         "apps/inspector/qml": ["UiUtils", "UiUtils.Controls", "UiUtils.Plot", "UiUtils.Inspector"],
         "apps/demo/qml": ["UiUtils", "UiUtils.Controls", "UiUtils.Demo", "UiUtils.Plot"]}
# Tests may include everything, and nothing may include them.
TESTS = "tests/"
# The folders of libraries. A header there ends in _p.h unless it is installed.
LIBRARIES = ("base/", "lib/", "platform/")
# Programs of the tree that may use headers that are not installed; every other use is an exception below.
# Programs may also use base, recordings and where the host's services come from, but not the demo and the examples, which show what can be built on an
# installed library.
INSIDERS = {"benchmarks", "busbench", "checkbench"}
SHARED_WITH_PROGRAMS = ("base/", "platform/reference/replay/", "lib/ui_host/")
# Parts of libraries that hold no state, which these rooms link once more because the libraries hide them.
LINKED_AGAIN = {"liveplot": "lib/ui_utils/writers/plots/",
                # What reads a file wrongly in a program must read it in the same way when it is checked.
                "servicecheck": ("lib/ui_utils/core/dynamicobject_p.h", "lib/ui_utils/service/applicability_p.h",
                          "platform/reference/embedded/", "platform/reference/formatters/",
                          "platform/reference/simulation/")}
GUESTS = {"demo", "expage", "exform", "exreport", "exservice", "explatform", "extutorial"}
# The libraries of the tree that the demo may link besides installed ones: its own parts, and what programs share.
DEMO_LINKS = {"uiutils_demo_parts", "uiutils_apps_common", "uiutils_inspector"}
LARGEST_CIRCLE = 3

# Arrows that break the rule at present, with the reason. The list may only shrink.
EXCEPTIONS = """
# The tools are built inside the tree.
apps/reportconvert/conversion.cpp -> platform/reference/embedded/jsonschema_p.h
"""

Room = collections.namedtuple("Room", "name allowed")


def parse_rooms(table):
    rooms = {}
    for line in filter(str.strip, table.splitlines()):
        name, folder, *allowed = line.split()
        rooms[folder] = Room(name, {name}.union(*(GROUPS.get(word, word).split() for word in allowed)))
    return rooms


def parse_exceptions(table):
    """One line "source -> target" for each; lines that begin with # give the reason."""
    lines = [line.strip() for line in table.splitlines()]
    return [tuple(line.split(" -> ")) for line in lines if line and not line.startswith("#")]


class Rule:
    """The violations in the texts of a tree, see includegraph.read_tree()."""

    def __init__(self, texts, exceptions=None):
        self.graph = includegraph.Graph(texts)
        self.demo_build = texts.get("apps/demo/CMakeLists.txt", "")
        self.pages = {path: text for path, text in texts.items() if path.endswith(".qml")}
        self.rooms = parse_rooms(ROOMS)
        self.units = self.graph.units()
        self.exceptions = parse_exceptions(EXCEPTIONS) if exceptions is None else exceptions
        self.arrows = [arrow for arrow in self.graph.arrows if (arrow.source, arrow.target) not in self.exceptions]

    def faults(self):
        return sorted(self.graph.faults + self.strangers() + self.misnamed() + self.judged() + self.imports() + self.links()
                      + self.header_circles() + self.unit_circles(self.arrows) + self.idle_exceptions())

    # --- Rooms ---

    def room(self, path):
        """The room's name; the folder of a file without a room."""
        if path.startswith(TESTS):
            return "tests"
        folder = os.path.dirname(path)
        return self.rooms[folder].name if folder in self.rooms else folder

    def may(self, source, target):
        if source.startswith(TESTS):
            return True
        room = self.rooms.get(os.path.dirname(source))
        # A file without a room is reported once, and not for each include.
        return not room or self.room(target) in room.allowed

    def strangers(self):
        return [Fault(path, 1, f"{os.path.dirname(path) or 'the root'} is a room that the rule does not know")
                for path in self.graph.texts if not path.startswith(TESTS) and os.path.dirname(path) not in self.rooms]

    # --- Arrows ---

    def judged(self):
        reached = self.reached_files()
        faults = []
        for arrow in self.arrows:
            text = self.fault_of(arrow) or self.fault_behind(arrow, reached)
            if text:
                faults.append(Fault(arrow.source, arrow.line, text))
        return faults

    def fault_of(self, arrow):
        if not self.may(arrow.source, arrow.target):
            return f"{self.room(arrow.source)} must not include {self.room(arrow.target)} ({arrow.target})"
        if arrow.target in self.graph.installed or not arrow.target.startswith(LIBRARIES):
            return None
        if arrow.source in self.graph.installed:
            return f"a header that is installed must not include {arrow.target}, which is not"
        is_shared = arrow.target.startswith(SHARED_WITH_PROGRAMS) and self.room(arrow.source) not in GUESTS
        is_shared |= arrow.target.startswith(LINKED_AGAIN.get(self.room(arrow.source), "-"))
        if arrow.source.startswith(LIBRARIES + (TESTS,)) or self.room(arrow.source) in INSIDERS or is_shared:
            return None
        return f"{self.room(arrow.source)} must not include {arrow.target}, which is not installed"

    def reached_files(self):
        """What every file includes, directly or not, with the including file. A forbidden include is reported at its own place."""
        onward = collections.defaultdict(list)
        for arrow in self.arrows:
            if self.may(arrow.source, arrow.target):
                onward[arrow.source].append(arrow.target)
        reached = {}
        for begin in self.graph.texts:
            before, waiting = {begin: None}, collections.deque([begin])
            while waiting:
                path = waiting.popleft()
                for target in onward[path]:
                    if target not in before:
                        before[target] = path
                        waiting.append(target)
            reached[begin] = before
        return reached

    def fault_behind(self, arrow, reached):
        before = reached[arrow.target]
        path = next((path for path in before if not self.may(arrow.source, path)), None)
        if not path:
            return None
        way = [path]
        while before[way[-1]]:
            way.append(before[way[-1]])
        return f"{self.room(arrow.source)} must not reach {self.room(path)}: {' -> '.join(reversed(way))}"

    def misnamed(self):
        faults = []
        for path in self.graph.texts:
            if not path.startswith(LIBRARIES) or not path.endswith(HEADERS):
                continue
            if path in self.graph.installed and path.endswith("_p.h"):
                faults.append(Fault(path, 1, "is installed although its name ends in _p.h"))
            elif path not in self.graph.installed and not path.endswith("_p.h"):
                faults.append(Fault(path, 1, "is not installed, so its name has to end in _p.h"))
        return faults

    def imports(self):
        return [Fault(path, line, f"pages of {os.path.dirname(path)} must not import {module}")
                for path, text in self.pages.items() for line, module in includegraph.our_imports(text)
                if module not in PAGES.get(path, PAGES.get(os.path.dirname(path), [module]))]

    def links(self):
        calls = re.finditer(r"target_link_libraries\(([^)]*)\)", self.demo_build)
        return [Fault("apps/demo/CMakeLists.txt", self.demo_build.count("\n", 0, call.start()) + 1, f"the demo must not link {name}")
                for call in calls for name in call.group(1).split()[1:]
                if name.startswith("uiutils") and name not in DEMO_LINKS]

    # --- Circles ---

    def header_circles(self):
        arrows = [arrow for arrow in self.arrows if arrow.source.endswith(HEADERS)]
        return [self.told(circle, arrows, str, "headers include each other")
                for circle in includegraph.circles_of((arrow.source, arrow.target) for arrow in arrows)]

    def unit_circles(self, arrows):
        between = [arrow for arrow in arrows if self.units[arrow.source] != self.units[arrow.target]]
        faults = []
        for circle in includegraph.circles_of((self.units[arrow.source], self.units[arrow.target]) for arrow in between):
            if len({self.room(unit) for unit in circle}) > 1:
                faults.append(self.told(circle, between, self.units.get, "units of several rooms include each other"))
            elif len(circle) > LARGEST_CIRCLE:
                faults.append(self.told(circle, between, self.units.get, f"{len(circle)} units include each other, {LARGEST_CIRCLE} may"))
        return faults

    @staticmethod
    def told(circle, arrows, node, text):
        """Reported at the first include of the circle; all of them follow the text."""
        inside = [arrow for arrow in arrows if node(arrow.source) in circle and node(arrow.target) in circle]
        return Fault(inside[0].source, inside[0].line,
                     text + "".join(f"\n    {arrow.source}:{arrow.line}: {arrow.target}" for arrow in inside))

    # --- Exceptions ---

    def idle_exceptions(self):
        return [Fault(source, 1, f"the exception for {target} is not needed any more: take it off the list")
                for source, target in self.exceptions if not self.is_needed(source, target)]

    def is_needed(self, source, target):
        arrow = next((arrow for arrow in self.graph.arrows if (arrow.source, arrow.target) == (source, target)), None)
        if not arrow:
            return False
        return bool(self.fault_of(arrow)) or len(self.unit_circles(self.arrows + [arrow])) > len(self.unit_circles(self.arrows))


def main():
    rule = Rule(includegraph.read_tree(sys.argv[1]))
    faults = rule.faults()
    for fault in faults:
        print(f"{fault.source}:{fault.line}: {fault.text}")
    if faults:
        return 1
    print(f"The include rule holds: {len(rule.rooms)} rooms, {len(rule.graph.texts)} files, {len(rule.graph.arrows)} includes, "
          f"{len(rule.exceptions)} exceptions.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
