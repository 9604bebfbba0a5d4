#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""While the program waits for an instrument that fails it, the window answers the desktop, obeys
Escape, and ends when it is told to. The desktop's question is _NET_WM_PING, as a window manager
puts it before it calls a window frozen."""

import ctypes
import select
import signal
import time

from real_desktop import SystemTestCase, main, wait_for

LONGEST_GAP = 0.1
"""Seconds without an answer, as the instrument panel promises."""
LONGEST_GAP_HERE = 0.3
"""On a machine that builds something else meanwhile."""


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

    def longest_gap(self, window, seconds):
        """Asks without a pause for so long; the longest time that one answer took."""
        end = time.monotonic() + seconds
        longest = 0
        while time.monotonic() < end:
            asked = time.monotonic()
            self.ask(int(window), int(asked * 1000) % 2**31)
            while not self.answers(0.5):
                if time.monotonic() - asked > 5:
                    raise AssertionError("no answer for five seconds")
            longest = max(longest, time.monotonic() - asked)
        return longest


class AliveTest(SystemTestCase):
    def setUp(self):
        self.program = self.make_program(7)
        self.instrument = self.make_instrument(self.program)
        self.program.start()
        self.program.keys("F5")
        self.expect_live_trace()

    def wait_in(self, fault, key):
        """The program begins to wait for an instrument with the fault."""
        self.instrument.fault(fault)
        time.sleep(1.5)
        self.program.keys(key)

    def expect_alive(self, what):
        gap = Desktop().longest_gap(self.program.window, 2)
        print(f"{what}: longest gap {gap * 1000:.0f} ms (promised {LONGEST_GAP * 1000:.0f})")
        self.assertLess(gap, LONGEST_GAP_HERE)

    def test_silence(self):
        self.wait_in("SILENT 1", "ctrl+t")
        self.expect_alive("silent instrument, trigger dialog")
        # The rest of the waits is given up, and the dialog opens.
        given_up = time.monotonic()
        self.program.keys("Escape")
        trigger = self.program.find("Trigger")
        self.assertLess(time.monotonic() - given_up, 2)
        self.program.focus(trigger)
        self.program.keys("Escape")
        self.end()

    def test_trickle(self):
        self.wait_in("TRICKLE 100", "ctrl+1")
        self.expect_alive("trickling record, channel dialog")
        self.end()

    def test_chatter(self):
        self.wait_in("GARBAGE 1", "ctrl+d")
        self.expect_alive("garbage, display dialog")
        self.end()

    def end(self):
        """Told to end in the middle of a wait, the program releases the panel and is gone."""
        self.program.keys("ctrl+t")
        told = time.monotonic()
        self.program.process.send_signal(signal.SIGTERM)
        wait_for(lambda: self.program.process.poll() is not None, 5, "the end")
        took = time.monotonic() - told
        print(f"end: {took * 1000:.0f} ms")
        self.assertLess(took, 0.5)
        self.assertEqual(self.program.process.returncode, 0)


if __name__ == "__main__":
    main()
