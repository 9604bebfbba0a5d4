// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Doubles.h"

namespace tracewell {
namespace {

using Lines = std::vector<std::string>;

class ChannelTest : public testing::Test {
 protected:
  ChannelTest() {
    bench.program.start();
    main.lblChan1.caption = "200.0 mV";
    main.lblChan2.caption = "2.000 V";
  }
  Lines takeWire() { return std::exchange(port.wire, {}); }
  void commit(Slide& slide, double value) {
    slide.drag(value);
    EXPECT_TRUE(port.wire.empty());
    slide.release();
  }

  Bench bench;
  ScriptedPort& port = bench.port;
  frmDSO& main = bench.main;
  frmChannel& dialog = bench.program.channelDialog;
};

TEST_F(ChannelTest, DisplayBoxShowsCountsAndTells) {
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
  EXPECT_EQ(bench.logLines(), Lines{"Tracewell - cbCh1_Click : Overflow"});
}

TEST_F(ChannelTest, OffsetIsTheSlideTimesTheShownScale) {
  const struct {
    const char* scale;
    double slide;
    const char* sent;
  } cases[] = {{"200.0 mV", 2, "4E-1"}, {"2.000 V", -1.5, "-3E0"}, {"5.000 mV", 3, "1.5E-2"},
               {"100mV", 1, "1E-1"},    {"Null", 2, "0E0"},        {"1.000 V", 0, "0E0"}};
  for (const auto& c : cases) {
    main.lblChan1.caption = c.scale;
    main.slideCH1.value = c.slide;
    main.slideCH1.release();
    EXPECT_EQ(takeWire(), Lines{":CHAN1:OFFS " + std::string(c.sent)}) << c.scale;
  }
}

/// Channel 1 keeps its position unrounded and shifts by whole divisions; channel 2 rounds both.
TEST_F(ChannelTest, CommittedPositionsOfTheTwoChannels) {
  main.Ch1Raw = main.Ch2Raw = makeRecord([](int i) { return i == 0 ? 0x8000 : i; });
  commit(main.slideCH1, 0.4);
  EXPECT_EQ(main.Ch1Pos, 0.4);
  EXPECT_EQ(main.graphDSO.plot(1).y()[0], -32768);
  EXPECT_EQ(main.graphDSO.plot(1).y()[10], 10);
  EXPECT_EQ(main.slideCH1.caption(), "Channel One Position : 0.40 Div");
  takeWire();
  commit(main.slideCH2, 0.4);
  EXPECT_EQ(main.Ch2Pos, 0);
  EXPECT_EQ(takeWire(), Lines{":CHAN2:OFFS 8E-1"});
  commit(main.slideCH2, 2.5);
  EXPECT_EQ(main.Ch2Pos, 2);
  EXPECT_EQ(main.graphDSO.plot(2).y()[10], 110);
  // It resumes what nobody has paused.
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
}

TEST_F(ChannelTest, FailedCommitIsLoggedAndDoesNotResume) {
  main.Ch1Raw = makeRecord([](int) { return 32767; });
  commit(main.slideCH1, 1);
  main.Ch2Raw = "cut";
  takeWire();
  commit(main.slideCH2, 1);
  EXPECT_EQ(bench.logLines(),
            (Lines{"Tracewell - slideCH1_PointerValueCommitted : Overflow",
                   "Tracewell - slideCH2_PointerValueCommitted : Subscript out of range"}));
  EXPECT_FALSE(main.tmDSO.enabled());
}

TEST_F(ChannelTest, CaptionThatConnectLeftWithoutABlankGetsOne) {
  main.slideCH1.caption = "Channel One Position :-1.50 Div";
  main.slideCH1.drag(-1.25);
  EXPECT_EQ(main.slideCH1.caption(), "Channel One Position : -1.25 Div");
}

TEST_F(ChannelTest, DialogReadsWritesVerifiesAndReadsTheScaleAgain) {
  port.answer(":CHAN1:DISP?", {"1\n"});
  port.answer(":CHAN1:INV?", {"0\n", "1\n"});
  port.answer(":CHAN1:BWL?", {"x\n", "0\n"});
  port.answer(":CHAN1:COUP?", {"0\n", "7\n", "7\n", "2\n"});
  port.answer(":CHAN1:PROB?", {"2\n"});
  port.answer(":CHAN1:SCAL?", {" 1.000 V\n"});
  main.mnbCh1.caption = "Canal 1";
  bench.windows.user["frmChannel"] = [&] {
    EXPECT_EQ(dialog.caption(), "Canal 1");
    EXPECT_TRUE(dialog.obCoupling(0).value());
    EXPECT_TRUE(dialog.obProbe(2).value());
    EXPECT_FALSE(main.lblTest.visible());
    dialog.cbCh(0).toggle();
    dialog.cbCh(1).toggle();
    dialog.obCoupling(2).select();
    takeWire();
    port.timeOuts.clear();
    dialog.cmdOK.press();
  };
  const std::int64_t start = bench.clock.milliseconds();
  main.cmdCh1.press();
  // Display is not sent; coupling takes three attempts; each waits a second.
  EXPECT_EQ(takeWire(),
            (Lines{":CHAN1:INV 1", ":CHAN1:INV?", ":CHAN1:BWL 0", ":CHAN1:BWL?", ":CHAN1:COUP 2",
                   ":CHAN1:COUP?", ":CHAN1:COUP 2", ":CHAN1:COUP?", ":CHAN1:COUP 2", ":CHAN1:COUP?",
                   ":CHAN1:PROB 2", ":CHAN1:PROB?", ":CHAN1:SCAL?", ":CHAN1:SCAL 1"}));
  EXPECT_EQ(bench.clock.milliseconds() - start, 6 * 1001);
  EXPECT_EQ(port.timeOuts, (std::vector<int>{300, 300, 300, 300, 300, 300, 600}));
  EXPECT_EQ(main.gridMeasure.text(9, 2), "0");
  EXPECT_EQ(main.gridMeasure.text(9, 5), "2");
  EXPECT_EQ(main.lblChan1.caption(), "1.000 V");
  EXPECT_EQ(main.knobChan1.value(), 8);
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[2]);
  EXPECT_TRUE(main.txtMsg.text().starts_with(":CHAN1:INV 1\r\n:CHAN1:BWL 0\r\n"));
}

TEST_F(ChannelTest, CancelStillReadsTheScaleAndRuns) {
  bench.windows.user["frmChannel"] = [&] {
    dialog.cbCh(1).toggle();
    takeWire();
    dialog.cmdCancel.press();
  };
  main.mnbCh2.choose();
  EXPECT_EQ(takeWire(), Lines{":CHAN2:SCAL?"});
  EXPECT_EQ(main.gridMeasure.text(10, 3), "0");
  EXPECT_TRUE(main.tmDSO.enabled());
}

TEST_F(ChannelTest, ReplyWithATrailingBlankNeverVerifies) {
  for (const char* query : {":CHAN1:BWL?", ":CHAN1:COUP?", ":CHAN1:PROB?"})
    port.answer(query, {"0\n"});
  port.answer(":CHAN1:INV?", {"1 \n"});
  bench.windows.user["frmChannel"] = [&] {
    takeWire();
    dialog.cmdOK.press();
  };
  main.cmdCh1.press();
  const Lines wire = takeWire();
  EXPECT_EQ(std::count(wire.begin(), wire.end(), ":CHAN1:INV 1"), 3);
}

TEST_F(ChannelTest, VanishedPortLogsEveryFailureAndTheBurstEnds) {
  bench.windows.user["frmChannel"] = [&] {
    port.faults = 100000;
    dialog.cmdOK.press();
  };
  main.cmdCh1.press();
  // Three attempts at each of four settings, a command and a query each, and the scale.
  EXPECT_EQ(bench.logLines().size(), 25u);
  EXPECT_EQ(port.readTimeOut, 600);
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[7]);
  port.faults = 0;
}

TEST_F(ChannelTest, PickerTriesStepsOnTheChannelOfItsTag) {
  frmChDiv& picker = bench.program.channelScale;
  main.knobChan2.value = 3;
  takeWire();
  bench.windows.user["frmChDiv"] = [&] {
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
  bench.windows.user["frmChDiv"] = [&] {
    picker.opVDiv(1).select();
    picker.cmdSelect.press();
  };
  main.cmdChannel1.press();
  EXPECT_EQ(takeWire(), Lines{":CHAN1:SCAL 5E-3"});
  picker.close();
  EXPECT_EQ(main.lblChan2.caption(), "5.000 V");
  EXPECT_FALSE(picker.isVisible());
}

}  // namespace
}  // namespace tracewell
