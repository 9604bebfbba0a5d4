// SPDX-License-Identifier: GPL-3.0-or-later
#include "Doubles.h"
#include "Files.h"

namespace tracewell {

class CommandExchangeTest : public ProgramTest {
 protected:
  std::string send(const std::string& command) { return program.exchange.SendDSOCmd(command); }
};

TEST_F(CommandExchangeTest, ReplyLosesBlanksAroundItAndItsTerminator) {
  const std::pair<const char*, const char*> cases[] = {
      {"  500.0 mV\n", "500.0 mV"}, {"1 \n", "1 "}, {"  7\n  ", "7"}, {"\n", ""}};
  for (const auto& [line, expected] : cases) {
    port.answer("Q?", {line});
    EXPECT_EQ(send("Q?"), expected);
  }
  EXPECT_TRUE(main.LinkOK);
  EXPECT_TRUE(main.InRemote);
  // A command reads nothing.
  port.timeOuts.clear();
  EXPECT_EQ(send(":Run"), "");
  EXPECT_TRUE(port.timeOuts.empty());
  EXPECT_EQ(port.resets, 5);
}

TEST_F(CommandExchangeTest, SilenceMarksTheLinkAndAnEmptyReplyIsAskedAgainForNothing) {
  main.LinkOK = true;
  EXPECT_EQ(send("Q?"), "");
  EXPECT_FALSE(main.LinkOK);
  EXPECT_EQ(port.wire, Lines{"Q?"});
  port.answer("Q?", {"", "5\n"});
  EXPECT_EQ(send("Q?"), "");
  EXPECT_EQ(port.wire, (Lines{"Q?", "Q?", "Q?"}));
  EXPECT_TRUE(main.LinkOK);
  EXPECT_TRUE(logLines().empty());
}

TEST_F(CommandExchangeTest, PersistentFaultRepeatsAQueryEightTimesAndLogsOnce) {
  main.tmDSO.enabled = true;
  port.faults = 100;
  EXPECT_EQ(send("Q?"), "");
  EXPECT_EQ(port.faults, 91);
  EXPECT_EQ(logLines(), Lines{"RS232 - SendDSOCmd : no such device"});
  EXPECT_FALSE(main.tmDSO.enabled());
  EXPECT_EQ(send(":Run"), "");
  EXPECT_EQ(port.faults, 90);
  EXPECT_EQ(logLines().size(), 2u);
}

TEST_F(CommandExchangeTest, PanelIsReleasedOnlyFromRemote) {
  program.exchange.LoadSetup();
  EXPECT_TRUE(port.wire.empty());
  send(":Run");
  main.cmdLock.value = true;
  port.faults = 1;
  program.exchange.LoadSetup();
  EXPECT_TRUE(main.InRemote);
  EXPECT_EQ(logLines(), Lines{"RS232 - LoadSetup : no such device"});
  program.exchange.LoadSetup();
  EXPECT_EQ(port.wire.back(), ":SYST:UNL");
  EXPECT_FALSE(main.cmdLock.value());
  EXPECT_FALSE(main.InRemote);
}

TEST_F(CommandExchangeTest, CommandLineUsesTheShortTimeOutAndPutsTheOtherBack) {
  port.answer("*IDN?", {"KRM-410\n"});
  main.txtTest.pressKey(TextBox::enterKey);
  main.txtTest.type("*IDN?");
  main.txtTest.pressKey(65);
  EXPECT_TRUE(port.wire.empty());
  main.txtTest.pressKey(TextBox::enterKey);
  EXPECT_EQ(main.txtMsg.text(), "KRM-410");
  EXPECT_EQ(port.timeOuts, std::vector<int>{300});
  EXPECT_EQ(port.readTimeOut, 600);
  main.BaudRate = 0;
  main.cmdTest.press();
  EXPECT_EQ(logLines(), Lines{"Tracewell - TracewellDivision by zero"});
}

TEST_F(CommandExchangeTest, LogKeepsTheLinesOfEarlierRunsAndReachesTheDiskByCloseOnly) {
  const auto file = folder.path() / "dso.err";
  writeWholeFile(file, "old\r\n");
  port.faults = 1;
  send(":A");
  const std::string log = "old\r\n2026-03-15 14:29:05  RS232 - SendDSOCmd : no such device\r\n";
  EXPECT_EQ(program.errLog.txtErrLog.text(), log);
  EXPECT_EQ(contentOf(file), "old\r\n");
  windows.user["frmErrLog"] = [this] { program.errLog.cmdClose.press(); };
  main.lblDSOCmd.doubleClick();
  EXPECT_EQ(contentOf(file), log);
  windows.user["frmErrLog"] = [this] {
    program.errLog.cmdClear.press();
    program.errLog.cmdClose.press();
  };
  main.mnbErrLog.choose();
  EXPECT_EQ(contentOf(file), "");
}

}  // namespace tracewell
