#!/usr/bin/env python3
"""Compares what README, CONTRIBUTING and docs/ say with the tree and its build folder: linked libraries, packages,
build options, environment variables, options of programs, presets, targets, paths, names in code, properties, links and
anchors, sources of classes, rooms, scripts. Usage: claims.py TREE BUILD"""

import functools
import json
import os
import re
import subprocess
import sys

PROGRAMS = ["kivctl", "kivd", "pdf_viewer", "reportconvert", "uiutils-check", "uiutils-demo", "uiutils-describe", "uiutils-inspector",
            "uiutils-qml"]
SCRIPTS = {"./check": "check", "./demo": "demo"}
SOURCES = ("base/", "lib/", "platform/", "qml/", "apps/")
# What every program of C++ links, and what the sanitizers add.
RUN_TIME = {"c", "m", "pthread", "gcc_s", "stdc++", "asan", "ubsan", "gcov",
            "ld-linux-x86-64", "ld-linux-armhf", "ld-linux-aarch64"}


class Tree:
    def __init__(self, root, build):
        self.build = build
        self.files = dict(self.texts(root))
        self.known = None
        self.folders = {name.rsplit("/", depth)[0] for name in self.files for depth in range(1, name.count("/") + 1)}
        # What the changelog says of earlier times stays as it was.
        self.pages = {name: text for name, text in self.files.items() if name.endswith(".md") and name != "CHANGELOG.md"}

    @staticmethod
    def texts(root):
        for folder, folders, names in os.walk(root):
            here = folder[len(root):].lstrip("/")
            folders[:] = [name for name in folders if name not in (".git", "__pycache__") and (here or name != "build")]
            for name in names:
                with open(os.path.join(folder, name), encoding="utf-8", errors="replace") as file:
                    # The test of this script quotes what is not there.
                    yield os.path.join(here, name), "" if name == "claimstest.py" else file.read()

    def replace(self, name, text):
        self.files[name] = text
        self.known = self.known if name.endswith(".md") else None
        if name in self.pages:
            self.pages[name] = text

    def code(self, prefixes=SOURCES, ends=(".cpp", ".h")):
        return {name: text for name, text in self.files.items() if name.startswith(prefixes) and name.endswith(ends)}

    def words(self):
        """Every word outside of the pages."""
        if self.known is None:
            self.known = set()
            for name, text in self.files.items():
                if not name.endswith((".md", ".png", ".svg")):
                    self.known.update(re.findall(r"\w+", text))
        return self.known

    def table(self, page, head):
        """The rows of the table below this head line, as lists of cells."""
        lines = self.files[page].split("\n")
        begin = lines.index(head) + 2
        end = next(at for at in range(begin, len(lines) + 1) if at == len(lines) or not lines[at].startswith("|"))
        return [[cell.strip() for cell in line.strip("|").split("|")] for line in lines[begin:end]]


BLOCK = re.compile(r"```.*?```", re.S)


def quoted(text):
    return re.findall(r"`([^`]+)`", BLOCK.sub("", text))


def blocks(text):
    return "\n".join(BLOCK.findall(text))


def differences(what, said, true):
    for name in sorted(set(said) - set(true)):
        yield f"{what}: {name} is claimed and does not exist"
    for name in sorted(set(true) - set(said)):
        yield f"{what}: {name} is not mentioned"


# --- What is linked and installed ---

@functools.lru_cache(maxsize=None)
def linked(path):
    text = subprocess.run(["readelf", "-d", path], capture_output=True, text=True, check=True).stdout
    return {name.split(".so")[0] for name in re.findall(r"\(NEEDED\).*\[(?:lib)?([^\]]+)\]", text)}


def check_links(tree):
    rows = tree.table("README.md", "| library or program | links |")
    built = set(PROGRAMS) | {"libuiutilsplugin.so", "libuiutilscontrolsplugin.so", "libuiutilsplotplugin.so", "libuiutilspreviewplugin.so", "libuiutilsbus.so", "libuiutilsfonts.so", "libuiutilspdf.so", "libkivschema.so"}
    built |= {name for name in os.listdir(os.path.join(tree.build, "lib")) if re.fullmatch(r"lib\w+\.so\.\d+", name)}
    yield from differences("README.md: what links", [name for cells in rows for name in quoted(cells[0])], built)
    for cells in rows:
        for name in quoted(cells[0]):
            path = next((os.path.join(tree.build, place, name) for place in ("lib", "lib/kiv", "lib/uiutils", "bin", "qml/UiUtils", "qml/UiUtils/Controls", "qml/UiUtils/Plot", "qml/UiUtils/Preview")
                         if os.path.exists(os.path.join(tree.build, place, name))), None)
            if not path:
                continue
            said, true = quoted(cells[1]), linked(path)
            # The sanitizers look at types of further libraries.
            seen = true & set(said) if "asan" in true else true - RUN_TIME
            yield from differences(f"README.md: what {name} links", said, seen)


def setup_packages(tree):
    arrays = re.findall(r"_packages=\(\n(.*?)\n\)", tree.files["tools/setup.sh"], re.S)
    return {name for array in arrays for name in array.split()}


def check_packages(tree):
    said = set()
    for cells in tree.table("README.md", "| package | why |"):
        if "not installed by the two commands" not in cells[1]:
            said.update(quoted(cells[0]))
    yield from differences("README.md: packages of tools/setup.sh", said, setup_packages(tree))


def check_build_options(tree):
    true = set()
    for name, text in tree.files.items():
        if name.endswith("CMakeLists.txt"):
            true.update(re.findall(r"^option\((\w+)", text, re.M))
            true.update(re.findall(r"^set\((UIUTILS_\w+)[^)]*CACHE", text, re.M))
    said = {name for cells in tree.table("CONTRIBUTING.md", "| build option | meaning |") for name in quoted(cells[0])}
    yield from differences("CONTRIBUTING.md: build options", said, true)


# --- Environment and options ---

READS = re.compile(r"(?:env|EnvironmentVariable\w*|isSet|environmentText)\(\"([A-Z][A-Za-z_]+)\""
                   r"|(?:\$\{|\[\[ -n \$)([A-Z]+_[A-Z_]+)")


def check_environment(tree):
    true, code = set(), tree.code()
    for name, text in tree.files.items():
        if name in code or name.startswith("tools/") or name in SCRIPTS.values():
            true.update(a or b for a, b in READS.findall(text))
    true -= {"BASH_SOURCE", "VERSION_ID"}
    said = {name for cells in tree.table("docs/environment.md", "| variable | read by | meaning |") for name in quoted(cells[0])}
    yield from differences("docs/environment.md", said, true)
    for page, text in tree.pages.items():
        for name in re.findall(r"\b((?:UIUTILS|KIV)_[A-Z_]+)\b", text):
            if name not in tree.words():
                yield f"{page}: nothing reads {name}"


@functools.lru_cache(maxsize=None)
def help_of(program):
    return subprocess.run([program, "--help"], capture_output=True, text=True, check=True).stdout


def options_in(text):
    return set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", text))


def check_options(tree):
    helps = {program: help_of(os.path.join(tree.build, "bin", program)) for program in PROGRAMS}
    helps.update({program: tree.files[script] for program, script in SCRIPTS.items()})
    helps.update({name: text for name, text in tree.files.items() if name.startswith("tools/") and text.startswith("#!")})
    for program in PROGRAMS:
        completion = tree.files.get(f"apps/{program}/{program}.bash-completion")
        if completion:
            yield from differences(f"completion of {program}", options_in(completion), options_in(helps[program]))
    for page, text in tree.pages.items():
        for line in quoted(text) + blocks(text).split("\n"):
            for part in re.split(r"[|;&]| -- ", line.split(" # ")[0]):
                words = [word for word in part.split() if "=" not in word or word.startswith("-")]
                program = next((word for word in words[:1] if word in helps), None)
                for option in sorted(options_in(" ".join(words)) - options_in(helps[program])) if program else []:
                    if option not in ("--help", "--version"):
                        yield f"{page}: {program} has no option {option}"
        known = set().union(*map(options_in, helps.values()), {"--help", "--version"})
        for code in quoted(text):
            if re.fullmatch(r"--[a-z-]+", code) and code not in known:
                yield f"{page}: no program has the option {code}"


# --- The tree ---

def check_presets(tree):
    presets = json.loads(tree.files["CMakePresets.json"])
    names = {preset["name"] for kind in ("configurePresets", "buildPresets", "testPresets") for preset in presets[kind]}
    targets = set(re.findall(r"add_(?:custom_target|executable|library)\((\S+)", "".join(
        text for name, text in tree.files.items() if name.endswith("CMakeLists.txt"))))
    for page, text in tree.pages.items():
        for name in re.findall(r"--preset[\s=]+([\w-]+)", text):
            if name not in names:
                yield f"{page}: there is no preset {name}"
        for name in re.findall(r"--target[\s=]+([\w-]+)", text):
            if name not in targets:
                yield f"{page}: there is no target {name}"


# Files of the users of this tree are called otherwise.
NAMED_FILE = re.compile(r"[a-z][\w./-]*\.(?:h|cpp|py|js|sh|qrc|xml|conf|schema\.json)")


def check_paths(tree):
    tops = {name.split("/")[0] for name in tree.files if "/" in name}
    headers = {os.path.basename(name) for name in tree.code(ends=(".h",))}
    for page, text in tree.pages.items():
        for code in quoted(text) + blocks(text).split():
            path = code.rstrip("/.,:")
            if re.fullmatch(r"[\w.+-]+(/[\w.+-]+)+", path) and path.split("/")[0] in tops and not path.startswith("lib/qt5"):
                beside = os.path.normpath(os.path.join(os.path.dirname(page), path))
                if not {path, beside, path + ".in"} & (tree.files.keys() | tree.folders):
                    yield f"{page}: there is no {path}"
            elif NAMED_FILE.fullmatch(path) and not any(("/" + name).endswith("/" + path) for name in tree.files):
                yield f"{page}: no file is called {path}"
            for header in re.findall(r"<(?:uiutils|kiv|embedded|bus)/(\w+\.h)>", code):
                if header not in headers:
                    yield f"{page}: there is no header {header}"


def slug(heading):
    plain = re.sub(r"[`*]|\]\([^)]*\)", "", heading).replace("[", "").lower()
    return re.sub(r"[^\w\- ]", "", plain).replace(" ", "-")


def check_page_links(tree):
    anchors = {name: {slug(line) for line in re.findall(r"^#+ (.*)$", text, re.M)} for name, text in tree.files.items()
               if name.endswith(".md")}
    for page, text in tree.pages.items():
        for target in re.findall(r"\]\(([^)\s]+)\)", BLOCK.sub("", text)):
            if re.match(r"[a-z]+:", target):
                continue
            path, _, anchor = target.partition("#")
            place = os.path.normpath(os.path.join(os.path.dirname(page), path)) if path else page
            if place not in tree.files and place not in tree.folders:
                yield f"{page}: the link {target} leads nowhere"
            elif anchor and anchor not in anchors.get(place, ()):
                yield f"{page}: there is no heading for {target}"


PROPERTIES = [("docs/qml-api.md", "| property | type | writable | notifier | |", "lib/ui_utils/service/kivdata.h"),
              ("docs/reports.md", "| property | |", "lib/ui_utils/report/report.h")]


def check_properties(tree):
    """The tables that list all properties of a class."""
    for page, head, header in PROPERTIES:
        said = {name for cells in tree.table(page, head) for name in quoted(cells[0])}
        true = re.findall(r"Q_PROPERTY\([\w:<>]+\*? (\w+) ", tree.files[header])
        yield from differences(f"{page}: properties", said, true)


NAME = re.compile(r"(?:\w+(?:::|\.))?(\w*[a-z]\w*[A-Z]\w*|\w+_\w+)(?:\(.*\))?|(\w+)\(\)")


def check_names(tree):
    """Names of code that the pages quote: of two words, or with parentheses. Qt's own are not looked for."""
    for page, text in tree.pages.items():
        shown = set(re.findall(r"\w+", blocks(text)))
        for code in quoted(text):
            name = NAME.fullmatch(code)
            word = name and (name.group(1) or name.group(2))
            if not word or re.match("Q[A-Zt]", word):
                continue
            # An item's name in QML ends in the item's own; "row_N" and "row_12" are keys with a number.
            forms = {word, re.sub(r"^\w+_(?:cfg|res|act)_|_(?:N|\d+)$", "", word)}
            if not forms & (tree.words() | shown):
                yield f"{page}: nothing is called {word}"


def check_sources(tree):
    """A public class has one source; the page of the architecture names those that have several."""
    text = " ".join(tree.files["docs/architecture.md"].split())
    said = quoted(re.search(r"One class, one header, one source: only ([^.]*) have several", text).group(1))
    homes = {}
    for name, source in tree.code(("lib/", "platform/"), (".cpp",)).items():
        for owner in set(re.findall(r"^(?:[\w:<>,*&]+ )*?[*&]?(\w+)::~?\w+\(", source, re.M)):
            homes.setdefault(owner, set()).add(name)
    public = {name for header in tree.code(("lib/", "platform/"), (".h",)).values()
              for name in re.findall(r"^class [A-Z_]+_EXPORT (\w+)", header, re.M)}
    yield from differences("docs/architecture.md: classes of several sources", said,
                           {name for name in public if len(homes.get(name, ())) > 1})


def check_rooms(tree):
    rooms = re.search(r'ROOMS = """\n(.*?)"""', tree.files["tests/rules/includerule.py"], re.S).group(1)
    folders = {line.split()[1] for line in rooms.split("\n") if line}
    said = {code.rstrip("/").removesuffix("/kiv") for cells in tree.table("docs/architecture.md", "| room | what lives there |")
            for code in quoted(cells[0])}
    # The rooms of such folders are told with the folder.
    folders = {"examples" if folder.startswith("examples/") else "benchmarks" if folder.startswith("benchmarks/") else
               folder.removesuffix("/kiv") for folder in folders}
    for name in sorted(folders - said):
        yield f"docs/architecture.md: the room {name} is not mentioned"


def check_guards(tree):
    """The scripts among the tests, and what they guard."""
    builds = "".join(text for name, text in tree.code(("tests/",), ("CMakeLists.txt",)).items())
    scripts = {name for name in tree.code(("tests/",), (".py", ".sh")) if re.search(rf"[/\"]{os.path.basename(name)}\"", builds)}
    said = {name for cells in tree.table("CONTRIBUTING.md", "| script | what it guards |") for name in quoted(cells[0])}
    yield from differences("CONTRIBUTING.md: scripts of tests", said, scripts)


CHECKS = [check_links, check_packages, check_build_options, check_environment, check_options, check_presets, check_paths,
          check_page_links, check_names, check_properties, check_sources, check_rooms, check_guards]


def main(root, build):
    tree = Tree(root, os.path.abspath(build))
    found = [line for check in CHECKS for line in check(tree)]
    print("\n".join(found) or f"{len(tree.pages)} pages compared with the tree")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:3]))
