// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

namespace tracewell {

using AcquisitionTest = ProgramTest;

/// Nothing that fails inside a record is reported.
TEST_F(AcquisitionTest, RecordOfNoUseIsLeftOut) {
  main.Ch2Pos = 1000;
  program.acquisition.WaveCount = 32764;
  for (const std::int16_t channel : std::vector<std::int16_t>{2, 7, 0, 2})
    port.deliver(channel, makeRecord([](int) { return 1; }));
  EXPECT_EQ(main.graphDSO.plot(2).y().front(), 1);
  EXPECT_EQ(program.acquisition.WaveCount, 32767);
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
  EXPECT_TRUE(logLines().empty());
}

/// One that goes on after a pause is not given up by the next pause.
TEST_F(AcquisitionTest, PauseEndsARecordOnItsWay) {
  main.tmDSO.enabled = true;
  clock.run(1200);
  EXPECT_EQ(port.requested.count, 1014u);
  for (int pause = 0; pause < 2; ++pause) {
    program.acquisition.StopAcq();
    EXPECT_EQ(port.abandoned, 1);
  }
  program.acquisition.ResumeAcq();
  port.isStuck = true;
  program.acquisition.StopAcq();
  EXPECT_EQ(logLines(), Lines{"RS232 - StopAcq : stuck"});
}

}  // namespace tracewell
