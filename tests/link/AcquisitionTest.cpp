// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

namespace tracewell {

using AcquisitionTest = ProgramTest;

/// Nothing that fails inside a record is reported, and the port is free after each.
TEST_F(AcquisitionTest, RecordOfNoUseIsLeftOut) {
  main.Ch2Pos = 1000;
  program.acquisition.WaveCount = 32767;
  for (const char* tag : {"2", "7", "x", ""}) {
    port.tag = tag;
    port.deliver(makeRecord([](int) { return 1; }));
  }
  EXPECT_EQ(main.graphDSO.plot(2).y().front(), 1);
  EXPECT_EQ(port.resets, 4);
  EXPECT_EQ(program.acquisition.WaveCount, 32767);
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
  EXPECT_TRUE(logLines().empty());
}

/// One that goes on after a pause is not reset by the next pause.
TEST_F(AcquisitionTest, PauseEndsARecordOnItsWay) {
  main.tmDSO.enabled = true;
  clock.run(1200);
  EXPECT_EQ(port.recordLength, 1014);
  EXPECT_FALSE(port.textMode);
  for (int pause = 0; pause < 2; ++pause) {
    program.acquisition.StopAcq();
    EXPECT_EQ(port.resets, 1);
  }
  program.acquisition.ResumeAcq();
  port.isStuck = true;
  program.acquisition.StopAcq();
  EXPECT_EQ(logLines(), Lines{"RS232 - StopAcq : stuck"});
}

}  // namespace tracewell
