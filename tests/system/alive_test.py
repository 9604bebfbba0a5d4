#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""While the program waits for an instrument that fails it, the window answers the desktop, obeys
Escape, and ends when it is told to. The desktop's question is _NET_WM_PING, as a window manager
puts it before it calls a window frozen."""

import signal
import time

from real_desktop import PATIENCE, SystemTestCase, main, strain, wait_for
from window_manager import Desktop

LONGEST_GAP = 0.1
"""Seconds without an answer, as the instrument panel promises."""
LONGEST_GAP_HERE = 0.3
"""On a machine that builds something else meanwhile."""


class AliveTest(SystemTestCase):
    def setUp(self):
        self.program = self.make_program(7)
        self.instrument = self.make_instrument(self.program)
        self.program.start()
        self.program.keys("F5")
        self.expect_live_trace(self.program)

    def begin_to_wait(self, key):
        self.program.keys(key)
        wait_for(lambda: "question" in self.program.place("frmDSO.lblStatus").text, PATIENCE, "a wait")

    def wait_in(self, fault, key):
        """The program begins to wait for an instrument with the fault."""
        self.instrument.fault(fault)
        self.begin_to_wait(key)

    def expect_alive(self, what):
        gap = Desktop().longest_gap(self.program.window, 2)
        print(f"{what}: longest gap {gap * 1000:.0f} ms (promised {LONGEST_GAP * 1000:.0f})")
        self.assertLess(gap, LONGEST_GAP_HERE * strain())

    def test_silence(self):
        self.wait_in("SILENT 1", "ctrl+t")
        self.expect_alive("silent instrument, trigger dialog")
        # The rest of the waits is given up, and the dialog opens.
        given_up = time.monotonic()
        self.program.keys("Escape")
        trigger = self.program.find("Trigger")
        self.assertLess(time.monotonic() - given_up, 2 * strain())
        self.program.focus(trigger)
        self.program.keys("Escape")
        self.program.closed("Trigger")
        self.program.focus(self.program.window)
        self.begin_to_wait("ctrl+t")
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
        """Told to end, whatever it waits for, the program releases the panel and is gone."""
        told = time.monotonic()
        self.program.process.send_signal(signal.SIGTERM)
        wait_for(lambda: self.program.process.poll() is not None, PATIENCE, "the end")
        took = time.monotonic() - told
        print(f"end: {took * 1000:.0f} ms")
        self.assertLess(took, 0.5 * strain())
        self.assertEqual(self.program.process.returncode, 0)


class SlowFolderTest(SystemTestCase):
    """A folder whose list takes seconds to come, as over a network."""

    def test_slow_folder(self):
        program = self.make_program(0)
        program.make_known()
        slow = ["-D", "-f", "-o", program.folder / "calls", "-P", program.folder,
                "-e", "trace=getdents64", "-e", "inject=getdents64:delay_enter=3000000"]
        started = program.command()
        program.command = lambda: ["strace", *slow, *started]
        program.start()
        program.click("frmDSO.cmdLoad")
        gap = Desktop().longest_gap(program.window, 2)
        self.assertLess(gap, LONGEST_GAP_HERE * strain())
        self.assertFalse(program.windows("Load Waveform"))
        program.find("Load Waveform")


if __name__ == "__main__":
    main()
