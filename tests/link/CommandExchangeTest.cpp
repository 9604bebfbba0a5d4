// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"

namespace tracewell {

using CommandExchangeTest = ProgramTest;

/// Both would go out, and only one be looked at.
TEST_F(CommandExchangeTest, TextOfSeveralLinesIsNotSent) {
  const std::string text = ":CHAN1:OFFS 1\r\n:CHAN1:OFFS?";
  main.txtTest.type(text);
  main.txtTest.pressKey(TextBox::enterKey);
  EXPECT_EQ(main.txtTest.text(), text);
  program.console.txtCmd.type(text);
  program.console.cmdRun.press();
  EXPECT_EQ(program.console.txtCmd.text(), text);
  EXPECT_EQ(port.wire, Lines());
  EXPECT_EQ(main.lblStatus.caption(), "Not sent: the text has more than one line");
  EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace tracewell
