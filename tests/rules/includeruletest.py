#!/usr/bin/env python3
"""Plants each violation of the include rule, one at a time, in the texts of the tree, and checks that it is reported at its
place. The forbidden includes are written down here by hand, not taken from the rule. Usage: includeruletest.py TREE"""

import os
import sys
import unittest

sys.dont_write_bytecode = True
import includegraph  # noqa: E402
import includerule  # noqa: E402

TREE = {}
FOLDERS = {
    "base": "base",
    "contract": "platform/contract/kiv",
    "formatters": "platform/reference/formatters",
    "embedded": "platform/reference/embedded",
    **{room: f"lib/ui_utils/{room}" for room in "core service instrument document local files report module".split()},
    **{room: f"lib/ui_utils/writers/{room}" for room in "plots pdffile pages text csv html".split()},
    "xml": "lib/ui_utils/templ2xmlwriter",
    "saving": "lib/ui_utils/report/saving",
    "plugin": "qml/UiUtils",
    "common": "apps/common",
    "viewer": "apps/pdf_viewer",
    "demo": "apps/demo",
    "convert": "apps/reportconvert",
    "qmlviewer": "apps/uiutils-qml",
    "benchmarks": "benchmarks",
    "tests": "tests/core",
}
GROUPS = {
    "REFERENCE": "formatters embedded",
    "WRITERS": "plots pdffile pages text csv html xml",
    "ABOVE": "report saving module PROGRAMS",
    "LIBRARY": "core service instrument document local files WRITERS report saving module",
    "PROGRAMS": "plugin common viewer demo convert qmlviewer benchmarks tests",
}
# The rooms, and after each the rooms that it must not include: those beside and above it.
FORBIDDEN = """
base        contract REFERENCE LIBRARY PROGRAMS
contract    REFERENCE LIBRARY PROGRAMS
formatters  embedded LIBRARY PROGRAMS
embedded    LIBRARY PROGRAMS

core        contract REFERENCE service instrument document local files WRITERS ABOVE
service     REFERENCE instrument document local files WRITERS ABOVE
instrument  REFERENCE document local files WRITERS ABOVE
document    REFERENCE service instrument local files WRITERS ABOVE
local       REFERENCE instrument document files WRITERS ABOVE
files       REFERENCE local WRITERS ABOVE
plots       REFERENCE service instrument document local files WRITERS ABOVE
pdffile     REFERENCE contract service instrument document local files WRITERS ABOVE
pages       REFERENCE contract service instrument document local files plots text csv html xml ABOVE
text        REFERENCE local files pdffile pages csv html xml ABOVE
csv         REFERENCE local files pdffile pages html xml ABOVE
html        REFERENCE local files csv xml ABOVE
xml         REFERENCE local files WRITERS ABOVE
report      REFERENCE module PROGRAMS
saving      REFERENCE module PROGRAMS
module      REFERENCE PROGRAMS

plugin      REFERENCE PROGRAMS
common      formatters PROGRAMS
viewer      contract REFERENCE LIBRARY plugin demo convert qmlviewer benchmarks tests
demo        formatters plugin viewer convert qmlviewer benchmarks tests
convert     formatters plugin viewer demo qmlviewer benchmarks tests
qmlviewer   formatters plugin viewer demo convert benchmarks tests
benchmarks  formatters PROGRAMS
"""


def forbidden_arrows():
    text = FORBIDDEN
    while any(group in text for group in GROUPS):
        for group, rooms in GROUPS.items():
            text = text.replace(group, rooms)
    rows = [line.split() for line in text.splitlines() if line]
    return [(begin, end) for begin, *ends in rows for end in ends if begin != end]


def faults(changes, exceptions=None):
    return includerule.Rule({**TREE, **changes}, exceptions).faults()


def spelt(path):
    """The name of the file in an include of the tree."""
    for root in ("lib/ui_utils/", "platform/contract/", "platform/reference/", "apps/"):
        if path.startswith(root):
            return path[len(root):]
    return path


def including(*paths):
    return "#pragma once\n" + "".join(f'#include "{spelt(path)}"\n' for path in paths)


class Planted(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        if faults({}):
            raise AssertionError("Nothing can be planted in a tree that breaks the rule already.")

    def assert_told(self, source, line, words, changes, exceptions=None):
        told = faults(changes, exceptions)
        self.assertTrue(any((fault.source, fault.line) == (source, line) and words in fault.text for fault in told),
                        f"{source}:{line}: {words}\nis not among\n" + "\n".join(map(str, told)))

    def assert_not_told(self, changes):
        self.assertEqual(faults(changes), [])

    def test_every_forbidden_arrow(self):
        arrows = forbidden_arrows()
        changes = {}
        for begin, end in arrows:
            target = f"{FOLDERS[end]}/planted_p.h"
            changes.update({f"{FOLDERS[begin]}/{begin}to{end}.cpp": including(target), target: ""})
        told = {(fault.source, fault.line): fault.text for fault in faults(changes)}
        for begin, end in arrows:
            with self.subTest(begin=begin, end=end):
                self.assertIn(f"{begin} must not include {end} ", told.pop((f"{FOLDERS[begin]}/{begin}to{end}.cpp", 2), "nothing"))
        self.assertEqual(told, {})

    def test_out_of_the_folder(self):
        source, target = "platform/contract/kiv/planted.cpp", "lib/ui_utils/service/planted_p.h"
        changes = {source: '#include "../../../lib/ui_utils/service/planted_p.h"\n', target: ""}
        self.assert_told(source, 1, "leads out of its folder", changes)
        self.assert_told(source, 1, "contract must not include service", changes)

    def test_what_a_header_brings_along(self):
        source, between = "apps/pdf_viewer/planted.cpp", "apps/common/planted.h"
        changes = {source: including(between), between: including("lib/ui_utils/report/report.h")}
        self.assert_told(source, 2, "viewer must not reach report: apps/common/planted.h -> lib/ui_utils/report/report.h", changes)

    def test_what_pages_import(self):
        page, shared, kit = "apps/pdf_viewer/qml/Planted.qml", "qml/UiUtils/Controls/Measures.qml", "qml/UiUtils/Controls/Planted.qml"
        self.assert_told(page, 2, "must not import UiUtils", {page: "import UiUtils.Viewer 1.0\nimport UiUtils 1.0\n"})
        self.assert_told(shared, 1, "must not import UiUtils.Controls", {shared: "import UiUtils.Controls 1.0 as Kit\n"})
        self.assert_told(kit, 1, "must not import UiUtils.Demo", {kit: "  import  UiUtils.Demo 1.0\n"})
        self.assert_not_told({page: "import QtQuick 2.15\nimport UiUtils.Viewer 1.0\n// import UiUtils 1.0\n"})

    def test_headers_that_are_not_installed(self):
        public, private = "lib/ui_utils/core/planted.h", "lib/ui_utils/core/planted_p.h"
        rooms = {"lib/ui_utils/core/CMakeLists.txt": "uiutils_room(\n    PUBLIC\n        planted.h\n    PRIVATE\n        planted_p.h\n)\n"}
        demo, tool, bench = "apps/demo/planted.cpp", "apps/reportconvert/planted.cpp", "benchmarks/planted.cpp"
        self.assert_told(public, 2, "a header that is installed must not include", {**rooms, public: including(private), private: ""})
        for program in (demo, tool):
            self.assert_told(program, 2, "planted_p.h, which is not installed", {program: including(private), private: ""})
        self.assert_told(demo, 2, "planted_p.h, which is not installed", {demo: including("base/planted_p.h"), "base/planted_p.h": ""})
        self.assert_not_told({bench: including(private), tool: including("base/planted_p.h"), private: "", "base/planted_p.h": ""})
        self.assert_told(public, 1, "its name has to end in _p.h", {public: ""})
        self.assert_told("platform/contract/kiv/planted.h", 1, "its name has to end in _p.h", {"platform/contract/kiv/planted.h": ""})
        self.assert_told(private, 1, "is installed although", {
            "lib/ui_utils/core/CMakeLists.txt": "uiutils_room(PUBLIC planted_p.h PRIVATE planted.cpp)", private: ""})

    def test_what_the_demo_links(self):
        link = "target_link_libraries(uiutils_demo_parts PUBLIC UiUtils::uiutils Qt5::Quick {})\n"
        build = "apps/demo/CMakeLists.txt"
        self.assert_told(build, 2, "must not link uiutils_base", {build: "\n" + link.format("uiutils_base")})
        self.assert_not_told({build: link.format("Kiv::embedded\n    uiutils_apps_common")})

    def test_circles_of_headers(self):
        one, two = (f"lib/ui_utils/core/planted{number}_p.h" for number in (1, 2))
        self.assert_told(one, 2, "headers include each other", {one: including(two), two: including(one)})
        self.assert_told(one, 2, "headers include each other", {one: including(one)})

    def circle(self, *stems):
        """A circle of units: each source includes the next one's header."""
        changes = {}
        for stem, following in zip(stems, stems[1:] + stems[:1]):
            changes[f"{stem}_p.h"] = ""
            changes[f"{stem}.cpp"] = including(f"{stem}_p.h", f"{following}_p.h")
        return changes

    def test_circles_of_units(self):
        names = [f"lib/ui_utils/core/planted{letter}" for letter in "abcd"]
        self.assert_told(names[0] + ".cpp", 3, "4 units include each other, 3 may", self.circle(*names))
        self.assert_not_told(self.circle(*names[:3]))
        # A class in two sources is one unit.
        split = self.circle(*names)
        split[names[0] + "more.cpp"], split[names[0] + ".cpp"] = split[names[0] + ".cpp"], ""
        self.assert_told(names[0] + "more.cpp", 3, "4 units include each other", split)
        # These two rooms may know each other, their units not both ways.
        between = self.circle("lib/ui_utils/report/planted", "lib/ui_utils/report/saving/planted")
        self.assert_told("lib/ui_utils/report/planted.cpp", 3, "units of several rooms include each other", between)

    def test_exceptions_are_needed(self):
        rule = includerule.parse_exceptions(includerule.EXCEPTIONS)
        source, private, public = "apps/demo/planted.cpp", "base/planted_p.h", "lib/ui_utils/report/report.h"
        texts = {source: including(private, public), private: ""}
        self.assertEqual(faults(texts, rule + [(source, private)]), [])
        self.assert_told(source, 1, "take it off the list", {**texts, source: ""}, rule + [(source, private)])
        self.assert_told(source, 1, "take it off the list", texts, rule + [(source, private), (source, public)])

    def test_rooms_that_nobody_knows(self):
        for source in ("lib/ui_utils/planted/planted.cpp", "lib/ui_utils/core/planted/planted_p.h", "planted/planted.cpp", "planted.cpp"):
            self.assert_told(source, 1, "a room that the rule does not know", {source: ""})

    def test_includes_that_lead_nowhere(self):
        source = "lib/ui_utils/core/planted.cpp"
        for include in ('"nothing.h"', '"core/nothing_p.h"', "<core/nothing_p.h>", "<kiv/nothing.h>", "<uiutils/nothing.h>", "PLANTED"):
            self.assert_told(source, 2, "is no file of the tree", {source: f"\n#include {include}\n"})

    def test_spellings(self):
        """Without the rest of the tree, which has no effect here."""
        source, target, report = "base/planted.cpp", "lib/ui_utils/core/planted_p.h", "lib/ui_utils/report/report.h"
        cmake = {report: "", "lib/ui_utils/report/CMakeLists.txt": "uiutils_room(PUBLIC report.h PRIVATE report.cpp)"}
        for include in ('#include<core/planted_p.h>', '  #  include"core/planted_p.h"', '#include /* core */ "core/planted_p.h"',
                        '#include "../lib/ui_utils/core/planted_p.h"', '#include "lib/ui_utils/core/./planted_p.h"',
                        "#include <uiutils/report.h>", '/* a\nb */\n#include "core/planted_p.h"',
                        'auto text = "/*";\n#include "core/planted_p.h" // */'):
            told = includerule.Rule({source: include, target: "", **cmake}, []).faults()
            self.assertIn((source, include.count("\n") + 1), {fault[:2] for fault in told if "base must not include" in fault.text})
        for text in ('/*\n#include "core/planted_p.h"\n*/', '// #include "core/planted_p.h"', 'auto text = "#include <core/planted_p.h>";',
                     '#include "planted.moc"', "#include <QString>\n#include <sys/stat.h>\n#include <private/qmetaobject_p.h>"):
            self.assertEqual(includerule.Rule({source: text, target: ""}, []).faults(), [])
        # A file in the same folder has priority over one with that name in another folder.
        same = {source: '#include "planted_p.h"', "base/planted_p.h": "", "platform/reference/embedded/planted_p.h": ""}
        self.assertEqual(includerule.Rule(same, []).faults(), [])


if __name__ == "__main__":
    TREE = includegraph.read_tree(sys.argv.pop(1))
    unittest.main()
