// SPDX-License-Identifier: GPL-3.0-or-later
#include "Doubles.h"
#include "WaveformRecord.h"

namespace tracewell {

using AcquisitionTest = ProgramTest;

TEST_F(AcquisitionTest, TicksTakeTurnsBetweenTheDisplayedChannels) {
  const std::pair<std::array<bool, 2>, Lines> cases[] = {
      {{true, true}, {":ACQ2:POIN", ":ACQ1:POIN", ":ACQ2:POIN"}},
      {{true, false}, {":ACQ1:POIN", ":ACQ1:POIN"}},
      {{false, true}, {":ACQ2:POIN", ":ACQ2:POIN"}},
      {{false, false}, {":ACQ2:POIN", ":ACQ2:POIN"}}};
  for (const auto& [displayed, expected] : cases) {
    port.wire.clear();
    main.ChanOn = displayed;
    main.tmDSO.enabled = true;
    clock.run(1200 * static_cast<int>(expected.size()));
    main.tmDSO.enabled = false;
    EXPECT_EQ(port.wire, expected);
  }
  EXPECT_EQ(port.recordLength, 1014);
  EXPECT_FALSE(port.textMode);
}

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

TEST_F(AcquisitionTest, RecordGoesToTheChannelOfItsTagShiftedByThePosition) {
  main.Ch1Pos = 0.5;
  main.Ch2Pos = -2;
  const std::string record = makeRecord([](int i) { return i - 250; });
  port.tag = "2";
  port.deliver(record);
  EXPECT_EQ(main.Ch2Raw, record);
  EXPECT_TRUE(main.Ch1Raw.empty());
  EXPECT_EQ(main.graphDSO.plot(2).y().front(), -350);
  EXPECT_TRUE(main.graphDSO.plot(1).y().empty());
  port.tag = "1";
  port.deliver(record);
  EXPECT_EQ(main.graphDSO.plot(1).x().front(), -250);
  EXPECT_EQ(main.graphDSO.plot(1).x().back(), 249);
  EXPECT_TRUE(main.txtMsg.text().starts_with("1,-225,-224,"));
  EXPECT_TRUE(main.txtMsg.text().ends_with(",274\r\n"));
  EXPECT_EQ(main.WaveCount, 2);

  main.Ch1Pos = 0.01;
  port.deliver(record);
  EXPECT_EQ(main.graphDSO.plot(1).y().front(), -250);

  // Nothing that fails inside a record is reported, and the port is free after each.
  main.Ch2Pos = 1000;
  main.WaveCount = 32767;
  for (const char* tag : {"2", "7", "x", ""}) {
    port.tag = tag;
    port.deliver(makeRecord([](int) { return 1; }));
  }
  EXPECT_EQ(main.graphDSO.plot(2).y().front(), 1);
  EXPECT_EQ(port.resets, 7);
  EXPECT_EQ(main.WaveCount, 32767);
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
  EXPECT_TRUE(logLines().empty());
}

TEST_F(AcquisitionTest, PauseAndResumeAreNotMirrorImages) {
  main.tmDSO.enabled = true;
  clock.run(1200);
  for (int pause = 0; pause < 2; ++pause) {
    program.acquisition.StopAcq();
    EXPECT_FALSE(main.tmDSO.enabled());
    EXPECT_FALSE(main.PortBusy);
    EXPECT_EQ(port.resets, 1);
    EXPECT_EQ(main.cmdStart.caption(), main.Msg[2]);
    EXPECT_EQ(main.lblConnect.caption(), main.Msg[1]);
  }
  program.acquisition.ResumeAcq();
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[7]);
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
  port.isStuck = true;
  program.acquisition.StopAcq();
  EXPECT_EQ(logLines(), Lines{"RS232 - StopAcq : stuck"});
}

TEST_F(AcquisitionTest, FailedRequestIsLoggedOnceAndStopsTheTicks) {
  main.tmDSO.enabled = true;
  port.faults = 1000;
  clock.run(10000);
  EXPECT_EQ(logLines(), Lines{"RS232 - AcqDSO : no such device"});
  EXPECT_EQ(port.faults, 999);
}

TEST_F(AcquisitionTest, RunStopTellsTheInstrumentByItsCaption) {
  for (int i = 0; i < 3; ++i) main.cmdRunStop.press();
  EXPECT_EQ(port.wire, (Lines{":Stop", ":Run", ":Stop"}));
}

}  // namespace tracewell
