#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Random keys and clicks on every window of the real program, while the faults of the simulated
instrument switch at random.

    monkey.py TRACEWELL KRM410_SIM DATA_FOLDER [SECONDS] [SEED]

Checks that the program lives, answers the desktop, ends well when it is asked to, does not grow, and
keeps a setup that can be read. It stops at the first breach, with a backtrace where there is gdb. The seed is printed; the same one gives the same actions, though not at the same moments.
As root it gives its rights away first, so that a file dialog in the hands of a monkey does no harm;
as anybody else it may write wherever that user may.
"""

import os
import random
import resource
import shutil
import subprocess
import sys
import tempfile
import time

from real_desktop import HEIGHT, Instrument, Program, SIMULATOR, Screen, WIDTH, resident_kilobytes
from window_manager import Desktop

SECONDS = float(sys.argv[4]) if len(sys.argv) > 4 else 600
SEED = int(sys.argv[5]) if len(sys.argv) > 5 else random.randrange(1 << 30)
# Until the program has ended that was told to, in seconds, whatever it waited for.
LONGEST_END = 2
# Without an answer to the desktop. A window that opens is laid out, on a machine that does other things.
LONGEST_GAP = 2
# Between the warmed-up program and the same after the rest of a round, in kilobytes.
GROWTH_ALLOWED = 48 * 1024
# What the program may have in all, in bytes: one that eats memory ends before the machine does.
MEMORY_ALLOWED = 1 << 30
# For one action, in seconds; xdotool waits for an X server that is busy.
LONGEST_ACTION = 10
ROUND_SECONDS = 120
NOBODY = 65534

KEYS = ["Tab", "shift+Tab", "Return", "space", "Escape", "Up", "Down", "Left", "Right", "Home", "End",
        "Page_Up", "Page_Down", "BackSpace", "ctrl+a", "F5", "F5", "F6", "F10", "ctrl+r", "ctrl+1",
        "ctrl+2", "ctrl+t", "ctrl+d", "ctrl+m", "ctrl+f", "ctrl+w", "ctrl+l", "ctrl+o", "ctrl+s",
        "ctrl+g", "ctrl+i", "ctrl+k", "ctrl+e", "ctrl+p", "ctrl+q", "alt+n", "alt+y", "e", "c", "7", "0"]
TEXTS = ["*IDN?", ":MEAS:VPP?", ":CHAN1:SCAL 5", ":NONSENSE?", "Average", "Advance", "-1", "99999", "<b>",
         ":SIM:SLOW 300", ":SIM:OFF 0", "name"]
FAULTS = ["SILENT 1", "SLOW 200", "DROP 7", "CUT 500", "GARBAGE 1", "NONNUM 1", "BLANK 1", "HANGUP 100",
          "OFF", "OFF", "OFF"]


class PluggedInstrument(Instrument):
    """krm410-sim that comes back after its cable was pulled."""

    def __init__(self, link):
        self.process = subprocess.Popen([SIMULATOR, "--link", str(link), "--replug", "500"],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, text=True)
        self.process.stdout.readline()


class Monkey:
    def __init__(self, chance):
        self.chance = chance
        self.actions = 0
        self.ends = 0
        self.longest_end = 0
        self.longest_gap = 0
        self.desktop = Desktop()

    def xdotool(self, *command):
        # A window may have gone since it was looked for.
        subprocess.run(["xdotool", *map(str, command)], capture_output=True,
                       timeout=LONGEST_ACTION)

    def windows(self, program):
        found = subprocess.run(["xdotool", "search", "--all", "--onlyvisible", "--pid",
                                str(program.process.pid), "--name", "."],
                               capture_output=True, text=True, timeout=LONGEST_ACTION).stdout.split()
        return found or [program.window]

    def act(self, program, instrument):
        self.actions += 1
        kind = self.chance.random()
        if kind < 0.04:
            instrument.fault(self.chance.choice(FAULTS))
            return
        if kind < 0.5:
            position = self.chance.randrange(WIDTH), self.chance.randrange(HEIGHT)
            button = self.chance.choice((1, 1, 1, 1, 3, 4, 5))
            self.xdotool("mousemove", *position, "click", "--repeat", self.chance.choice((1, 1, 2)), button)
            return
        window = self.chance.choice(self.windows(program)[-2:])
        if kind < 0.92:
            self.xdotool("windowfocus", window, "key", *self.chance.choices(KEYS, k=3))
        else:
            self.xdotool("windowfocus", window, "type", "--delay", 1, self.chance.choice(TEXTS))

    def start(self, program):
        program.start()
        resource.prlimit(program.process.pid, resource.RLIMIT_DATA, (MEMORY_ALLOWED, MEMORY_ALLOWED))
        self.xdotool("windowfocus", program.window, "key", "F5")

    def has_ended(self, program):
        """True after the monkey has found the way out; a crash is an error."""
        status = program.process.poll()
        if status is None:
            return False
        assert status == 0, f"the program ended with {status} after {self.actions} actions"
        self.ends += 1
        return True

    def end(self, program):
        """As the end of a session does it, whatever is open."""
        began = time.monotonic()
        program.process.terminate()
        try:
            status = program.process.wait(LONGEST_END)
        except subprocess.TimeoutExpired:
            self.breach(program, f"not ended within {LONGEST_END} s")
        self.longest_end = max(self.longest_end, time.monotonic() - began)
        assert status == 0, f"the program ended with {status}"

    def breach(self, program, what):
        if shutil.which("gdb"):
            subprocess.run(["gdb", "-batch", "-ex", "bt", "-p", str(program.process.pid)], timeout=60,
                           stderr=subprocess.DEVNULL)
        raise AssertionError(f"{what} after {self.actions} actions")

    def round(self, program, instrument, seconds):
        """Returns by how many kilobytes the program has grown after its first quarter."""
        self.start(program)
        began = time.monotonic()
        warm = None
        grown = 0
        while time.monotonic() < began + seconds:
            self.act(program, instrument)
            gap = self.desktop.gap(program.window, LONGEST_GAP)
            if program.process.poll() is None:
                self.longest_gap = max(self.longest_gap, gap)
                if gap >= LONGEST_GAP:
                    self.breach(program, "the window was frozen")
            if self.has_ended(program):
                self.start(program)
                warm = None
            elif time.monotonic() > began + seconds / 4:
                resident = resident_kilobytes(program.process.pid)
                warm = warm or resident
                grown = max(grown, resident - warm)
                if grown >= GROWTH_ALLOWED:
                    self.breach(program, f"grown by {grown} kB")
        self.end(program)
        return grown


def expect_whole_files(folder):
    left_over = [path.name for path in folder.iterdir() if path.name.startswith(".tracewell-")]
    assert not left_over, left_over
    setup = (folder / "default.dso").read_bytes()
    assert setup.startswith(b"R") and setup.count(b"\r\n") == 13 and setup.endswith(b"\r\n"), setup


def give_rights_away():
    if os.getuid() != 0:
        return
    os.setgroups([])
    os.setgid(NOBODY)
    os.setuid(NOBODY)


def main():
    give_rights_away()
    home = tempfile.TemporaryDirectory(prefix="tracewell-monkey-")
    os.environ["HOME"] = home.name
    print(f"seed {SEED}, {SECONDS:.0f} seconds", flush=True)
    screen = Screen()
    program = Program(7)
    instrument = PluggedInstrument(program.folder / "com7")
    monkey = Monkey(random.Random(SEED))
    left = SECONDS
    try:
        while left > 0:
            grown = monkey.round(program, instrument, min(left, ROUND_SECONDS))
            left -= ROUND_SECONDS
            print(f"{monkey.actions} actions, grown by {grown} kB, closed {monkey.ends} times, "
                  f"ended within {monkey.longest_end:.1f} s, answered within {monkey.longest_gap * 1000:.0f} ms",
                  flush=True)
            expect_whole_files(program.folder)
    finally:
        program.remove()
        instrument.stop()
        screen.stop()


if __name__ == "__main__":
    main()
