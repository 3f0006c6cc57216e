#!/usr/bin/env python3
"""Makes the reference pages, which must give no warning, and again with a header and a QML file that lack texts: each gap must
be reported. Usage: referencetest.py <folder of the generator> <folder to work in> <arguments of the generator>..."""
import pathlib
import shutil
import subprocess
import sys

PLANTED = """#pragma once
/// A class of the test.
class Planted
{
public:
    /// A member that has a text.
    void described();
    /// Has a getter that needs no text of its own.
    void setPaired(int value);
    [[nodiscard]] int paired() const;
    void forgotten();
    /// Names a member that is not there, see Planted::missing().
    /// \\ref Planted::missing
    void misleading();
protected:
    int bare = 0;
};
class Unknown
{
};
"""
GAPS = ["forgotten", "bare", "Planted::missing", "Unknown"]
# Members of a QML type without a text in the header; and a type without one.
QML_GAPS = [("qmltypes", 'name: "label"', 'name: "unheardOf"', "unheardOf has no text"),
            ("controls", "/// Any text", "// Any text", "TextEntry.qml has no text")]


def generated(generator, arguments):
    run = subprocess.run([sys.executable, "-B", generator, *arguments], capture_output=True, text=True, check=False)
    return run.returncode, run.stdout + run.stderr


def check(holds, message):
    if not holds:
        sys.exit(f"failed: {message}")


def main(generators, work, doxygen, doxyfile, _, qmltypes, controls, *headers):
    generator = str(pathlib.Path(generators) / "reference.py")
    work = pathlib.Path(work) / "pages"
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir()
    code, said = generated(generator, [doxygen, doxyfile, str(work), qmltypes, controls, *headers])
    check(code == 0 and said == "", f"status {code}\n{said}")
    html = "\n".join(page.read_text(errors="replace") for page in (work / "html").glob("*.html"))
    for wanted in ("#include &lt;uiutils/report.h&gt;", "INPUT_DURATIO", "NotificationTray", "BusPublisher"):
        check(wanted in html, f"no page has {wanted}")
    planted = work / "planted.h"
    planted.write_text(PLANTED)
    code, said = generated(generator, [doxygen, doxyfile, str(work), qmltypes, controls, *headers, f"kiv={planted}"])
    check(code != 0, "gaps in a header are no failure")
    for gap in GAPS:
        check(gap in said, f"{gap} is not reported:\n{said}")
    check("described" not in said and "aired" not in said, f"a described member is reported:\n{said}")
    copies = work / "copies"
    for kind, text, other, report in QML_GAPS:
        shutil.rmtree(copies, ignore_errors=True)
        shutil.copytree(controls, copies / "controls")
        shutil.copy(qmltypes, copies / "qmltypes")
        file = copies / "qmltypes" if kind == "qmltypes" else copies / "controls" / "TextEntry.qml"
        file.write_text(file.read_text().replace(text, other, 1))
        code, said = generated(generator, [doxygen, doxyfile, str(work), str(copies / "qmltypes"), str(copies / "controls"), *headers])
        check(code != 0 and report in said, f"{report!r} is not reported:\n{said}")


if __name__ == "__main__":
    main(*sys.argv[1:])
