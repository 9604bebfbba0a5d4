#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The real program on a real screen and a pseudo-terminal: first steps, settings, faults."""

import os
import signal
import subprocess
import time

from real_desktop import PATIENCE, PLUGINS, SystemTestCase, free_port, main, run, wait_for


class SystemTest(SystemTestCase):
    def choose_port(self, program, number):
        traces = program.place("frmDSO.plot")
        program.keys("ctrl+r")
        program.focus(program.find("RS-232"))
        # It leaves the traces in sight.
        self.assertGreater(program.place("frmRS232.cbRS232_0").left, traces.left + traces.width)
        program.keys("Tab", "Tab", "Tab", "Tab", "ctrl+a")
        program.type(str(number))
        program.keys("Return")
        # Keys for the panel are nobody's while it closes.
        program.closed("RS-232")
        program.focus(program.window)

    def test_newcomer_presses_connect(self):
        program = self.make_program(0)
        program.start()
        self.assertEqual(self.lamp(program), "blue")
        self.assertEqual(len(self.trace(program)), 0)
        idle = program.load(3)
        program.keys("F5")
        self.expect_live_trace(program)
        self.assertEqual(self.lamp(program), "green")
        acquiring = program.load(5)
        program.keys("F5")
        waiting = program.load(0.9)
        self.expect_lamp(program, "red")
        print(f"load: idle {idle:.1f} %, acquiring {acquiring:.1f} %, waiting {waiting:.1f} %")
        self.assertLess(idle, 2)
        self.assertLess(acquiring, 6)  # The screenshots of this test cost some.
        self.assertLess(waiting, 8)
        program.close()
        self.assertEqual(program.process.returncode, 0)

    def test_port_chosen_in_the_dialog_is_remembered(self):
        program = self.make_program(0)
        self.make_instrument(program)
        program.start()
        self.choose_port(program, 7)
        program.keys("F5")
        self.expect_live_trace(program)
        program.keys("ctrl+r")
        program.find("RS-232")
        # The far end of the pseudo-terminal is no other program that uses it.
        self.assertTrue(program.place("frmRS232.lblDevice").text.startswith("/"))
        program.keys("Escape")
        program.close()
        self.assertIn(b",None,7\r\n", program.setup.read_bytes())

    def test_turned_knob_scales_the_trace(self):
        program = self.make_program(7)
        self.make_instrument(program)
        program.start()
        program.keys("F5")
        self.expect_live_trace(program)

        def height():
            rows = [y for _, y in self.trace(program)]
            return max(rows) - min(rows) if rows else 0

        before = height()
        program.click("frmDSO.knobChan1", button=4)
        wait_for(lambda: abs(height() - before / 2) < before / 10, PATIENCE, "a trace of half the height")
        program.close()

    def test_pulled_plug(self):
        program = self.make_program(7)
        instrument = self.make_instrument(program)
        program.start()
        program.keys("F5")
        self.expect_live_trace(program)
        instrument.fault("HANGUP 700")
        wait_for(lambda: instrument.process.poll() is not None, PATIENCE, "the hang-up")
        loads = []

        def traces_stand_still():
            before = self.trace(program)
            loads.append(program.load(3))
            return self.trace(program) == before

        wait_for(traces_stand_still, PATIENCE, "the end of the traces")
        self.assertLess(loads[-1], 2)

        program.keys("ctrl+e")
        program.focus(program.find("Error Log"))
        program.keys("Return")
        program.closed("Error Log")
        log = (program.folder / "dso.err").read_text()
        self.assertEqual(log.count("\n"), 1, log)
        self.assertIn("AcqDSO : ", log)

        # Another instrument may be there now: its traces are pale until its scales have been read.
        self.make_instrument(program)
        program.focus(program.window)
        program.click("frmDSO.cmdRS232")
        self.expect_live_trace(program)
        program.close()

    def test_device_server_goes_and_comes_back(self):
        program = self.make_program(0)
        self.make_instrument(program)
        tcp = free_port()
        (program.folder / "com5").write_text(f"tcp://127.0.0.1:{tcp}\n")
        server = self.make_server(program, tcp)
        program.start()
        self.choose_port(program, 5)
        program.keys("F5")
        self.expect_live_trace(program)
        self.assertIn(f"127.0.0.1:{tcp}", program.place("frmDSO.lblPort").text)
        program.click("frmDSO.txtTest")
        program.type("*IDN?")
        program.keys("Return")
        wait_for(lambda: "KRM-410" in program.place("frmDSO.txtMsg").text, PATIENCE, "the instrument's name")
        self.assertNotIn(server.GREETING, program.place("frmDSO.txtMsg").text)
        server.stop()
        wait_for(lambda: "refused" in program.place("frmDSO.lblStatus").text, PATIENCE, "the loss to be said")
        self.make_server(program, tcp)
        # There may be another instrument behind it: its traces are pale until its scales have been read.
        program.focus(program.window)
        program.click("frmDSO.cmdRS232")
        self.expect_live_trace(program)
        program.close()

    def test_name_server_that_is_away_holds_nobody(self):
        program = self.make_program(5)
        (program.folder / "com5").write_text("tcp://bench:5000\n")
        program.environment["LD_PRELOAD"] = str(PLUGINS / "libslow_names.so")
        program.start()
        program.keys("F5")
        wait_for(lambda: "not found in time" in program.place("frmDSO.lblStatus").text, 10,
                 "the reason")
        program.process.terminate()
        self.assertEqual(program.process.wait(PATIENCE), 0)

    def test_start_without_language_files_says_so(self):
        program = self.make_program(0)
        (program.folder / "dso_la1.msg").unlink()
        environment = dict(os.environ, HOME=str(program.folder / "home"))
        (program.folder / "dso_la1.cap").unlink()
        program.process = subprocess.Popen([program.folder / "tracewell"], env=environment)
        program.focus(program.find("Tracewell"))
        program.keys("Return")
        self.assertEqual(program.process.wait(PATIENCE), 1)

    def test_start_without_a_display_says_so(self):
        program = self.make_program(0)
        bare = {name: value for name, value in os.environ.items()
                if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        cases = ((["--version"], 0, "tracewell "), (["--help"], 0, "--version"),
                 (["-platform", "offscreen", "7"], 1, '"7" is no option (see --help)'),
                 ([], 1, "no window can be shown here"))
        for words, status, said in cases:
            ended = subprocess.run([*program.command(), *words], env=bare, timeout=PATIENCE,
                                   capture_output=True, text=True)
            self.assertEqual(ended.returncode, status, words)
            self.assertIn(said, ended.stdout + ended.stderr)

    def test_end_of_the_session_saves_the_setup(self):
        program = self.make_program(0)
        program.start()
        program.keys("F5")
        self.expect_live_trace(program)
        self.choose_port(program, 7)
        program.keys("ctrl+r")
        program.find("RS-232")
        program.process.terminate()
        self.assertEqual(program.process.wait(PATIENCE), 0)
        self.assertIn(b",None,7\r\n", program.setup.read_bytes())

    def test_end_of_the_session_asks_nothing(self):
        program = self.make_program(0)
        damaged = program.setup.read_bytes().replace(b"RRS232,5", b"RRS232,x")
        program.setup.write_bytes(damaged)
        program.start()
        program.process.terminate()
        self.assertEqual(program.process.wait(PATIENCE), 0)
        self.assertEqual(program.setup.read_bytes(), damaged)

    def test_kill_leaves_the_setup_whole(self):
        program = self.make_program(0)
        whole = program.setup.read_bytes()
        for delay in (0, 0.01, 0.03):
            program.start()
            program.keys("ctrl+q")
            program.focus(program.find("Tracewell"))
            run("xdotool", "key", "alt+y")
            time.sleep(delay)
            program.process.send_signal(signal.SIGKILL)
            program.process.wait()
            self.assertEqual(program.setup.read_bytes(), whole)


if __name__ == "__main__":
    main()
