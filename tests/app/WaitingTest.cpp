// SPDX-License-Identifier: GPL-3.0-or-later
#include "Waiting.h"

#include <limits>

#include "Doubles.h"

namespace tracewell {

TEST(Waiting, TimeOutsFollowBaudRateAndChannels) {
  const std::tuple<std::int16_t, std::int16_t, std::int16_t, std::int16_t> cases[] = {
      {19200, 1, 600, 150},  {9600, 2, 2400, 600}, {4800, 2, 4800, 1200},
      {11000, 1, 1200, 300}, {14400, 1, 600, 150}, {19200, 0, 0, 0}};
  SharedState state;
  for (const auto& [baudRate, channels, expected, expectedShort] : cases) {
    state.BaudRate = baudRate;
    state.ChanCount = channels;
    EXPECT_EQ(ReplyTimeout(state), expected) << baudRate;
    EXPECT_EQ(ShortReplyTimeout(state), expectedShort) << baudRate;
  }
  state.ChanCount = 1;
  for (const std::int16_t rate : {std::int16_t{300}, std::int16_t{0}}) {
    state.BaudRate = rate;
    EXPECT_THROW(ReplyTimeout(state), Error);
  }
}

TEST(Waiting, DelayLetsEventsRunAndLastsAtLeastOneMillisecondLonger) {
  Bench bench;
  bench.main.TestChar = 65;
  bench.main.tmTest.enabled = true;
  Delay(bench.main, 3000);
  EXPECT_EQ(bench.clock.milliseconds(), 3001);
  EXPECT_EQ(bench.main.lblTest.caption(), "66:B");
  // The tick count wraps during the next.
  bench.clock.jumpTo(std::numeric_limits<std::int32_t>::max() - 100);
  EXPECT_THROW(Delay(bench.main, 1000), Error);
}

/// Whatever the program waits for, closing the window ends it at once and in order.
TEST(Waiting, ClosingTheWindowEndsTheProgramInTheMiddleOfAnything) {
  const std::tuple<const char*, Button frmDSO::*, int> cases[] = {
      {"connecting", &frmDSO::cmdStart, 500},
      {"autoset", &frmDSO::cmdAutoset, 3000},
      {"a burst of settings", &frmDSO::cmdTrig, 500},
      {"measurements", &frmDSO::cmdVMeasure, 0}};
  for (const auto& [what, button, after] : cases) {
    Bench bench;
    bench.program.start();
    bench.port.answerLikeAnInstrument();
    bench.port.answer(":MEAS:VPP?", {"1\n"});
    bench.setRow(2, {"1", "1"});
    bench.windows.user["frmTrig"] = [&] { bench.program.trigger.cmdOK.press(); };
    bench.windows.user["frmVMeasure"] = [&] { bench.program.measurementChoice.cmdOK.press(); };
    bench.clock.callAfter(after, [&] { bench.main.close(); });
    (bench.main.*button).press();
    EXPECT_LE(bench.clock.milliseconds(), after + 100) << what;
    EXPECT_EQ(bench.takeWire().back(), ":SYST:UNL") << what;
    bench.clock.run(20000);
    EXPECT_TRUE(bench.takeWire().empty()) << what;
    EXPECT_TRUE(bench.dialogs.runTimeErrors.empty()) << what;
  }
}

}  // namespace tracewell
