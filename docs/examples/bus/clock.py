#!/usr/bin/env python3
"""The service "clock", written without the library: it counts seconds, and its step can be set."""

import random

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

INTERFACE = "org.uiutils.kiv.Service"
PROPERTIES = {"Version": "1.0", "Name": "clock", "Mounts": dbus.Array([], "s")}
SECONDS, STEP = 1, 2  # the numbers of the items
VALUE = 1  # the code of the field


class Rejected(dbus.DBusException):
    _dbus_error_name = "org.uiutils.kiv.Error.Rejected"


class Clock(dbus.service.Object):
    generation = dbus.UInt64(random.getrandbits(64))
    values = {SECONDS: dbus.Int32(0), STEP: dbus.Int32(1)}
    serials = {}  # of the last signal, by subscriber

    @dbus.service.method(INTERFACE, in_signature="suu", out_signature="tta(usa{sv})u", sender_keyword="sender")
    def GetItems(self, prefix, start, count, sender):
        items = [(SECONDS, ":result:clock:seconds:", {"type": "int", "value": self.values[SECONDS], "unit": "s"}),
                 (STEP, ":config:clock:step:", {"type": "int", "value": self.values[STEP], "label": "Step"})]
        found = [item for item in items[start:] if item[1].startswith(prefix)]
        return self.generation, self.serials.get(sender, 0), dbus.Array(found, "(usa{sv})"), 0

    @dbus.service.method(INTERFACE, out_signature="t", sender_keyword="sender")
    def Subscribe(self, sender):
        self.serials[sender] = 0
        return self.generation

    @dbus.service.method(INTERFACE, sender_keyword="sender")
    def Unsubscribe(self, sender):
        self.serials.pop(sender, None)

    @dbus.service.method(INTERFACE, in_signature="t")
    def Acknowledge(self, serial):
        pass  # One signal a second needs no limit.

    @dbus.service.method(INTERFACE, in_signature="sv")
    def SetItem(self, name, value):
        if name != ":config:clock:step:" or not 1 <= int(value) <= 60:
            raise Rejected("Step takes 1 to 60 seconds; nothing else can be set.")
        self.report(STEP, dbus.Int32(int(value)))

    @dbus.service.method(INTERFACE, in_signature="ss", out_signature="s")
    def SendAction(self, name, argument):
        raise Rejected("The clock has no actions.")

    @dbus.service.method("org.freedesktop.DBus.Properties", in_signature="s", out_signature="a{sv}")
    def GetAll(self, interface):
        return PROPERTIES

    def report(self, number, value):
        self.values[number] = value
        for subscriber in list(self.serials):
            self.serials[subscriber] += 1
            signal = dbus.lowlevel.SignalMessage(self.__dbus_object_path__, INTERFACE, "ItemsChanged")
            signal.append(self.generation, self.serials[subscriber], [(number, VALUE, value)], signature="tta(uyv)")
            signal.set_destination(subscriber)
            self.connection.send_message(signal)

    def tick(self):
        self.report(SECONDS, dbus.Int32(self.values[SECONDS] + self.values[STEP]))
        return True


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus()
clock = Clock(bus, "/org/uiutils/kiv/clock")
name = dbus.service.BusName("org.uiutils.kiv.clock", bus)
bus.add_signal_receiver(lambda who, old, new: new or clock.serials.pop(who, None), "NameOwnerChanged")
GLib.timeout_add_seconds(1, clock.tick)
GLib.MainLoop().run()
