#!/usr/bin/env python3
"""What a screen reader finds in the programs, over a bus. Usage: accessibility.py planted|gallery|demo --build=FOLDER --source=FOLDER --registry=PROGRAM"""

import argparse
import os
import sys

sys.dont_write_bytecode = True
import atspi  # noqa: E402

PRESSED = {"push button", "toggle button", "check box", "radio button", "list item", "page tab", "combo box"}
ENTERED = {"text", "password text", "spin button", "slider"}
CHOSEN = {"radio button", "page tab"}
# Seconds in which a key has moved the focus, or never will.
FOCUS_PATIENCE = 5


class Faults:
    """Each is reported once, at the first page that has it."""

    def __init__(self):
        self.lines = {}

    def add(self, page, text):
        self.lines.setdefault(text, page)

    def report(self):
        for text, page in self.lines.items():
            print(f"{page}: {text}")
        return len(self.lines)


# --- What every page has to say ---

def is_reached(node):
    """By keys: itself, or the bar or list that holds it."""
    return "focusable" in node.states or (node.parent is not None and "focusable" in node.parent.states)


def fault_of(node):
    if "enabled" not in node.states:
        return None
    is_used = node.role in PRESSED | ENTERED
    # A scroll bar shows where one is; the keys scroll what has the focus.
    if node.role == "scroll bar":
        return None
    # The name of a field of a password is not said, but its description.
    is_said = node.name or (node.role == "text" and node.description)
    if (is_used or "focusable" in node.states or node.role == "progress bar") and not is_said:
        return "has no name"
    if node.role in PRESSED and not node.can_be_pressed():
        return "cannot be pressed"
    if is_used and not is_reached(node):
        return "is not reached by keys"
    return None


def unchosen(nodes):
    """Groups of choices of which none says that it is the chosen one."""
    groups = {}
    for node in nodes:
        if node.role in CHOSEN:
            groups.setdefault(node.parent, []).append(node)
    return [group[0] for group in groups.values() if not any({"selected", "checked"} & node.states for node in group)]


def judge(page, tree, faults):
    nodes = list(tree.all())
    for node in nodes:
        text = fault_of(node)
        if text:
            faults.add(page, f"{node.role} {node.name!r} below {node.parent.name if node.parent else ''!r} {text}")
    for node in unchosen(nodes):
        faults.add(page, f"{node.role} {node.name!r} and its neighbours: none is chosen")


# --- The way of the keys ---

def is_backwards(before, after, is_mirrored):
    """Whether the focus went against the direction of reading: up in its column, or back in its line."""
    x, y, width, height = before
    next_x, next_y, next_width, next_height = after
    if is_mirrored:
        x, next_x = -x - width, -next_x - next_width
    if min(y + height, next_y + next_height) - max(y, next_y) > min(height, next_height) / 2:
        return next_x + next_width <= x
    return next_y + next_height <= y and next_x < x + width


def next_focus(desk, program, act):
    """The object to which the act moves the focus; None when nothing gets it."""
    def seen():
        return [event.path for event in desk.events if event.name == "Focus"]
    desk.events.clear()
    act()
    try:
        desk.wait(seen, "the focus", FOCUS_PATIENCE)
    except TimeoutError:
        return None
    return atspi.Node(desk, program[0], seen()[-1])


def walk(desk, program, page, faults, is_mirrored=False):
    """Follows the key Tab until it comes to where it has been, and returns the objects on the way."""
    buttons = [node for node in desk.tree(program).all()
               if node.role == "push button" and {"focusable", "enabled"} <= node.states and "focused" not in node.states]
    node = next_focus(desk, program, lambda: buttons[0].call(atspi.COMPONENT, "GrabFocus"))
    way, turns = [], []
    while node is not None and node.path not in [seen.path for seen in way]:
        node.place = node.box
        # What was focused before may have been scrolled meanwhile.
        if way and is_backwards(way[-1].box, node.place, is_mirrored):
            turns.append((way[-1], node))
        way.append(node)
        node = next_focus(desk, program, lambda: desk.key(atspi.TAB))
        if node is None:
            faults.add(page, f"after {way[-1].role} {way[-1].name!r} the focus is at something that is not in the tree")
            node = next_focus(desk, program, lambda: desk.key(atspi.TAB))
    top = min((node.place[1] for node in way), default=0)
    for before, after in turns:
        # From the end to the beginning.
        if after.place[1] > top:
            faults.add(page, f"the focus goes backwards from {before.role} {before.name!r} to {after.role} {after.name!r}")
    return way


# --- Programs ---

class Test:
    def __init__(self, options):
        self.programs = os.path.join(options.build, "bin")
        self.source = options.source
        self.faults = Faults()
        self.problems = 0

    def command(self, program, root, *arguments):
        return [os.path.join(self.programs, program), "--root", root,
                "--services", os.path.join(self.source, "platform/reference/services"), *arguments]

    def expect(self, is_true, text):
        if not is_true:
            print(f"FAILED: {text}")
            self.problems += 1

    def result(self):
        return 1 if self.faults.report() + self.problems else 0


PLANTED = """import QtQuick 2.15
import QtQuick.Controls 2.15
Rectangle {
    width: 600; height: 400
    Button { x: 0; y: 0; Accessible.name: "Good" }
    Button { x: 100; y: 0; text: "" }
    Rectangle { x: 200; y: 0; width: 50; height: 50; activeFocusOnTab: true; Accessible.role: Accessible.ListItem; Accessible.name: "Deaf" }
    Rectangle { x: 300; y: 0; width: 50; height: 50; Accessible.role: Accessible.ListItem; Accessible.name: "Lost"; Accessible.onPressAction: {} }
    Rectangle { x: 300; y: 100; width: 50; height: 50; activeFocusOnTab: true; Accessible.role: Accessible.Button; Accessible.name: "Below" }
    Rectangle { x: 500; y: 300; width: 50; height: 50; Accessible.role: Accessible.ProgressBar }
    Rectangle { x: 0; y: 100; width: 50; height: 50; activeFocusOnTab: true; Accessible.role: Accessible.Button; Accessible.name: "Back" }
    Rectangle { x: 400; y: 200; width: 50; height: 50; activeFocusOnTab: true }
    RadioButton { x: 0; y: 200; Accessible.name: "One of none" }
}
"""
PLANTED_FAULTS = """push button '' below '' has no name
list item 'Deaf' below '' cannot be pressed
list item 'Lost' below '' is not reached by keys
progress bar '' below '' has no name
after push button 'Back' the focus is at something that is not in the tree
radio button 'One of none' and its neighbours: none is chosen
the focus goes backwards from push button 'Below' to push button 'Back'
""".splitlines()


def planted(test):
    """Each planted fault is found, and nothing else."""
    with atspi.Desk() as desk:
        page = os.path.join(desk.folder, "page.qml")
        with open(page, "w", encoding="utf-8") as file:
            file.write(PLANTED)
        program = desk.run(test.command("uiutils-qml", desk.folder, page))
        found = Faults()
        judge("page", desk.tree(program), found)
        walk(desk, program, "page", found)
    for line in PLANTED_FAULTS:
        test.expect(line in found.lines, f"not found: {line}")
    for line in found.lines:
        test.expect(line in PLANTED_FAULTS, f"found without reason: {line}")


# --- The pages that show the kit ---

# What the fields of the page say besides their names.
ENTRIES = {"Site": "1 - 40 chars", "Cable": "1 - 20 chars", "Test time": "0:00:01 - 24:00:00", "Unit address": "0.0.0.0 - 255.255.255.255",
           "Connector": "Angled", "Wavelength": "1550 nm"}


def said(node):
    return f"{node.name} {node.description} {node.text}"


def find(tree, name, role=None):
    return next((node for node in tree.all() if node.name.startswith(name) and role in (None, node.role)), None)


def entries(test):
    with atspi.Desk() as desk:
        program = desk.run(test.command("uiutils-qml", desk.folder, os.path.join(test.source, "docs/examples/gallery.qml"), "--screen", "1280x800@149"))
        # Contents that are scrolled out of sight belong to the page.
        tree = desk.tree(program, lambda node: "visible" in node.states)
        judge("entries", tree, test.faults)
        for name, words in ENTRIES.items():
            field = next((node for node in tree.all() if node.name.startswith(name) and node.role in ENTERED | PRESSED), None)
            test.expect(field is not None and words in said(field), f"{name} says {words!r}, but: {field}")
        switch = find(tree, "Buzzer", "check box")
        before = "checked" in switch.states
        desk.events.clear()
        switch.press()
        desk.wait(lambda: news_of(desk, switch, "checked"), "the news of the switch")
        test.expect(("checked" in atspi.Node(desk, switch.bus, switch.path).states) != before, "a switch says that it is switched")


def gallery(test):
    entries(test)
    with atspi.Desk() as desk:
        program = desk.run(test.command("uiutils-qml", desk.folder, os.path.join(test.source, "docs/examples/gallery/Gallery.qml"), "--screen", "1280x800@149"))
        tree = desk.tree(program)
        judge("groups", tree, test.faults)
        way = walk(desk, program, "groups", test.faults)
        groups = [node.name for node in tree.all() if node.description and node.can_be_pressed()]
        test.expect(len(groups) >= 7, "the gallery has its groups")
        for group in groups:
            test.expect(group in [node.name for node in way], f"keys reach {group!r}")
            page = open_by(desk, program, group, group)
            judge(group, page, test.faults)
            walk(desk, program, group, test.faults)
            slide(test, desk, page)
            open_by(desk, program, "Back", groups[0])


def slide(test, desk, page):
    """Sliders say their value, and that it has changed."""
    for slider in [node for node in page.all() if node.role == "slider"]:
        before = slider.value
        desk.events.clear()
        slider.do("increase")
        desk.wait(lambda: news_of(desk, slider, "accessible-value"), f"the news of {slider}")
        test.expect(slider.value > before, f"{slider} says its new value")


def shown_by(desk, program, name):
    """The object of that name, as soon as it is there."""
    found = []
    def is_there():
        found[:] = [find(desk.tree(program), name)]
        return found[0]
    desk.wait(is_there, repr(name))
    return found[0]


def open_by(desk, program, pressed, shown):
    """Presses what has that name, and returns the tree as soon as something else of that name is there."""
    node = shown_by(desk, program, pressed)
    node.press()
    tree = []
    def is_there():
        tree[:] = [desk.tree(program)]
        return any(other.name.startswith(shown) and other.path != node.path for other in tree[0].all())
    desk.wait(is_there, f"{shown!r} after {pressed!r}")
    return tree[0]


# --- The demo ---

# Every page: what leads there, and the title that it has then.
PAGES = [("Set-up", "Set-up"), ("Run", "Run"), ("Results", "Round-trip time"), ("Report", "Report"), ("Files", "Files"), ("Home", "TCP loopback test"),
         ("Jobs", "Jobs"), ("Home", "TCP loopback test"), ("People", "People"), ("Home", "TCP loopback test"),
         ("Notifications", "Notifications"), ("Home", "TCP loopback test"), ("Settings", "Settings")]


VERDICTS = {"Pass", "Warning", "Fail"}


def news_of(desk, node, kind):
    return [event for event in desk.events if (event.path, event.kind) == (node.path, kind)]


def run_test(test, desk, program):
    """What is measured is said while it changes, and its verdict at the end."""
    start = find(open_by(desk, program, "Run", "Start"), "Start")
    desk.events.clear()
    start.press()
    # It becomes "Stop", and "Start" again.
    desk.wait(lambda: news_of(desk, start, "accessible-name") and start.get(atspi.ACCESSIBLE, "Name") == "Start", "the end of the run")
    tree = desk.tree(program)
    figures = [node for node in tree.all() if "median" in node.name]
    test.expect(len(figures) == 2, "both figures of the run are in the tree")
    for figure in figures:
        test.expect(len(news_of(desk, figure, "accessible-name")) > 1, f"{figure.name!r} is announced while it changes")
    for progress in [node for node in tree.all() if node.role == "progress bar"]:
        test.expect(len(news_of(desk, progress, "accessible-description")) > 1, f"{progress} is announced while it changes")
    # Which one, depends on how busy the machine is.
    test.expect(any(node.name in VERDICTS for node in tree.all()), "the verdict is in the tree")


def demo(test):
    with atspi.Desk() as desk:
        program = desk.run(test.command("uiutils-demo", desk.folder, "--samples", "20", "--screen", "1024x600@170"))
        desk.wait(lambda: find(desk.tree(program), "Home"), "the first page")
        judge("Home", desk.tree(program), test.faults)
        walk(desk, program, "Home", test.faults)
        run_test(test, desk, program)
        for opener, title in PAGES:
            judge(opener, open_by(desk, program, opener, title), test.faults)
            walk(desk, program, opener, test.faults)
    with atspi.Desk() as desk:
        program = desk.run(test.command("uiutils-demo", desk.folder), LC_ALL="ar_EG.UTF-8", LANGUAGE="")
        walk(desk, program, "Home in Arabic", test.faults, is_mirrored=True)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("what", choices=["planted", "gallery", "demo"])
    parser.add_argument("--build", required=True)
    parser.add_argument("--source", required=True)
    parser.add_argument("--registry", required=True)
    options = parser.parse_args()
    atspi.Desk.registry = options.registry
    test = Test(options)
    globals()[options.what](test)
    return test.result()


if __name__ == "__main__":
    sys.exit(main())
