// SPDX-License-Identifier: GPL-3.0-or-later
#include "SimulatedChannel.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "AbandonedRecords.h"
#include "Doubles.h"

namespace tracewell {
namespace {

class InProcessOpener : public ChannelOpener {
 public:
  explicit InProcessOpener(Clock& clock) : clock_(clock) {}
  std::unique_ptr<ByteChannel> open(const LineSettings& settings) override {
    return std::make_unique<SimulatedChannel>(instrument, clock_, settings);
  }
  Instrument instrument;

 private:
  Clock& clock_;
};

class SimulatedChannelTest : public testing::Test {
 protected:
  VirtualClock clock;
  RecordingDialogs dialogs;
  EventDispatcher dispatcher{dialogs};
  InProcessOpener opener{clock};
  LinePort port{opener, clock, dispatcher};
};

TEST_F(SimulatedChannelTest, AbandonedRecordsLeaveNothingBehind) {
  AbandonedRecords records(port, [this](int milliseconds) { clock.run(milliseconds); });
  for (const int baudRate : {2400, 9600, 19200}) records.tryAt(baudRate);
}

TEST_F(SimulatedChannelTest, ReadWaitsAsLongAsItIsTold) {
  const auto channel = opener.open({});
  EXPECT_EQ(channel->read(300), "");
  EXPECT_EQ(clock.milliseconds(), 300);
  channel->write("*IDN?\r\n");
  std::string reply;
  while (!reply.ends_with('\n')) {
    const std::string bytes = channel->read(300);
    ASSERT_FALSE(bytes.empty());
    reply += bytes;
  }
  // 7 bytes there and 18 back at half a millisecond each, and a moment of thought.
  EXPECT_NEAR(static_cast<double>(clock.milliseconds()), 300 + 25 * 0.52 + 4, 2);
}

/// The whole program with the instrument that it carries, in a time of its own.
class BuiltInInstrument : public testing::Test {
 protected:
  void connect() {
    program.start();
    main.cbCh2.toggle();
    main.cmdStart.press();
  }

  ProgramFolderCopy folder;
  VirtualClock clock;
  RecordingDialogs dialogs;
  EventDispatcher dispatcher{dialogs};
  InProcessOpener opener{clock};
  LinePort port{opener, clock, dispatcher};
  ScriptedPort list;
  ScriptedWindows windows;
  RecordingPictures pictures;
  RecordingPrinter printer;
  Services services{clock,   dialogs,  dispatcher, port,         list,
                    windows, pictures, printer,    folder.path()};
  Tracewell program{services};
  frmDSO& main = program.main;
};

TEST_F(BuiltInInstrument, BothTracesRunAndThePlugMayBePulled) {
  connect();
  EXPECT_EQ(main.lblChan1.caption(), "500.0 mV");
  EXPECT_EQ(main.lblChan2.caption(), "1.000 V");
  EXPECT_EQ(main.slideCH1.value(), 1);
  EXPECT_EQ(main.Ch2Pos, -2);
  clock.run(60000);
  EXPECT_GE(main.WaveCount, 49);
  for (const int number : {1, 2}) EXPECT_EQ(main.graphDSO.plot(number).y().size(), 500u);
  EXPECT_EQ(main.graphDSO.note(), "SIMULATED");

  opener.instrument.setFault("HANGUP 200");
  clock.run(5000);
  // The cable of the built-in instrument is in again as soon as the port is opened again.
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_TRUE(program.errLog.txtErrLog.text().empty());
  const auto count = main.WaveCount;
  clock.run(5000);
  EXPECT_GT(main.WaveCount, count);
}

TEST_F(BuiltInInstrument, KnobSpunDuringAcquisitionDelaysAndSpoilsNothing) {
  connect();
  clock.run(3000);
  for (int turn = 0; turn < 3; ++turn) {
    for (int step = 0; step <= 28; ++step) {
      const std::int64_t before = clock.milliseconds();
      main.knobTime.turn(turn % 2 == 0 ? step : 28 - step);
      // A command has no reply to wait for, not even behind a record on its way.
      EXPECT_LE(clock.milliseconds() - before, 1);
      clock.run(90);
    }
    EXPECT_TRUE(main.Ch1Raw.starts_with("KRM410 REC 1"));
    EXPECT_TRUE(main.Ch2Raw.starts_with("KRM410 REC 2"));
  }
  EXPECT_TRUE(main.tmDSO.enabled());
  main.txtTest.type(":TIM:SCAL?");
  main.txtTest.pressKey(TextBox::enterKey);
  EXPECT_EQ(main.txtMsg.text(), "5.000 s");
}

TEST_F(BuiltInInstrument, MeasuredValuesAgreeWithTheTrace) {
  connect();
  clock.run(4000);
  main.cmdRunStop.press();
  clock.run(4000);
  windows.user["frmVMeasure"] = [this] {
    program.measurementChoice.cmdClearAll.press();
    program.measurementChoice.cbV(0).toggle();
    program.measurementChoice.cbF(0).toggle();
    program.measurementChoice.cmdOK.press();
  };
  main.cmdVMeasure.press();
  const auto value = [this](int label) {
    const std::string& caption = main.lblMeasure(label).caption();
    return std::pair(caption, std::stod(caption.substr(caption.find(':') + 1)));
  };
  const auto& trace = main.graphDSO.plot(1).y();
  const auto [low, high] = std::ranges::minmax(trace);
  const auto [vpp, volts] = value(0);
  // One count is a fiftieth of the 500 mV per division.
  EXPECT_NEAR(volts, (high - low) * 0.5 / 50, 0.5 / 50) << vpp;
  const auto [freq, kilohertz] = value(1);
  EXPECT_NEAR(kilohertz, 1, 0.01) << freq;
}

}  // namespace
}  // namespace tracewell
