#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the program costs, in numbers that repeat on any machine; called by bench/instructions.

instructions.py TRACEWELL KRM410_SIM DATA_FOLDER

Counts the instructions (callgrind) of a start and of a record, both channels on a pseudo-terminal at
19200 baud, and the wake-ups per second (context switches) before Connect and after a stop.
"""

import os
import pathlib
import re
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tests" / "system"))
from real_desktop import Instrument, Program, Screen, wait_for  # noqa: E402

RECORDS_SECONDS = 30
IDLE_SECONDS = 20
# Called once for each record.
RECORD = re.compile(r"\btracewell::recordText\b")


class CountedProgram(Program):
    def command(self):
        return ["valgrind", "--tool=callgrind", "--quiet",
                f"--callgrind-out-file={self.folder}/count", self.folder / "tracewell"]

    def come_to_rest(self):
        """Until it waits whenever it is looked at for some seconds. What it uses does not tell: on a
        busy machine that is little while it works, too."""
        def rests():
            state = pathlib.Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")", 1)[1].split()[0]
            time.sleep(0.1)
            return state == "S"
        wait_for(lambda: all(rests() for _ in range(30)), 300, "rest")

    def dump(self):
        """Instructions and records since the last one."""
        before = set(self.folder.glob("count*"))
        subprocess.run(["callgrind_control", "--dump", str(self.process.pid)], check=True,
                       capture_output=True)
        file = wait_for(lambda: set(self.folder.glob("count.*")) - before, 60, "a dump").pop()
        text = wait_for(lambda: "totals:" in (text := file.read_text()) and text, 60, "its end")
        total = int(re.search(r"^totals: (\d+)", text, re.MULTILINE)[1])
        names, records = {}, 0
        callee = None
        for line in text.splitlines():
            if name := re.match(r"c?fn=(\(\d+\))(?: (.*))?", line):
                names.setdefault(name[1], name[2])
                callee = names[name[1]]
            elif line.startswith("calls=") and callee and RECORD.search(callee):
                records += int(line[6:].split()[0])
        return total, records


class StartedProgram(CountedProgram):
    """Only started. What a test does to its window then would be counted, too."""
    def start(self):
        self.process = subprocess.Popen(self.command(), cwd=self.folder, env=self.environment)


def wake_ups(program):
    """A second, of all its threads that are still there at the end."""
    def switches():
        return {file.parent.name: int(line.split()[1])
                for file in pathlib.Path(f"/proc/{program.process.pid}/task").glob("*/status")
                for line in file.read_text().splitlines()
                if line.startswith("voluntary_ctxt_switches")}
    before = switches()
    time.sleep(IDLE_SECONDS)
    return sum(count - before.get(thread, 0) for thread, count in switches().items()) / IDLE_SECONDS


def with_program(kind, use, is_asked=False, platform="xcb"):
    """A program on port 7, with an instrument behind it; if it is asked where its controls are, it has
    a plug-in more."""
    program = kind(7)
    instrument = Instrument(program.folder / "com7")
    program.environment["QT_QPA_PLATFORM"] = platform
    if is_asked:
        program.make_known()
    try:
        program.start()
        return use(program)
    finally:
        instrument.stop()
        program.remove()


def count_start(program):
    program.come_to_rest()
    platform = program.environment["QT_QPA_PLATFORM"]
    return [(f"start to the first window ({platform}), million instructions", program.dump()[0] / 1e6)]


def count_records(program):
    program.come_to_rest()
    program.click("frmDSO.cbCh2")
    program.keys("F5")
    time.sleep(10)
    program.dump()
    time.sleep(RECORDS_SECONDS)
    instructions, records = program.dump()
    return [("a record, both channels, million instructions", instructions / records / 1e6),
            ("records counted", records)]


def idle(program):
    program.load(5)
    before = wake_ups(program)
    program.keys("F5")
    time.sleep(5)
    program.keys("F5")
    program.load(15)
    counting = wake_ups(program)
    program.load(120)
    return [("wake-ups a second before Connect", before),
            ("wake-ups a second after a stop, while the ages of the traces count tens of seconds", counting),
            ("wake-ups a second later, when they count minutes", wake_ups(program))]


def main():
    screen = Screen()
    try:
        rows = (with_program(StartedProgram, count_start) +
                with_program(StartedProgram, count_start, platform="offscreen") +
                with_program(CountedProgram, count_records, is_asked=True) +
                with_program(Program, idle))
    finally:
        screen.stop()
    print("| what | measured |\n|---|---|")
    for what, figure in rows:
        print(f"| {what} | {figure:.4g} |")


if __name__ == "__main__":
    main()
