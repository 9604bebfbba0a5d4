#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The packed Windows program under Wine, on a screen and a COM port: windows_test.py PACKAGE KRM410_SIM
SCREENSHOTS WINDOWS_TESTS PICTURE_FILES, of which the last are the folders of the tests that are built for
Windows and for here. Of what is on the screen only colours are looked at; the screenshots are for
people."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile

PACKAGE, SIMULATOR = (os.path.abspath(argument) for argument in sys.argv[1:3])
SCREENSHOTS, WINDOWS_TESTS, OWN_TESTS = (pathlib.Path(argument).resolve() for argument in sys.argv[3:6])
from real_desktop import HEIGHT, PATIENCE, WIDTH, Instrument, Place, Screen, resident_kilobytes, run, wait_for

PORT = 7
# Without the strip of scales above it, and without the mark of the channel.
PLOT = Place(40, 130, 760, 300, "")
WINE = shutil.which("wine64") or "/usr/lib/wine/wine64"
SERVER = shutil.which("wineserver") or "/usr/lib/wine/wineserver64"


class Windows:
    """A Windows of its own, with the package unpacked in a folder whose name is not plain."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tracewell-windows-"))
        self.device = self.folder / "device"
        os.environ |= {"WINEPREFIX": str(self.folder / "wine"), "WINEDEBUG": "-all",
                       "WINEDLLOVERRIDES": "mscoree=;mshtml="}
        self.run("wineboot", "--init")
        self.run("reg", "add", r"HKLM\Software\Wine\Ports", "/v", f"COM{PORT}", "/d", str(self.device))
        # The list of ports is made at its start.
        self.stop()
        place = self.folder / "wine/drive_c/Mesures \u00e9t\u00e9 \u6ce2\u5f62"
        zipfile.ZipFile(PACKAGE).extractall(place)
        self.program = next(place.iterdir())

    def run(self, *command):
        # Its server tells its life when it loses a line, and the line is a terminal.
        subprocess.run([WINE, *command], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def stop(self):
        subprocess.run([SERVER, "--kill"], stderr=subprocess.DEVNULL)
        subprocess.run([SERVER, "--wait"], stderr=subprocess.DEVNULL)

    def remove(self):
        self.stop()
        shutil.rmtree(self.folder)


class WindowsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.screen = Screen()
        cls.windows = Windows()
        SCREENSHOTS.mkdir(parents=True, exist_ok=True)

    @classmethod
    def tearDownClass(cls):
        cls.windows.remove()
        cls.screen.stop()

    def tearDown(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def start(self, port):
        self.setup_file = self.windows.program / "default.dso"
        text = self.setup_file.read_bytes()
        for number in (0, PORT):
            text = text.replace(b",None,%d\r\n" % number, b",None,%d\r\n" % port)
        self.setup_file.write_bytes(text)
        begun = time.monotonic()
        self.process = subprocess.Popen([WINE, "tracewell.exe"], cwd=self.windows.program,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.window = self.find("Tracewell")
        self.took = time.monotonic() - begun
        run("xdotool", "windowmove", self.window, "0", "0", "windowsize", self.window, str(WIDTH), str(HEIGHT))
        self.focus(self.window)

    def find(self, title, besides=()):
        def found():
            windows = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"],
                                     capture_output=True, text=True).stdout.split()
            return [window for window in windows if window not in besides]
        return wait_for(found, PATIENCE, f"the window {title}")[0]

    def focus(self, window):
        run("xdotool", "windowfocus", "--sync", window)

    def keys(self, *names):
        run("xdotool", "key", "--delay", "100", *names)

    def shot(self, name):
        run("import", "-window", "root", str(SCREENSHOTS / f"{name}.png"))

    def trace(self):
        """Where the plot shows the colour of channel 1. The window is as large as the screen."""
        return {position for position, (red, green, blue) in self.screen.within(PLOT)
                if red > 170 and 120 < green < red and red - blue > 90}

    def expect_live_trace(self):
        first = wait_for(lambda: len(trace := self.trace()) > 300 and trace, PATIENCE, "a trace")
        wait_for(lambda: len(trace := self.trace()) > 300 and trace != first, PATIENCE, "a second frame")

    def connect(self):
        self.assertEqual(len(self.trace()), 0)
        self.keys("F5")
        self.expect_live_trace()

    def close(self):
        self.focus(self.window)
        self.keys("ctrl+q")
        self.focus(self.find("Tracewell", [self.window]))
        self.keys("Return")
        self.assertEqual(self.process.wait(PATIENCE), 0)

    def test_simulated_instrument_shows_live_traces(self):
        self.start(0)
        self.connect()
        self.shot("simulated")
        print(f"first window after {self.took:.1f} s, "
              f"{resident_kilobytes(self.process.pid) / 1024:.0f} MiB resident")
        self.setup_file.unlink()
        self.close()
        self.assertIn(b",None,0\r\n", self.setup_file.read_bytes())

    def test_com_port_is_used_lost_and_used_again(self):
        instrument = Instrument(self.windows.device)
        self.start(PORT)
        self.connect()
        self.shot("com7")
        instrument.fault("HANGUP 700")
        wait_for(lambda: instrument.process.poll() is not None, PATIENCE, "the hang-up")

        def stands_still():
            before = self.trace()
            time.sleep(3)
            return self.trace() == before

        wait_for(stands_still, PATIENCE, "the end of the traces")
        self.shot("unplugged")
        instrument.stop()
        instrument = Instrument(self.windows.device)
        # The button RS-232, which connects anew.
        run("xdotool", "mousemove", "--window", self.window, "132", "72", "click", "1")
        self.expect_live_trace()
        self.shot("plugged-in-again")
        self.close()
        self.assertIn(b",None,%d\r\n" % PORT, self.setup_file.read_bytes())
        instrument.stop()

    def test_end_of_the_session_saves_the_setup(self):
        self.start(0)
        self.setup_file.unlink()
        # Whoever has been asked is ended then.
        self.windows.run("wineboot", "--end-session")
        self.process.wait(PATIENCE)
        self.assertIn(b",None,0\r\n", self.setup_file.read_bytes())


class PartsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.windows = Windows()

    @classmethod
    def tearDownClass(cls):
        cls.windows.remove()

    def test_line_and_files(self):
        instrument = Instrument(self.windows.device)
        os.environ["TRACEWELL_TEST_PORT"] = str(PORT)
        tests = subprocess.run([WINE, WINDOWS_TESTS / "windows_tests.exe"], stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL)
        print(tests.stdout.decode(errors="replace"))
        self.assertEqual(tests.returncode, 0)
        instrument.stop()

    def test_pictures_are_those_of_the_other_system(self):
        own, windows = self.windows.folder / "own", self.windows.program
        own.mkdir()
        subprocess.run([OWN_TESTS / "picture_files", own], check=True)
        subprocess.run([WINE, WINDOWS_TESTS / "picture_files.exe"], cwd=windows, check=True,
                       stderr=subprocess.DEVNULL)
        names = sorted(file.name for file in own.iterdir())
        self.assertEqual(len(names), 9)
        for name in names:
            content = [(folder / name).read_bytes() for folder in (own, windows)]
            if name.endswith("tif"):
                # One byte between the parts of the file means nothing, and is what it happens to be.
                content = [run("identify", "-format", "%# %m %C %z", str(folder / name)) for folder in (own, windows)]
            self.assertEqual(*content, name)
            if not name.endswith("wmf"):
                self.assertIn("301x97" if name[-3:] not in ("ico", "cur") else "256x82",
                              run("identify", str(windows / name)))


unittest.main(argv=sys.argv[:1], verbosity=2)
