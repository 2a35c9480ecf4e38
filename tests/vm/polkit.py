#!/usr/bin/env python3
"""polkit's place on the system bus: prints each question, and answers the last one as standard input says ("yes", "no",
"nobody", which is that it could ask nobody). Prints when whoever asked has left the bus."""

import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

INTERFACE = "org.freedesktop.PolicyKit1.Authority"
ANSWERS = {"yes": (True, False), "no": (False, False), "nobody": (False, True)}


class Authority(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(bus, "/org/freedesktop/PolicyKit1/Authority")
        self._bus = bus
        self._reply = None

    @dbus.service.method(
        INTERFACE,
        in_signature="(sa{sv})sa{ss}us",
        out_signature="(bba{ss})",
        sender_keyword="sender",
        async_callbacks=("reply", "_error"),
    )
    def CheckAuthorization(self, subject, action, _details, flags, _cancellation, sender, reply, _error):
        kind, facts = subject
        print(f"asked about {kind} {facts['pid']} of {facts['uid']}: {action}, flags {flags}", flush=True)
        self._reply = reply
        self._bus.watch_name_owner(sender, lambda owner: owner or print("whoever asked has left", flush=True))

    def answer(self, channel, _condition):
        line = channel.readline()
        if not line:
            return False
        self._reply((*ANSWERS[line.strip()], dbus.Dictionary(signature="ss")))
        return True


def main() -> None:
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SystemBus()
    authority = Authority(bus)
    name = dbus.service.BusName("org.freedesktop.PolicyKit1", bus)
    GLib.io_add_watch(GLib.IOChannel.unix_new(sys.stdin.fileno()), GLib.IO_IN, authority.answer)
    print(f"serving as {name.get_name()}", flush=True)
    GLib.MainLoop().run()


main()
