// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Doubles.h"

namespace tracewell {
namespace {

using Lines = std::vector<std::string>;

/// Acquisition and display dialogs, math, autoset.
class AcquireDisplayTest : public testing::Test {
 protected:
  AcquireDisplayTest() {
    bench.program.start();
    main.tmDSO.enabled = true;
  }
  Lines takeWire() { return std::exchange(port.wire, {}); }
  void setRow(int row, const Lines& values) {
    for (int i = 0; i < std::ssize(values); ++i)
      main.gridMeasure.setText(row, 2 + i, values[static_cast<std::size_t>(i)]);
  }
  Lines row(int number) {
    Lines values;
    for (int i = 0; i < main.gridMeasure.valueCount(number); ++i)
      values.push_back(main.gridMeasure.text(number, 2 + i));
    return values;
  }

  Bench bench;
  ScriptedPort& port = bench.port;
  frmDSO& main = bench.main;
  frmAcq& acquire = bench.program.acquire;
  frmDisplay& display = bench.program.display;
};

TEST_F(AcquireDisplayTest, AcquisitionRowIsSentAfterOkAndNeitherAwaitedNorReadBack) {
  setRow(6, {"0", "6", "0"});
  bench.windows.user["frmAcq"] = [&] {
    EXPECT_FALSE(main.tmDSO.enabled());
    EXPECT_FALSE(acquire.cbAverage.visible());
    EXPECT_EQ(acquire.cbAverage.text(), "128");
    acquire.cmdOK.press();
  };
  const std::int64_t start = bench.clock.milliseconds();
  main.cmdAcq.press();
  EXPECT_EQ(takeWire(), (Lines{":ACQ:MOD 0", ":ACQ:AVER 6", ":ACQ:LEN 0"}));
  EXPECT_EQ(main.txtMsg.text(), ":ACQ:MOD 0\r\n:ACQ:AVER 6\r\n:ACQ:LEN 0\r\n");
  EXPECT_EQ(bench.clock.milliseconds(), start);
  EXPECT_EQ(port.readTimeOut, 600);
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[2]);
}

/// The tag is cleared when the dialog loads, not each time that it opens.
TEST_F(AcquireDisplayTest, CancelSendsOnlyAfterAnEarlierOk) {
  bench.windows.user["frmAcq"] = [&] { acquire.cmdCancel.press(); };
  main.mnbAcq.choose();
  EXPECT_TRUE(takeWire().empty());
  EXPECT_TRUE(main.tmDSO.enabled());
  bench.windows.user["frmAcq"] = [&] { acquire.cmdOK.press(); };
  main.cmdAcq.press();
  takeWire();
  bench.windows.user["frmAcq"] = [&] {
    acquire.cbAverage.choose(3);
    acquire.cmdCancel.press();
  };
  main.cmdAcq.press();
  EXPECT_EQ(takeWire(), (Lines{":ACQ:MOD 0", ":ACQ:AVER 0", ":ACQ:LEN 0"}));
}

TEST_F(AcquireDisplayTest, TypedAverageShowsTheAveragingBox) {
  bench.windows.user["frmAcq"] = [&] {
    acquire.cbMode.type("Average");
    EXPECT_TRUE(acquire.cbAverage.visible());
    EXPECT_TRUE(acquire.lblAverage.visible());
    acquire.cbAverage.choose(4);
    acquire.cmdOK.press();
  };
  main.cmdAcq.press();
  EXPECT_EQ(row(6), (Lines{"-1", "4", "0"}));
  setRow(6, {"x", "0", "0"});
  main.cmdAcq.press();
  setRow(6, {"1", "0", "0"});
  main.cmdAcq.press();
  EXPECT_EQ(bench.logLines(), (Lines{"Tracewell - cmdAcq_Click : Type mismatch",
                                     "Tracewell - cmdAcq_Click : Invalid property value"}));
}

TEST_F(AcquireDisplayTest, BrightnessIsWrittenOnceAndTheStyleNever) {
  setRow(7, {"30", "40", "1"});
  port.answer("DISP:BRIG:DATA?", {"x\n", "12\n"});
  port.answer("DISP:BRIG:GRAT?", {"55\n"});
  bench.windows.user["frmDisplay"] = [&] {
    EXPECT_EQ(display.slideDataBrightness.value(), 30);
    EXPECT_EQ(display.lblGraticuleBright.caption(), "55");
    EXPECT_TRUE(display.obDot.value());
    display.slideDataBrightness.drag(77);
    EXPECT_EQ(display.lblDataBright.caption(), "77");
    display.obVector.select();
    takeWire();
    display.cmdOK.press();
  };
  const std::int64_t start = bench.clock.milliseconds();
  main.cmdDisplay.press();
  EXPECT_EQ(takeWire(), (Lines{"DISP:BRIG:DATA 77", "DISP:BRIG:DATA?", "DISP:BRIG:GRAT 55",
                               "DISP:BRIG:GRAT?"}));
  EXPECT_EQ(bench.clock.milliseconds() - start, 2 * 1001);
  EXPECT_EQ(row(7), (Lines{"77", "55", "0"}));
  EXPECT_TRUE(main.tmDSO.enabled());
}

TEST_F(AcquireDisplayTest, CancelledDisplayDialogSendsNothingEvenAfterAnOk) {
  bench.windows.user["frmDisplay"] = [&] { display.cmdOK.press(); };
  main.cmdDisplay.press();
  bench.windows.user["frmDisplay"] = [&] {
    takeWire();
    display.cmdCancel.press();
  };
  main.mnbDisplay.choose();
  EXPECT_TRUE(takeWire().empty());
  setRow(7, {"", "40", "1"});
  main.cmdDisplay.press();
  EXPECT_EQ(bench.logLines(), Lines{"Tracewell - cmdDisplay_Click : Type mismatch"});
  EXPECT_FALSE(main.lblTest.visible());
}

TEST_F(AcquireDisplayTest, MathCommandsHaveNoColonAndLeaveTheAcquisitionRunning) {
  for (const int entry : {0, 1, 2, 3}) main.cbMath.choose(entry);
  main.cbMath.type("3-1");
  EXPECT_EQ(takeWire(), (Lines{"CHAN1:MATH 1", "CHAN1:MATH 2", "CHAN2:MATH 2", "CHAN1:MATH 0"}));
  EXPECT_TRUE(main.tmDSO.enabled());
}

TEST_F(AcquireDisplayTest, AutosetWaitsThenReadsTheInstrument) {
  port.answerLikeAnInstrument();
  frmMsg& message = bench.program.message;
  int percentHalfway = 0;
  bench.clock.callAfter(5000, [&] {
    EXPECT_TRUE(message.isVisible());
    EXPECT_FALSE(main.tmDSO.enabled());
    EXPECT_EQ(takeWire(), Lines{":AUT"});
    percentHalfway = message.prgMsg.percent();
  });
  const std::int64_t start = bench.clock.milliseconds();
  main.cmdAutoset.press();
  EXPECT_GT(bench.clock.milliseconds() - start, 10000);
  EXPECT_NEAR(percentHalfway, 50, 5);
  EXPECT_EQ(message.lblMsg.caption(), main.Msg[1]);
  EXPECT_FALSE(message.isVisible());
  EXPECT_EQ(takeWire().front(), ":CHAN1:SCAL?");
  EXPECT_EQ(main.knobChan1.value(), 7);
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
}

TEST_F(AcquireDisplayTest, TickCountThatWrapsDuringAWaitIsLogged) {
  for (Button* button : {&main.cmdAutoset, &main.cmdStart}) {
    bench.clock.jumpTo(std::numeric_limits<std::int32_t>::max() - 500);
    main.Initialised = main.LinkOK = true;
    button->press();
  }
  EXPECT_EQ(bench.logLines(),
            (Lines{"Tracewell - cmdAutoset_Click : Overflow", "Tracewell - TracewellOverflow"}));
  EXPECT_FALSE(bench.program.message.isVisible());
}

/// The baud rate has become useless in the middle: the time-out is then what it was.
TEST_F(AcquireDisplayTest, TimeOutIsPutBackWhateverHappensMeanwhile) {
  bench.windows.user["frmDisplay"] = [&] { display.cmdOK.press(); };
  bench.clock.callAfter(500, [&] { main.BaudRate = 0; });
  main.cmdDisplay.press();
  EXPECT_EQ(port.readTimeOut, 600);
}

TEST_F(AcquireDisplayTest, ClosingTheWindowDuringAutosetEndsTheProgram) {
  bench.clock.callAfter(3000, [&] { main.close(); });
  main.cmdAutoset.press();
  EXPECT_LT(bench.clock.milliseconds(), 4000);
  EXPECT_EQ(takeWire(), (Lines{":AUT", ":SYST:UNL"}));
  EXPECT_TRUE(bench.dialogs.runTimeErrors.empty());
  bench.clock.run(20000);
  EXPECT_TRUE(takeWire().empty());
}

}  // namespace
}  // namespace tracewell
