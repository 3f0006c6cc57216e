#!/usr/bin/env python3
"""Makes the reference pages of the public interfaces. Usage:
reference.py <doxygen> <configured Doxyfile> <folder to work in> <plugins.qmltypes> <folder of the QML components>
             <folder>=<header>...
Prints every warning, and fails if there is one."""
import pathlib
import re
import shutil
import subprocess
import sys

import headers
import qmlpages


def stage_headers(given, folder):
    """Copies the headers into the folders that programs include them from; returns the texts of their classes' members,
    and the classes without a text, of which doxygen would be silent."""
    texts, bare = {}, []
    for entry in given:
        place, path = entry.split("=", 1)
        if path.endswith("_export.h"):
            continue
        source = pathlib.Path(path).read_text(encoding="utf-8")
        copy = folder / place / pathlib.Path(path).name
        copy.parent.mkdir(parents=True, exist_ok=True)
        # Functions outside of classes are left out of a file that is not described.
        copy.write_text("/** \\file */ " + "\n".join(headers.with_texts(source)), encoding="utf-8")
        found = headers.texts_by_class(source)
        bare += [f"{copy}: warning: class {name} has no text" for name in found if name not in found[name]]
        texts.update(found)
    return texts, bare


def run_doxygen(doxygen, doxyfile, work):
    run = subprocess.run([doxygen, doxyfile], cwd=work, text=True, check=False,
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    # The generator of the help file also prints what it does.
    return [line for line in run.stdout.split("\n") if run.returncode or re.search("warning:|error:", line)]


def main(doxygen, doxyfile, work, qmltypes, controls, *given):
    work = pathlib.Path(work)
    for folder in ("input", "html"):
        shutil.rmtree(work / folder, ignore_errors=True)
    texts, warnings = stage_headers(given, work / "input")
    try:
        pages = qmlpages.all_pages(qmltypes, controls, lambda name: texts.get(name.split("::")[-1], {}))
    except qmlpages.Undescribed as missing:
        pages = []
        warnings.append(f"warning: {missing}")
    for own in ("mainpage.md", "namespaces.dox"):
        shutil.copy(pathlib.Path(__file__).parent / own, work / "input")
    for name, text in pages:
        (work / "input" / f"qml_{name}.md").write_text(text, encoding="utf-8")
    warnings += run_doxygen(doxygen, doxyfile, work)
    for line in warnings:
        print(line, file=sys.stderr)
    return 1 if warnings else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
