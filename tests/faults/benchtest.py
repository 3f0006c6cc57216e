#!/usr/bin/env python3
"""An error of the bench is neither a failure of the library nor a success: mistakes here would hide one or invent one."""

import concurrent.futures
import contextlib
import errno
import io
import os
import sys
import tempfile
import types
import unittest
from unittest import mock

sys.dont_write_bytecode = True
import faultproof  # noqa: E402

FAULT = faultproof.Fault("text-over", "deed", "rename", 1, "kill")


class Tools(unittest.TestCase):
    """A replacement of mount, which fails with a message so often before it succeeds."""

    def calls_of_mount(self, words, times):
        with tempfile.TemporaryDirectory() as folder:
            script, log = os.path.join(folder, "mount"), os.path.join(folder, "log")
            with open(script, "w", encoding="ascii") as file:
                file.write(f'#!/bin/sh\necho >>{log}\n[ $(wc -l <{log}) -gt {times} ] || {{ echo "mount: /x: {words}." >&2; exit 32; }}\n')
            os.chmod(script, 0o755)
            with mock.patch.dict(os.environ, PATH=folder + ":" + os.environ["PATH"]):
                try:
                    faultproof.call_tool("mount", "/x")
                    problem = None
                except faultproof.BenchError as error:
                    problem = str(error)
            with open(log, encoding="ascii") as file:
                return len(file.readlines()), problem

    def test_a_busy_mount_point_is_waited_for(self):
        self.assertEqual(self.calls_of_mount("mount point is busy", 3), (4, None))
        self.assertEqual(self.calls_of_mount("permission denied", 3), (1, "mount /x: mount: /x: permission denied."))
        with mock.patch.object(faultproof, "BUSY_S", 0):
            self.assertEqual(self.calls_of_mount("mount point is busy", 9)[1], "mount /x: mount: /x: mount point is busy.")


class Runs(unittest.TestCase):
    """Runs with invented outcomes."""

    def status_of(self, outcomes, missing=()):
        """The exit status, the number of runs that counted and the servers; an outcome is an exception, or a list of problems."""
        outcomes, dropped = iter(outcomes), []
        bench = types.SimpleNamespace(is_ending=False, drop_server=lambda: dropped.append(1))

        def attempt(*_):
            outcome = next(outcomes)
            if isinstance(outcome, Exception):
                raise outcome
            return outcome

        with mock.patch.object(faultproof, "try_fault", attempt), contextlib.redirect_stdout(io.StringIO()), \
                concurrent.futures.ThreadPoolExecutor(1) as pool:
            report, _ = faultproof.make_runs(bench, pool, [FAULT] * 2, {FAULT.scenario: None}, False)
            status = faultproof.conclude(report, list(missing))
        self.assertIsNone(next(outcomes, None), "not all was tried")
        return status, report.counts[FAULT.scenario]["kills"], len(dropped)

    def test_what_becomes_of_a_run(self):
        busy, full = faultproof.BenchError("mount point is busy"), OSError(errno.ENOSPC, "full")
        skipped = faultproof.SKIPPED
        for name, outcomes, expected in (
                ("well", [[], []], (0, 2, 0)),
                ("bench mended", [busy, full, [], []], (0, 2, 2)),
                ("bench not mended", [busy] * faultproof.ATTEMPTS + [[]], (skipped, 1, 3)),
                ("failure beside it", [busy] * faultproof.ATTEMPTS + [["the old file is lost"]], (1, 1, 3)),
                ("failure after it", [busy, ["the old file is lost"], []], (1, 2, 1)),
                ("not the bench's", [KeyError("claim"), []], (1, 2, 0)),
                ("nor this", [OSError(errno.EACCES, "a file that cannot be read"), []], (1, 2, 0))):
            with self.subTest(name):
                self.assertEqual(self.status_of(outcomes), expected)
        self.assertEqual(self.status_of([[], []], ["full disks"]), (skipped, 2, 0))
        self.assertEqual(self.status_of([["lost"], []], ["full disks"]), (1, 2, 0))


if __name__ == "__main__":
    unittest.main()
