#!/usr/bin/env python3
"""Plants a false claim of each kind, one at a time, in the texts of the tree, and checks that it is reported. What is false is
written down here by hand. Usage: claimstest.py TREE BUILD"""

import os
import sys
import unittest

sys.dont_write_bytecode = True
import claims  # noqa: E402

# Check, page, text there, the same made false (or the false text to append, without a text), and what the report says.
PLANTED = [
    ("check_links", "README.md", "`kivctl` | `kiv`, ", "`kivctl` | ", "what kivctl links: kiv is not mentioned"),
    ("check_links", "README.md", "`libkiv.so.1` | ", "`libkiv.so.1` | `Qt5Network`, ", "Qt5Network is claimed"),
    ("check_packages", "README.md", "`libvalijson-dev`", "`libvalijson2-dev`", "libvalijson-dev is not mentioned"),
    ("check_packages", "tools/setup.sh", "qpdf ", "qpdf ghostscript ", "ghostscript is not mentioned"),
    ("check_build_options", "CONTRIBUTING.md", "`UIUTILS_WERROR`", "`UIUTILS_STRICT`", "UIUTILS_STRICT is claimed"),
    ("check_build_options", "CMakeLists.txt", None, "\noption(UIUTILS_NEW \"\" ON)", "UIUTILS_NEW is not mentioned"),
    ("check_environment", "docs/environment.md", "| `KIV_BUS` |", "| `KIV_WIRE` |", "KIV_WIRE is claimed"),
    ("check_environment", "apps/kivd/main.cpp", None, 'qgetenv("KIV_DEBUG")', "KIV_DEBUG is not mentioned"),
    ("check_environment", "docs/bus.md", None, "Set UIUTILS_FOLDER.", "nothing reads UIUTILS_FOLDER"),
    ("check_options", "docs/kivctl.md", None, "```\nkivctl list --verbose | sort\n```", "kivctl has no option --verbose"),
    ("check_options", "README.md", None, "Call `./check --all`.", "./check has no option --all"),
    ("check_options", "docs/bus.md", None, "The option `--forever`.", "no program has the option --forever"),
    ("check_options", "apps/kivd/kivd.bash-completion", "--activation-files", "--files", "--activation-files is not mentioned"),
    ("check_presets", "CONTRIBUTING.md", None, "Use `cmake --preset lint`.", "there is no preset lint"),
    ("check_presets", "docs/benchmarks.md", None, "```\ncmake --build --preset dev --target bench\n```", "there is no target bench"),
    ("check_paths", "docs/porting.md", None, "See `tests/data/kinds/`.", "there is no tests/data/kinds"),
    ("check_paths", "docs/porting.md", None, "See `subscribers_p.h`.", "no file is called subscribers_p.h"),
    ("check_paths", "docs/bus.md", None, "```cpp\n#include <bus/publisher.h>\n```", "there is no header publisher.h"),
    ("check_page_links", "docs/forms.md", None, "[See](notification.md)", "notification.md leads nowhere"),
    ("check_page_links", "docs/reports.md", None, "[See](#a-viewer)", "no heading for #a-viewer"),
    ("check_names", "docs/forms.md", None, "`UiDataContainer.allAreOk` is true.", "nothing is called allAreOk"),
    ("check_names", "README.md", None, "Call `write()` or `doodle()`.", "nothing is called doodle"),
    ("check_properties", "docs/qml-api.md", "| `applicable` |", "| `isApplicable` |", "applicable is not mentioned"),
    ("check_sources", "docs/architecture.md", "`KivData`, `UiData` and `Report` have", "`KivData` and `Report` have", "UiData is not mentioned"),
    ("check_rooms", "docs/architecture.md", "| `platform/reference/bus/` |", "| `platform/reference/wire/` |", "platform/reference/bus is not"),
    ("check_guards", "CONTRIBUTING.md", "`tests/module/qmllint.sh`", "`tests/module/lint.sh`", "tests/module/qmllint.sh is not"),
]


class Claims(unittest.TestCase):
    def test_planted(self):
        tree = claims.Tree(*sys.argv[1:3])
        self.assertEqual([], [line for check in claims.CHECKS for line in check(tree)])
        self.assertEqual({check.__name__ for check in claims.CHECKS}, {planted[0] for planted in PLANTED})
        # What the sanitizers link is mentioned nowhere.
        is_sanitized = "asan" in claims.linked(os.path.join(tree.build, "bin/kivctl"))
        for check, page, text, false, report in PLANTED:
            if is_sanitized and check == "check_links" and "not mentioned" in report:
                continue
            with self.subTest(false):
                whole = tree.files[page]
                if text is not None:
                    self.assertIn(text, whole)
                tree.replace(page, whole.replace(text, false) if text is not None else f"{whole}\n{false}\n")
                found = list(getattr(claims, check)(tree))
                tree.replace(page, whole)
                self.assertTrue(any(report in line for line in found), found)


if __name__ == "__main__":
    unittest.main(argv=[os.path.basename(sys.argv[0])])
