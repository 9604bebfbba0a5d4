#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A day at the bench in a minute: one technician, one instrument on a serial line, every window
of the program, by mouse and keyboard."""

import pathlib
import re
import subprocess
import sys
from xml.etree import ElementTree

from real_desktop import PATIENCE, SystemTestCase, main, run, wait_for

# In the order of their buttons in the save window.
FORMATS = ["wmf", "bmp", "gif", "Ico", "cur", "pcx", "tif", "png", "jpg"]
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

    def expect_the_manuals_example_to_draw(self, description):
        """The Python of docs/file-formats.md, word by word: both channels stand where they were measured."""
        manual = pathlib.Path(__file__).parents[2] / "docs" / "file-formats.md"
        example = description.with_name("plot_set.py")
        example.write_text(manual.read_text().split("```python\n")[1].split("```\n")[0])
        drawn = subprocess.run([sys.executable, example, description, "500e-6", "1"], check=True,
                               capture_output=True, text=True)
        lines = ElementTree.fromstring(drawn.stdout).iter("{http://www.w3.org/2000/svg}polyline")
        self.assertEqual([len(line.get("points").split()) for line in lines], [500, 500])
        low, high = re.findall(r"Channel 1: (\S+) V to (\S+) V", drawn.stderr)[0]
        self.assertAlmostEqual(float(high) - float(low), self.peak_to_peak, delta=0.2)

    def test_day(self):
        program = self.program
        # The port, and live traces of both channels.
        self.opened("ctrl+r", "RS-232")
        program.keys("Tab", "Tab", "Tab", "Tab", "ctrl+a")
        program.type("7")
        program.keys("Return")
        program.closed("RS-232")
        program.focus(program.window)
        program.click("frmDSO.cbCh2")
        program.keys("F5")
        self.expect_live_trace(program)

        # Channel 1 inverted: each of four settings is written and read back.
        self.opened("ctrl+1", "Channel 1")
        program.keys("Tab", "space", "Return")
        program.closed("Channel 1")
        # The trigger: its settings are written, too.
        self.opened("ctrl+t", "Trigger")
        program.keys("Return")
        program.closed("Trigger")
        wait_for(lambda: "Trigger" not in program.place("frmDSO.lblStatus").text, PATIENCE, "the settings sent")
        self.expect_live_trace(program)

        # Autoset shows a notice for ten seconds and brings the traces back.
        program.focus(program.window)
        program.click("frmDSO.cmdAutoset")
        program.find("Message")
        program.closed("Message")
        self.expect_live_trace(program)

        # Measurements of both channels; the acquisition is stopped then, and started again.
        self.opened("ctrl+m", "Voltage Measure")
        program.keys("Return")
        program.closed("Voltage Measure")
        self.expect_lamp(program, "red")
        name, value = program.place("frmDSO.lblMeasure_0").text.split(":")
        self.assertEqual(name.strip(), "Vpp(1)")
        self.peak_to_peak = float(value.split()[0])
        program.focus(program.window)
        program.keys("F5")
        self.expect_lamp(program, "green")
        # What is saved below was made at the scales of the autoset.
        wait_for(lambda: program.place("frmDSO.lblAge").text.count("live") == 2, PATIENCE,
                 "records of both channels")

        # Cursors.
        program.click("frmDSO.opTime")
        self.expect_live_trace(program)

        # One waveform in nine formats, one of them with a note on it.
        for number, extension in enumerate(FORMATS):
            window = self.opened("ctrl+w", "Save")
            program.click(f"frmSave.opFiletype_{number}")
            if extension == "png":
                program.click("frmSave.cbWord")
                program.click("frmSave.txtWord")
                program.type("ringing")
                program.click("frmSave.pictureTemp")
            program.click("frmSave.cmdOK")
            chooser = program.find("Save", besides=window)
            program.focus(chooser)
            program.keys("ctrl+a")
            program.type("set_" + extension)
            program.keys("Return")
            file = program.folder / f"set_{extension}.{extension}"
            wait_for(file.exists, PATIENCE, str(file))
            program.closed("Save")
            self.assertIn(KINDS[extension], run("file", str(file)))
            data = (program.folder / f"set_{extension}.csv").read_bytes()
            self.assertEqual(data.count(b"\r\n"), 501)
            self.assertTrue(data.startswith(b"Channel 1,Channel 2\r\n"))

        self.expect_the_manuals_example_to_draw(program.folder / "set_jpg.inf")

        # One of them again, under the live traces: from the list by keys, behind the icon's set,
        # whose picture cannot be shown.
        self.opened("ctrl+l", "Load Waveform")
        program.keys("Tab", "Tab", "s")
        program.keys("Tab", "Tab", "Tab", "Tab", "space")
        program.closed("Load Waveform")

        # The report.
        self.opened("ctrl+i", "Status Report")
        program.keys("Escape")
        program.closed("Status Report")

        # The console: a command that the instrument keeps.
        self.opened("ctrl+k", "KRM-410 Command List")
        program.keys("Tab", "ctrl+a")
        program.type(":CHAN1:SCAL 2")
        program.keys("Return", "Escape")

        # French, and the end of the day.
        program.focus(program.window)
        program.click("frmDSO.mnbLanguage")
        program.click("frmDSO.mnbLA3")
        wait_for(lambda: program.place("frmDSO.mnbFile").text == "Fichier", PATIENCE, "French")
        program.close()
        self.assertEqual(program.process.returncode, 0)

        setup = program.setup.read_text()
        self.assertIn(",None,7\n", setup)
        self.assertIn("Language,1,3", setup)

        # The next morning everything is as it was.
        program.start()
        program.keys("F5")
        self.expect_live_trace(program)
        program.close()
        self.assertEqual(program.setup.read_text(), setup)
        self.assertFalse((program.folder / "dso.err").exists())


if __name__ == "__main__":
    main()
