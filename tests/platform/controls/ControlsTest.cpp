// SPDX-License-Identifier: GPL-3.0-or-later
#include "Controls.h"

#include "Doubles.h"

namespace tracewell {

class ControlsTest : public testing::Test, protected Bench {
 protected:
  Window window{"frmTry", "Try", services};
  int raised = 0;
};

TEST_F(ControlsTest, ComboRaisesClickAtEveryAssignmentAndTakesTypedText) {
  ComboBox box(window, "cb", {"AC", "DC"});
  box.click = [this] { ++raised; };
  box.listIndex = 1;
  box.listIndex = 1;
  EXPECT_EQ(raised, 2);
  EXPECT_EQ(box.text(), "DC");
  box.type("Advance");
  EXPECT_EQ(raised, 3);
  EXPECT_EQ(box.listIndex(), ComboBox::noEntry);
  box.type("AC");
  EXPECT_EQ(box.listIndex(), 0);
  EXPECT_THROW(box.listIndex = 2, Error);
  EXPECT_EQ(box.listIndex(), 0);
}

TEST_F(ControlsTest, TimerStartsAFullIntervalAndStopsAtOnce) {
  Timer timer(window, 100);
  timer.timer = [this] { ++raised; };
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
