#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""tracewell-record and krm410-sim on a pseudo-terminal: what is written, said and left behind.

Called with the two programs.
"""

import csv
import io
import json
import os
import pathlib
import pty
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
import tty
import unittest

RECORDER, SIMULATOR = sys.argv[1:3]


class RecorderTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.ports = self.folder / "tracewell"
        self.ports.mkdir()
        self.environment = {**os.environ, "XDG_DATA_HOME": folder.name, "TZ": "UTC-1"}

    def instrument(self, *options):
        simulator = subprocess.Popen([SIMULATOR, "--link", self.ports / "com7", *options],
                                     stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(simulator.wait)
        self.addCleanup(simulator.stdin.close)
        self.addCleanup(simulator.stdout.close)
        self.addCleanup(simulator.terminate)
        simulator.stdout.readline()
        return simulator

    def begin(self, *options):
        # A folder without the panel's files: ports are then those of the user's folder.
        program = self.folder / "tracewell-record"
        if not program.exists():
            shutil.copy(RECORDER, program)
        return subprocess.Popen([program, "--port", "7", *options], env=self.environment, cwd=self.folder,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def record(self, *options):
        program = self.begin(*options)
        out, said = program.communicate(timeout=60)
        return program.returncode, out, said

    def test_rows_of_both_channels_and_nothing_else_into_a_pipe(self):
        self.instrument()
        status, out, said = self.record("--channels", "1,2", "--count", "2", "--measure", "vpp,freq,rise",
                                        "--interval", "0", "--limit", "freq > 900")
        self.assertEqual((status, said), (5, ""))
        rows = list(csv.DictReader(io.StringIO(out)))
        self.assertEqual([row["channel"] for row in rows], ["1", "2", "1", "2"])
        for row in rows:
            frequency, peak = {"1": (1000, 2.05), "2": (500, 2.5)}[row["channel"]]
            self.assertAlmostEqual(float(row["freq (Hz)"]), frequency, delta=2)
            self.assertAlmostEqual(float(row["vpp (V)"]), peak, delta=0.2)
            self.assertEqual(row["limits"], "freq > 900" if row["channel"] == "1" else "")
            self.assertRegex(row["time"], r"^20\d\d-\d\d-\d\dT[\d:.]{12}\+01:00$")

    def test_samples_and_a_log_that_is_continued(self):
        self.instrument("--baud", "38400")
        options = ("--baud", "38400", "--count", "1", "--csv", "log.csv")
        self.assertEqual(self.record(*options, "--samples", "samples.csv")[0], 0)
        self.assertEqual(self.record(*options)[0], 0)
        self.assertEqual(len((self.folder / "log.csv").read_text().splitlines()), 3)
        self.assertEqual(self.record(*options, "--limit", "phase > 1")[::2],
                         (0, "tracewell-record: Rows for which a limit could not be decided: 1\n"))
        rows = list(csv.reader((self.folder / "samples.csv").read_text().splitlines()))
        self.assertEqual(rows[0], ["Time (s)", "CH1 (V)"])
        self.assertEqual(len(rows), 501)
        status, _, said = self.record(*options, "--samples", "samples.csv")
        self.assertEqual(status, 4)
        self.assertIn("samples.csv", said)

    def test_sigrok_and_pandas_read_the_files(self):
        self.instrument()
        names = ("--samples", "samples.csv", "--csv", "log.csv")
        self.assertEqual(self.record("--count", "1", "--measure", "max,freq", *names)[0], 0)

        def said_by(*command):
            said = subprocess.run(command, cwd=self.folder, capture_output=True, text=True, check=True)
            self.assertEqual(said.stderr, "")
            return said.stdout

        # The system's own Python is the one that has the system's pandas.
        table, highest, zone = json.loads(said_by("/usr/bin/python3", "-c", """
import json, pandas
table = pandas.read_csv("samples.csv")
log = pandas.read_csv("log.csv", parse_dates=["time"])
print(json.dumps([table.to_dict("list"), log["max (V)"][0], str(log["time"].dtype)]))
"""))
        self.assertEqual(list(table), ["Time (s)", "CH1 (V)"])
        times, volts = table.values()
        self.assertEqual((len(times), times[250]), (500, 0))
        self.assertAlmostEqual(times[499] + times[1], 0, places=12)
        self.assertAlmostEqual(highest, max(volts))
        self.assertIn("+01:00", zone.replace("pytz.FixedOffset(60)", "+01:00"))
        read = said_by("sigrok-cli", "-i", "samples.csv", "-I", "csv:column_formats=t,a", "-O", "csv:time=true")
        rows = [line.split(",") for line in read.splitlines() if line[:1].isdigit()]
        self.assertIn(f"samplerate: {round(1 / (times[1] - times[0]))}\n", read)
        self.assertEqual(len(rows), 500)
        for row, value in zip(rows, volts):
            self.assertAlmostEqual(float(row[1]), value, places=3)

    def test_a_signal_ends_it_and_releases_the_panel(self):
        """On an instrument of which every line is seen."""
        end, far = pty.openpty()
        tty.setraw(far)
        (self.ports / "com7").symlink_to(os.ttyname(far))
        lines = []
        values = iter(range(1, 100))
        damaged = iter(())
        replies = {b":CHAN1:SCAL?": b"500.0 mV\n", b":CHAN2:SCAL?": b"1.000 V\n", b":TIM:SCAL?": b"1.000 ms\n"}

        def serve():
            with open(end, "r+b", buffering=0) as line:
                for asked in line:
                    lines.append(asked.strip())
                    sweep = bytes([0, next(values, 100)] * 500)
                    answer = b"a header of 14" + sweep if b"POIN" in asked else replies.get(lines[-1], b"")
                    os.write(end, next(damaged, answer) if b"SCAL" in asked else answer)

        threading.Thread(target=serve, daemon=True).start()
        for options, expected in (((), 0), (("--count", "99"), 6)):
            lines.clear()
            program = self.begin("--interval", "0.2", *options)
            for _ in range(3):
                program.stdout.readline()
            program.send_signal(signal.SIGINT)
            program.communicate(timeout=10)
            self.assertEqual(program.returncode, expected)
            time.sleep(0.3)
            self.assertEqual(lines[:3], list(replies))
            self.assertEqual(set(lines[3:-1]), {b":ACQ1:POIN"})
            self.assertEqual(lines[-1], b":SYST:UNL")
        values, damaged = iter(()), iter((b"50.0 mV\n",))
        program = self.begin("--interval", "0.1", "--patience", "0.5", "--count", "5")
        self.assertIn("The same sweep again and again", program.stderr.readline())
        program.send_signal(signal.SIGINT)
        rows, said = program.communicate(timeout=10)
        self.assertEqual((said, program.returncode), ("", 6))
        self.assertTrue(rows.splitlines()[1].split(",")[2])

    def test_what_is_wrong_shows_in_the_status(self):
        files = ("--csv", "log.csv", "--samples", "samples.csv")
        self.assertEqual(self.record(*files)[0], 2)
        said = 'tracewell-record: --measure wants names as vpp,freq, not "bogus" (see --help)\n'
        self.assertEqual(self.record("--measure", "vpp,bogus,x")[::2], (1, said))
        simulator = self.instrument("--fault", "SILENT 1")
        self.assertEqual(self.record(*files)[0], 3)
        self.assertEqual(list(self.folder.glob("*.csv")), [], "files without anything in them")
        simulator.stdin.write("OFF\nCUT 500\n")
        simulator.stdin.flush()
        time.sleep(0.5)
        self.assertEqual(self.record("--patience", "4", "--interval", "0.5")[0], 3)

    def test_a_plug_that_comes_back_has_its_scales_read_again(self):
        simulator = self.instrument("--replug", "2000")
        program = self.begin("--interval", "0.3", "--count", "6", "--measure", "vpp")
        for _ in range(3):
            program.stdout.readline()
        simulator.stdin.write("HANGUP 0\n")
        simulator.stdin.flush()
        out, said = program.communicate(timeout=60)
        self.assertEqual(program.returncode, 0, said)
        self.assertNotEqual(said, "")
        for row in out.splitlines():
            self.assertAlmostEqual(float(row.split(",")[2]), 2, delta=0.2)


unittest.main(argv=sys.argv[:1] + sys.argv[3:])
