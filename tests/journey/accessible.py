# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The accessibility tree of a program, read straight from the bus, so that nothing is cached and nothing is stale."""

from dataclasses import dataclass

from gi.repository import Gio, GLib

ACCESSIBLE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
TABLE = "org.a11y.atspi.Table"
TEXT = "org.a11y.atspi.Text"
PROPERTIES = "org.freedesktop.DBus.Properties"

STATES = {"active": 1, "checked": 4, "editable": 7, "enabled": 8, "expanded": 10, "focused": 12, "pressed": 20,
          "selected": 23, "showing": 25, "visible": 30}
SCREEN = 0  # coordinates are those of the screen
TIME_LIMIT = 20_000  # milliseconds for one answer of the program


class Gone(Exception):
    """The object is no more, or its program does not answer."""


@dataclass(frozen=True)
class Box:
    """A rectangle on the screen."""

    x: int
    y: int
    width: int
    height: int

    @property
    def middle(self):
        return self.x + self.width // 2, self.y + self.height // 2

    def holds(self, other):
        return (self.x <= other.x and self.y <= other.y and other.x + other.width <= self.x + self.width
                and other.y + other.height <= self.y + self.height)


class Bus:
    """The accessibility bus of a session."""

    def __init__(self, session_address):
        session = self._connect(session_address)
        reply = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                  Gio.DBusCallFlags.NONE, TIME_LIMIT, None)
        session.close_sync(None)
        self.connection = self._connect(reply.unpack()[0])

    @staticmethod
    def _connect(address):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)

    def close(self):
        self.connection.close_sync(None)

    def call(self, owner, path, interface, method, arguments=None):
        try:
            return self.connection.call_sync(owner, path, interface, method, arguments, None,
                                             Gio.DBusCallFlags.NONE, TIME_LIMIT, None).unpack()
        except GLib.Error as error:
            raise Gone(f"{interface}.{method} on {path}: {error.message}") from error

    def announcements(self, role):
        """From now on, the names of the objects of this role that come on view, as a screen reader is told of them."""
        return Announcements(self, role)

    def application(self, pid):
        """The root of the program with this process id, or None while it has not come."""
        try:
            programs = self.call("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root", ACCESSIBLE, "GetChildren")
            for owner, path in programs[0]:
                process = self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                    "GetConnectionUnixProcessID", GLib.Variant("(s)", (owner,)))
                if process[0] == pid:
                    return Accessible(self, owner, path)
        except Gone:
            pass
        return None


class Announcements:
    def __init__(self, bus, role):
        self.bus, self.role, self.names = bus, role, []
        bus.call("org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry", "RegisterEvent",
                 GLib.Variant("(sass)", ("object:state-changed:showing", [], "")))
        bus.connection.signal_subscribe(None, "org.a11y.atspi.Event.Object", "StateChanged", None, "showing",
                                        Gio.DBusSignalFlags.NONE, self._note)

    def _note(self, _connection, owner, path, _interface, _signal, arguments):
        if not arguments[1]:
            return
        try:
            told = Accessible(self.bus, owner, path)
            if told.role == self.role:
                self.names.append(told.name)
        except Gone:
            pass

    def heard(self):
        """All names so far."""
        while GLib.MainContext.default().iteration(False):
            pass
        return self.names


@dataclass(frozen=True)
class Accessible:
    """One object of the tree. Every property is asked for anew."""

    bus: Bus
    owner: str
    path: str

    def _call(self, interface, method, *arguments):
        variant = GLib.Variant(f"({'i' * len(arguments)})", arguments) if arguments else None
        return self.bus.call(self.owner, self.path, interface, method, variant)

    def _property(self, interface, name):
        return self.bus.call(self.owner, self.path, PROPERTIES, "Get", GLib.Variant("(ss)", (interface, name)))[0]

    @property
    def name(self):
        return self._property(ACCESSIBLE, "Name")

    @property
    def role(self):
        return self._call(ACCESSIBLE, "GetRoleName")[0]

    @property
    def states(self):
        low, high = self._call(ACCESSIBLE, "GetState")[0]
        bits = low | high << 32
        return {name for name, bit in STATES.items() if bits >> bit & 1}

    @property
    def children(self):
        return [Accessible(self.bus, owner, path) for owner, path in self._call(ACCESSIBLE, "GetChildren")[0]]

    @property
    def box(self):
        reply = self.bus.call(self.owner, self.path, COMPONENT, "GetExtents", GLib.Variant("(u)", (SCREEN,)))
        return Box(*reply[0])

    @property
    def text(self):
        """The text of a box that can be written in; a combo box says the chosen item in its name."""
        return self._call(TEXT, "GetText", 0, -1)[0]

    @property
    def size(self):
        """Rows and columns of a table."""
        return self._property(TABLE, "NRows"), self._property(TABLE, "NColumns")

    def cell(self, row, column):
        owner, path = self._call(TABLE, "GetAccessibleAt", row, column)[0]
        return Accessible(self.bus, owner, path)

    def walk(self, depth=0):
        """All objects on view below this one; cells of tables are left out."""
        for child in self.children:
            try:
                if "showing" not in child.states:
                    continue
                role = child.role
            except Gone:
                continue
            yield child, role, depth
            if role != "table":
                yield from child.walk(depth + 1)
