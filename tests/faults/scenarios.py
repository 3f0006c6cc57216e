"""What is saved, and what exists before."""

import json
import zlib
from dataclasses import dataclass, field

FORMATS = {"pdf": 0, "xml": 1, "html": 2, "text": 3, "json": 4, "all": 5}
SUFFIXES = {"pdf": [".pdf"], "xml": [".xml"], "html": [".html"], "text": [".txt"], "json": [".json"],
            "all": [".pdf", ".xml", ".html", ".txt", ".json"]}
INTERNAL = "cust/public/reports/otdr/Fibre 12"
STICK = "mnt/usb/Fibre 12"
LIST = "cust/private/lastconfigs/base/basemgr/system/nosync_fileList.txt"

DRAFT = "cust/private/drafts/savescenario/otdr/20260102-030405-000.draft"

# Files that must not be touched, in a folder of other reports and in that of these.
BYSTANDERS = {"cust/public/reports/ethernet/Link 3.xml": b"<link/>\n",
              "cust/private/lastconfigs/reportSettings/ethernet.json": b"{}\n"}
NEIGHBOURS = {"cust/public/reports/otdr/Fibre 11.pdf": b"%PDF-1.4 of another fibre\n%%EOF\n",
              "cust/public/reports/otdr/Fibre 11.txt.gz": b"not ours to judge\n",
              "mnt/usb/Fibre 11.xml": b"<fibre/>\n"}
# Reports that are in the no-sync list already.
KEPT = {LIST: b"/cust/public/reports/otdr/Fibre 11.pdf\n/cust/public/reports/otdr/Fibre 11.json\n"}


def _draft():
    packed = zlib.compress(b'{"variant":"old"}\n{}\n{}\n')
    header = {"version": 1, "size": len(packed), "savedAt": "2026-01-02T03:04:05.000Z", "title": ""}
    return json.dumps(header).encode() + b"\n" + packed


@dataclass
class Scenario:
    name: str
    order: dict
    # The order that creates what exists before; None for a first save.
    prior: dict = None
    # Reports that exist after a clean save, without the folder of the instrument; None for other files.
    reports: list = None
    files: dict = field(default_factory=dict)


# More than the free space that a save requires to begin: such a report fills a disk in the middle of its writes.
LARGE = 1_200_000


def _report(format_name, compressed=False, location=0, sync=True, filler=0):
    order = {"kind": "report", "format": FORMATS[format_name], "compressed": compressed, "location": location,
             "stick": location != 0, "sync": sync, "filler": filler}
    stems = {0: [INTERNAL], 1: [STICK], 2: [INTERNAL, STICK]}[location]
    end = ".gz" if compressed else ""
    return order, [stem + suffix + end for stem in stems for suffix in SUFFIXES[format_name]]


def _pair(name, order, reports):
    """The first save, and the one that overwrites."""
    return [Scenario(name + "-first", order, None, reports, dict(BYSTANDERS)),
            Scenario(name + "-over", order, dict(order), reports, {**BYSTANDERS, **NEIGHBOURS, **KEPT})]


def all_scenarios():
    scenarios = []
    for name in FORMATS:
        scenarios += _pair(name, *_report(name))
    scenarios += _pair("text-gz", *_report("text", compressed=True))
    scenarios += _pair("pdf-gz", *_report("pdf", compressed=True))
    scenarios += _pair("usb-text", *_report("text", location=1))
    scenarios += _pair("usb-pdf", *_report("pdf", location=1))
    scenarios += _pair("both-text", *_report("text", location=2))
    scenarios += _pair("both-pdf", *_report("pdf", location=2))
    scenarios += _pair("both-gz", *_report("text", compressed=True, location=2))
    scenarios += _pair("both-all", *_report("all", location=2))
    scenarios += _pair("unsynced", *_report("text", sync=False))

    scenarios += _pair("large-text", *_report("text", filler=LARGE))
    scenarios += _pair("large-gz", *_report("text", compressed=True, filler=LARGE))[1:]
    scenarios += _pair("large-both", *_report("text", location=2, filler=LARGE))

    # A report is removed from the no-sync list.
    order, reports = _report("text")
    kept = {**order, "sync": False}
    everything = {**BYSTANDERS, **NEIGHBOURS, **KEPT}
    scenarios.append(Scenario("synced-again", order, kept, reports, everything))
    # Compression is switched on: the plain form of the report is removed.
    order, reports = _report("text", compressed=True)
    scenarios.append(Scenario("text-gz-plain", order, {**order, "compressed": False}, reports, everything))

    for kind in ("settings", "record", "list"):
        scenarios += _pair(kind, {"kind": kind}, None)
    scenarios.append(Scenario("draft-over", {"kind": "draft"}, None, None, {**BYSTANDERS, DRAFT: _draft()}))
    for scenario in scenarios:
        if scenario.order["kind"] != "report" and scenario.prior is not None:
            scenario.files.update(KEPT)
    return scenarios
