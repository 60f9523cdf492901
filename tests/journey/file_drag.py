# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Drags a file onto a window as a file manager does, by the protocol that X programs have agreed on for it (XDND 5)."""

import ctypes
import time
from ctypes import POINTER, Structure, Union, byref, c_char_p, c_int, c_long, c_ulong, c_void_p
from pathlib import Path

from session import PATIENCE, Failure

VERSION = 5
SELECTION_REQUEST, SELECTION_NOTIFY, CLIENT_MESSAGE = 30, 31, 33
REPLACE = 0
HEAD = [("type", c_int), ("serial", c_ulong), ("sent", c_int), ("display", c_void_p)]


class ClientMessage(Structure):
    _fields_ = HEAD + [("window", c_ulong), ("message", c_ulong), ("format", c_int), ("data", c_long * 5)]


class SelectionRequest(Structure):
    _fields_ = HEAD + [(name, c_ulong) for name in ("owner", "requestor", "selection", "target", "property", "time")]


class SelectionNotify(Structure):
    _fields_ = HEAD + [(name, c_ulong) for name in ("requestor", "selection", "target", "property", "time")]


class Event(Union):
    _fields_ = [("type", c_int), ("client", ClientMessage), ("request", SelectionRequest), ("notify", SelectionNotify),
                ("room", c_long * 24)]


def library():
    x = ctypes.CDLL("libX11.so.6")
    x.XOpenDisplay.restype = c_void_p
    x.XOpenDisplay.argtypes = [c_char_p]
    for name in ("XInternAtom", "XDefaultRootWindow", "XCreateSimpleWindow"):
        getattr(x, name).restype = c_ulong
    x.XInternAtom.argtypes = [c_void_p, c_char_p, c_int]
    x.XDefaultRootWindow.argtypes = x.XFlush.argtypes = x.XPending.argtypes = x.XCloseDisplay.argtypes = [c_void_p]
    x.XCreateSimpleWindow.argtypes = [c_void_p, c_ulong, c_int, c_int, c_int, c_int, c_int, c_ulong, c_ulong]
    x.XSetSelectionOwner.argtypes = [c_void_p, c_ulong, c_ulong, c_ulong]
    x.XSendEvent.argtypes = [c_void_p, c_ulong, c_int, c_long, POINTER(Event)]
    x.XNextEvent.argtypes = [c_void_p, POINTER(Event)]
    x.XChangeProperty.argtypes = [c_void_p, c_ulong, c_ulong, c_ulong, c_int, c_int, c_char_p, c_int]
    return x


class FileDrag:
    def __init__(self, display, window, path):
        self.x = library()
        self.display = self.x.XOpenDisplay(display.encode())
        self.target = window
        self.list = (Path(path).as_uri() + "\r\n").encode()
        root = self.x.XDefaultRootWindow(self.display)
        self.source = self.x.XCreateSimpleWindow(self.display, root, 0, 0, 1, 1, 0, 0, 0)
        self.x.XSetSelectionOwner(self.display, self.atom("XdndSelection"), self.source, 0)

    def atom(self, name):
        return self.x.XInternAtom(self.display, name.encode(), 0)

    def drop(self, point):
        """Whether the window has taken the file."""
        try:
            self.send("XdndEnter", VERSION << 24, self.atom("text/uri-list"))
            self.send("XdndPosition", 0, point[0] << 16 | point[1], 0, self.atom("XdndActionCopy"))
            accepted = self.answer("XdndStatus") & 1
            if not accepted:
                self.send("XdndLeave")
                return False
            self.send("XdndDrop")
            return bool(self.answer("XdndFinished") & 1)
        finally:
            self.x.XCloseDisplay(self.display)

    def send(self, message, *data):
        event = Event()
        event.client = ClientMessage(CLIENT_MESSAGE, 0, 1, self.display, self.target, self.atom(message), 32,
                                     (c_long * 5)(self.source, *data))
        self.x.XSendEvent(self.display, self.target, 0, 0, byref(event))
        self.x.XFlush(self.display)

    def answer(self, message):
        """Waits for a message of the window and gives its flags; tells the files meanwhile, when asked for them."""
        wanted, end = self.atom(message), time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if not self.x.XPending(self.display):
                time.sleep(0.02)
                continue
            event = Event()
            self.x.XNextEvent(self.display, byref(event))
            if event.type == SELECTION_REQUEST:
                self.tell(event.request)
            elif event.type == CLIENT_MESSAGE and event.client.message == wanted:
                return event.client.data[1]
        raise Failure(f"no {message} from the window")

    def tell(self, request):
        self.x.XChangeProperty(self.display, request.requestor, request.property, request.target, 8, REPLACE, self.list,
                               len(self.list))
        event = Event()
        event.notify = SelectionNotify(SELECTION_NOTIFY, 0, 1, self.display, request.requestor, request.selection,
                                       request.target, request.property, request.time)
        self.x.XSendEvent(self.display, request.requestor, 0, 0, byref(event))
        self.x.XFlush(self.display)
