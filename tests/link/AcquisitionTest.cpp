// SPDX-License-Identifier: GPL-3.0-or-later
#include "Acquisition.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "Doubles.h"
#include "LinePort.h"
#include "PacedChannel.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

using Lines = std::vector<std::string>;

class AcquisitionTest : public testing::Test {
 protected:
  AcquisitionTest() { bench.program.start(); }
  Acquisition& acquisition = bench.program.acquisition;

  Bench bench;
  ScriptedPort& port = bench.port;
  frmDSO& main = bench.main;
};

TEST_F(AcquisitionTest, TicksTakeTurnsBetweenTheDisplayedChannels) {
  const struct {
    bool first, second;
    Lines expected;
  } cases[] = {{true, true, {":ACQ2:POIN", ":ACQ1:POIN", ":ACQ2:POIN"}},
               {true, false, {":ACQ1:POIN", ":ACQ1:POIN"}},
               {false, true, {":ACQ2:POIN", ":ACQ2:POIN"}},
               {false, false, {":ACQ2:POIN", ":ACQ2:POIN"}}};
  for (const auto& c : cases) {
    port.wire.clear();
    main.ChanOn = {c.first, c.second};
    main.tmDSO.enabled = true;
    bench.clock.run(1200 * static_cast<int>(c.expected.size()));
    main.tmDSO.enabled = false;
    EXPECT_EQ(port.wire, c.expected);
  }
  EXPECT_EQ(port.recordLength, 1014);
  EXPECT_FALSE(port.textMode);
  EXPECT_TRUE(main.PortBusy);
}

TEST_F(AcquisitionTest, DecodingOfEveryKindOfSample) {
  const struct {
    int bits;
    std::int16_t offset;
    std::int16_t expected;
  } cases[] = {{0x000A, 0, 10},
               {0xFFFF, 0, -1},
               {0xFF00, 0, -256},
               {0x7FFF, 0, 32767},
               {0x8001, 0, -32767},
               {0x7FFF, -25, 32742},
               {0x8001, -1, -32768},
               // These have no 16-bit result and repeat the sample before them.
               {0x8000, 0, 7},
               {0x8000, 100, 107},
               {0x7FFF, 1, 8},
               {0x8001, -2, 5}};
  for (const auto& c : cases) {
    const Samples samples =
        decodeSamples(makeRecord([&](int i) { return i == 0 ? 7 : c.bits; }), c.offset);
    EXPECT_EQ(samples[0], 7 + c.offset);
    EXPECT_EQ(samples[499], c.expected) << std::hex << c.bits;
  }
  const Samples first = decodeSamples(makeRecord([](int) { return 0x8000; }), 3);
  EXPECT_EQ(first[0], 0);
  const Samples cut = decodeSamples(makeRecord([](int i) { return i; }).substr(0, 14 + 21), 0);
  EXPECT_EQ(cut[9], 9);
  EXPECT_EQ(cut[499], 9);
}

TEST_F(AcquisitionTest, RecordGoesToTheChannelOfItsTagShiftedByThePosition) {
  main.Ch1Pos = 0.5;
  main.Ch2Pos = -2;
  main.AcqChan = 1;
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
  EXPECT_EQ(main.graphDSO.plot(1).y().front(), -225);
  const std::string& text = main.txtMsg.text();
  EXPECT_EQ(std::count(text.begin(), text.end(), ','), 500);
  EXPECT_TRUE(text.starts_with("1,-225,-224,"));
  EXPECT_TRUE(text.ends_with(",274\r\n"));
  EXPECT_EQ(main.WaveCount, 2);
  EXPECT_EQ(port.resets, 2);

  main.Ch1Pos = 0.01;
  port.deliver(record);
  EXPECT_EQ(main.graphDSO.plot(1).y().front(), -250);
}

TEST_F(AcquisitionTest, NothingThatFailsInsideARecordIsReported) {
  main.WaveCount = 32767;
  main.Ch2Pos = 1000;
  for (const char* tag : {"2", "7", "x", ""}) {
    port.tag = tag;
    port.deliver(makeRecord([](int) { return 1; }));
  }
  EXPECT_EQ(main.WaveCount, 32767);
  EXPECT_EQ(main.graphDSO.plot(2).y().front(), 1);
  EXPECT_EQ(port.resets, 4);
  EXPECT_TRUE(bench.dialogs.runTimeErrors.empty());
  EXPECT_TRUE(bench.logLines().empty());
}

TEST_F(AcquisitionTest, PauseAndResumeAreNotMirrorImages) {
  main.tmDSO.enabled = true;
  bench.clock.run(1200);
  acquisition.StopAcq();
  EXPECT_FALSE(main.tmDSO.enabled());
  EXPECT_FALSE(main.PortBusy);
  EXPECT_EQ(port.resets, 1);
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[2]);
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[1]);
  acquisition.StopAcq();
  EXPECT_EQ(port.resets, 1);
  acquisition.ResumeAcq();
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_TRUE(main.PortBusy);
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[7]);
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
}

TEST_F(AcquisitionTest, PortThatCannotBeResetIsLogged) {
  bench.port.isStuck = true;
  bench.main.PortBusy = true;
  bench.program.acquisition.StopAcq();
  EXPECT_EQ(bench.logLines(), std::vector<std::string>{"RS232 - StopAcq : stuck"});
}

TEST_F(AcquisitionTest, FailedRequestIsLoggedOnceAndStopsTheTicks) {
  main.tmDSO.enabled = true;
  port.faults = 1000;
  bench.clock.run(10000);
  EXPECT_EQ(bench.logLines(), Lines{"RS232 - AcqDSO : no such device"});
  EXPECT_EQ(port.faults, 999);
}

TEST_F(AcquisitionTest, RunStopTellsTheInstrumentByItsCaption) {
  main.tmDSO.enabled = true;
  for (int i = 0; i < 3; ++i) main.cmdRunStop.press();
  EXPECT_EQ(port.wire, (Lines{":Stop", ":Run", ":Stop"}));
  EXPECT_EQ(main.cmdRunStop.caption(), main.Msg[5]);
  EXPECT_TRUE(main.tmDSO.enabled());
}

/// The whole program on the port's real rules: the plug is pulled in the middle of a record.
TEST(AcquisitionOnALine, UnpluggedAndPluggedInAgain) {
  ProgramFolderCopy folder;
  VirtualClock clock;
  RecordingDialogs dialogs;
  EventDispatcher dispatcher(dialogs);
  FarEnd farEnd;
  farEnd.answer = [](const std::string& line) -> std::string {
    if (line.ends_with("SCAL?")) return line.starts_with(":T") ? "500.0 us\n" : "1.000 V\n";
    if (line.ends_with("OFFS?")) return "1.000 V\n";
    return line == ":ACQ1:POIN" ? makeRecord([](int i) { return i; }) : "";
  };
  PacedOpener opener(farEnd, clock);
  LinePort port(opener, clock, dispatcher);
  ScriptedPort list;
  ScriptedWindows windows;
  RecordingPictures pictures;
  RecordingPrinter printer;
  Services services{clock,   dialogs,  dispatcher, port,         list,
                    windows, pictures, printer,    folder.path()};
  Tracewell program(services);
  program.start();
  program.main.cmdStart.press();
  clock.run(1200);
  EXPECT_EQ(program.main.WaveCount, 1);
  EXPECT_EQ(program.main.graphDSO.plot(1).y().back(), 499 + 50);

  clock.run(700);
  farEnd.isAway = true;
  clock.run(5000);
  EXPECT_FALSE(program.main.tmDSO.enabled());
  const std::string& log = program.errLog.txtErrLog.text();
  EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 1);
  EXPECT_NE(log.find("AcqDSO : "), std::string::npos);

  farEnd.isAway = false;
  const auto count = program.main.WaveCount;
  program.main.cmdStart.press();
  clock.run(3000);
  EXPECT_GT(program.main.WaveCount, count);
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
}

}  // namespace
}  // namespace tracewell
