"""What a process did with its files, read from the log of strace."""

import os
import re
from dataclasses import dataclass, field

# Calls that change files, or may: their arguments decide.
CHANGING = """open openat creat write pwrite64 writev pwritev pwritev2 fsync fdatasync syncfs sync_file_range rename renameat
 renameat2 unlink unlinkat mkdir mkdirat rmdir link linkat symlink symlinkat chmod fchmod fchmodat chown fchown fchownat
 ftruncate truncate fallocate utimensat close flock sendfile copy_file_range""".split()
READING = "read pread64 getdents64 stat lstat newfstatat statx fstat access faccessat faccessat2 statfs fstatfs readlink".split()
WRITES = {"write", "pwrite64", "writev", "pwritev", "pwritev2", "sendfile", "copy_file_range", "ftruncate", "fallocate"}
SYNCS = {"fsync", "fdatasync"}
RENAMES = {"rename", "renameat", "renameat2"}
REMOVALS = {"unlink", "unlinkat", "rmdir"}
MAKERS = {"mkdir", "mkdirat"}
# The calls at which a disk can die: closing and locking need no disk.
DEADLY = {"open", "openat", "write", "fsync", "mkdir", "mkdirat", "rename", "renameat2", "unlink", "unlinkat", "rmdir", "fchmod"}
# A folder that cannot be listed cannot be emptied, and its files cannot be removed.
TIDYING = REMOVALS | {"getdents64", "newfstatat", "statx", "stat", "lstat"}

LINE = re.compile(r"^(?:\d+ +)?(\w+)\((.*)\)\s+= (.*)$")
TEXT = re.compile(r'"((?:[^"\\]|\\.)*)"')
DESCRIPTOR = re.compile(r"(?:\d+|AT_FDCWD)<([^>]*)>")
WRITING_FLAG = re.compile(r"O_WRONLY|O_RDWR|O_CREAT|O_TRUNC")
TEMPORARY = re.compile(r"\.uiutils-[^/]*")


@dataclass
class Call:
    name: str
    number: int  # of the calls of that name in the process, from 1
    place: str  # path of what it works on, as it is on this machine
    target: str  # of a rename
    arguments: str
    result: str
    changes: bool
    of_files: int = 0  # number among the writes to, or closings of, files that are written
    shown: str = field(default="")

    @property
    def succeeded(self):
        return not self.result.startswith(("-", "?"))

    @property
    def injected(self):
        return "INJECTED" in self.result

    @property
    def opens_folder(self):
        return self.name == "openat" and "O_DIRECTORY" in self.arguments


def _places(name, arguments):
    texts = TEXT.findall(arguments)
    folders = DESCRIPTOR.findall(arguments)
    if not texts:
        return (folders[0] if folders else ""), ""
    if name in ("write", "pwrite64", "read", "pread64", "getdents64", "writev", "pwritev"):
        return (folders[0] if folders else ""), ""
    resolved = []
    for position, text in enumerate(texts):
        folder = folders[min(position, len(folders) - 1)] if folders else ""
        resolved.append(os.path.join(folder, text) if text else folder)
    if name in ("symlink", "symlinkat", "readlink"):
        return resolved[-1] if name != "readlink" else resolved[0], ""
    return resolved[0], (resolved[1] if len(resolved) > 1 else "")


def read_log(path, places):
    """The calls that touch something below `places` (pairs of a folder and how it is shown), in their order."""
    counts, of_files, calls, written = {}, {"write": 0, "close": 0}, [], set()
    try:
        with open(path, encoding="utf-8", errors="replace") as log:
            lines = log.read().splitlines()
    except FileNotFoundError:
        return []
    for line in lines:
        match = LINE.match(line) or re.match(r"^(?:\d+ +)?(\w+)\((.*?)\)?\s*(?:<unfinished \.\.\.>|= (\?))?$", line)
        if not match or match.group(1) not in counts and match.group(1) not in CHANGING + READING:
            continue
        name, arguments, result = match.group(1), match.group(2), match.group(3) or "?"
        counts[name] = counts.get(name, 0) + 1
        place, target = _places(name, arguments)
        is_ours = any(place.startswith(folder) for folder, _ in places)
        is_open = name in ("open", "openat", "creat")
        is_opened_to_write = is_open and (name == "creat" or bool(WRITING_FLAG.search(arguments)))
        # By its number, because a renamed file is closed under another name than it was opened. Files in memory have paths
        # among the process's own.
        descriptor = re.match(r"\d+", result if is_open else arguments)
        if is_open and descriptor:
            is_kept = is_opened_to_write and not place.startswith("/proc/")
            (written.add if is_kept else written.discard)(descriptor.group())
        is_written = not is_open and bool(descriptor) and descriptor.group() in written
        if name in of_files and is_written:
            of_files[name] += 1
        if name == "close" and descriptor:
            written.discard(descriptor.group())
        if not is_ours:
            continue
        changes = is_opened_to_write if is_open else is_written if name == "close" else name in CHANGING
        call = Call(name, counts[name], place, target, arguments, result, changes, of_files.get(name, 0))
        call.shown = shown(place, places)
        if target:
            call.shown += " -> " + shown(target, places)
        calls.append(call)
    return calls


def shown(place, places):
    """The place for readers, with generated names that are the same in every run."""
    for folder, label in places:
        if place.startswith(folder):
            place = label + place[len(folder):]
            break
    return neutral(place)


def neutral(text):
    """The text without the generated parts of names."""
    return re.sub(r"/savescenario-\w+", "/savescenario-*", re.sub(r"\.uiutils-\w+(\.\w+)?", ".uiutils-*", text))


def order_faults(calls, root, is_claimed):
    """What a power cut could make of the order in which files were written, synced and renamed.

    What was not synced successfully counts as lost: the contents of a file, and the names in a folder. `is_claimed` says
    of a path whether the file was reported as permanent.
    """
    problems, unsynced, names = [], set(), {}
    for call in calls:
        if not call.place.startswith(root + "/") or not call.succeeded:
            continue
        is_temporary = TEMPORARY.search(call.place)
        if call.name in WRITES:
            unsynced.add(call.place)
            if not is_temporary:
                problems.append(f"{call.shown} is written in place")
        elif call.name in SYNCS:
            unsynced.discard(call.place)
            names.pop(call.place.rstrip("/"), None)
        elif call.name == "syncfs":
            unsynced.clear()
            names.clear()
        elif call.name in MAKERS and not is_temporary:
            made = call.place.rstrip("/")
            names.setdefault(os.path.dirname(made), {})[made] = f"the making of {call.shown}"
        elif call.name in RENAMES:
            if call.place in unsynced:
                problems.append(f"{call.shown}: the contents were not synced before")
            names.setdefault(os.path.dirname(call.target), {})[call.target] = call.shown
        elif call.place in names.get(os.path.dirname(call.place), {}) and call.name in REMOVALS:
            # A folder that was just created is abandoned.
            del names[os.path.dirname(call.place)][call.place]
        elif call.name in REMOVALS and not is_temporary and names.get(os.path.dirname(call.place)):
            problems.append(f"{call.shown} is removed before the folder of what takes its place is synced")
    targets = [call.target for call in calls if call.name in RENAMES and call.succeeded]
    for target in filter(lambda path: is_claimed(os.path.relpath(path, root)), targets):
        for folder, changes in names.items():
            problems += [f"{os.path.relpath(folder, root)} is not synced: a power cut could undo {what}"
                         for path, what in changes.items() if path == target or target.startswith(path + "/")]
    return problems
