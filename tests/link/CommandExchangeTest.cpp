// SPDX-License-Identifier: GPL-3.0-or-later
#include "Bench.h"
#include "Files.h"

namespace tracewell {

using CommandExchangeTest = ProgramTest;

TEST_F(CommandExchangeTest, ReplyLosesBlanksAroundItAndItsTerminator) {
  const std::pair<const char*, const char*> cases[] = {
      {"  500.0 mV\n", "500.0 mV"}, {"1 \n", "1 "}, {"  7\n  ", "7"}, {"\n", ""}, {"", ""}};
  for (const auto& [line, expected] : cases) {
    // An empty line is no reply: it is asked again, and the later reply is not used.
    port.answer("Q?", {line, "5\n"});
    EXPECT_EQ(program.exchange.SendDSOCmd("Q?"), expected);
    EXPECT_TRUE(main.LinkOK);
  }
  EXPECT_EQ(takeWire(), Lines(6, "Q?"));
  EXPECT_EQ(port.resets, 5);
  EXPECT_TRUE(port.textMode);
}

TEST_F(CommandExchangeTest, LogKeepsTheLinesOfEarlierRunsAndReachesTheDiskByCloseOnly) {
  const auto file = folder.path() / "dso.err";
  writeWholeFile(file, "old\r\n");
  port.faults = 1;
  program.exchange.SendDSOCmd(":A");
  const std::string log = "old\r\n2026-03-15 14:29:05  RS232 - SendDSOCmd : no such device\r\n";
  EXPECT_EQ(program.errLog.txtErrLog.text(), log);
  EXPECT_EQ(contentOf(file), "old\r\n");
  program.errLog.cmdClose.press();
  EXPECT_EQ(contentOf(file), log);
  program.errLog.cmdClear.press();
  program.errLog.cmdClose.press();
  EXPECT_EQ(contentOf(file), "");
}

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
