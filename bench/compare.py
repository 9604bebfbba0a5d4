#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Tracewell beside what a user would use instead, in one run; called by bench/compare.

compare.py TRACEWELL KRM410_SIM DATA_FOLDER BENCHMARKS_FOLDER
"""

import os
import pathlib
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tests" / "system"))
from real_desktop import Instrument, Program, Screen, resident_kilobytes  # noqa: E402

BENCHMARKS = pathlib.Path(sys.argv[4]).resolve()
RECORDS = 20
# The one that has the system's own packages of pyserial and matplotlib.
SYSTEM_PYTHON = "/usr/bin/python3"


def benchmark_milliseconds(program, name):
    """Real time of one benchmark."""
    text = subprocess.run([BENCHMARKS / program, f"--benchmark_filter=^{name}$",
                           "--benchmark_format=csv"], capture_output=True, text=True).stdout
    row = next(line.split(",") for line in text.splitlines() if line.startswith(f'"{name}"'))
    return float(row[2]) * {"ns": 1e-6, "us": 1e-3, "ms": 1}[row[4]]


def own_windows(process, title):
    return subprocess.run(["xdotool", "search", "--all", "--onlyvisible", "--pid", str(process.pid),
                           "--name", f"^{title}$"], capture_output=True, text=True).stdout.split()


def start_once(command, title, folder):
    """Milliseconds from the start of a program to its window, and its memory two seconds later, when
    it must still be showing that window."""
    begun = time.monotonic()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               cwd=folder, env=dict(os.environ, HOME=str(folder)))
    try:
        while not (windows := own_windows(process, title)):
            assert process.poll() is None, f"{command[0]} ended with {process.returncode}"
            assert time.monotonic() - begun < 20, f"{command[0]} shows no window {title}"
        elapsed = 1000 * (time.monotonic() - begun)
        time.sleep(2)
        assert own_windows(process, title) == windows, f"{command[0]} shows another window"
        memory = resident_kilobytes(process.pid)
    finally:
        process.terminate()
        process.wait(10)
    print(f"{command[0]}: {elapsed:.1f} ms, {memory / 1024:.1f} MB", file=sys.stderr)
    return elapsed, memory


def start_up(command, title, folder):
    """The best of five, the first not counted."""
    start_once(command, title, folder)
    return min(start_once(command, title, folder) for _ in range(5))


def start_up_on_a_new_screen(command, title, folder):
    """The best of five. The first GTK program on a screen loads OpenGL to look at it; those after
    it read what that one has left at the root window."""
    figures = []
    for _ in range(5):
        screen = Screen()
        try:
            figures.append(start_once(command, title, folder))
        finally:
            screen.stop()
    return min(figures)


def measure_script(instrument_link):
    output = subprocess.run(
        [SYSTEM_PYTHON, HERE / "scripted_scope.py", instrument_link, str(RECORDS),
         str(time.time_ns())], capture_output=True, text=True, check=True).stdout
    return [float(word) for word in output.split()]


def measure_tracewell(program):
    """Processor milliseconds per record and memory while it acquires."""
    program.start()
    program.keys("F5")
    time.sleep(3)
    before = program.processor_seconds()
    time.sleep(RECORDS * 1.2)
    processor = 1000 * (program.processor_seconds() - before) / RECORDS
    return processor, resident_kilobytes(program.process.pid)


def main():
    screen = Screen()
    program = Program(7)
    link = program.folder / "com7"
    instrument = Instrument(link)
    try:
        delay, processor, first, memory = measure_script(link)
        own_processor, own_memory = measure_tracewell(program)
        program.close()
        own_delay = (benchmark_milliseconds("record_benchmark", "recordToTrace") +
                     benchmark_milliseconds("frame_benchmark", "frame"))
        folder = program.folder
        own_start, own_idle = start_up([program.folder / "tracewell"], "Tracewell", folder)
        others = {
            "PulseView": start_up(["pulseview", "-c"], "Session 1 - PulseView", folder),
            "xoscope, later GTK program": start_up(["xoscope"], "Xoscope", folder),
            "xoscope, first GTK program": start_up_on_a_new_screen(["xoscope"], "Xoscope", folder),
        }
    finally:
        instrument.stop()
        program.remove()
        screen.stop()
    rows = [("last byte to picture, ms", own_delay, "script", delay),
            ("processor time per record, ms", own_processor, "script", processor),
            ("memory while acquiring, MB", own_memory / 1024, "script", memory / 1024),
            ("start to first window or picture, ms", own_start, "script", first)]
    for name, (start, idle) in others.items():
        rows += [("start to first window, ms", own_start, name, start),
                 ("memory then, MB", own_idle / 1024, name, idle / 1024)]
    print("| what | Tracewell | beside | its figure | ratio |\n|---|---|---|---|---|")
    for what, own, name, other in rows:
        print(f"| {what} | {own:.1f} | {name} | {other:.1f} | {other / own:.1f} |")


if __name__ == "__main__":
    main()
