"""A program under a display and buses of its own, seen as a screen reader sees it."""

import collections
import ctypes
import os
import shutil
import signal
import subprocess
import tempfile
import time

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
HAND = "org.a11y.atspi.DeviceEventController"
PROPERTIES = "org.freedesktop.DBus.Properties"
REGISTRY = "org.a11y.atspi.Registry"
TEXT = "org.a11y.atspi.Text"
VALUE = "org.a11y.atspi.Value"
ROOT = "/org/a11y/atspi/accessible/root"

# Numbers of states on the bus.
STATES = {4: "checked", 7: "editable", 8: "enabled", 9: "expandable", 10: "expanded", 11: "focusable", 12: "focused", 16: "modal",
          22: "selectable", 23: "selected", 24: "sensitive", 25: "showing", 30: "visible", 41: "checkable", 44: "read-only"}
# Key symbols of X.
TAB, SPACE, ESCAPE = 0xff09, 0x20, 0xff1b
SYMBOL = 3
# Seconds. Whoever waits so long has waited in vain.
PATIENCE = 60
# What a program answers about an object that was deleted after it had been named.
GONE = {"org.freedesktop.DBus.Error." + name for name in ("UnknownObject", "UnknownMethod", "UnknownInterface", "UnknownProperty")}

BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:tmpdir={folder}</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy></busconfig>
"""


# What a program said by itself: "PropertyChange", where, "accessible-name".
Event = collections.namedtuple("Event", "name path kind")


class Guide(dbus.service.Object):
    """Where programs find the bus of accessibility: here it is the same bus. Qt 5 loses its own registration where accessibility is on
    when a program starts, so it is off until the program has asked, and comes on when this service comes again."""

    def __init__(self, connection, address):
        super().__init__(connection, "/org/a11y/bus")
        self.bus, self.address, self.denied = connection, address, set()
        self.bus.request_name("org.a11y.Bus")

    @dbus.service.method("org.a11y.Bus", out_signature="s")
    def GetAddress(self):
        return self.address

    @dbus.service.method(PROPERTIES, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        if len(self.denied) == 2:
            return True
        self.denied.add(name)
        if len(self.denied) == 2:
            GLib.idle_add(self.come_again)
        return False

    def come_again(self):
        self.bus.release_name("org.a11y.Bus")
        self.bus.request_name("org.a11y.Bus")


class Node:
    """One object of the tree, as it was when it was read."""

    def __init__(self, desk, name, path, parent=None):
        self.desk, self.bus, self.path, self.parent = desk, name, path, parent
        self.object = desk.bus.get_object(name, path, introspect=False)
        self.interfaces = [str(i) for i in self.call(ACCESSIBLE, "GetInterfaces")]
        self.role = str(self.call(ACCESSIBLE, "GetRoleName"))
        self.name = str(self.get(ACCESSIBLE, "Name"))
        self.description = str(self.get(ACCESSIBLE, "Description"))
        low, high = self.call(ACCESSIBLE, "GetState")
        self.states = {text for number, text in STATES.items() if (low | high << 32) >> number & 1}
        self.children = []

    def call(self, interface, member, *arguments):
        return self.object.get_dbus_method(member, interface)(*arguments, timeout=PATIENCE)

    def get(self, interface, member):
        return self.call(PROPERTIES, "Get", interface, member)

    @property
    def value(self):
        return float(self.get(VALUE, "CurrentValue")) if VALUE in self.interfaces else None

    @property
    def text(self):
        return str(self.call(TEXT, "GetText", 0, -1)) if TEXT in self.interfaces else ""

    @property
    def box(self):
        """x, y, width, height on the screen."""
        return tuple(int(n) for n in self.call(COMPONENT, "GetExtents", dbus.UInt32(0)))

    def read(self, is_wanted):
        for name, path in self.call(ACCESSIBLE, "GetChildren"):
            child = Node(self.desk, name, path, self)
            if is_wanted(child):
                self.children.append(child.read(is_wanted))
        return self

    def all(self):
        yield self
        for child in self.children:
            yield from child.all()

    def action(self, *names):
        """The number of the action of that name; None for none."""
        actions = self.call(ACTION, "GetActions") if ACTION in self.interfaces else []
        return next((number for number, action in enumerate(actions) if str(action[0]).lower() in names), None)

    def can_be_pressed(self):
        return self.action("press", "toggle") is not None

    def press(self):
        self.do("press", "toggle")

    def do(self, *names):
        number = self.action(*names)
        if number is None:
            raise LookupError(f"{self} has no action {names[0]!r}")
        self.call(ACTION, "DoAction", dbus.Int32(number))

    def __str__(self):
        line = f"{self.role} {self.name!r}"
        if self.description:
            line += f" ({self.description})"
        if self.value is not None:
            line += f" = {self.value:g}"
        if self.text and self.text != self.name:
            line += f" text {self.text!r}"
        return line + " " + " ".join(sorted(self.states - {"enabled", "sensitive", "showing", "visible"}))


class Desk:
    """Display, bus, registry and program; all end with the desk, and nothing of them is seen from outside."""

    registry = "/usr/libexec/at-spi2-registryd"

    def __init__(self):
        self.folder = tempfile.mkdtemp(prefix="uiutils-desk-")
        self.children = []
        self.events = []

    def __enter__(self):
        try:
            # The registry passes no keys on where this one is set, be it empty.
            inherited = {name: value for name, value in os.environ.items() if name != "WAYLAND_DISPLAY"}
            self.environment = dict(inherited, DISPLAY=self.start_display(), XDG_RUNTIME_DIR=self.folder)
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.start_bus()
            self.start_registry()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for child in reversed(self.children):
            child.terminate()
        for child in self.children:
            try:
                child.wait(PATIENCE)
            except subprocess.TimeoutExpired:
                child.kill()
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, command, **options):
        # However this process ends, what it started ends too.
        end_with_parent = lambda: ctypes.CDLL(None).prctl(1, signal.SIGKILL)
        child = subprocess.Popen(command, preexec_fn=end_with_parent, stdin=subprocess.DEVNULL, **options)
        self.children.append(child)
        return child

    def start_display(self):
        """Displays that start at the same moment may be after the same number: another one is tried."""
        for _ in range(5):
            reading, writing = os.pipe()
            self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x1000x24", "-nolisten", "tcp"],
                       pass_fds=[writing], stderr=subprocess.DEVNULL)
            os.close(writing)
            with os.fdopen(reading) as answer:
                number = answer.readline().strip()
            if number:
                return ":" + number
        raise RuntimeError("Xvfb does not start")

    def start_bus(self):
        configuration = os.path.join(self.folder, "bus.conf")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(BUS.format(folder=self.folder))
        daemon = self.start(["dbus-daemon", "--nofork", "--nopidfile", "--print-address", "--config-file=" + configuration],
                            stdout=subprocess.PIPE, text=True)
        address = daemon.stdout.readline().strip()
        self.bus = dbus.bus.BusConnection(address)
        self.guide = Guide(self.bus, address)
        return address

    def start_registry(self):
        self.start([self.registry], env=self.environment, stdout=subprocess.DEVNULL)
        self.wait(lambda: self.bus.name_has_owner(REGISTRY), "the registry")
        self.bus.add_signal_receiver(self.note, path_keyword="path", interface_keyword="interface", member_keyword="member")

    def note(self, *arguments, path, interface, member):
        if interface and interface.startswith("org.a11y.atspi.Event."):
            self.events.append(Event(member, str(path), str(arguments[0])))

    def run(self, command, **environment):
        """Starts a program and returns its object in the tree when it has come."""
        program = self.start(command, env={**self.environment, "QT_QPA_PLATFORM": "xcb", "QT_QUICK_BACKEND": "software", **environment})
        def is_there():
            if program.poll() is not None:
                raise RuntimeError(f"the program ended with {program.returncode}")
            return self.programs()
        self.wait(is_there, "the program in the tree")
        # Without a window manager keys go to the window below the pointer.
        self.hand().GenerateMouseEvent(dbus.Int32(2), dbus.Int32(2), "abs")
        # Programs send what somebody has asked for.
        self.bus.get_object(REGISTRY, "/org/a11y/atspi/registry", introspect=False).RegisterEvent(
            "object:", dbus.Array([], "s"), "", dbus_interface=REGISTRY)
        return self.programs()[0]

    def programs(self):
        return [(str(name), str(path)) for name, path in
                self.bus.get_object(REGISTRY, ROOT, introspect=False).GetChildren(dbus_interface=ACCESSIBLE)]

    def tree(self, program, is_wanted=lambda node: "showing" in node.states):
        """All that shows of the program. Pages change while they are read: what names an object that is gone is read again."""
        root = []
        def is_read():
            try:
                root[:] = [Node(self, *program).read(is_wanted)]
            except dbus.DBusException as error:
                if error.get_dbus_name() not in GONE:
                    raise
            return bool(root)
        self.wait(is_read, "a tree of objects that all exist")
        return root[0]

    def hand(self):
        return dbus.Interface(self.bus.get_object(REGISTRY, "/org/a11y/atspi/registry/deviceeventcontroller", introspect=False), HAND)

    def key(self, symbol):
        self.hand().GenerateKeyboardEvent(dbus.Int32(symbol), "", dbus.UInt32(SYMBOL))

    def wait(self, is_done, what, patience=PATIENCE):
        end = time.monotonic() + patience
        # Wakes the loop also when nothing happens.
        alarm = GLib.timeout_add(20, lambda: True)
        try:
            while not is_done():
                if time.monotonic() > end:
                    raise TimeoutError(f"waited in vain for {what}")
                GLib.MainContext.default().iteration(True)
        finally:
            GLib.source_remove(alarm)
