// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Doubles.h"

namespace tracewell {
namespace {

using Lines = std::vector<std::string>;

class TimeTriggerTest : public testing::Test {
 protected:
  TimeTriggerTest() { bench.program.start(); }
  Lines takeWire() { return std::exchange(port.wire, {}); }
  std::string cell(int row, int column) { return main.gridMeasure.text(row, column); }
  /// Answers every query of a trigger setting with its own number.
  void answerTrigger() {
    int value = 0;
    for (const char* name : {"SOUR", "MOD", "SLOP", "COUP", "REJ", "NREJ"})
      port.answer(":TRIG:" + std::string(name) + "?", {std::to_string(value++ % 2) + "\n"});
  }

  Bench bench;
  ScriptedPort& port = bench.port;
  frmDSO& main = bench.main;
  frmTrig& dialog = bench.program.trigger;
};

TEST_F(TimeTriggerTest, DelayIsTheSlideTimesTheShownScale) {
  const struct {
    const char* scale;
    double slide;
    const char* sent;
  } cases[] = {{"500.0 us", 2, "1E-3"},
               {"1.000 s", -3, "-3E0"},
               {"20.00 ns", 1, "2E-8"},
               {"5.000 ms", -0.5, "-2.5E-3"},
               {"Not Initialized", 1, "0E0"}};
  main.lblTime.caption = "99999";
  main.slideTime.value = 1e305;
  main.slideTime.release();
  EXPECT_TRUE(takeWire().empty());
  EXPECT_EQ(bench.logLines(), Lines{"Tracewell - slideTime_PointerValueCommitted Overflow"});
  for (const auto& c : cases) {
    main.lblTime.caption = c.scale;
    main.slideTime.drag(c.slide);
    EXPECT_TRUE(port.wire.empty());
    main.slideTime.release();
    EXPECT_EQ(takeWire(), Lines{":TIM:DEL " + std::string(c.sent)}) << c.scale;
    EXPECT_TRUE(main.tmDSO.enabled());
    EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
  }
  EXPECT_EQ(main.slideTime.caption(), "Time Position : 1.00 Div");
}

TEST_F(TimeTriggerTest, LevelIsSentInVoltsWhenTheMouseLetsGo) {
  main.lblChan1.caption = "500.0 mV";
  main.Ch1Pos = 1;
  main.tmDSO.enabled = true;
  main.slideTrig.drag(0.35);
  EXPECT_TRUE(port.wire.empty());
  EXPECT_EQ(main.slideTrig.caption(), "Trigger Level : 0.35 V");
  main.slideTrig.release();
  EXPECT_EQ(takeWire(), Lines{":TRIG:LEV 3.5E-1"});
  EXPECT_EQ(main.cmdStart.caption(), "Connect");
  // The marker stands where the level is on the trace: 0.7 divisions above its zero.
  EXPECT_TRUE(main.graphDSO.cursor("Triger").visible());
  EXPECT_NEAR(main.graphDSO.cursor("Triger").yPosition(), 85, 1e-9);
  main.knobChan1.turn(8);
  EXPECT_NEAR(main.graphDSO.cursor("Triger").yPosition(), 67.5, 1e-9);
}

TEST_F(TimeTriggerTest, DialogTakesTheInstrumentsValuesAndSendsAllSix) {
  answerTrigger();
  port.answer(":TRIG:SLOP?", {"n\n", "0\n"});
  main.gridMeasure.setText(8, 4, "1");
  bench.windows.user["frmTrig"] = [&] {
    EXPECT_EQ(dialog.cbTrig(1).text(), "Auto");
    EXPECT_EQ(dialog.cbTrig(2).text(), "-");
    EXPECT_FALSE(dialog.fmAdv.enabled());
    EXPECT_FALSE(main.tmDSO.enabled());
    dialog.cbTrig(2).choose(0);
    takeWire();
    dialog.cmdOK.press();
  };
  main.cmdTrig.press();
  EXPECT_EQ(takeWire(), (Lines{":TRIG:SOUR 0", ":TRIG:SOUR?", ":TRIG:MOD 1", ":TRIG:MOD?",
                               ":TRIG:SLOP 0", ":TRIG:SLOP?", ":TRIG:COUP 1", ":TRIG:COUP?",
                               ":TRIG:REJ 0", ":TRIG:REJ?", ":TRIG:NREJ 1", ":TRIG:NREJ?"}));
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[2]);
}

TEST_F(TimeTriggerTest, CancelSendsNothingAndKeepsTheChoicesInTheTable) {
  answerTrigger();
  bench.windows.user["frmTrig"] = [&] {
    dialog.cbTrig(1).choose(2);
    takeWire();
    dialog.cmdCancel.press();
  };
  main.mnbTrig.choose();
  EXPECT_TRUE(takeWire().empty());
  EXPECT_EQ(cell(8, 3), "2");
  EXPECT_TRUE(main.tmDSO.enabled());
}

TEST_F(TimeTriggerTest, TypedAdvanceSendsTheStoredAdvancedRowToo) {
  answerTrigger();
  main.gridMeasure.setText(11, 4, "12");
  bench.windows.user["frmTrig"] = [&] {
    dialog.cbTrig(1).type("Advance");
    EXPECT_TRUE(dialog.fmAdv.enabled());
    dialog.txtTrigAdv(0).type("99");
    takeWire();
    dialog.cmdOK.press();
  };
  main.cmdTrig.press();
  const Lines wire = takeWire();
  EXPECT_EQ(cell(8, 3), "-1");
  EXPECT_EQ(std::count(wire.begin(), wire.end(), ":TRIG:MOD -1"), 3);
  // The dialog does not write the advanced row; what was stored is sent.
  EXPECT_EQ(std::count(wire.begin(), wire.end(), ":TRIG:ADV:EVEN 12"), 3);
  EXPECT_EQ(wire.back(), ":TRIG:ADV:DEL?");
  // Another box clicked afterwards makes it a plain one again.
  bench.windows.user["frmTrig"] = [&] {
    dialog.cbTrig(1).type("Advance");
    dialog.cbTrig(0).choose(1);
    takeWire();
    dialog.cmdOK.press();
  };
  main.cmdTrig.press();
  for (const std::string& line : takeWire()) EXPECT_FALSE(line.starts_with(":TRIG:ADV")) << line;
}

TEST_F(TimeTriggerTest, AbsurdReplyIsAnErrorBoxAndNoMore) {
  port.answer(":TRIG:SOUR?", {"9\n"});
  main.cmdTrig.press();
  EXPECT_EQ(bench.dialogs.runTimeErrors, Lines{"380 Invalid property value"});
  EXPECT_FALSE(main.lblTest.visible());
}

TEST_F(TimeTriggerTest, ClosingTheWindowDuringABurstEndsIt) {
  answerTrigger();
  bench.windows.user["frmTrig"] = [&] { dialog.cmdOK.press(); };
  bench.clock.callAfter(500, [&] { main.close(); });
  main.cmdTrig.press();
  EXPECT_LT(bench.clock.milliseconds(), 1000);
  EXPECT_EQ(port.wire.back(), ":SYST:UNL");
  EXPECT_TRUE(bench.dialogs.runTimeErrors.empty());
}

TEST_F(TimeTriggerTest, TimePickerSendsTheSlowestStepToo) {
  frmTimeDiv& picker = bench.program.timeScale;
  bench.windows.user["frmTimeDiv"] = [&] {
    picker.obTimeDiv(28).select();
    picker.cmdOK.press();
    picker.cmdCancel.press();
  };
  main.cmdTime.press();
  EXPECT_EQ(takeWire(), Lines{":TIM:SCAL 5"});
  EXPECT_EQ(main.lblTime.caption(), "5.000 s");
}

}  // namespace
}  // namespace tracewell
