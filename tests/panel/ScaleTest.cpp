// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Doubles.h"
#include "Numbers.h"
#include "ScaleTables.h"

namespace tracewell {
namespace {

/// Volts or seconds of a caption by its unit, without the parser under test.
double valueOf(std::string_view caption) {
  const double number = leadingNumber(caption);
  const std::string_view unit = caption.substr(caption.find(' ') + 1);
  if (unit.starts_with('n')) return number * 1e-9;
  if (unit.starts_with('u')) return number * 1e-6;
  return unit.starts_with('m') ? number * 1e-3 : number;
}

TEST(Scales, CaptionAndSentNumberOfEachStepAgree) {
  for (std::size_t i = 0; i < voltDivSteps; ++i)
    EXPECT_DOUBLE_EQ(valueOf(VoltDivText[i]), toDouble(VoltDivValue[i])) << i;
  for (std::size_t i = 0; i < timeDivSteps; ++i)
    EXPECT_DOUBLE_EQ(valueOf(TimeDivText[i]), toDouble(TimeDivValue[i])) << i;
}

TEST(Scales, KnobPositionsBecomeCommands) {
  EXPECT_EQ(ScaleCommandForKnob(ScaleKnob::Chan1, 5), ":CHAN1:SCAL 1E-1");
  EXPECT_EQ(ScaleCommandForKnob(ScaleKnob::Chan2, 9.5), ":CHAN2:SCAL 5");
  EXPECT_EQ(ScaleCommandForKnob(ScaleKnob::Time, 28), ":TIM:SCAL 5");
  EXPECT_EQ(scaleCaptionForKnob(ScaleKnob::Time, 17), "1.000 ms");
  EXPECT_THROW(ScaleCommandForKnob(ScaleKnob::Chan1, 11), Error);
  EXPECT_THROW(ScaleCommandForKnob(ScaleKnob::Time, -1), Error);
}

TEST(Scales, RepliesAreFoundToTheLetter) {
  EXPECT_EQ(ScaleStepForReply(ScaleKnob::Chan1, "5.000 V"), 10);
  EXPECT_EQ(ScaleStepForReply(ScaleKnob::Time, "2.000 s"), 27);
  EXPECT_EQ(ScaleStepForReply(ScaleKnob::Time, "5.000 s"), std::nullopt);
  EXPECT_EQ(ScaleStepForReply(ScaleKnob::Chan1, "100.0 MV"), std::nullopt);
}

TEST(Scales, ParsedCaptions) {
  const struct {
    const char* caption;
    double expected;
  } cases[] = {{"2.000 mV", 0.002}, {"1.000 V", 1}, {"5.000 us", 5e-6}, {"500.0 ns", 500},
               {"100mV", 0.1},      {"", 0},        {"m", 0},           {"-2.00 V", -2},
               {"Null", 0}};
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(ParseScaleCaption(c.caption), c.expected);
}

TEST(Scales, TurningAKnobSendsShowsAndRefreshesTheReadout) {
  Bench bench;
  bench.program.start();
  frmDSO& main = bench.main;
  main.knobTime.turn(9);
  main.opTime.select();
  const std::string& readout = main.graphDSO.axis("XAxis").caption();
  EXPECT_EQ(readout, "P1 = 0.00(msec),P2 = 2.00(msec)   Diff T = -2.00(msec)");
  main.knobTime.turn(28);
  EXPECT_EQ(readout, "P1 = 0.00(sec),P2 = 5.00(sec)   Diff T = -5.00(sec)");
  main.knobChan1.turn(5);
  main.opVoltage.select();
  EXPECT_EQ(readout, "P1 = -0.20(V)  ,  P2 = -0.30(V)        Diff V = 0.10(V)");
  main.opOff.select();
  EXPECT_EQ(readout, "Time");
  EXPECT_EQ(bench.port.wire,
            (std::vector<std::string>{":TIM:SCAL 2E-6", ":TIM:SCAL 5", ":CHAN1:SCAL 1E-1"}));
}

TEST(Scales, TimeReadoutBeforeTheFirstScaleIsATypeMismatch) {
  Bench bench;
  bench.program.start();
  bench.main.opTime.select();
  EXPECT_EQ(bench.dialogs.runTimeErrors, std::vector<std::string>{"13 Type mismatch"});
}

}  // namespace
}  // namespace tracewell
