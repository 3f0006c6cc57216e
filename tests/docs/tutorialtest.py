#!/usr/bin/env python3
"""Plants a mistake of each kind in a copy of the tutorial, one at a time, and checks that it is reported. What is wrong is
written down here by hand. Usage: tutorialtest.py CMAKE TREE BUILD WORK FLAGS"""

import os
import shutil
import sys
import unittest

sys.dont_write_bytecode = True
import tutorial  # noqa: E402

PAGE = "docs/tutorial.md"
STEPS = "docs/examples/tutorial/"
# Step, what is planted (file, text there, the same made wrong), and what the report says.
PLANTED = [
    # The page and the files.
    (1, [(PAGE, '"maximum": 300', '"maximum": 30')], "cable.service.json has no piece"),
    (3, [(PAGE, "`CablePage.qml` gets", "`FormPage.qml` gets")], "there is no FormPage.qml"),
    (3, [(STEPS + "3-form/CablePage.qml", "    Card {", "    Card {\n        status: 16")], "nobody is told to type into CablePage.qml: status: 16"),
    (5, [(STEPS + "5-report/CablePage.qml", "        ItemEntry { Layout.fillWidth: true; item: cable_cfg_site }\n", "")],
     "nobody is told to remove from CablePage.qml: ItemEntry"),
    (1, [(PAGE, "## 1.", "word " * 1000 + "\n\n## 1.")], "the tutorial takes"),
    # The commands.
    (1, [(PAGE, "double\t40.0 m", "double\t41.0 m")], "prints\ncable_cfg_length\tdouble\t40.0 m"),
    (1, [(PAGE, "<!-- hand:", "<!-- foot:")], "prints"),
    (1, [(name, '"precision": 2 }', '"precision": 2, "unti": "dB" }') for name in (PAGE, STEPS + "1-service/cable.service.json")],
     "uiutils-check . says"),
    (2, [(PAGE, "uiutils-qml CablePage.qml", "uiutils-qml CablesPage.qml")], "ends with 1"),
    (7, [(STEPS + "7-test/golden/CablePage@2s.txt", "Fail", "Pass")], "CablePage@2s.txt differs"),
    (7, [(PAGE, "kivctl record", "kivctl recall")], "ends with 2"),
    # The pages.
    (3, [(name, "item: cable_cfg_length }", "item: cable_cfg_site }") for name in (PAGE, STEPS + "3-form/CablePage.qml")],
     "look.qml prints"),
    (3, [(name, "item: cable_cfg_site }", "item: cable_cfg_site; Component.onCompleted: write() }")
         for name in (PAGE, STEPS + "3-form/CablePage.qml")], "--check says"),
    (4, [(name, "pending.apply(); ", "") for name in (PAGE, STEPS + "4-changes/CablePage.qml")], "changes.qml prints"),
    (5, [(name, 'qsTr("Save");', 'qsTr("Save"); implicitHeight: 20;') for name in (PAGE, STEPS + "5-report/CablePage.qml")],
     "the audit says"),
    (5, [(name, "[cable_cfg_length, cable_res_loss]", "[cable_cfg_length]") for name in (PAGE, STEPS + "5-report/CablePage.qml")],
     "one.pdf lacks Loss"),
    (6, [(name, '"refuse": "The tester is locked."', '"ready": false') for name in (PAGE, STEPS + "6-bad-state/cable.service.json")],
     "refused.qml prints"),
    (8, [(PAGE, "sed -i 's/cable_/", "sed -n 's/cable_/")], "nobody is told to type into CablePage.qml: label: Cable.res_loss.label"),
    (9, [(name, "    host.showTo(&engine);\n", "") for name in (PAGE, STEPS + "9-program/main.cpp")], "ends with 1"),
]


class Tutorial(unittest.TestCase):
    def test_planted(self):
        cmake, tree, build, work, flags = sys.argv[1:6]
        os.environ["CXXFLAGS"] = flags
        prefix = tutorial.install(cmake, build, work)
        for step, mistakes, report in PLANTED:
            with self.subTest(report):
                copy = os.path.join(work, "tree")
                shutil.rmtree(copy, ignore_errors=True)
                shutil.copytree(os.path.join(tree, STEPS), os.path.join(copy, STEPS))
                shutil.copy(os.path.join(tree, PAGE), os.path.join(copy, PAGE))
                for name, text, wrong in mistakes:
                    whole = tutorial.read(os.path.join(copy, name))
                    self.assertTrue(text in whole, f"{name} has no {text}")
                    with open(os.path.join(copy, name), "w", encoding="utf-8") as file:
                        file.write(whole.replace(text, wrong, 1))
                found = list(tutorial.check(copy, prefix, work, [step]))
                self.assertTrue(any(report in line for line in found), found)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
