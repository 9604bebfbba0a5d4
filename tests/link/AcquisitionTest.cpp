// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"
#include "WaveformRecord.h"

namespace tracewell {

using AcquisitionTest = ProgramTest;

TEST_F(AcquisitionTest, DecodingOfEveryKindOfSample) {
  const std::tuple<int, std::int16_t, std::int16_t> cases[] = {
      {0x000A, 0, 10},
      {0xFFFF, 0, -1},
      {0xFF00, 0, -256},
      {0x7FFF, -25, 32742},
      {0x8001, -1, -32768},
      // These have no 16-bit result and repeat the sample before them.
      {0x8000, 100, 107},
      {0x7FFF, 1, 8},
      {0x8001, -2, 5}};
  for (const auto& [bits, offset, expected] : cases) {
    const Samples samples =
        decodeSamples(makeRecord([bits = bits](int i) { return i == 0 ? 7 : bits; }), offset);
    EXPECT_EQ(samples[0], 7 + offset);
    EXPECT_EQ(samples[499], expected) << std::hex << bits;
  }
  EXPECT_EQ(decodeSamples(makeRecord([](int) { return 0x8000; }), 3)[0], 0);
  const Samples cut = decodeSamples(makeRecord([](int i) { return i; }).substr(0, 14 + 21), 0);
  EXPECT_EQ(cut[9], 9);
  EXPECT_EQ(cut[499], 9);
}

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
