#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The packed Windows program under Wine, on a screen and a COM port: windows_test.py PACKAGE KRM410_SIM
SCREENSHOTS WINDOWS_TESTS PICTURE_FILES, of which the last are the folders of the tests that are built for
Windows and for here. Of what is on the screen only colours are looked at; the screenshots are for
people."""

import csv
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import unittest

PACKAGE, SIMULATOR = (os.path.abspath(argument) for argument in sys.argv[1:3])
SCREENSHOTS, WINDOWS_TESTS, OWN_TESTS = (pathlib.Path(argument).resolve() for argument in sys.argv[3:6])
from real_desktop import (HEIGHT, PATIENCE, WIDTH, Instrument, Place, Program, SystemTestCase, resident_kilobytes,
                          run, wait_for)
from wine import PLACE, PORT, WINE, Windows

# With the key to each from the one before it; the first one is selected at the start.
FORMATS = {"jpg": [], "png": ["Left"], "tif": ["Left"], "Ico": ["Up"], "cur": ["Right"], "pcx": ["Right"],
           "gif": ["Up"], "bmp": ["Left"], "wmf": ["Left"]}
NOBODY = 65534
# On the screen, in a window as large as that. The plot is without the strip of scales and the mark of the
# channel.
PLACES = {
    "frmDSO.plot": Place(40, 130, 760, 320, ""),
    "frmDSO.cmdRS232": Place(107, 60, 50, 24, ""),
}


class WindowsProgram(Program):
    """The program in a Windows. Nothing there says where its objects are."""

    def __init__(self, windows, port):
        self.windows_of_it = windows
        self.folder = windows.program
        self.setup = self.folder / "default.dso"
        self.environment = windows.environment
        self.process = None
        text = self.setup.read_bytes()
        self.setup.write_bytes(re.sub(rb",None,\d+\r\n", b",None,%d\r\n" % port, text))

    def start(self):
        begun = time.monotonic()
        self.process = subprocess.Popen([*self.windows_of_it.as_user, WINE, "tracewell.exe"], cwd=self.folder,
                                        env=self.environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        self.window = None
        self.window = self.find("Tracewell")
        self.took = time.monotonic() - begun
        wait_for(self.fills_screen, PATIENCE, "the window to fill the screen")
        self.focus(self.window)

    def fills_screen(self):
        """Wine moves it once more while it comes, and then thinks of a frame."""
        wanted = f"X=0\nY=0\nWIDTH={WIDTH}\nHEIGHT={HEIGHT}\n"
        if wanted in run("xdotool", "getwindowgeometry", "--shell", self.window):
            return True
        run("xdotool", "windowmove", self.window, "0", "0", "windowsize", self.window, str(WIDTH), str(HEIGHT))
        return False

    def keys(self, *names):
        run("xdotool", "key", "--delay", "100", *names)

    def type(self, text):
        run("xdotool", "type", "--delay", "50", text)

    def shown(self, name):
        return PLACES[name]

    def opened(self, shortcut, title):
        """The window of the panel, once it stands there painted."""
        self.focus(self.window)
        self.keys(shortcut)
        window = self.find(title)
        self.focus(window)

        def picture():
            return subprocess.run(["import", "-window", window, "-depth", "8", "rgb:-"], check=True,
                                  capture_output=True).stdout

        wait_for(lambda: len(set(now := picture())) > 9 and picture() == now, PATIENCE, f"{title} to be painted")
        return window

    def answer(self, title, text, besides=None):
        """In a dialog of the system's."""
        self.focus(self.find(title, besides))
        self.keys("ctrl+a")
        self.type(text)
        self.keys("Return")

    def remove(self):
        if self.process and self.process.poll() is None:
            self.process.kill()
            self.process.wait()


class WindowsTest(SystemTestCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.windows = Windows(PACKAGE)
        SCREENSHOTS.mkdir(parents=True, exist_ok=True)

    @classmethod
    def tearDownClass(cls):
        cls.windows.remove()
        super().tearDownClass()

    def started(self, port, windows=None):
        program = WindowsProgram(windows or self.windows, port)
        self.addCleanup(program.remove)
        program.start()
        return program

    def instrument(self):
        instrument = Instrument(self.windows.device)
        self.addCleanup(instrument.stop)
        return instrument

    def shot(self, name):
        run("import", "-window", "root", str(SCREENSHOTS / f"{name}.png"))

    def connect(self, program):
        # Another one may still be seen behind it.
        wait_for(lambda: not self.trace(program), PATIENCE, "an empty graph")
        program.keys("F5")
        self.expect_live_trace(program)

    def close(self, program):
        program.close()
        self.assertEqual(program.process.returncode, 0)

    def test_simulated_instrument_shows_live_traces(self):
        program = self.started(0)
        self.connect(program)
        self.shot("simulated")
        print(f"first window after {program.took:.1f} s, "
              f"{resident_kilobytes(program.process.pid) / 1024:.0f} MiB resident")
        program.setup.unlink()
        self.close(program)
        self.assertIn(b",None,0\r\n", program.setup.read_bytes())

    def test_com_port_is_used_lost_and_used_again(self):
        instrument = self.instrument()
        program = self.started(PORT)
        self.connect(program)
        program.opened("ctrl+r", "RS-232")
        self.shot("com7")
        program.keys("Escape")
        program.closed("RS-232")
        instrument.fault("HANGUP 700")
        wait_for(lambda: instrument.process.poll() is not None, PATIENCE, "the hang-up")

        def stands_still():
            before = self.trace(program)
            time.sleep(3)
            return self.trace(program) == before

        wait_for(stands_still, PATIENCE, "the end of the traces")
        self.shot("unplugged")
        self.instrument()
        program.focus(program.window)
        program.click("frmDSO.cmdRS232")
        self.expect_live_trace(program)
        self.close(program)
        self.assertIn(b",None,%d\r\n" % PORT, program.setup.read_bytes())

    def test_end_of_the_session_saves_the_setup(self):
        program = self.started(0)
        program.setup.unlink()
        # Whoever has been asked is ended then.
        self.windows.run("wineboot", "--end-session")
        program.process.wait(PATIENCE)
        self.assertIn(b",None,0\r\n", program.setup.read_bytes())

    def test_files_are_saved_and_loaded_by_the_dialogs(self):
        program = self.started(0)
        self.connect(program)
        for extension, keys in FORMATS.items():
            window = program.opened("ctrl+w", "Save")
            program.keys(*["Tab"] * 5, *keys, "Return")
            program.answer("Save", "set_" + extension, window)
            file = program.folder / f"set_{extension}.{extension}"
            wait_for(file.exists, PATIENCE, str(file))
            program.closed("Save")
            if extension != "wmf":
                run("identify", str(file))
            self.assertEqual(file.with_suffix(".csv").read_bytes().count(b"\r\n"), 501)
            self.assertEqual(file.with_suffix(".inf").read_text().split("\n")[0], rf"C:\{PLACE}"
                             rf"\{program.folder.name}\{file.name}")
        # By keys, behind the icon's set, whose picture cannot be shown.
        program.opened("ctrl+l", "Load Waveform")
        program.keys("Tab", "Tab", "s")
        self.shot("load")
        program.keys("Tab", "Tab", "Tab", "Tab", "space")
        program.closed("Load Waveform")
        wait_for(lambda: self.screen.where(PLACES["frmDSO.plot"], lambda red, green, blue:
                                           red < 150 and green < 100 and blue > 200), PATIENCE, "the loaded trace")
        self.shot("loaded")

        program.focus(program.window)
        program.keys("ctrl+s")
        program.answer("Load DSO Setup file", "bench")
        kept = program.folder / "bench.dso"
        wait_for(kept.exists, PATIENCE, str(kept))
        kept.write_bytes(kept.read_bytes().replace(b",None,0\r\n", b",None,9\r\n"))
        program.keys("ctrl+o")
        program.answer("Load DSO Setup file", "bench.dso")
        program.closed("Load DSO Setup file")
        self.close(program)
        self.assertIn(b",None,9\r\n", program.setup.read_bytes())

    def test_print(self):
        program = self.started(0)
        self.connect(program)
        program.keys("ctrl+p")
        page = self.windows.page
        content = wait_for(lambda: page.exists() and b"%%EOF" in (now := page.read_bytes()) and now, PATIENCE, "a page")
        self.assertIn(b"%%Orientation: Landscape", content)
        self.assertEqual(content.count(b"showpage"), 1)
        self.assertGreater(content.count(b"lineto"), 500)
        self.close(program)

    def test_two_at_once(self):
        self.instrument()
        first = self.started(0)
        self.connect(first)
        second = self.started(PORT)
        self.connect(second)
        self.shot("two")
        self.close(second)
        first.focus(first.window)
        self.expect_live_trace(first)
        first.keys("ctrl+q")
        first.focus(first.find("Tracewell"))
        first.keys("Return")
        kept = first.folder / "default.dso.bad"
        wait_for(kept.exists, PATIENCE, "what the other one has kept")
        first.focus(first.find("Tracewell"))
        first.keys("Return")
        self.assertEqual(first.process.wait(PATIENCE), 0)
        self.assertIn(b",None,%d\r\n" % PORT, kept.read_bytes())
        self.assertIn(b",None,0\r\n", first.setup.read_bytes())

    def test_chinese(self):
        program = WindowsProgram(self.windows, 0)
        text = program.setup.read_bytes()
        program.setup.write_bytes(text.replace(b"Language,1,1", b"Language,1,2"))
        self.addCleanup(program.setup.write_bytes, text)
        self.addCleanup(program.remove)
        program.start()
        self.connect(program)
        self.shot("chinese")
        self.close(program)

    def test_recorder_without_a_window(self):
        self.instrument()
        options = ["--port", str(PORT), "--channels", "1,2", "--count", "2", "--measure", "vpp,freq"]
        to = self.windows.program
        for name in ("\u00fcn \u6d4b.csv", "-"):
            ended = self.windows.run("tracewell-record.exe", *options, "--csv", name, cwd=to, stdout=subprocess.PIPE)
            written = ended.stdout if name == "-" else (to / name).read_bytes()
            self.assertEqual((written.count(b"\n"), written.count(b"\r")), (5, 0))
            rows = list(csv.DictReader(written.decode().splitlines()))
            self.assertEqual([row["channel"] for row in rows], ["1", "2", "1", "2"])
            self.assertAlmostEqual(float(rows[0]["freq (Hz)"]), 1000, delta=2)

    def test_program_folder_that_cannot_be_written(self):
        windows = Windows(PACKAGE, NOBODY)
        self.addCleanup(windows.remove)
        before = sorted(windows.program.rglob("*"))
        windows.program.chmod(0o555)
        program = self.started(0, windows)
        self.connect(program)
        self.close(program)
        self.assertEqual(sorted(windows.program.rglob("*")), before)
        kept = list(windows.folder.glob("wine/drive_c/users/*/AppData/Local/tracewell/default.dso"))
        self.assertEqual(len(kept), 1)
        self.assertIn(b",None,0\r\n", kept[0].read_bytes())


class PartsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.windows = Windows(PACKAGE)

    @classmethod
    def tearDownClass(cls):
        cls.windows.remove()

    def test_line_and_files(self):
        self.addCleanup(Instrument(self.windows.device).stop)
        self.windows.environment["TRACEWELL_TEST_PORT"] = str(PORT)
        self.windows.run(WINDOWS_TESTS / "windows_tests.exe", stdout=None)

    def test_pictures_are_those_of_the_other_system(self):
        own, windows = self.windows.folder / "own", self.windows.program
        own.mkdir()
        subprocess.run([OWN_TESTS / "picture_files", own], check=True)
        self.windows.run(WINDOWS_TESTS / "picture_files.exe", cwd=windows)
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


unittest.main(argv=[sys.argv[0], *sys.argv[6:]], verbosity=2)
