// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

namespace tracewell {

using SettingsTest = ProgramTest;

/// The tick count wraps during the waits of autoset and start.
TEST_F(SettingsTest, WhatDoesNotFitIsLogged) {
  main.state.ChanCount = 32767;
  main.cbCh2.toggle();
  main.lblTime.caption = "99999";
  main.slideTime.value = 1e305;
  main.slideTime.release();
  main.Ch2Raw = "cut";
  main.slideCH2.release();
  takeWire();
  main.state.ChanCount = 1;
  for (Button* button : {&main.cmdAutoset, &main.cmdStart}) {
    clock.jumpTo(std::numeric_limits<std::int32_t>::max() - 500);
    main.Initialised = main.LinkOK = true;
    button->press();
  }
  EXPECT_EQ(takeWire(), Lines{":AUT"});
  EXPECT_EQ(logLines(),
            (Lines{"Tracewell - cbCh2_Click : Overflow",
                   "Tracewell - slideTime_PointerValueCommitted Overflow",
                   "Tracewell - slideCH2_PointerValueCommitted : Subscript out of range",
                   "Tracewell - cmdAutoset_Click : Overflow", "Tracewell - TracewellOverflow"}));
  EXPECT_FALSE(program.message.isVisible());
  // Nothing ticks on behind it.
  clock.run(300);
  program.message.prgMsg.percent = 7;
  clock.run(300);
  EXPECT_EQ(program.message.prgMsg.percent(), 7);
}

}  // namespace tracewell
