// SPDX-License-Identifier: GPL-3.0-or-later
#include "Waiting.h"

#include <gtest/gtest.h>

#include <limits>

#include "Doubles.h"

namespace tracewell {
namespace {

TEST(Waiting, TimeOutsFollowBaudRateAndChannels) {
  const struct {
    std::int16_t baudRate, channels, expected, expectedShort;
  } cases[] = {{19200, 1, 600, 150},  {9600, 2, 2400, 600}, {4800, 2, 4800, 1200},
               {11000, 1, 1200, 300}, {14400, 1, 600, 150}, {19200, 0, 0, 0}};
  SharedState state;
  for (const auto& c : cases) {
    state.BaudRate = c.baudRate;
    state.ChanCount = c.channels;
    EXPECT_EQ(ReplyTimeout(state), c.expected) << c.baudRate;
    EXPECT_EQ(ShortReplyTimeout(state), c.expectedShort) << c.baudRate;
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

TEST(Waiting, ClosingTheWindowEndsTheWait) {
  Bench bench;
  bench.program.start();
  bench.clock.callAfter(500, [&] { bench.main.close(); });
  EXPECT_THROW(Delay(bench.main, 10000), ProgramEnded);
  EXPECT_LT(bench.clock.milliseconds(), 600);
  EXPECT_TRUE(std::filesystem::exists(bench.folder.path() / "default.dso"));
}

}  // namespace
}  // namespace tracewell
