// SPDX-License-Identifier: GPL-3.0-or-later
#include "Doubles.h"

namespace tracewell {

class ConnectTest : public ProgramTest {
 protected:
  ConnectTest() { port.answerLikeAnInstrument(); }
  void expectShown(Colour lamp, int message, const std::string& button) {
    EXPECT_EQ(main.spConnect.fillColour(), lamp);
    EXPECT_EQ(main.lblConnect.caption(), main.Msg.at(static_cast<std::size_t>(message)));
    EXPECT_EQ(main.cmdStart.caption(), button);
  }

  static constexpr Colour blue{0, 0, 255};
  static constexpr Colour green{0, 255, 0};
  static constexpr Colour red{255, 0, 0};
};

TEST_F(ConnectTest, ConnectReadsTheInstrumentAndStartsTheAcquisition) {
  expectShown(blue, 1, "Connect");
  EXPECT_TRUE(port.wire.empty());
  bool wasWaitingShown = false;
  main.lblTest.changed = [&] { wasWaitingShown = wasWaitingShown || main.lblTest.visible(); };
  main.cmdStart.press();
  // Moving a knob sends the scale back.
  EXPECT_EQ(port.wire, (Lines{":CHAN1:SCAL?", ":CHAN1:SCAL 5E-1", ":CHAN2:SCAL?", ":CHAN2:SCAL 1",
                              ":TIM:SCAL?", ":TIM:SCAL 5E-4", "CHAN1:OFFS?", "CHAN2:OFFS?"}));
  EXPECT_EQ(main.knobChan1.value(), 7);
  EXPECT_EQ(main.knobTime.value(), 16);
  EXPECT_EQ(main.Ch1PosCounts, 75);
  EXPECT_EQ(main.Ch2PosCounts, -100);
  EXPECT_EQ(main.slideCH1.caption(), "Channel One Position :1.50 Div");
  EXPECT_EQ(main.slideCH2.caption(), "Channel Two Position :-2.00 Div");
  EXPECT_TRUE(wasWaitingShown);
  EXPECT_FALSE(main.lblTest.visible());
  expectShown(green, 7, main.Msg[2]);
  clock.run(1200);
  EXPECT_EQ(port.wire.back(), ":ACQ1:POIN");

  // The second press stops and gives the panel back; nothing is read again.
  port.wire.clear();
  main.cmdStart.press();
  expectShown(red, 8, main.Msg[3]);
  EXPECT_EQ(port.wire, Lines{":SYST:UNL"});
}

/// Their read-out has no scale until the time base is read, and the first knob that moves asks it.
TEST_F(ConnectTest, TimeCursorsChosenBeforeDoNotEndTheReading) {
  main.opTime.select();
  main.slideTrig.drag(0.5);
  main.cmdStart.press();
  EXPECT_EQ(takeWire().size(), 8u);
  EXPECT_TRUE(logLines().empty());
  EXPECT_EQ(main.graphDSO.axis("XAxis").caption().substr(0, 12), "P1 = 0.00(ms");
  // The level stands one division above the trace's zero.
  EXPECT_TRUE(main.graphDSO.cursor("Triger").visible());
  EXPECT_EQ(main.graphDSO.cursor("Triger").yPosition(), 50 * (1 + 1.5));
}

/// A success of before is none of this connect.
TEST_F(ConnectTest, SilentInstrumentEndsAtTheFirstQuery) {
  program.exchange.SendDSOCmd(":Run");
  takeWire();
  port.replies.clear();
  main.cmdStart.press();
  EXPECT_EQ(port.wire, Lines{":CHAN1:SCAL?"});
  expectShown(blue, 9, "Connect");
  EXPECT_FALSE(main.tmDSO.enabled());
  EXPECT_TRUE(logLines().empty());
  EXPECT_EQ(main.lblStatus.caption(), "Instrument: no answer to 1 of 5 questions");
  EXPECT_TRUE(main.lblChan1.isUnread() && main.slideCH2.isUnread());
  // A port that refuses is logged.
  main.LinkOK = true;
  port.faults = 1000;
  main.cmdRS232.press();
  EXPECT_EQ(logLines(), Lines{"RS232 - SendDSOCmd : no such device"});
  EXPECT_EQ(main.lblStatus.caption(), "Instrument: no answer to 1 of 5 questions (no such device)");
  expectShown(blue, 9, "Connect");
  EXPECT_FALSE(main.tmDSO.enabled());
  // With the cable in, the same button connects.
  port.faults = 0;
  port.answerLikeAnInstrument();
  main.cmdStart.press();
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_FALSE(main.lblChan1.isUnread() || main.knobTime.isUnread() || main.slideCH2.isUnread());
}

TEST_F(ConnectTest, RepliesOutsideTheTablesLeaveTheKnobsAndChannel2KeepsWholeDivisions) {
  const std::tuple<const char*, int, const char*, int> cases[] = {{"5.000 s\n", 0, "1.500 V\n", 2},
                                                                  {"2.000 s\n", 27, "2.500 V\n", 2},
                                                                  {"100us\n", 27, "-1.50 V\n", -2}};
  for (const auto& [scale, knobTime, offset, divisions] : cases) {
    port.answer(":TIM:SCAL?", {scale});
    port.answer("CHAN2:OFFS?", {offset});
    program.instrument.InitDSO();
    EXPECT_EQ(main.knobTime.value(), knobTime) << scale;
    EXPECT_EQ(main.Ch2Pos, divisions) << offset;
    EXPECT_EQ(main.slideCH2.value(), divisions);
  }
}

TEST_F(ConnectTest, EmptyScaleIsAskedTwiceAndNullSkipsThePosition) {
  port.answer(":CHAN1:SCAL?", {"\n", "Null\n"});
  port.answer(":CHAN2:SCAL?", {"Null\n"});
  port.answer(":TIM:SCAL?", {"\n", "500.0 us \n"});
  program.instrument.InitDSO();
  EXPECT_EQ(port.wire,
            (Lines{":CHAN1:SCAL?", ":CHAN1:SCAL?", ":CHAN2:SCAL?", ":TIM:SCAL?", ":TIM:SCAL?"}));
  EXPECT_EQ(main.lblTime.caption(), "500.0 us ") << "a second reply counts as it stands";
  EXPECT_TRUE(logLines().empty());
}

TEST_F(ConnectTest, PositionIsReadFromATrimmedReplyAndMarkedWhereThereIsNone) {
  port.answer("CHAN1:OFFS?", {"500.0 mV \n"});
  port.replies.erase("CHAN2:OFFS?");
  program.instrument.InitDSO();
  EXPECT_EQ(main.Ch1Pos, 1);
  EXPECT_FALSE(main.slideCH1.isUnread());
  EXPECT_EQ(main.slideCH2.caption(), "Channel Two Position :0.00 Div");
  EXPECT_TRUE(main.slideCH2.isUnread());
  EXPECT_EQ(main.lblStatus.caption(), "Instrument: no answer to 1 of 5 questions");
  main.slideCH2.drag(1);
  EXPECT_FALSE(main.slideCH2.isUnread());
  port.answerLikeAnInstrument();
  program.instrument.InitDSO();
  EXPECT_EQ(main.lblStatus.caption(), "");
}

TEST_F(ConnectTest, UselessRepliesAndABaudRateAbove32767AreLogged) {
  port.answer(":CHAN1:SCAL?", {"none\n"});
  program.instrument.InitDSO();
  port.answer(":CHAN1:SCAL?", {"2.000 mV\n"});
  port.answer("CHAN1:OFFS?", {"99999 V\n"});
  program.instrument.InitDSO();
  port.wire.clear();
  main.gridMeasure.setText(0, 2, "38400");
  program.instrument.InitDSO();
  EXPECT_TRUE(port.wire.empty());
  const std::string isOverflow = "Tracewell - InitDSO : Overflow";
  EXPECT_EQ(logLines(), (Lines{"Tracewell - InitDSO : Division by zero", isOverflow, isOverflow}));
}

TEST_F(ConnectTest, SecondPressInsideTheWaitOfTheFirst) {
  clock.callAfter(500, [this] { main.cmdStart.press(); });
  main.cmdStart.press();
  // Both ended with the timer off: the later press stopped what the earlier had started.
  EXPECT_FALSE(main.tmDSO.enabled());
  expectShown(red, 8, main.Msg[3]);
}

TEST_F(ConnectTest, ClosingReleasesThePanelThenSavesThenUnloads) {
  main.cmdStart.press();
  port.wire.clear();
  main.gridMeasure.setText(0, 0, "changed");
  program.rs232.load();
  dialogs.answer = Answer::No;
  main.cmdClose.press();
  EXPECT_EQ(dialogs.questions, Lines{"Tracewell: " + main.Msg[0]});
  EXPECT_TRUE(main.isLoaded());
  dialogs.answer = Answer::Yes;
  main.cmdClose.press();
  EXPECT_EQ(port.wire, Lines{":SYST:UNL"});
  EXPECT_FALSE(main.isLoaded());
  EXPECT_FALSE(program.rs232.isLoaded());
  main.gridMeasure = SetupTable();
  program.setupFiles.ReadSetupFile(folder.path() / "default.dso");
  EXPECT_EQ(main.gridMeasure.text(0, 0), "changed");
  clock.run(5000);
  EXPECT_EQ(port.wire.size(), 1u);
}

}  // namespace tracewell
