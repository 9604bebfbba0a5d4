#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a user would script instead: traces of channel 1 with pyserial and matplotlib.

scripted_scope.py DEVICE RECORDS STARTED_AT: fetches a record every 1.2 seconds, prints the
milliseconds from its last byte to its picture, and at the end the time from STARTED_AT (nanoseconds
of the system clock) to the first picture, the processor time per record, and the memory.
"""

import pathlib
import resource
import struct
import sys
import time

import matplotlib

matplotlib.use("TkAgg")
import matplotlib.pyplot as plot  # noqa: E402
import serial  # noqa: E402

device, records, started_at = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
port = serial.Serial(device, 19200, timeout=3)
figure, axes = plot.subplots(figsize=(9, 6))
axes.set(xlim=(-250, 249), ylim=(-200, 200))
axes.grid(True)
x = list(range(-250, 250))
(line,) = axes.plot(x, [0] * 500)
plot.show(block=False)
figure.canvas.draw()
figure.canvas.flush_events()
first_picture = (time.time_ns() - started_at) / 1e6
processor_before = time.process_time()
delays = []
for _ in range(records):
    begun = time.monotonic()
    port.write(b":ACQ1:POIN\r\n")
    record = port.read(1014)
    arrived = time.perf_counter()
    line.set_ydata(struct.unpack(">500h", record[14:]))
    figure.canvas.draw()
    figure.canvas.flush_events()
    delays.append(1000 * (time.perf_counter() - arrived))
    figure.canvas.start_event_loop(max(0.01, 1.2 - (time.monotonic() - begun)))
processor = 1000 * (time.process_time() - processor_before) / records
resident = int(next(line.split()[1] for line in pathlib.Path("/proc/self/status").read_text().splitlines()
                    if line.startswith("VmRSS:")))
print(sorted(delays)[len(delays) // 2], processor, first_picture, resident)
