// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Doubles.h"

namespace tracewell {
namespace {

using Lines = std::vector<std::string>;

class ConnectTest : public testing::Test {
 protected:
  ConnectTest() {
    bench.program.start();
    port.answerLikeAnInstrument();
  }

  Bench bench;
  ScriptedPort& port = bench.port;
  frmDSO& main = bench.main;
  static constexpr Colour blue{0, 0, 255};
  static constexpr Colour green{0, 255, 0};
  static constexpr Colour red{255, 0, 0};
};

TEST_F(ConnectTest, NothingIsSentBeforeConnect) {
  EXPECT_TRUE(port.wire.empty());
  EXPECT_EQ(main.spConnect.fillColour(), blue);
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[1]);
  EXPECT_EQ(main.XIndex.front(), -250);
  EXPECT_EQ(main.XIndex.back(), 249);
}

TEST_F(ConnectTest, ConnectReadsTheInstrumentAndStartsTheAcquisition) {
  bool wasWaitingShown = false;
  main.lblTest.changed = [&] { wasWaitingShown = wasWaitingShown || main.lblTest.visible(); };
  main.cmdStart.press();
  // Moving a knob sends the scale back.
  EXPECT_EQ(port.wire, (Lines{":CHAN1:SCAL?", ":CHAN1:SCAL 5E-1", ":CHAN2:SCAL?", ":CHAN2:SCAL 1",
                              ":TIM:SCAL?", ":TIM:SCAL 5E-4", "CHAN1:OFFS?", "CHAN2:OFFS?"}));
  EXPECT_EQ(main.knobChan1.value(), 7);
  EXPECT_EQ(main.knobChan2.value(), 8);
  EXPECT_EQ(main.knobTime.value(), 16);
  EXPECT_EQ(main.Ch1Pos, 1.5);
  EXPECT_EQ(main.Ch1PosCounts, 75);
  EXPECT_EQ(main.Ch2PosCounts, -100);
  EXPECT_EQ(main.slideCH1.caption(), "Channel One Position :1.50 Div");
  EXPECT_EQ(main.slideCH2.caption(), "Channel Two Position :-2.00 Div");
  EXPECT_TRUE(wasWaitingShown);
  EXPECT_FALSE(main.lblTest.visible());
  EXPECT_EQ(main.spConnect.fillColour(), green);
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[7]);
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[2]);
  bench.clock.run(1200);
  EXPECT_EQ(port.wire.back(), ":ACQ1:POIN");

  // The second press stops and gives the panel back; nothing is read again.
  port.wire.clear();
  main.cmdStart.press();
  EXPECT_EQ(main.spConnect.fillColour(), red);
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[8]);
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
  EXPECT_EQ(port.wire, Lines{":SYST:UNL"});
}

TEST_F(ConnectTest, SilentInstrumentEndsAtTheFirstQuery) {
  port.replies.clear();
  main.cmdStart.press();
  EXPECT_EQ(port.wire, Lines{":CHAN1:SCAL?"});
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[9]);
  EXPECT_EQ(main.spConnect.fillColour(), blue);
  EXPECT_EQ(main.cmdStart.caption(), "Connect");
  EXPECT_FALSE(main.Initialised);
  EXPECT_FALSE(main.tmDSO.enabled());
  EXPECT_TRUE(bench.logLines().empty());
  // With the cable in, the same button connects.
  port.answerLikeAnInstrument();
  main.cmdStart.press();
  EXPECT_TRUE(main.Initialised);
  EXPECT_TRUE(main.tmDSO.enabled());
}

TEST_F(ConnectTest, RefusedPortIsLoggedAndNotConnected) {
  port.faults = 1000;
  main.cmdRS232.press();
  EXPECT_EQ(bench.logLines(), Lines{"RS232 - SendDSOCmd : no such device"});
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[9]);
  EXPECT_FALSE(main.tmDSO.enabled());
}

TEST_F(ConnectTest, RepliesOutsideTheTablesLeaveTheKnobs) {
  const struct {
    const char* reply;
    int knobTime;
  } cases[] = {{"5.000 s\n", 0}, {"2.000 s\n", 27}, {"100us\n", 27}};
  for (const auto& c : cases) {
    port.answer(":TIM:SCAL?", {c.reply});
    bench.program.instrument.InitDSO();
    EXPECT_EQ(main.knobTime.value(), c.knobTime) << c.reply;
  }
  EXPECT_EQ(main.lblTime.caption(), "100us");
}

TEST_F(ConnectTest, EmptyScaleIsAskedTwiceAndNullSkipsThePosition) {
  port.answer(":CHAN1:SCAL?", {"\n", "Null\n"});
  port.answer(":CHAN2:SCAL?", {"Null\n"});
  bench.program.instrument.InitDSO();
  EXPECT_EQ(port.wire, (Lines{":CHAN1:SCAL?", ":CHAN1:SCAL?", ":CHAN2:SCAL?", ":TIM:SCAL?",
                              ":TIM:SCAL 5E-4"}));
  EXPECT_TRUE(bench.logLines().empty());
}

TEST_F(ConnectTest, Channel2KeepsWholeDivisionsOnly) {
  const struct {
    const char* offset;
    int expected;
  } cases[] = {{"1.500 V\n", 2}, {"2.500 V\n", 2}, {"-1.50 V\n", -2}};
  for (const auto& c : cases) {
    port.answer("CHAN2:OFFS?", {c.offset});
    bench.program.instrument.InitDSO();
    EXPECT_EQ(main.Ch2Pos, c.expected) << c.offset;
    EXPECT_EQ(main.slideCH2.value(), c.expected);
  }
}

TEST_F(ConnectTest, UselessRepliesAreLogged) {
  port.answer(":CHAN1:SCAL?", {"none\n"});
  bench.program.instrument.InitDSO();
  port.answer(":CHAN1:SCAL?", {"2.000 mV\n"});
  port.answer("CHAN1:OFFS?", {"99999 V\n"});
  bench.program.instrument.InitDSO();
  EXPECT_EQ(bench.logLines(),
            (Lines{"Tracewell - InitDSO : Division by zero", "Tracewell - InitDSO : Overflow"}));
}

TEST_F(ConnectTest, BaudRateAbove32767IsAnOverflow) {
  main.gridMeasure.setText(0, 2, "38400");
  main.cmdStart.press();
  EXPECT_TRUE(port.wire.empty());
  EXPECT_EQ(bench.logLines(), Lines{"Tracewell - InitDSO : Overflow"});
}

TEST_F(ConnectTest, SecondPressInsideTheWaitOfTheFirst) {
  bench.clock.callAfter(500, [this] { main.cmdStart.press(); });
  main.cmdStart.press();
  // Both ended with the timer off: the later press stopped what the earlier had started.
  EXPECT_FALSE(main.tmDSO.enabled());
  EXPECT_EQ(main.spConnect.fillColour(), red);
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
}

TEST_F(ConnectTest, ClosingReleasesThePanelThenSavesThenUnloads) {
  main.cmdStart.press();
  port.wire.clear();
  main.gridMeasure.setText(0, 0, "changed");
  bench.program.rs232.load();
  bench.dialogs.answer = Answer::No;
  main.cmdClose.press();
  EXPECT_EQ(bench.dialogs.questions, Lines{"Tracewell: " + main.Msg[0]});
  EXPECT_TRUE(main.isLoaded());
  bench.dialogs.answer = Answer::Yes;
  main.cmdClose.press();
  EXPECT_EQ(port.wire, Lines{":SYST:UNL"});
  EXPECT_FALSE(main.isLoaded());
  EXPECT_FALSE(bench.program.rs232.isLoaded());
  SetupTable saved;
  main.gridMeasure = saved;
  bench.program.setupFiles.ReadSetupFile(bench.folder.path() / "default.dso");
  EXPECT_EQ(main.gridMeasure.text(0, 0), "changed");
  bench.clock.run(5000);
  EXPECT_EQ(port.wire.size(), 1u);
}

}  // namespace
}  // namespace tracewell
