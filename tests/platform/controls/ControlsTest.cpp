// SPDX-License-Identifier: GPL-3.0-or-later
#include "Controls.h"

#include "Bench.h"

namespace tracewell {

class ControlsTest : public testing::Test, protected Bench {};

TEST_F(ControlsTest, TimerStartsAFullIntervalAndStopsAtOnce) {
  Window window("frmTry", "Try", services);
  Timer timer(window, 100);
  int raised = 0;
  timer.timer = [&raised] { ++raised; };
  timer.enabled = true;
  clock.run(250);
  timer.enabled = false;
  timer.enabled = true;
  clock.run(99);
  EXPECT_EQ(raised, 2);
  clock.run(1);
  EXPECT_EQ(raised, 3);
  timer.enabled = false;
  clock.run(300);
  EXPECT_EQ(raised, 3);
}

}  // namespace tracewell
