#!/usr/bin/env python3
"""Proves the promise of saving: whatever happens to power, disk or USB drive, the user has the complete old file or the
complete new one, and is never notified "saved" when it is not.

Each scenario is saved once under strace, which lists every call to the file system. Then it is saved again for every
call and every fault: killed before the call, or with that call failing. Each time everything that lies on the disk is
compared with what was reported, and one more save must repair it and leave nothing behind.
"""

import argparse
import concurrent.futures
import contextlib
import errno
import itertools
import json
import os
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
import traceback
import zlib
from collections import Counter, defaultdict
from dataclasses import dataclass

sys.dont_write_bytecode = True
import scenarios  # noqa: E402
import tracelog  # noqa: E402
import verdict  # noqa: E402

SKIPPED = 77
HANDSHAKE = ["-e", "inject=sched_get_priority_max:retval=7"]
TRACED = "trace=" + ",".join("?" + name for name in tracelog.CHANGING + tracelog.READING) \
    + ",sched_get_priority_max,sched_get_priority_min"
QUIET = ["-qq", "-y", "-s", "8", "-e", "signal=none", "-e", TRACED]
PATIENCE_S = 90
OPTIONAL_IN_SHORT = 150
SHORT_S = 45
# How long to wait for a busy mount point, how often to repeat a run whose bench failed, and how many runs may be left out.
BUSY_S = 10
ATTEMPTS = 3
ENOUGH_BENCH_ERRORS = 5
# With less memory the runs themselves would fill the disk.
ROOM_BYTES = 256 << 20

ERRORS = {
    "opens": ["ENOSPC", "EIO", "EROFS", "EACCES", "EINTR"],
    "opens to read": ["EIO", "EACCES", "EMFILE", "EINTR"],
    "writes": ["ENOSPC", "EIO", "EINTR"],
    "syncs": ["EIO", "ENOSPC", "EINTR"],
    "closes": ["EIO", "ENOSPC", "EINTR"],
    "names": ["ENOSPC", "EIO", "EROFS"],
    "locks": ["ENOLCK", "EINTR", "EIO"],
    "modes": ["EIO", "EROFS", "EPERM"],
    "reads": ["EIO", "EINTR"],
    "asks": ["EIO"],
}

# Disks that can die, and their folders in the root.
DISKS = {"root": "", "stick": "mnt/usb"}

# Accepted failures: kind of the fault, pattern of the failure, reason. They are counted and shown.
KNOWN = []


# The errors of a machine that is short of something, or busy.
SHORTAGES = {errno.EAGAIN, errno.ENOMEM, errno.EMFILE, errno.ENFILE, errno.ENOSPC, errno.EDQUOT, errno.EBUSY}


class BenchError(Exception):
    """A run could not be set up: that says nothing about the library."""


class ServerEnded(BenchError):
    """savescenario has ended."""


def bench_error(error):
    """What went wrong with the bench, in words; None if the library may have caused it."""
    is_bench = isinstance(error, (BenchError, subprocess.SubprocessError)) \
        or isinstance(error, OSError) and error.errno in SHORTAGES
    return (str(error) or repr(error)) if is_bench else None


def call_tool(*command):
    """Runs a command of the system. A mount point is busy as long as a process that another thread starts holds its files."""
    deadline, pause = time.monotonic() + BUSY_S, 0.01
    while True:
        tool = subprocess.run(command, capture_output=True, text=True, check=False, env={**os.environ, "LC_ALL": "C"})
        if tool.returncode == 0:
            return
        if "busy" not in tool.stderr or time.monotonic() > deadline:
            raise BenchError(f"{' '.join(command)}: {tool.stderr.strip()}")
        time.sleep(pause)
        pause = min(2 * pause, 0.5)


def family(call):
    name = call.name
    if name in ("open", "openat", "creat"):
        return "opens" if call.changes else "opens to read"
    for names, label in ((tracelog.WRITES, "writes"), (tracelog.SYNCS, "syncs"), ({"close"}, "closes"), ({"flock"}, "locks"),
                         (tracelog.RENAMES | tracelog.REMOVALS | tracelog.MAKERS, "names"),
                         ({"link", "linkat", "symlink", "symlinkat"}, "names"), ({"read", "pread64"}, "reads")):
        if name in names:
            return label
    return "modes" if call.changes else "asks"


@dataclass(frozen=True)
class Fault:
    """One way of failing at one call. `actor` makes the call: "deed" or "gzip". For a "disk" that is full or read-only from the
    start, and for the "death" of one at the change of that number, `call` is its place."""

    scenario: str
    actor: str
    call: str
    number: int
    kind: str

    def __str__(self):
        return f"{self.scenario}:{self.actor}.{self.call}.{self.number}:{self.kind}"

    @property
    def injection(self):
        effect = "signal=SIGKILL" if self.kind == "kill" else "error=" + self.kind
        return ["-e", f"inject={self.call}:{effect}:when={self.number}"]

    @property
    def is_preloaded(self):
        """Whether the process itself makes it: strace skips the call that it answers, and a descriptor would stay open."""
        return self.kind in ("short", "full", "dead") or self.call == "close" and self.kind != "kill"

    @property
    def is_needed(self):
        """Whether the short form always includes it."""
        if self.actor == "disk":
            return self.call != "tmp" and (self.kind in ("64k", "read-only")
                                           or self.kind == "1100k" and self.scenario.startswith("large"))
        if self.actor == "death":
            return self.call == "stick" and self.scenario == "both-text-over"
        if self.kind == "kill":
            return self.call in tracelog.RENAMES | tracelog.REMOVALS | tracelog.SYNCS
        return self.kind == "ENOSPC" and self.call in tracelog.WRITES


class Server:
    """One process of savescenario, which does one deed at a time."""

    def __init__(self, programs, folder):
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": folder, "TZ": "UTC", "LC_ALL": "C.UTF-8",
                       "LD_PRELOAD": programs["preload"], "TMPDIR": folder, "QT_LOGGING_RULES": ""}
        for name in ("UIUTILS_ROOT", "UIUTILS_FAULT", "PLOV_PROVIDER", "PLOV_SHORTLABEL"):
            environment.pop(name, None)
        # pylint: disable=consider-using-with
        self.process = subprocess.Popen([programs["savescenario"], *programs["arguments"]], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, env=environment)

    def perform(self, order, trace):
        """The answer to an order; `trace` has further arguments for strace, or is None."""
        # If it has ended, the reader below notices.
        with contextlib.suppress(BrokenPipeError):
            self.process.stdin.write(json.dumps({**order, "traced": trace is not None}).encode() + b"\n")
            self.process.stdin.flush()
        pid = self._line()["process"]
        tracer = None
        if trace is not None:
            # pylint: disable=consider-using-with
            tracer = subprocess.Popen(["strace", *QUIET, *HANDSHAKE, *trace, "-p", str(pid)], stdin=subprocess.DEVNULL,
                                      stderr=subprocess.PIPE, text=True)
            self._await_tracer(tracer, pid)
        answer = self._line()
        if tracer:
            tracer.communicate(timeout=PATIENCE_S)
        return answer

    def _await_tracer(self, tracer, pid):
        """Waits for the answer. A deed does not begin without its tracer."""
        while not select.select([self.process.stdout], [], [], 0.5)[0]:
            if tracer.poll():
                os.kill(pid, signal.SIGKILL)
                raise BenchError("strace: " + tracer.communicate()[1].strip())

    def _line(self):
        line = self.process.stdout.readline()
        if not line:
            raise ServerEnded(f"savescenario has ended with status {self.process.wait(PATIENCE_S)}")
        return json.loads(line)

    def close(self):
        with contextlib.suppress(BrokenPipeError):
            self.process.stdin.close()
        self.process.wait(PATIENCE_S)


class Bench:
    """The place of the runs: a folder, and a server for each thread."""

    def __init__(self, programs, folder, keep):
        self.programs, self.folder, self.keep = programs, folder, keep
        self.local, self.servers, self.lock = threading.local(), [], threading.Lock()
        self.numbers = itertools.count()
        self.is_ending = False
        self._make_gzip()

    def _make_gzip(self):
        """A gzip that is traced, for runs in whose PATH it comes first."""
        self.bin = os.path.join(self.folder, "bin")
        os.mkdir(self.bin)
        path = os.path.join(self.bin, "gzip")
        with open(path, "w", encoding="ascii") as script:
            script.write('#!/bin/sh\nexec strace $UIUTILS_TRACE -o "$UIUTILS_TRACE_LOG" -- ' + shutil.which("gzip") + ' "$@"\n')
        os.chmod(path, 0o755)

    def server(self):
        if not hasattr(self.local, "server"):
            runtime = os.path.join(self.folder, f"runtime-{next(self.numbers)}")
            os.mkdir(runtime, 0o700)
            self.local.server = Server(self.programs, runtime)
            with self.lock:
                self.servers.append(self.local.server)
        return self.local.server

    def drop_server(self):
        """The next run of this thread gets a new server: the present one may still send an answer."""
        server = self.local.__dict__.pop("server", None)
        if server:
            server.process.kill()
            server.process.wait(PATIENCE_S)
            with self.lock:
                self.servers.remove(server)

    def close(self):
        for server in self.servers:
            server.close()


class Run:
    """A root folder of its own, and the deeds in it."""

    def __init__(self, bench, before, place=None):
        self.bench = bench
        self.folder = os.path.join(bench.folder, f"run-{next(bench.numbers)}")
        self.root, self.temporary = os.path.join(self.folder, "root"), os.path.join(self.folder, "tmp")
        self.log, self.preload_log = os.path.join(self.folder, "log"), os.path.join(self.folder, "preloaded")
        os.makedirs(self.temporary)
        os.makedirs(self.root)
        if place:
            place(self)
        for path, contents in before.items():
            self._put(path, contents)
        os.makedirs(os.path.join(self.root, "mnt/usb"), exist_ok=True)

    def _put(self, path, contents):
        path = os.path.join(self.root, path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(contents)

    @property
    def places(self):
        return [(self.root, ""), (self.temporary, "tmp:")]

    def save(self, order, variant, fault=None, actor=None):
        """Does the deed under the fault, under a trace of `actor`, or without either."""
        environment = {"UIUTILS_ROOT": self.root, "TMPDIR": self.temporary, "PATH": os.environ["PATH"],
                       "UIUTILS_FAULT": ""}
        order = {**order, "variant": variant, "environment": environment}
        actor = fault.actor if fault else actor
        trace = None
        if fault and fault.is_preloaded:
            program = "gzip" if actor == "gzip" else "savescenario"
            environment["UIUTILS_DEAD_FOLDER"] = os.path.join(self.root, DISKS.get(fault.call, "")).rstrip("/")
            mode = getattr(errno, fault.kind, fault.kind)
            order["preloaded"] = f"{program}:{fault.number}:{mode}:{self.preload_log}"
        elif actor == "deed":
            trace = ["-o", self.log] + (fault.injection if fault else [])
        elif actor == "gzip":
            environment["PATH"] = self.bench.bin + ":" + environment["PATH"]
            environment["UIUTILS_TRACE"] = " ".join(QUIET + (fault.injection if fault else []))
            environment["UIUTILS_TRACE_LOG"] = self.log
        return self.bench.server().perform(order, trace)

    def calls(self):
        return tracelog.read_log(self.log, self.places)

    def state(self):
        return verdict.snapshot(self.root)

    def temporaries(self):
        return sorted(os.listdir(self.temporary))

    def end(self):
        if not self.bench.keep:
            shutil.rmtree(self.folder, ignore_errors=True)


@dataclass
class Prepared:
    """A scenario that was saved once without a fault."""

    scenario: scenarios.Scenario
    expectation: verdict.Expectation
    calls: dict  # by actor
    problems: list


def overwriting(order):
    return {**order, "overwrite": True}


def deed_of(scenario):
    return {**scenario.order, "overwrite": scenario.prior is not None}


def prepare(bench, scenario):
    run = Run(bench, scenario.files)
    problems = []
    if scenario.prior is not None:
        answer = run.save(overwriting(scenario.prior), "old")
        if answer["claim"].get("saved") is False:
            problems.append("what was to lie there before could not be saved")
    before = run.state()
    clean = Run(bench, before)
    answer = clean.save(deed_of(scenario), "new", actor="deed")
    after = clean.state()
    calls = {"deed": clean.calls()}
    expectation = verdict.Expectation(before, after)
    problems += clean_faults(scenario, expectation, after, answer) + [f"{path} is left in TMPDIR" for path in clean.temporaries()]
    problems += tracelog.order_faults(calls["deed"], clean.root, claimed(scenario, expectation, answer["claim"]))
    if scenario.order.get("compressed"):
        packed = Run(bench, before)
        packed.save(deed_of(scenario), "new", actor="gzip")
        calls["gzip"] = packed.calls()
        if not calls["gzip"]:
            problems.append("gzip was not seen")
        packed.end()
    run.end()
    clean.end()
    return Prepared(scenario, expectation, calls, problems)


def clean_faults(scenario, expectation, after, answer):
    if answer["signal"] or answer["exit"] != 0:
        return [f"it ended with signal {answer['signal']}, status {answer['exit']}"]
    problems = verdict.claim_faults(scenario.order["kind"], expectation, after, answer["claim"])
    if scenario.reports is not None and sorted(expectation.reports) != sorted(scenario.reports):
        problems.append(f"reports are {sorted(expectation.reports)}, not {sorted(scenario.reports)}")
    if scenario.reports is not None and not answer["claim"]["saved"]:
        problems.append("a save without a fault failed")
    if not expectation.targets:
        problems.append("nothing was written")
    if scenarios.LIST in expectation.targets and answer["claim"]["list"] != after[scenarios.LIST].decode().splitlines():
        # A request has a time limit, which a busy machine can exceed.
        if "did not answer" in answer["claim"]["refusal"]:
            raise BenchError(answer["claim"]["refusal"])
        problems.append("the base manager was not told of the list")
    return problems + [f"{path} is left over" for path in verdict.leftovers(after)]


def faults_of(prepared, with_reading):
    for actor, calls in prepared.calls.items():
        for call in calls:
            if not call.changes and not with_reading:
                continue
            name = prepared.scenario.name
            if call.changes:
                yield Fault(name, actor, call.name, call.number, "kill")
            errors = ERRORS[family(call)] if call.name != "close" or call.changes else []
            # The error of a file system that cannot rename without replacing.
            for error in errors + (["EINVAL"] if call.name == "renameat2" else []):
                yield Fault(name, actor, call.name, call.of_files if call.name == "close" else call.number, error)
            if call.name == "write":
                yield Fault(name, actor, call.name, call.of_files, "short")
                yield Fault(name, actor, call.name, call.of_files, "full")


def changes_of(prepared, disk):
    """The calls at any of which the disk may die."""
    folder = os.path.join("/", DISKS[disk])
    return [call for call in prepared.calls["deed"]
            if call.changes and call.name in tracelog.DEADLY and call.shown.startswith(folder.rstrip("/") + "/")]


def deaths_of(prepared):
    for disk in ["root"] + (["stick"] if prepared.scenario.order.get("location") else []):
        for number in range(1, len(changes_of(prepared, disk)) + 1):
            yield Fault(prepared.scenario.name, "death", disk, number, "dead")


def call_of(prepared, fault):
    if fault.actor == "death":
        return changes_of(prepared, fault.call)[fault.number - 1]
    for call in prepared.calls[fault.actor]:
        if call.name == fault.call and fault.number == (call.of_files if fault.is_preloaded else call.number):
            return call
    return None


def expected_place(prepared, fault):
    call = call_of(prepared, fault)
    return call and (call.shown.split(" -> ")[0] if fault.actor == "death" else call.shown)


def hit_place(run, fault):
    """The call that the fault hit; None if it hit none."""
    if fault.is_preloaded:
        try:
            with open(run.preload_log, encoding="utf-8") as log:
                return tracelog.shown(log.read(), run.places)
        except FileNotFoundError:
            return None
    for call in run.calls():
        if call.name == fault.call and call.number == fault.number and (call.injected or not call.succeeded):
            return call.shown
    return None


def try_fault(bench, prepared, fault):
    """What is wrong after this fault."""
    scenario, expectation = prepared.scenario, prepared.expectation
    run = Run(bench, expectation.before)
    answer = run.save(deed_of(scenario), "new", fault)
    problems = []
    place, hit = expected_place(prepared, fault), hit_place(run, fault)
    if not place:
        problems.append("there is no such call")
    elif hit != place:
        problems.append(f"the fault did not strike {place}, but {hit}")
    problems += judge(run, prepared, answer, fault)
    problems += mend(run, prepared)
    if problems and bench.keep:
        problems.append(f"all of it is in {run.folder}")
    run.end()
    return problems


def judge(run, prepared, answer, fault):
    expectation, actual = prepared.expectation, run.state()
    problems = verdict.file_faults(expectation, actual)
    is_traced = fault and fault.actor == "deed" and not fault.is_preloaded
    if fault and fault.kind == "kill" and fault.actor == "deed":
        if answer["signal"] != signal.SIGKILL:
            problems.append("it was not killed")
        return problems + tracelog.order_faults(run.calls(), run.root, lambda _: False)
    if answer["signal"] or answer["exit"] != 0:
        return problems + [f"it ended with signal {answer['signal']}, status {answer['exit']}"]
    claim = answer["claim"]
    problems += verdict.claim_faults(prepared.scenario.order["kind"], expectation, actual, claim)
    if is_traced:
        problems += tracelog.order_faults(
            run.calls(), run.root, claimed(prepared.scenario, expectation, claim))
    if fault and fault.actor == "death":
        problems += death_faults(prepared, fault, claimed(prepared.scenario, expectation, claim))
    call = call_of(prepared, fault) if fault else None
    # Nothing can be removed from a dead disk either.
    if not call or not (fault.actor == "death" or call.name in tracelog.TIDYING or call.opens_folder):
        problems += [f"{path} is left over" for path in verdict.leftovers(actual)]
        problems += [f"{path} is left in TMPDIR" for path in run.temporaries()]
    return problems


def death_faults(prepared, fault, is_claimed):
    """Files that were reported as safe although their disk had died before the name was synced."""
    changes, problems = changes_of(prepared, fault.call), []
    for path in filter(is_claimed, prepared.expectation.targets):
        named = [number for number, call in enumerate(changes, 1)
                 if call.name in tracelog.RENAMES and call.shown.endswith(f" -> /{path}")]
        safe = [number for number, call in enumerate(changes, 1)
                if named and number > named[-1] and call.name in tracelog.SYNCS and call.shown == "/" + os.path.dirname(path)]
        if safe and fault.number <= safe[0]:
            problems.append(f"{path} was told to be saved, and its disk had died before")
    return problems


def claimed(scenario, expectation, claim):
    """Returns, for a path, whether the user or the caller was notified that the file is saved."""
    if scenario.order["kind"] == "report":
        told = {path.lstrip("/") for path in claim.get("written", [])}
        told.update(expectation.reports if claim.get("saved") else [])
        return lambda path: path in told
    return lambda path: bool(claim.get("saved")) and path in expectation.targets


def mend(run, prepared):
    """One more save, without a fault, in the folder as the fault left it."""
    answer = run.save(overwriting(prepared.scenario.order), "new")
    actual = run.state()
    problems = clean_faults(prepared.scenario, prepared.expectation, actual, answer)
    problems += [f"{path} {state}" for path, state in prepared.expectation.states(actual).items()
                 if state != "new" and path in prepared.expectation.targets or state not in ("old", "new")]
    problems += [f"{path} should have gone" for path in prepared.expectation.gone if path in actual]
    return ["after one more save: " + problem for problem in problems]


# --- Disks of limited size ---

class Disk:
    """A file system of its own at one of the places, with so much space left, or read-only."""

    SIZES = ["0", "4k", "16k", "64k", "1028k", "1040k", "1060k", "1100k", "1200k", "2m"]

    def __init__(self, run, place, size):
        self.size = size
        self.folder = {"root": run.root, "stick": os.path.join(run.root, "mnt/usb"), "tmp": run.temporary}[place]
        self.ballast = os.path.join(self.folder, "ballast")

    def mount(self):
        os.makedirs(self.folder, exist_ok=True)
        call_tool("mount", "-t", "tmpfs", "-o", "size=16m,mode=0755", "faultproof", self.folder)

    def fill(self):
        if self.size == "read-only":
            return call_tool("mount", "-o", "remount,bind,ro", self.folder)
        system = os.statvfs(self.folder)
        room = int(self.size.rstrip("km")) * {"k": 1024, "m": 1024 * 1024}.get(self.size[-1], 1)
        with open(self.ballast, "wb") as file:
            os.posix_fallocate(file.fileno(), 0, system.f_bavail * system.f_bsize - room)
        return None

    def empty(self):
        if self.size == "read-only":
            call_tool("mount", "-o", "remount,bind,rw", self.folder)
        else:
            # A process that another thread is starting may hold it open, and keep the space that the removal should free.
            os.truncate(self.ballast, 0)
            os.remove(self.ballast)

    def unmount(self):
        call_tool("umount", "-l", self.folder)


def why_no_mounts(folder):
    """The reason why file systems cannot be mounted here, or None."""
    place = os.path.join(folder, "mount")
    os.mkdir(place)
    try:
        call_tool("mount", "-t", "tmpfs", "none", place)
        call_tool("umount", place)
    except (BenchError, OSError) as error:
        return str(error)
    return None


def disk_runs(prepared):
    scenario = prepared.scenario
    places = ["root", "tmp"] + (["stick"] if scenario.order.get("location") else [])
    for place, size in itertools.product(places, Disk.SIZES + ["read-only"]):
        yield Fault(scenario.name, "disk", place, 0, size)


def try_disk(bench, prepared, fault):
    with contextlib.ExitStack() as stack:
        disks = []

        def place(run):
            disks.append(Disk(run, fault.call, fault.kind))
            disks[0].mount()
            stack.callback(disks[0].unmount)

        run = Run(bench, prepared.expectation.before, place)
        disks[0].fill()
        answer = run.save(deed_of(prepared.scenario), "new")
        disks[0].empty()
        problems = judge(run, prepared, answer, None) + mend(run, prepared)
    run.end()
    return problems


# --- All of it ---

def chosen(faults, is_long):
    """The short form has the needed faults first, then a sample that is the same each time."""
    if is_long:
        return faults
    needed = [fault for fault in faults if fault.is_needed]
    others = sorted(set(faults) - set(needed), key=lambda fault: zlib.crc32(str(fault).encode()))
    return needed + others[:OPTIONAL_IN_SHORT]


class Report:
    """The outcomes of all runs."""

    def __init__(self):
        self.lock = threading.Lock()
        self.counts = defaultdict(Counter)
        self.failures, self.known, self.not_made = [], [], []

    def add_not_made(self, fault, problem):
        """A run that the bench prevented, which is neither a success nor a failure."""
        with self.lock:
            self.not_made.append((fault, [problem]))

    def add(self, fault, problems):
        known = [problem for problem in problems if reason_for(fault, problem)]
        problems = [problem for problem in problems if problem not in known]
        column = {"kill": "kills", "dead": "deaths", "none": "none"}.get(
            fault.kind, "disks" if fault.actor == "disk" else "errors")
        with self.lock:
            if column != "none":
                self.counts[fault.scenario][column] += 1
            if known:
                self.counts[fault.scenario]["known"] += 1
                self.known.append((fault, known))
            if problems:
                self.counts[fault.scenario]["failures"] += 1
                self.failures.append((fault, problems))

    def print_table(self, prepared):
        columns = ["calls", "kills", "errors", "deaths", "disks", "known", "failures"]
        for item in prepared:
            self.counts[item.scenario.name]["calls"] = sum(
                call.changes for calls in item.calls.values() for call in calls)
        total = sum(self.counts.values(), Counter())
        print(f"{'scenario':<18}" + "".join(f"{column:>10}" for column in columns))
        for name, counts in [*self.counts.items(), ("total", total)]:
            print(f"{name:<18}" + "".join(f"{counts[column]:>10}" for column in columns))

    def print_failures(self, command, limit):
        for text, faults in _by_kind(self.not_made):
            print(f"\nNOT MADE, {len(faults)} runs: {text}\n  repeat one: {command} --repeat '{faults[0]}'")
        for text, faults in _by_kind(self.known):
            print(f"\nknown, in {len(faults)} runs: {text}\n  {reason_for(faults[0], text)}")
        kinds = _by_kind(self.failures)
        for text, faults in kinds[:limit]:
            print(f"\nFAILED in {len(faults)} runs: {text}\n  repeat one: {command} --repeat '{faults[0]}'")
        if len(kinds) > limit:
            print(f"\nand {len(kinds) - limit} other kinds of failure")


def _by_kind(failures):
    """Pairs of a kind and its faults, the most frequent first."""
    kinds = defaultdict(list)
    for fault, problems in failures:
        for text in {kind_of(problem) for problem in problems}:
            kinds[text].append(fault)
    return sorted(kinds.items(), key=lambda item: -len(item[1]))


def reason_for(fault, problem):
    """Why a failure is accepted; None if it is not."""
    return next((reason for kind, pattern, reason in KNOWN if kind == fault.kind and re.search(pattern, problem)), None)


def kind_of(problem):
    """The same for all files of a kind."""
    if "Traceback" in problem:
        return problem
    return re.sub(r"Fibre 12[.a-z]*", "REPORT", re.sub(r"/run-\d+", "/run-*", tracelog.neutral(problem)))


def find_programs(folder):
    base = os.path.abspath(folder)
    places = [base, os.path.join(base, "../../bin"), os.path.join(base, "../../lib"), os.path.join(base, "bin"),
              os.path.join(base, "lib")]
    found = {}
    for name, file in (("savescenario", "savescenario"), ("preload", "libfaultpreload.so")):
        found[name] = next((os.path.join(place, file) for place in places if os.path.exists(os.path.join(place, file))), None)
        if not found[name]:
            sys.exit(f"{file} is not built: there is none in {folder}")
    return found


def why_not_here(needs_bus):
    """What this proof needs and this machine lacks; None if nothing is missing."""
    for tool in ("strace", "qpdf", "gzip") + (("dbus-daemon", "setpriv") if needs_bus else ()):
        if not shutil.which(tool):
            return f"there is no {tool}"
    if not os.path.isdir("/proc/self/fd"):
        return "there is no /proc, which tells what a descriptor is open for"
    if subprocess.run(["strace", "-o", "/dev/null", "-f", "true"], capture_output=True, check=False).returncode != 0:
        return "processes may not be traced here"
    return None


def make_first_run(bench):
    """Raises a BenchError where processes may not be traced."""
    run = Run(bench, {})
    run.save({"kind": "settings"}, "new", actor="deed")
    if not run.calls():
        raise BenchError("strace sees no calls")
    run.end()


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n", maxsplit=1)[0])
    parser.add_argument("--programs", default=os.path.join(os.path.dirname(__file__), "../../build/dev"),
                        help="build folder")
    parser.add_argument("--long", action="store_true", help="every call, every fault")
    parser.add_argument("--seconds", type=int, default=SHORT_S, help="after which the short form tries only what it must")
    parser.add_argument("--bus", action="store_true", help="the base manager in another process, on a bus of its own")
    parser.add_argument("--only", metavar="SCENARIO,...", help="these scenarios alone")
    parser.add_argument("--list", action="store_true", help="print scenarios and their calls")
    parser.add_argument("--repeat", metavar="SCENARIO:CALL:FAULT", help="this one run")
    parser.add_argument("--keep", action="store_true", help="leave the folders of the runs")
    parser.add_argument("--jobs", type=int, default=min(2, os.cpu_count() or 1))
    parser.add_argument("--work", help="folder for the runs")
    return parser.parse_args()


def is_roomy(folder):
    if not os.access(folder, os.W_OK):
        return False
    system = os.statvfs(folder)
    return system.f_bavail * system.f_frsize >= ROOM_BYTES


def is_running(pid):
    try:
        os.kill(pid, 0)
    except ProcessLookupError:
        return False
    except PermissionError:
        pass
    return True


def working_folder(options):
    """In memory, if there is enough: the faults are injected, and need no disk. What killed runs left there is removed."""
    parent = options.work or ("/dev/shm" if is_roomy("/dev/shm") else tempfile.gettempdir())
    for name in os.listdir(parent):
        match = re.fullmatch(r"faultproof-(\d+)-\w+", name)
        if match and not is_running(int(match.group(1))):
            shutil.rmtree(os.path.join(parent, name), ignore_errors=True)
    return tempfile.mkdtemp(prefix=f"faultproof-{os.getpid()}-", dir=parent)


def parsed(text):
    scenario, call, kind = text.split(":")
    actor, name, number = call.split(".")
    return Fault(scenario, actor, name, int(number), kind)


def print_list(prepared):
    for item in prepared:
        print(item.scenario.name)
        for actor, calls in item.calls.items():
            for call in calls:
                mark = "*" if call.changes else " "
                print(f"  {mark} {actor}.{call.name}.{call.number}  {call.shown}  = {call.result}")


def insistently(bench, attempt, *arguments):
    """Returns what `attempt` returns, and repeats it when the bench fails. Raises a BenchError in the end."""
    for left in reversed(range(ATTEMPTS)):
        try:
            return attempt(bench, *arguments)
        except Exception as error:
            problem = bench_error(error)
            if problem is None:
                raise
            bench.drop_server()
            if not left:
                raise BenchError(problem) from error
    return None


def make_runs(bench, pool, faults, by_name, is_short, seconds=SHORT_S):
    """The report of all runs, and how many of them were left out for lack of time."""
    deadline, report = time.monotonic() + seconds, Report()

    def make(fault):
        is_late = is_short and time.monotonic() > deadline and not fault.is_needed
        if bench.is_ending or is_late or len(report.not_made) >= ENOUGH_BENCH_ERRORS:
            return False
        try:
            report.add(fault, insistently(bench, try_disk if fault.actor == "disk" else try_fault, by_name[fault.scenario], fault))
        except BenchError as error:
            report.add_not_made(fault, str(error))
        except Exception:  # a run that breaks the proof is a failure of that run
            report.add(fault, [traceback.format_exc()])
        return True

    try:
        made = sum(pool.map(make, faults))
    except KeyboardInterrupt:
        bench.is_ending = True
        raise
    return report, len(faults) - made


def conclude(report, missing):
    """The exit status. What was not tried is reported as skipped, and never as passed."""
    if report.failures:
        return 1
    if report.not_made:
        missing = missing + [f"{len(report.not_made)} runs that could not be made"]
    if missing:
        print("skipped in part, the rest found no failure: " + "; ".join(missing))
    return SKIPPED if missing else 0


def work(bench, options, selected):
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        prepared = list(pool.map(lambda scenario: insistently(bench, prepare, scenario), selected))
        if options.list:
            print_list(prepared)
            return 0
        missing = []
        if options.repeat:
            faults = [fault for fault in [parsed(options.repeat)] if fault.kind != "none"]
        else:
            everything = [fault for item in prepared for fault in (*faults_of(item, True), *deaths_of(item))]
            reason = why_no_mounts(bench.folder)
            if reason:
                missing.append(f"full and read-only disks, because nothing can be mounted here ({reason})")
            else:
                everything += [fault for item in prepared for fault in disk_runs(item)]
            faults = chosen(everything, options.long)
        by_name = {item.scenario.name: item for item in prepared}
        is_short = not options.long and not options.repeat
        report, left_out = make_runs(bench, pool, faults, by_name, is_short, options.seconds)
    for item in prepared:
        if item.problems:
            report.add(Fault(item.scenario.name, "deed", "none", 0, "none"), item.problems)
    report.print_table(prepared)
    if left_out:
        print(f"{left_out} of {len(faults)} runs were left out: no time was left for them, or the bench kept failing")
    report.print_failures(f"{sys.argv[0]} --programs {options.programs}" + (" --bus" if options.bus else ""), 40)
    return conclude(report, missing)


def enter_own_mounts():
    """Continues with private mounts, which end with this process, if that is allowed."""
    if os.environ.get("FAULTPROOF_MOUNTS"):
        return
    os.environ["FAULTPROOF_MOUNTS"] = "own"
    command = ["unshare", "-m" if os.geteuid() == 0 else "-rm"]
    if shutil.which("unshare") and subprocess.run([*command, "true"], capture_output=True, check=False).returncode == 0:
        os.execvp("unshare", [*command, sys.executable, *sys.argv])


def main():
    options = arguments()
    enter_own_mounts()
    reason = why_not_here(options.bus)
    if reason:
        print(f"skipped: {reason}")
        return SKIPPED
    wanted = (options.only or (options.repeat or "").split(":")[0]).split(",")
    selected = [scenario for scenario in scenarios.all_scenarios() if wanted == [""] or scenario.name in wanted]
    if not selected:
        sys.exit(f"there is no scenario {','.join(wanted)}")
    folder = working_folder(options)
    programs = {**find_programs(options.programs), "arguments": ["bus"] if options.bus else []}
    bench = Bench(programs, folder, options.keep)
    started, is_running_well = time.monotonic(), False
    # The folder is removed then, too.
    signal.signal(signal.SIGTERM, lambda *_: os.kill(os.getpid(), signal.SIGINT))
    try:
        make_first_run(bench)
        is_running_well = True
        return work(bench, options, selected)
    except BenchError as error:
        # The library may have ended a server that does not even begin.
        if isinstance(error, ServerEnded) and not is_running_well:
            print(f"FAILED before anything was saved: {error}")
            return 1
        print(f"skipped: {error}")
        return SKIPPED
    except KeyboardInterrupt:
        print("stopped")
        return 1
    finally:
        bench.close()
        print(f"\n{time.monotonic() - started:.0f} s")
        if options.keep:
            print(f"kept: {folder}")
        else:
            shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
