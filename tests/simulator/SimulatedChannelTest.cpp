// SPDX-License-Identifier: GPL-3.0-or-later
#include "SimulatedChannel.h"

#include "Bench.h"
#include "PortUser.h"

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

/// Records are given up half-way in every way that the program knows, and nothing of them may turn
/// up later.
TEST(SimulatedChannel, AbandonedRecordsLeaveNothingBehind) {
  for (const int baudRate : {2400, 9600, 19200}) {
    SCOPED_TRACE(baudRate);
    OnALine<InProcessOpener> line;
    PortUser user(line.port);
    line.port.settings.baudRate = baudRate;
    const int recordTime = 1014 * 10 * 1000 / baudRate;
    user.request(1);
    line.clock.run(recordTime / 3);
    EXPECT_EQ(user.ask("*IDN?"), "KRM-410 SIMULATED\n");

    user.request(2);
    line.clock.run(recordTime / 2);
    line.port.abandon();
    user.send(":CHAN1:SCAL 2");
    EXPECT_EQ(user.ask(":CHAN1:SCAL?"), "2.000 V\n");

    user.request(1);
    line.clock.run(recordTime / 4);
    user.send(":CHAN1:SCAL 5E-1");
    user.request(2);
    line.clock.run(2 * recordTime + 3100);
    ASSERT_EQ(user.records.size(), 1u);
    EXPECT_EQ(user.records[0].channel, 2);
    EXPECT_EQ(user.records[0].bytes.substr(0, 12), "KRM410 REC 2");
  }
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
class BuiltInInstrument : public testing::Test, protected BenchOf<OnALine<InProcessOpener>> {};

TEST_F(BuiltInInstrument, BothTracesRunAndThePlugMayBePulled) {
  program.start();
  main.cbCh2.toggle();
  main.cmdStart.press();
  EXPECT_EQ(main.lblChan1.caption(), "500.0 mV");
  EXPECT_EQ(main.Ch2Pos, -2);
  clock.run(60000);
  EXPECT_GE(program.acquisition.WaveCount, 49);
  for (const int number : {1, 2}) EXPECT_EQ(main.graphDSO.plot(number).y().size(), 500u);
  // A port chosen while a record comes has nothing to do with that record.
  port.settings.portNumber = 33;
  port.dataReady.raise({.channel = 1, .bytes = main.Ch1Raw});
  EXPECT_EQ(main.graphDSO.note(), "SIMULATED");
  clock.run(3000);
  EXPECT_EQ(main.graphDSO.note(), "");

  opener.instrument.setFault("HANGUP 200");
  clock.run(5000);
  // The cable of the built-in instrument is in again as soon as the port is opened again.
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_TRUE(logLines().empty());
  const auto count = program.acquisition.WaveCount;
  clock.run(5000);
  EXPECT_GT(program.acquisition.WaveCount, count);
}

}  // namespace tracewell
