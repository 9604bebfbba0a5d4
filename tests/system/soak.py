#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Ten minutes at full speed, by hand: python3 tests/system/soak.py TRACEWELL KRM410_SIM DATA_FOLDER

Acquires both channels from krm410-sim on a pseudo-terminal, prints the resident memory and the
processor's share each minute, and fails when the memory of the last minute is more than 1 % above
that of the second.
"""

import time

from real_desktop import SystemTestCase, main, resident_kilobytes

MINUTES = 10


class Soak(SystemTestCase):
    def test_memory_stays(self):
        program = self.make_program(7)
        self.make_instrument(program)
        program.start()
        program.click("frmDSO.cbCh2")
        program.keys("F5")
        self.expect_live_trace(program)
        figures = []
        for minute in range(1, MINUTES + 1):
            before = program.processor_seconds()
            time.sleep(60)
            share = 100 * (program.processor_seconds() - before) / 60
            figures.append(resident_kilobytes(program.process.pid))
            print(f"minute {minute}: {figures[-1]} kB, {share:.2f} % of a core", flush=True)
        self.expect_live_trace(program)
        self.assertLess(figures[-1], figures[1] * 1.01)
        program.close()


if __name__ == "__main__":
    main()
