// SPDX-License-Identifier: GPL-3.0-or-later
#include "SimulatedChannel.h"

#include "AbandonedRecords.h"
#include "Doubles.h"

namespace tracewell {

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

TEST(SimulatedChannel, AbandonedRecordsLeaveNothingBehind) {
  OnALine<InProcessOpener> line;
  AbandonedRecords records(line.port, [&](int milliseconds) { line.clock.run(milliseconds); });
  for (const int baudRate : {2400, 9600, 19200}) records.tryAt(baudRate);
}

TEST(SimulatedChannel, ReadWaitsAsLongAsItIsToldAndBytesTakeTheirTime) {
  OnALine<InProcessOpener> line;
  const auto channel = line.opener.open(
      {.portNumber = 0, .baudRate = 2400, .dataBits = 7, .stopBits = 2, .parity = 1});
  EXPECT_EQ(channel->read(300), "");
  EXPECT_EQ(line.clock.milliseconds(), 300);
  channel->write("*IDN?\r\n");
  std::string reply;
  while (!reply.ends_with('\n')) {
    const std::string bytes = channel->read(300);
    ASSERT_FALSE(bytes.empty());
    reply += bytes;
  }
  // 7 bytes there and 18 back, of 11 bits each, and a moment of thought.
  EXPECT_NEAR(static_cast<double>(line.clock.milliseconds()), 300 + 25 * 11 / 2.4 + 4, 3);
}

/// The whole program with the instrument that it carries, in a time of its own.
class BuiltInInstrument : public testing::Test, protected BenchOf<OnALine<InProcessOpener>> {
 protected:
  BuiltInInstrument() {
    program.start();
    main.cbCh2.toggle();
    main.cmdStart.press();
  }
};

TEST_F(BuiltInInstrument, BothTracesRunAndThePlugMayBePulled) {
  EXPECT_EQ(main.lblChan1.caption(), "500.0 mV");
  EXPECT_EQ(main.Ch2Pos, -2);
  clock.run(60000);
  EXPECT_GE(main.WaveCount, 49);
  for (const int number : {1, 2}) EXPECT_EQ(main.graphDSO.plot(number).y().size(), 500u);
  // A port chosen while a record comes has nothing to do with that record.
  port.settings.portNumber = 33;
  port.dataReady.raise(main.Ch1Raw);
  EXPECT_EQ(main.graphDSO.note(), "SIMULATED");
  clock.run(3000);
  EXPECT_EQ(main.graphDSO.note(), "");

  opener.instrument.setFault("HANGUP 200");
  clock.run(5000);
  // The cable of the built-in instrument is in again as soon as the port is opened again.
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_TRUE(logLines().empty());
  const auto count = main.WaveCount;
  clock.run(5000);
  EXPECT_GT(main.WaveCount, count);
}

TEST_F(BuiltInInstrument, KnobSpunDuringAcquisitionDelaysAndSpoilsNothing) {
  clock.run(3000);
  for (int step = 0; step <= 84; ++step) {
    const std::int64_t before = clock.milliseconds();
    main.knobTime.turn(step % 29);
    // A command has no reply to wait for, not even behind a record on its way.
    EXPECT_LE(clock.milliseconds() - before, 1);
    clock.run(90);
  }
  EXPECT_TRUE(main.Ch1Raw.starts_with("KRM410 REC 1"));
  EXPECT_TRUE(main.Ch2Raw.starts_with("KRM410 REC 2"));
  EXPECT_TRUE(main.tmDSO.enabled());
  main.knobTime.turn(28);
  main.txtTest.type(":TIM:SCAL?");
  main.txtTest.pressKey(TextBox::enterKey);
  EXPECT_EQ(main.txtMsg.text(), "5.000 s");
}

}  // namespace tracewell
