"""Compares the files in a root folder with what was reported to the user."""

import functools
import hashlib
import os
import re
import subprocess
import tempfile
import zlib

import scenarios
import tracelog

DATES = [rb"[A-Z][a-z]{2} [A-Z][a-z]{2} +\d{1,2} \d{4} \d\d:\d\d:\d\d", rb"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d[-+:.\dZ]*"]
DATE = re.compile(b"|".join(DATES))
SAVED, LIST_FAILED = "Report Saved", "Sync"
# The kind of a dialog with an error.
ERROR = 1


def snapshot(root):
    """Every file below the root with its contents, and every empty folder."""
    state = {}
    for folder, folders, files in os.walk(root):
        for name in files:
            path = os.path.join(folder, name)
            with open(path, "rb") as file:
                state[os.path.relpath(path, root)] = file.read()
        for name in folders:
            if tracelog.TEMPORARY.fullmatch(name):
                state[os.path.relpath(os.path.join(folder, name), root) + "/"] = b""
    return state


def leftovers(state):
    return sorted(path for path in state if tracelog.TEMPORARY.search(path))


def unpacked(contents):
    """The contents of a complete gzip file; None otherwise."""
    unpacker = zlib.decompressobj(wbits=31)
    try:
        plain = unpacker.decompress(contents) + unpacker.flush()
    except zlib.error:
        return None
    return plain if unpacker.eof and not unpacker.unused_data else None


@functools.lru_cache(maxsize=4096)
def _passes_reader(digest, contents):
    del digest
    with tempfile.NamedTemporaryFile(suffix=".pdf") as file:
        file.write(contents)
        file.flush()
        return subprocess.run(["qpdf", "--check", file.name], capture_output=True, timeout=60, check=False).returncode == 0


def is_new(path, contents, reference):
    """Whether these are the contents of a clean save, except for the time of day."""
    if contents == reference:
        return True
    if path.endswith(".gz"):
        plain = unpacked(contents)
        return plain is not None and is_new(path[:-3], plain, unpacked(reference))
    if path.endswith(".pdf"):
        return contents.startswith(b"%PDF-") and contents.rstrip().endswith(b"%%EOF") and b"/Subject(new)" in contents \
            and _passes_reader(hashlib.sha256(contents).digest(), contents)
    return DATE.sub(b"?", contents) == DATE.sub(b"?", reference)


class Expectation:
    """The files of a scenario before and after."""

    def __init__(self, before, after):
        self.before, self.after = before, after
        self.targets = [path for path in after if before.get(path) != after[path]]
        self.reports = [path for path in self.targets if not path.startswith("cust/private/") and not path.endswith(".metadata")]
        self.gone = [path for path in before if path not in after]

    def state_of(self, path, contents):
        """"old", "new" or what is wrong with it."""
        old, new = self.before.get(path), self.after.get(path)
        if contents == old:
            return "old"
        if contents is None:
            return "new" if new is None else "is lost"
        if new is not None and is_new(path, contents, new):
            return "new"
        # A report that could not be compressed is saved uncompressed.
        packed = self.after.get(path + ".gz")
        if packed is not None and is_new(path, contents, unpacked(packed)):
            return "new"
        return "is a stranger" if old is None and new is None else f"is neither old nor new ({len(contents)} bytes)"

    def states(self, actual):
        paths = set(self.before) | set(self.after) | set(actual)
        return {path: self.state_of(path, actual.get(path)) for path in sorted(paths) if not tracelog.TEMPORARY.search(path)}


def file_faults(expectation, actual):
    return [f"{path} {state}" for path, state in expectation.states(actual).items() if state not in ("old", "new")]


def claim_faults(kind, expectation, actual, claim):
    """Where the report to the user differs from the files."""
    states = expectation.states(actual)
    problems = []

    def has_new(path):
        return states.get(path) == "new"

    for path in claim["written"]:
        if not has_new(path.lstrip("/")):
            problems.append(f"{path} was reported as written, and is not")
    if kind == "report":
        problems += _save_faults(expectation, states, claim)
    elif kind in ("record", "draft") and claim["saved"] and not all(map(has_new, expectation.targets)):
        problems.append(f"saving the {kind} returned true, and it is not there")
    elif kind in ("record", "draft") and not claim["saved"] and not claim["log"]:
        problems.append(f"the {kind} was not saved, and the log does not say so")
    elif kind in ("settings", "list") and not all(map(has_new, expectation.targets)) and not claim["log"]:
        problems.append("nothing was stored, and the log does not say so")
    if kind == "list" and claim["list"] and not has_new(scenarios.LIST):
        problems.append("the base manager was told of a list that is not stored")
    return problems


def _save_faults(expectation, states, claim):
    problems = []
    tray, dialogs = claim["told"]["tray"], claim["told"]["dialogs"]
    notices = [entry for entry in tray if entry["title"] == SAVED]
    # The no-sync list has a dialog of its own: the user wanted it to be different, and can act on that.
    of_list = [entry for entry in dialogs if entry["title"] == LIST_FAILED]
    of_save = [entry for entry in dialogs if entry["title"] != LIST_FAILED]
    missing = [path for path in expectation.reports if states[path] != "new"]
    if claim["saved"] != bool(claim["generated"]):
        problems.append(f"save() is {claim['saved']}, but reportGenerated came {len(claim['generated'])} times")
    if len(notices) != len(claim["written"]):
        problems.append(f"the tray says {len(notices)} times \"{SAVED}\" for {len(claim['written'])} files")
    if len(of_list) > 1:
        problems.append(f"the user was told of the list in {len(of_list)} dialogs")
    if claim["saved"]:
        problems += [f"the user was told \"saved\", and {path} is not the new one" for path in missing]
        problems += [f"a save that succeeded told of an error: {entry['title']}" for entry in of_save]
        problems += _silent_faults(expectation, states, claim, of_list)
    elif len(of_save) != 1:
        problems.append(f"save() failed, and the user was told in {len(of_save)} dialogs")
    elif of_save[0]["kind"] != ERROR:
        problems.append(f"save() failed, and the dialog is no error: {of_save[0]['title']}")
    return problems


def _silent_faults(expectation, states, claim, of_list):
    """The files that accompany a report may fail, but not silently."""
    silent = [path for path in expectation.targets if path not in expectation.reports and states[path] != "new"]
    if scenarios.LIST in silent and not of_list:
        return ["the list does not say what the user wished, and the user was not told"]
    return [f"{path} was not stored, and the log does not say so" for path in silent[:1] if not claim["log"]]
