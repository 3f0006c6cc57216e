#!/usr/bin/env python3
"""Does what docs/tutorial.md says, and looks at what comes out: the code of the page is that of the files of its steps,
and all that a reader has to type; the commands print what the page says; somebody who uses the page of a step finds it
as the tutorial describes it. Usage: tutorial.py CMAKE TREE BUILD WORK
FLAGS [--pictures]. The programs are those of an installation, which is made in WORK. With --pictures it takes the
pictures of the page anew, into docs/images."""

import collections
import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile

HANDS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "tutorial")
SCREEN = "--screen 800x480@133 --language en"
LANGUAGES = {"json", "qml", "cpp", "cmake"}
# What a reader does not type but makes by commands.
MADE = ("*.kivlog", "golden")
# The log may have this line, or not: the settings of a report are read when the page has been there for a moment.
REMARK = re.compile(r"^Could not open /cust/private/lastconfigs/\S+ for reading\n", re.M)


# A block of the page: the file that it belongs to; what the reader does wrong before its commands, in a comment that no
# reader sees: "<!-- hand: COMMAND -->".
Block = collections.namedtuple("Block", "language name code hand")


class Step:
    """A section of the page, and the folder with its files."""

    def __init__(self, tree, number, text):
        self.number = number
        self.text = text
        folders = glob.glob(os.path.join(tree, "docs/examples/tutorial", f"{number}-*"))
        self.folder = folders[0] if folders else None
        self.blocks = []
        name = hand = None
        for part in re.split(r"(^```.*?^```$)", text, flags=re.M | re.S):
            fence = re.fullmatch(r"```(\w*)\n(.*?)```", part, re.S)
            if fence:
                self.blocks.append(Block(fence.group(1), name, fence.group(2), hand))
                continue
            hand = next(iter(re.findall(r"<!-- hand: (.*?) -->", part)), None)
            for name in re.findall(r"`(\w[\w.]*\.\w+)`", part):
                pass

    def commands(self):
        return [line for block in self.blocks if block.language == "sh" for line in block.code.rstrip("\n").split("\n")]

    def files(self):
        names = sorted(os.listdir(self.folder)) if self.folder else []
        return {name: read(os.path.join(self.folder, name)) for name in names
                if os.path.isfile(os.path.join(self.folder, name)) and not name.endswith(".kivlog")}


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def steps_of(tree):
    parts = re.split(r"^## (\d+)\. .*$", read(os.path.join(tree, "docs/tutorial.md")), flags=re.M)
    return [Step(tree, int(number), text) for number, text in zip(parts[1::2], parts[2::2])]


def lines_of(text):
    return [line.strip() for line in text.split("\n") if line.strip()]


# --- The page and the files ---

def check_pieces(step, before):
    """Every block of code is a piece of its file."""
    files = step.files()
    for block in step.blocks:
        if block.language not in LANGUAGES:
            continue
        if block.name not in files:
            yield f"step {step.number}: there is no {block.name}"
        elif block.code not in files[block.name]:
            yield f"step {step.number}: {block.name} has no piece\n{block.code}"


def shown_in(step, name):
    return lines_of("".join(block.code for block in step.blocks if block.name == name and block.language in LANGUAGES))


def check_typed(step, before):
    """Who types the blocks has the files: each line that is new is shown, each that went has become one that is shown."""
    old = files_before(step, before)
    for name, added in more_lines(step.files(), old).items():
        shown = shown_in(step, name)
        for line in added:
            if line not in shown:
                yield f"step {step.number}: nobody is told to type into {name}: {line}"
    for name, removed in more_lines(old, step.files()).items():
        shown = shown_in(step, name)
        for line in removed:
            if not any(other.startswith(re.split(r"[ \]},;]*$|: \w", line)[0]) for other in shown):
                yield f"step {step.number}: nobody is told to remove from {name}: {line}"


def files_before(step, before):
    """The files with which a step begins, after what its commands replace in them."""
    files = before.files() if before else {}
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
                file.write(text)
        for command in step.commands():
            if command.startswith("sed -i "):
                subprocess.run(command, shell=True, cwd=folder, check=True)
        return {name: read(os.path.join(folder, name)) for name in files}


def more_lines(files, than):
    """By file, the lines that it has more than the other of its name."""
    return {name: collections.Counter(lines_of(text)) - collections.Counter(lines_of(than.get(name, "")))
            for name, text in files.items()}


def minutes_of(step, before):
    """200 words a minute are read, and 300 characters a minute are typed, a command that is there already by one key."""
    added = more_lines(step.files(), files_before(step, before))
    typed = "".join(list(dict.fromkeys(step.commands())) + [line for lines in added.values() for line in lines.elements()])
    return minutes_to_read(step.text) + len(typed) / 300


def minutes_to_read(text):
    return len(re.sub(r"```.*?```", "", text, flags=re.S).split()) / 200


def check_length(steps, beginning):
    """What is promised: fifteen minutes, and five for the last two steps."""
    minutes = [minutes_to_read(beginning)] + [minutes_of(step, before) for before, step in zip([None] + steps, steps)]
    for part, limit in ((minutes[:8], 15), (minutes[8:], 5)):
        if sum(part) > limit:
            yield "the tutorial takes " + " + ".join(f"{each:.1f}" for each in part) + " minutes"


# --- The commands ---

class Desk:
    """A copy of a step's files, with or without those that commands make, and the programs."""

    def __init__(self, prefix, work, step, has_made=True):
        self.step = step
        self.folder = os.path.join(work, f"step {step.number}" + ("" if has_made else " anew"))
        shutil.rmtree(self.folder, ignore_errors=True)
        shutil.copytree(step.folder, self.folder, ignore=None if has_made else shutil.ignore_patterns(*MADE))
        # What an earlier step has made is there.
        for pattern in MADE:
            for path in glob.glob(os.path.join(os.path.dirname(step.folder), "*", pattern)):
                if int(re.search(r"(\d+)-[^/]*/[^/]*$", path).group(1)) < step.number:
                    copy = shutil.copytree if os.path.isdir(path) else shutil.copy
                    copy(path, os.path.join(self.folder, os.path.basename(path)))
        here = {"KIV_PLATFORM": "embedded", "KIV_SERVICES": self.folder, "UIUTILS_ROOT": os.path.join(self.folder, "root"),
                "PATH": os.path.join(prefix, "bin") + os.pathsep + os.environ["PATH"], "CMAKE_PREFIX_PATH": prefix,
                "CMAKE_GENERATOR": "Ninja"}
        self.environment = {**os.environ, **here}

    def run(self, command):
        done = subprocess.run(["bash", "-ec", command], cwd=self.folder, env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=300)
        return done.returncode, REMARK.sub("", done.stdout)

    def use(self, hand, before="", screen=SCREEN):
        """What one of the pages in tests/docs/tutorial prints, which uses the page of the step."""
        for name in (hand, "Hand.qml"):
            shutil.copy(os.path.join(HANDS, name), self.folder)
        shutil.rmtree(os.path.join(self.folder, "root"), ignore_errors=True)
        return self.run(f"{before}uiutils-qml {hand} {screen} --grab used.png")[1]


# Ends a program that shows the page, with 0 if the page has the value of the file.
LAST_LINE = ("    Timer { running: true; interval: 0; onTriggered: "
             "Qt.exit(typeof cable_res_loss === 'object' && cable_res_loss.valueString === '2.50 dB' ? 0 : 1) }")


def ended(command):
    """The command, with an end where it would show a window until somebody closes it. What CMake says is its own."""
    if command.startswith("cmake "):
        return f"({command}) > cmake.log 2>&1 || cat cmake.log"
    if command.startswith("build/"):
        return f"sed -i '$d' CablePage.qml; echo \"{LAST_LINE}\" >> CablePage.qml; echo '}}' >> CablePage.qml; {command}"
    shows = command.startswith("uiutils-qml ") and not re.search(r"--(list|check|audit|grab|grab-at)\b", command)
    return command + " --grab shown.png" if shows else re.sub(r"--duration \d+", "--duration 1", command)


def check_commands(step, desks):
    """The commands of a step print what follows them: on a desk where nothing has been made before, and, those that make
    nothing, with the files of the step."""
    anew, desk = desks
    for block, then in zip(step.blocks, step.blocks[1:] + [Block("end", None, "", None)]):
        if block.language != "sh":
            continue
        expected = then.code if then.language == "" else ""
        makes = re.search(r" record | --update|^cmake ", block.code)
        for place in [desk] if block.hand else [anew] if makes else [anew, desk]:
            yield from check_output(place, block, expected)


def check_output(desk, block, expected):
    saved = {name: read(os.path.join(desk.folder, name)) for name in desk.step.files()}
    commands = "".join(ended(line) + "\n" for line in block.code.rstrip("\n").split("\n"))
    status, printed = desk.run(f"{block.hand}\n{commands}" if block.hand else commands)
    pattern = "".join(".*" if part == "…" else re.escape(part) for part in re.split("(…)", expected))
    if not re.fullmatch(pattern, printed):
        yield f"step {desk.step.number}: {commands}prints\n{printed}and not\n{expected}"
    if (status == 0) == bool(block.hand):
        yield f"step {desk.step.number}: {commands}ends with {status}"
    # What was done wrong is put right.
    for name, text in saved.items() if block.hand else ():
        with open(os.path.join(desk.folder, name), "w", encoding="utf-8") as file:
            file.write(text)


# --- The pages ---

# What somebody sees who looks at the page of a step, and what comes of using it: step, hand, lines.
USES = [
    (2, "look.qml", ["Cable test", "Loss", "2.50 dB"]),
    (3, "look.qml", ["Cable test", "Loss", "2.50 dB", "Set-up", "Site", "Harbour", "1 - 20 chars", "Length", "40.0", "m",
                     "1.0 - 300.0 m"]),
    (3, "form.qml", ["1.0 - 300.0 m|40.0 m", "|60.0 m"]),
    (4, "changes.qml", ["Harbour|40.0 m|false", "Harbour|40.0 m|true", "Changes|Length|40.0 m|60.0 m|Revert|Revert|Apply", "Mill|60.0 m|false", "60",
                        "Mill|60.0 m|true"]),
    (5, "report.qml", ["Saved: one.pdf", "Saved: one.html"]),
    (6, "refused.qml", ["The tester is locked.", "60|true"]),
]
# What happens while hands use the page happens at once.
AT_ONCE = "sed -i 's/\"after\": 5000/\"after\": 0/' cable.service.json; export KIV_SIMULATION=on\n"


def check_uses(desk):
    for step, hand, lines in USES:
        if step == desk.step.number:
            printed = desk.use(hand, AT_ONCE if step == 6 else "").replace("qml: ", "").rstrip("\n").split("\n")
            if printed != lines:
                yield f"step {step}: {hand} prints {printed}, not {lines}"


def check_check(desk):
    """The checks of files and pages find nothing, nor do they when the page runs."""
    pages = [name for name in desk.step.files() if name.endswith(".qml")]
    for command in [" ".join(["uiutils-check ."] + pages)] + [f"uiutils-qml {page} --check" for page in pages]:
        status, printed = desk.run(command)
        if status or printed:
            yield f"step {desk.step.number}: {command} says {printed}"


def check_audit(desk):
    """The page can be touched and read."""
    if "CablePage.qml" in desk.step.files():
        status, printed = desk.run(f"uiutils-qml CablePage.qml {SCREEN} --audit")
        if status or printed:
            yield f"step {desk.step.number}: the audit says {printed}"


def check_report(desk):
    """The report that was saved has the values of the page."""
    if desk.step.number != 5:
        return
    folder = os.path.join(desk.folder, "root/cust/public/reports/cable")
    names = sorted(os.listdir(folder)) if os.path.isdir(folder) else []
    if names != ["one.html", "one.pdf"]:
        yield f"step 5: the reports are {names}"
        return
    pages = subprocess.run(["pdftotext", "-layout", os.path.join(folder, "one.pdf"), "-"], capture_output=True, text=True).stdout
    for text in ("Cable test, Harbour", "Length", "40.0 m", "Loss", "2.50 dB"):
        for name, content in (("one.pdf", pages), ("one.html", read(os.path.join(folder, "one.html")))):
            if text not in content:
                yield f"step 5: {name} lacks {text}"


def check_step(prefix, work, before, step):
    if not step.folder:
        return [f"step {step.number} has no folder"]
    found = [line for check in (check_pieces, check_typed) for line in check(step, before)]
    # What a page does is of no interest while it is not the one of the tutorial.
    if found:
        return found
    desk = Desk(prefix, work, step)
    found += check_commands(step, (Desk(prefix, work, step, has_made=False), desk))
    for check in (check_check, check_uses, check_audit, check_report):
        found += check(desk)
    return found


def check(tree, prefix, work, numbers=()):
    """What is wrong with the tutorial of a tree; with numbers, with these steps."""
    steps = steps_of(tree)
    yield from check_length(steps, read(os.path.join(tree, "docs/tutorial.md")).split("\n## 1.")[0])
    for before, step in zip([None] + steps, steps):
        if not numbers or step.number in numbers:
            yield from check_step(prefix, work, before, step)


def take_pictures(tree, prefix, work):
    images = os.path.join(tree, "docs/images")
    desks = {step.number: Desk(prefix, work, step) for step in steps_of(tree) if step.folder}
    for step, hand, height, name in ((3, "toolong.qml", 480, "form"), (4, "waiting.qml", 760, "changes")):
        desks[step].use(hand, screen=SCREEN.replace("480", str(height)))
        shutil.copy(os.path.join(desks[step].folder, "used.png"), os.path.join(images, f"tutorial-{name}.png"))
    desks[5].use("report.qml")
    desks[5].run(f"pdftoppm -r 60 -H 250 -singlefile -png root/cust/public/reports/cable/one.pdf {images}/tutorial-report")
    desks[7].run(f"uiutils-qml CablePage.qml {SCREEN} --replay session.kivlog --grab-at 11 --expect taken --update --pictures")
    shutil.copy(os.path.join(desks[7].folder, "taken/CablePage@11s.png"), os.path.join(images, "tutorial-gone.png"))


def install(cmake, build, work):
    prefix = os.path.join(work, "installed")
    shutil.rmtree(prefix, ignore_errors=True)
    subprocess.run([cmake, "--install", build, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
    return prefix


def main(cmake, tree, build, work, flags, *pictures):
    os.environ["CXXFLAGS"] = flags
    tree, work = os.path.abspath(tree), os.path.abspath(work)
    prefix = install(cmake, build, work)
    if pictures:
        take_pictures(tree, prefix, work)
        return 0
    found = list(check(tree, prefix, work))
    print("\n".join(found) or "The tutorial can be followed.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
