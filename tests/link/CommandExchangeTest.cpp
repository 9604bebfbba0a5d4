// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Doubles.h"
#include "Files.h"

namespace tracewell {
namespace {

using Lines = std::vector<std::string>;

class CommandExchangeTest : public testing::Test {
 protected:
  CommandExchangeTest() { bench.program.start(); }
  std::string send(const std::string& command) {
    return bench.program.exchange.SendDSOCmd(command);
  }

  Bench bench;
  ScriptedPort& port = bench.port;
  frmDSO& main = bench.main;
};

TEST_F(CommandExchangeTest, ReplyLosesBlanksAroundItAndItsTerminator) {
  const struct {
    const char* line;
    const char* expected;
  } cases[] = {
      {"1\n", "1"}, {"  500.0 mV\n", "500.0 mV"}, {"1 \n", "1 "}, {"  7\n  ", "7"}, {"\n", ""}};
  for (const auto& c : cases) {
    port.answer("Q?", {c.line});
    EXPECT_EQ(send("Q?"), c.expected);
  }
  EXPECT_TRUE(main.LinkOK);
  EXPECT_TRUE(main.InRemote);
}

TEST_F(CommandExchangeTest, CommandReadsNothing) {
  EXPECT_EQ(send(":Run"), "");
  EXPECT_EQ(port.wire, Lines{":Run"});
  EXPECT_TRUE(port.timeOuts.empty());
  EXPECT_EQ(port.resets, 1);
}

TEST_F(CommandExchangeTest, TimeOutMarksTheLinkAndLogsNothing) {
  main.LinkOK = true;
  EXPECT_EQ(send("Q?"), "");
  EXPECT_FALSE(main.LinkOK);
  EXPECT_EQ(port.wire, Lines{"Q?"});
  EXPECT_TRUE(bench.logLines().empty());
}

TEST_F(CommandExchangeTest, EmptyReplyIsAskedAgainAndItsAnswerIsNotUsed) {
  port.answer("Q?", {"", "5\n"});
  EXPECT_EQ(send("Q?"), "");
  EXPECT_EQ(port.wire, (Lines{"Q?", "Q?"}));
  EXPECT_TRUE(main.LinkOK);
  EXPECT_TRUE(bench.logLines().empty());
}

TEST_F(CommandExchangeTest, PersistentFaultRepeatsAQueryEightTimesAndLogsOnce) {
  main.tmDSO.enabled = true;
  port.faults = 100;
  EXPECT_EQ(send("Q?"), "");
  EXPECT_EQ(100 - port.faults, 9);
  EXPECT_EQ(bench.logLines(), Lines{"RS232 - SendDSOCmd : no such device"});
  EXPECT_FALSE(main.tmDSO.enabled());

  port.faults = 100;
  EXPECT_EQ(send(":Run"), "");
  EXPECT_EQ(100 - port.faults, 1);
  EXPECT_EQ(bench.logLines().size(), 2u);
}

TEST_F(CommandExchangeTest, PanelIsReleasedOnlyFromRemote) {
  bench.program.exchange.LoadSetup();
  EXPECT_TRUE(port.wire.empty());
  send(":Run");
  main.cmdLock.value = true;
  bench.program.exchange.LoadSetup();
  EXPECT_EQ(port.wire.back(), ":SYST:UNL");
  EXPECT_FALSE(main.cmdLock.value());
  EXPECT_FALSE(main.InRemote);

  send(":Run");
  port.faults = 1;
  bench.program.exchange.LoadSetup();
  EXPECT_TRUE(main.InRemote);
  EXPECT_EQ(bench.logLines(), Lines{"RS232 - LoadSetup : no such device"});
}

TEST_F(CommandExchangeTest, CommandLineUsesTheShortTimeOutAndPutsTheOtherBack) {
  port.answer("*IDN?", {"KRM-410\n"});
  main.txtTest.pressKey(TextBox::enterKey);
  EXPECT_TRUE(port.wire.empty());
  main.txtTest.type("*IDN?");
  main.txtTest.pressKey(65);
  EXPECT_TRUE(port.wire.empty());
  main.txtTest.pressKey(TextBox::enterKey);
  EXPECT_EQ(main.txtMsg.text(), "KRM-410");
  EXPECT_EQ(port.timeOuts, std::vector<int>{300});
  EXPECT_EQ(port.readTimeOut, 600);
  main.BaudRate = 0;
  main.cmdTest.press();
  EXPECT_EQ(bench.logLines(), Lines{"Tracewell - TracewellDivision by zero"});
}

TEST_F(CommandExchangeTest, LogKeepsTheLinesOfEarlierRunsAndReachesTheDiskByCloseOnly) {
  const auto file = bench.folder.path() / "dso.err";
  writeWholeFile(file, "old\r\n");
  port.faults = 2;
  send(":A");
  send(":B");
  const std::string line = "2026-03-15 14:29:05  RS232 - SendDSOCmd : no such device\r\n";
  EXPECT_EQ(bench.program.errLog.txtErrLog.text(), "old\r\n" + line + line);
  EXPECT_EQ(readWholeFile(file), "old\r\n");
  bench.windows.user["frmErrLog"] = [this] { bench.program.errLog.cmdClose.press(); };
  main.lblDSOCmd.doubleClick();
  EXPECT_EQ(readWholeFile(file), "old\r\n" + line + line);
  bench.windows.user["frmErrLog"] = [this] {
    bench.program.errLog.cmdClear.press();
    bench.program.errLog.cmdClose.press();
  };
  main.mnbErrLog.choose();
  EXPECT_EQ(readWholeFile(file), "");
}

}  // namespace
}  // namespace tracewell
