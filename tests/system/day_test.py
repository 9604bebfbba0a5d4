#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A day at the bench in a few minutes: one technician, one instrument on a serial line, every window
of the program, by mouse and keyboard."""

import subprocess
import time

from real_desktop import SystemTestCase, main, run, wait_for

# In the save window: the nine formats, by column and row.
FORMATS = {"wmf": (622, 50), "bmp": (743, 50), "gif": (863, 50),
           "Ico": (622, 76), "cur": (743, 76), "pcx": (863, 76),
           "tif": (622, 102), "png": (743, 102), "jpg": (863, 102)}
# What the file command says of each.
KINDS = {"wmf": "Windows metafile", "bmp": "PC bitmap", "gif": "GIF image", "Ico": "icon resource",
         "cur": "cursor resource", "pcx": "PCX", "tif": "TIFF image", "png": "PNG image",
         "jpg": "JPEG image"}


class DayAtTheBench(SystemTestCase):
    def setUp(self):
        self.program = self.make_program(0)
        self.instrument = self.make_instrument(self.program)
        self.program.start()

    def opened(self, shortcut, title):
        """The window that a shortcut of the main window opens."""
        self.program.focus(self.program.window)
        self.program.keys(shortcut)
        window = self.program.find(title)
        self.program.focus(window)
        return window

    def closed(self, title):
        wait_for(lambda: subprocess.run(
            ["xdotool", "search", "--all", "--onlyvisible", "--pid", str(self.program.process.pid),
             "--name", f"^{title}$"], capture_output=True).returncode != 0, 30, f"{title} to close")

    def click(self, window, x, y):
        run("xdotool", "mousemove", "--window", window, str(x), str(y), "click", "1")
        time.sleep(0.2)

    def test_day(self):
        program = self.program
        # The port, and live traces of both channels.
        self.opened("ctrl+r", "RS-232")
        program.keys("Tab", "Tab", "Tab", "Tab", "ctrl+a")
        program.type("7")
        program.keys("Return")
        program.focus(program.window)
        self.click(program.window, 1064, 61)
        program.keys("F5")
        self.expect_live_trace()

        # Channel 1 inverted: each of four settings is written and read back.
        self.opened("ctrl+1", "Channel 1")
        program.keys("Tab", "space", "Return")
        self.closed("Channel 1")
        time.sleep(5)
        # The trigger: its settings are written, too.
        self.opened("ctrl+t", "Trigger")
        program.keys("Return")
        self.closed("Trigger")
        time.sleep(8)
        self.expect_live_trace()

        # Autoset shows a notice for ten seconds and brings the traces back.
        program.focus(program.window)
        self.click(program.window, 282, 71)
        program.find("Message")
        self.closed("Message")
        self.expect_live_trace()

        # Measurements of both channels; the acquisition is stopped then, and started again.
        self.opened("ctrl+m", "Voltage Measure")
        program.keys("Return")
        self.closed("Voltage Measure")
        wait_for(lambda: self.screen.lamp() == "red", 10, "the red lamp")
        program.focus(program.window)
        program.keys("F5")
        wait_for(lambda: self.screen.lamp() == "green", 10, "the green lamp")

        # Cursors.
        self.click(program.window, 76, 614)
        self.expect_live_trace()

        # One waveform in nine formats, one of them with a note on it.
        for extension, (x, y) in FORMATS.items():
            window = self.opened("ctrl+w", "Save")
            self.click(window, x, y)
            if extension == "png":
                self.click(window, 23, 532)
                self.click(window, 250, 532)
                program.type("ringing")
                self.click(window, 200, 200)
            self.click(window, 902, 532)
            time.sleep(1)
            chooser = program.find("Save", besides=window)
            program.focus(chooser)
            program.keys("ctrl+a")
            program.type("set_" + extension)
            program.keys("Return")
            file = program.folder / f"set_{extension}.{extension}"
            wait_for(file.exists, 10, str(file))
            self.closed("Save")
            self.assertIn(KINDS[extension], run("file", str(file)))
            data = (program.folder / f"set_{extension}.csv").read_bytes()
            self.assertEqual(data.count(b"\r\n"), 501)
            self.assertTrue(data.startswith(b"Channel 1,Channel 2\r\n"))

        # One of them again, under the live traces: from the list by keys, behind the icon's set,
        # whose picture cannot be shown.
        self.opened("ctrl+l", "Load Waveform")
        program.keys("Tab", "Tab", "Down")
        program.keys("Tab", "Tab", "Tab", "Tab", "space")
        self.closed("Load Waveform")

        # The report.
        self.opened("ctrl+i", "Status Report")
        program.keys("Escape")
        self.closed("Status Report")

        # The console: a command that the instrument keeps.
        self.opened("ctrl+k", "KRM-410 Command List")
        program.keys("Tab", "ctrl+a")
        program.type(":CHAN1:SCAL 2")
        program.keys("Return", "Escape")

        # French, and the end of the day.
        program.focus(program.window)
        self.click(program.window, 248, 9)
        program.keys("Down", "Down", "Down", "Return")
        time.sleep(1)
        program.close()
        self.assertEqual(program.process.returncode, 0)

        setup = program.setup.read_text()
        self.assertIn(",None,7\n", setup)
        self.assertIn("Language,1,3", setup)

        # The next morning everything is as it was.
        program.start()
        program.keys("F5")
        self.expect_live_trace()
        program.close()
        self.assertEqual(program.setup.read_text(), setup)
        self.assertFalse((program.folder / "dso.err").exists())


if __name__ == "__main__":
    main()
