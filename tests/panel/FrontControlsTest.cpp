// SPDX-License-Identifier: GPL-3.0-or-later
#include "Doubles.h"
#include "ScaleTables.h"

namespace tracewell {

/// Knobs, slides, pickers and boxes of the front panel.
class FrontControlsTest : public ProgramTest {
 protected:
  void commit(Slide& slide, double value) {
    port.wire.clear();
    slide.drag(value);
    EXPECT_TRUE(port.wire.empty());
    slide.release();
  }
};

TEST(Scales, EndsOfTheTables) {
  EXPECT_EQ(ScaleCommandForKnob(ScaleKnob::Chan2, 9.5), ":CHAN2:SCAL 5");
  EXPECT_EQ(ScaleCommandForKnob(ScaleKnob::Time, 28), ":TIM:SCAL 5");
  EXPECT_THROW(ScaleCommandForKnob(ScaleKnob::Chan1, 11), Error);
  EXPECT_THROW(ScaleCommandForKnob(ScaleKnob::Time, -1), Error);
  EXPECT_EQ(ScaleStepForReply(ScaleKnob::Time, "2.000 s"), 27);
  EXPECT_EQ(ScaleStepForReply(ScaleKnob::Time, "5.000 s"), std::nullopt);
  EXPECT_EQ(ScaleStepForReply(ScaleKnob::Chan1, "100.0 MV"), std::nullopt);
}

TEST(Scales, ParsedCaptions) {
  const std::pair<const char*, double> cases[] = {
      {"2.000 mV", 0.002}, {"1.000 V", 1}, {"5.000 us", 5e-6}, {"500.0 ns", 500},
      {"100mV", 0.1},      {"", 0},        {"m", 0},           {"-2.00 V", -2},
      {"Null", 0}};
  for (const auto& [caption, expected] : cases)
    EXPECT_DOUBLE_EQ(ParseScaleCaption(caption), expected);
}

TEST_F(FrontControlsTest, DisplayBoxShowsCountsAndTells) {
  main.cbCh2.toggle();
  EXPECT_EQ(main.ChanCount, 2);
  main.cbCh1.toggle();
  EXPECT_EQ(main.ChanCount, 1);
  EXPECT_FALSE(main.ChanOn[0]);
  EXPECT_TRUE(main.ChanOn[1]);
  EXPECT_FALSE(main.graphDSO.plot(1).visible());
  EXPECT_EQ(takeWire(), (Lines{":CHAN2:DISP 1", ":CHAN1:DISP 0"}));
  main.ChanCount = 32767;
  main.cbCh1.toggle();
  EXPECT_EQ(logLines(), Lines{"Tracewell - cbCh1_Click : Overflow"});
}

TEST_F(FrontControlsTest, OffsetAndDelayAreTheSlideTimesTheShownScale) {
  const std::tuple<Slide&, ValueLabel&, const char*, double, const char*> cases[] = {
      {main.slideCH1, main.lblChan1, "200.0 mV", 2, ":CHAN1:OFFS 4E-1"},
      {main.slideCH1, main.lblChan1, "2.000 V", -1.5, ":CHAN1:OFFS -3E0"},
      {main.slideCH1, main.lblChan1, "5.000 mV", 3, ":CHAN1:OFFS 1.5E-2"},
      {main.slideCH1, main.lblChan1, "100mV", 1, ":CHAN1:OFFS 1E-1"},
      {main.slideCH1, main.lblChan1, "Null", 2, ":CHAN1:OFFS 0E0"},
      {main.slideTime, main.lblTime, "500.0 us", 2, ":TIM:DEL 1E-3"},
      {main.slideTime, main.lblTime, "1.000 s", -3, ":TIM:DEL -3E0"},
      {main.slideTime, main.lblTime, "20.00 ns", 1, ":TIM:DEL 2E-8"},
      {main.slideTime, main.lblTime, "Not Initialized", 1, ":TIM:DEL 0E0"}};
  for (const auto& [slide, scale, shown, value, sent] : cases) {
    scale.caption = shown;
    slide.value = value;
    slide.release();
    EXPECT_EQ(takeWire(), Lines{sent}) << shown;
  }
  commit(main.slideTime, 1);
  EXPECT_EQ(main.slideTime.caption(), "Time Position : 1.00 Div");
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
  main.lblTime.caption = "99999";
  main.slideTime.value = 1e305;
  takeWire();
  main.slideTime.release();
  EXPECT_TRUE(takeWire().empty());
  EXPECT_EQ(logLines(), Lines{"Tracewell - slideTime_PointerValueCommitted Overflow"});
}

/// Channel 1 keeps its position unrounded and shifts by whole divisions; channel 2 rounds both.
TEST_F(FrontControlsTest, CommittedPositionsOfTheTwoChannels) {
  main.lblChan2.caption = "2.000 V";
  main.Ch1Raw = main.Ch2Raw = makeRecord([](int i) { return i == 0 ? 0x8000 : i; });
  // The caption that connecting left without a blank gets one.
  main.slideCH1.caption = "Channel One Position :-1.50 Div";
  commit(main.slideCH1, 0.4);
  EXPECT_EQ(main.Ch1Pos, 0.4);
  EXPECT_EQ(main.graphDSO.plot(1).y()[0], -32768);
  EXPECT_EQ(main.graphDSO.plot(1).y()[10], 10);
  EXPECT_EQ(main.slideCH1.caption(), "Channel One Position : 0.40 Div");
  commit(main.slideCH2, 0.4);
  EXPECT_EQ(main.Ch2Pos, 0);
  EXPECT_EQ(takeWire(), Lines{":CHAN2:OFFS 8E-1"});
  commit(main.slideCH2, 2.5);
  EXPECT_EQ(main.Ch2Pos, 2);
  EXPECT_EQ(main.graphDSO.plot(2).y()[10], 110);
  // It resumes what nobody has paused.
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);

  main.tmDSO.enabled = false;
  main.Ch1Raw = makeRecord([](int) { return 32767; });
  commit(main.slideCH1, 1);
  main.Ch2Raw = "cut";
  commit(main.slideCH2, 1);
  EXPECT_EQ(logLines(), (Lines{"Tracewell - slideCH1_PointerValueCommitted : Overflow",
                               "Tracewell - slideCH2_PointerValueCommitted : Subscript out of "
                               "range"}));
  EXPECT_FALSE(main.tmDSO.enabled());
}

TEST_F(FrontControlsTest, LevelIsSentInVoltsAndMovesTheMarker) {
  main.lblChan1.caption = "500.0 mV";
  main.Ch1Pos = 1;
  main.tmDSO.enabled = true;
  commit(main.slideTrig, 0.35);
  EXPECT_EQ(main.slideTrig.caption(), "Trigger Level : 0.35 V");
  EXPECT_EQ(takeWire(), Lines{":TRIG:LEV 3.5E-1"});
  EXPECT_EQ(main.cmdStart.caption(), "Connect");
  // 0.7 divisions above the trace's zero.
  const Cursor& marker = main.graphDSO.cursor("Triger");
  EXPECT_TRUE(marker.visible());
  EXPECT_NEAR(marker.yPosition(), 85, 1e-9);
  main.knobChan1.turn(8);
  EXPECT_NEAR(marker.yPosition(), 67.5, 1e-9);
}

TEST_F(FrontControlsTest, PickersTryStepsUntilTheyAreClosed) {
  frmChDiv& picker = program.channelScale;
  main.knobChan2.value = 3;
  takeWire();
  windows.user["frmChDiv"] = [&] {
    EXPECT_TRUE(picker.opVDiv(3).value());
    picker.cmdSelect.press();
    picker.opVDiv(10).select();
    picker.cmdSelect.press();
    EXPECT_TRUE(picker.isVisible());
    picker.opVDiv(0).select();
    picker.cmdClose.press();
  };
  main.cmdChannel2.press();
  EXPECT_EQ(takeWire(), Lines{":CHAN2:SCAL 5"});
  EXPECT_EQ(main.lblChan2.caption(), "5.000 V");
  EXPECT_FALSE(picker.isVisible());
  windows.user["frmChDiv"] = [&] {
    picker.opVDiv(1).select();
    picker.cmdSelect.press();
  };
  main.cmdChannel1.press();
  EXPECT_EQ(takeWire(), Lines{":CHAN1:SCAL 5E-3"});
  windows.user["frmTimeDiv"] = [&] {
    program.timeScale.obTimeDiv(28).select();
    program.timeScale.cmdOK.press();
    program.timeScale.cmdCancel.press();
  };
  main.cmdTime.press();
  EXPECT_EQ(takeWire(), Lines{":TIM:SCAL 5"});
  EXPECT_EQ(main.lblTime.caption(), "5.000 s");
}

TEST_F(FrontControlsTest, MathCommandsHaveNoColonAndLeaveTheAcquisitionRunning) {
  main.tmDSO.enabled = true;
  for (const int entry : {0, 1, 2, 3}) main.cbMath.choose(entry);
  main.cbMath.type("3-1");
  EXPECT_EQ(takeWire(), (Lines{"CHAN1:MATH 1", "CHAN1:MATH 2", "CHAN2:MATH 2", "CHAN1:MATH 0"}));
  EXPECT_TRUE(main.tmDSO.enabled());
}

}  // namespace tracewell
