# SPDX-License-Identifier: GPL-3.0-or-later
"""Whether a window is alive, as a window manager finds out."""

import ctypes
import select
import time


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("client", ClientMessage), ("pad", ctypes.c_long * 24)]


class Desktop:
    """Puts the question, and hears the answers at the root window."""

    CLIENT_MESSAGE = 33
    STRUCTURE_NOTIFY = 1 << 17
    NO_MATTER = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(lambda *_: 0)

    def __init__(self):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XInternAtom.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.root = self.x11.XDefaultRootWindow(self.display)
        self.protocols = self.atom("WM_PROTOCOLS")
        self.ping = self.atom("_NET_WM_PING")
        self.x11.XSelectInput(self.display, ctypes.c_ulong(self.root),
                              ctypes.c_long(self.STRUCTURE_NOTIFY))
        # A window may go while it is asked, and that ends nobody.
        self.x11.XSetErrorHandler(self.NO_MATTER)

    def atom(self, name):
        return self.x11.XInternAtom(self.display, name.encode(), 0)

    def ask(self, window, stamp):
        event = Event()
        event.client.type = self.CLIENT_MESSAGE
        event.client.window = window
        event.client.message_type = self.protocols
        event.client.format = 32
        event.client.data[0] = self.ping
        event.client.data[1] = stamp
        event.client.data[2] = window
        self.x11.XSendEvent(self.display, ctypes.c_ulong(window), 0, ctypes.c_long(0),
                            ctypes.byref(event))
        self.x11.XFlush(self.display)

    def answers(self, seconds):
        """Whether an answer has come within the time."""
        if not self.x11.XPending(self.display):
            select.select([self.x11.XConnectionNumber(self.display)], [], [], seconds)
        heard = False
        while self.x11.XPending(self.display):
            event = Event()
            self.x11.XNextEvent(self.display, ctypes.byref(event))
            heard = heard or (event.client.type == self.CLIENT_MESSAGE
                              and event.client.data[0] == self.ping)
        return heard

    def gap(self, window, most=5):
        """Seconds that one answer took; as many as `most` where there was none."""
        asked = time.monotonic()
        self.ask(int(window), int(asked * 1000) % 2**31)
        while not self.answers(0.1):
            if time.monotonic() - asked > most:
                return most
        return time.monotonic() - asked

    def longest_gap(self, window, seconds):
        """Asks without a pause for so long."""
        end = time.monotonic() + seconds
        longest = 0
        while time.monotonic() < end:
            longest = max(longest, self.gap(window))
        return longest
