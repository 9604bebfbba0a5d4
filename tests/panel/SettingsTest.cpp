// SPDX-License-Identifier: GPL-3.0-or-later
#include "Doubles.h"

namespace tracewell {

/// The dialogs that write settings to the instrument, and autoset.
class SettingsTest : public ProgramTest {
 protected:
  /// Answers every query of a trigger setting with its own number.
  void answerTrigger() {
    int value = 0;
    for (const char* name : {"SOUR", "MOD", "SLOP", "COUP", "REJ", "NREJ"})
      port.answer(":TRIG:" + std::string(name) + "?", {std::to_string(value++ % 2) + "\n"});
  }
  /// Opens a dialog, lets the user act in it and press a button. Returns what was written after.
  Lines with(Button& opener, const std::string& window, const std::function<void()>& user,
             Button& end) {
    windows.user[window] = [&] {
      user();
      takeWire();
      end.press();
    };
    opener.press();
    return takeWire();
  }
  static std::ptrdiff_t count(const Lines& wire, const std::string& line) {
    return std::count(wire.begin(), wire.end(), line);
  }
  static void nothing() {}

  frmAcq& acquire = program.acquire;
  frmDisplay& display = program.display;
  frmChannel& channel = program.channelDialog;
  frmTrig& trigger = program.trigger;
};

TEST_F(SettingsTest, AcquisitionRowIsSentAfterOkAndNeitherAwaitedNorReadBack) {
  setRow(6, {"0", "6", "0"});
  main.tmDSO.enabled = true;
  const auto look = [&] {
    EXPECT_FALSE(main.tmDSO.enabled());
    EXPECT_FALSE(acquire.cbAverage.visible());
    EXPECT_EQ(acquire.cbAverage.text(), "128");
  };
  EXPECT_EQ(with(main.cmdAcq, "frmAcq", look, acquire.cmdOK),
            (Lines{":ACQ:MOD 0", ":ACQ:AVER 6", ":ACQ:LEN 0"}));
  EXPECT_EQ(main.txtMsg.text(), ":ACQ:MOD 0\r\n:ACQ:AVER 6\r\n:ACQ:LEN 0\r\n");
  EXPECT_EQ(clock.milliseconds(), 0);
  EXPECT_EQ(port.readTimeOut, 600);
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[2]);
}

/// The tag of the acquisition dialog is cleared when it loads, not each time that it opens.
TEST_F(SettingsTest, CancelledAcquisitionDialogSendsOnlyAfterAnEarlierOk) {
  EXPECT_EQ(with(main.cmdAcq, "frmAcq", nothing, acquire.cmdCancel), Lines());
  EXPECT_TRUE(main.tmDSO.enabled());
  with(main.cmdAcq, "frmAcq", nothing, acquire.cmdOK);
  const auto choose = [&] { acquire.cbAverage.choose(3); };
  EXPECT_EQ(with(main.cmdAcq, "frmAcq", choose, acquire.cmdCancel),
            (Lines{":ACQ:MOD 0", ":ACQ:AVER 0", ":ACQ:LEN 0"}));
}

TEST_F(SettingsTest, TypedAverageShowsTheAveragingBox) {
  const auto type = [&] {
    acquire.cbMode.type("Average");
    EXPECT_TRUE(acquire.cbAverage.visible());
    EXPECT_TRUE(acquire.lblAverage.visible());
    acquire.cbAverage.choose(4);
  };
  with(main.cmdAcq, "frmAcq", type, acquire.cmdOK);
  EXPECT_EQ(row(6), (Lines{"-1", "4", "0"}));
  for (const char* mode : {"x", "1"}) {
    setRow(6, {mode, "0", "0"});
    main.cmdAcq.press();
  }
  EXPECT_EQ(logLines(), (Lines{"Tracewell - cmdAcq_Click : Type mismatch",
                               "Tracewell - cmdAcq_Click : Invalid property value"}));
}

TEST_F(SettingsTest, BrightnessIsWrittenOnceAndTheStyleNever) {
  setRow(7, {"30", "40", "1"});
  port.answer("DISP:BRIG:DATA?", {"x\n", "12\n"});
  port.answer("DISP:BRIG:GRAT?", {"55\n"});
  main.tmDSO.enabled = true;
  const auto change = [&] {
    EXPECT_FALSE(main.tmDSO.enabled());
    EXPECT_EQ(display.slideDataBrightness.value(), 30);
    EXPECT_EQ(display.lblGraticuleBright.caption(), "55");
    EXPECT_TRUE(display.obDot.value());
    display.slideDataBrightness.drag(77);
    EXPECT_EQ(display.lblDataBright.caption(), "77");
    display.obVector.select();
  };
  EXPECT_EQ(
      with(main.cmdDisplay, "frmDisplay", change, display.cmdOK),
      (Lines{"DISP:BRIG:DATA 77", "DISP:BRIG:DATA?", "DISP:BRIG:GRAT 55", "DISP:BRIG:GRAT?"}));
  EXPECT_EQ(clock.milliseconds(), 2 * 1001);
  EXPECT_EQ(row(7), (Lines{"77", "55", "0"}));
  EXPECT_TRUE(main.tmDSO.enabled());
  // Cancelled it sends nothing, not even after an OK.
  EXPECT_EQ(with(main.cmdDisplay, "frmDisplay", nothing, display.cmdCancel), Lines());
  // The baud rate becomes useless in the middle: the time-out is then what it was.
  clock.callAfter(500, [&] { main.BaudRate = 0; });
  with(main.cmdDisplay, "frmDisplay", nothing, display.cmdOK);
  EXPECT_EQ(port.readTimeOut, 600);
  port.replies.clear();
  setRow(7, {"", "40", "1"});
  main.cmdDisplay.press();
  EXPECT_EQ(logLines().back(), "Tracewell - cmdDisplay_Click : Type mismatch");
  EXPECT_FALSE(main.lblTest.visible());
}

TEST_F(SettingsTest, ChannelDialogReadsWritesVerifiesAndReadsTheScaleAgain) {
  port.answer(":CHAN1:DISP?", {"1\n"});
  port.answer(":CHAN1:INV?", {"0\n", "1\n"});
  port.answer(":CHAN1:BWL?", {"x\n", "0\n"});
  port.answer(":CHAN1:COUP?", {"0\n", "7\n", "7\n", "2\n"});
  port.answer(":CHAN1:PROB?", {"2\n"});
  port.answer(":CHAN1:SCAL?", {" 1.000 V\n"});
  main.mnbCh1.caption = "Canal 1";
  const auto change = [&] {
    EXPECT_EQ(channel.caption(), "Canal 1");
    EXPECT_TRUE(channel.obCoupling(0).value());
    EXPECT_TRUE(channel.obProbe(2).value());
    EXPECT_FALSE(main.lblTest.visible());
    EXPECT_FALSE(channel.cbCh(1).isUnread());
    EXPECT_TRUE(channel.cbCh(2).isUnread());
    channel.cbCh(0).toggle();
    channel.cbCh(1).toggle();
    channel.obCoupling(2).select();
    port.timeOuts.clear();
  };
  // Display is not sent; coupling takes three attempts; each waits a second.
  EXPECT_EQ(with(main.cmdCh1, "frmChannel", change, channel.cmdOK),
            (Lines{":CHAN1:INV 1", ":CHAN1:INV?", ":CHAN1:BWL 0", ":CHAN1:BWL?", ":CHAN1:COUP 2",
                   ":CHAN1:COUP?", ":CHAN1:COUP 2", ":CHAN1:COUP?", ":CHAN1:COUP 2", ":CHAN1:COUP?",
                   ":CHAN1:PROB 2", ":CHAN1:PROB?", ":CHAN1:SCAL?", ":CHAN1:SCAL 1"}));
  EXPECT_EQ(clock.milliseconds(), 6 * 1001);
  EXPECT_EQ(port.timeOuts, (std::vector<int>{300, 300, 300, 300, 300, 300, 600}));
  EXPECT_EQ(row(9), (Lines{"0", "1", "0", "2", "2"}));
  EXPECT_EQ(main.lblChan1.caption(), "1.000 V");
  EXPECT_EQ(main.knobChan1.value(), 8);
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[2]);
  EXPECT_TRUE(main.txtMsg.text().starts_with(":CHAN1:INV 1\r\n:CHAN1:BWL 0\r\n"));
  // Cancelled it still reads the scale, and runs.
  const auto invert = [&] { channel.cbCh(1).toggle(); };
  EXPECT_EQ(with(main.cmdCh2, "frmChannel", invert, channel.cmdCancel), Lines{":CHAN2:SCAL?"});
  EXPECT_EQ(cell(10, 3), "0");
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_TRUE(channel.fmProbe.isUnread());
  EXPECT_EQ(main.lblStatus.caption(),
            "Channel 2: no answer to 5 of 5 questions; No answer to :CHAN2:SCAL?");
}

TEST_F(SettingsTest, BurstEndsWhereNothingVerifiesAndWhereThePortHasGone) {
  port.answer(":CHAN1:INV?", {"1 \n"});
  port.answer(":CHAN1:SCAL?", {"1.000 V\n"});
  EXPECT_EQ(count(with(main.cmdCh1, "frmChannel", nothing, channel.cmdOK), ":CHAN1:INV 1"), 3);
  // The answer to the scale behind it is no reason to forget.
  EXPECT_TRUE(main.lblStatus.caption().ends_with("Channel 1: 4 of 4 settings not confirmed"));
  with(
      main.cmdCh1, "frmChannel", [&] { port.faults = 100000; }, channel.cmdOK);
  // Three attempts at each of four settings, a command and a query each, and the scale.
  EXPECT_EQ(logLines().size(), 25u);
  EXPECT_EQ(port.readTimeOut, 600);
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[7]);
  port.faults = 0;
}

TEST_F(SettingsTest, TriggerDialogTakesTheInstrumentsValuesAndSendsAllSix) {
  answerTrigger();
  port.answer(":TRIG:SLOP?", {"n\n", "0\n"});
  setRow(8, {"0", "0", "1"});
  main.tmDSO.enabled = true;
  const auto change = [&] {
    EXPECT_FALSE(main.tmDSO.enabled());
    EXPECT_EQ(trigger.cbTrig(1).text(), "Auto");
    EXPECT_EQ(trigger.cbTrig(2).text(), "-");
    EXPECT_FALSE(trigger.fmAdv.enabled());
    EXPECT_TRUE(trigger.cbTrig(2).isUnread());
    trigger.cbTrig(2).choose(0);
    EXPECT_FALSE(trigger.cbTrig(2).isUnread());
  };
  EXPECT_EQ(with(main.cmdTrig, "frmTrig", change, trigger.cmdOK),
            (Lines{":TRIG:SOUR 0", ":TRIG:SOUR?", ":TRIG:MOD 1", ":TRIG:MOD?", ":TRIG:SLOP 0",
                   ":TRIG:SLOP?", ":TRIG:COUP 1", ":TRIG:COUP?", ":TRIG:REJ 0", ":TRIG:REJ?",
                   ":TRIG:NREJ 1", ":TRIG:NREJ?"}));
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[2]);
  // Cancelled it sends nothing and keeps the choices in the table.
  const auto choose = [&] { trigger.cbTrig(1).choose(2); };
  EXPECT_EQ(with(main.cmdTrig, "frmTrig", choose, trigger.cmdCancel), Lines());
  EXPECT_EQ(cell(8, 3), "2");
  EXPECT_TRUE(main.tmDSO.enabled());
  port.answer(":TRIG:SOUR?", {"9\n"});
  main.cmdTrig.press();
  EXPECT_EQ(dialogs.runTimeErrors, Lines{"380 Invalid property value"});
  EXPECT_FALSE(main.lblTest.visible());
}

TEST_F(SettingsTest, TypedAdvanceSendsTheStoredAdvancedRowToo) {
  answerTrigger();
  main.gridMeasure.setText(11, 4, "12");
  const auto type = [&] {
    trigger.cbTrig(1).type("Advance");
    EXPECT_TRUE(trigger.fmAdv.enabled());
    trigger.txtTrigAdv(0).type("99");
  };
  Lines wire = with(main.cmdTrig, "frmTrig", type, trigger.cmdOK);
  EXPECT_EQ(cell(8, 3), "-1");
  EXPECT_EQ(count(wire, ":TRIG:MOD -1"), 3);
  // The dialog does not write the advanced row; what was stored is sent.
  EXPECT_EQ(count(wire, ":TRIG:ADV:EVEN 12"), 3);
  EXPECT_EQ(wire.back(), ":TRIG:ADV:DEL?");
  // Another box clicked afterwards makes it a plain one again.
  const auto typeAndChoose = [&] {
    type();
    trigger.cbTrig(0).choose(1);
  };
  wire = with(main.cmdTrig, "frmTrig", typeAndChoose, trigger.cmdOK);
  for (const std::string& line : wire) EXPECT_FALSE(line.starts_with(":TRIG:ADV")) << line;
}

TEST_F(SettingsTest, AutosetWaitsThenReadsTheInstrument) {
  port.answerLikeAnInstrument();
  frmMsg& message = program.message;
  main.tmDSO.enabled = true;
  clock.callAfter(5000, [&] {
    EXPECT_TRUE(message.isVisible());
    EXPECT_FALSE(main.tmDSO.enabled());
    EXPECT_EQ(takeWire(), Lines{":AUT"});
    EXPECT_NEAR(message.prgMsg.percent(), 50, 5);
  });
  main.cmdAutoset.press();
  EXPECT_GT(clock.milliseconds(), 10000);
  EXPECT_EQ(message.lblMsg.caption(), main.Msg[1]);
  EXPECT_FALSE(message.isVisible());
  EXPECT_EQ(takeWire().front(), ":CHAN1:SCAL?");
  EXPECT_EQ(main.knobChan1.value(), 7);
  EXPECT_TRUE(main.tmDSO.enabled());
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
}

TEST_F(SettingsTest, TickCountThatWrapsDuringAWaitIsLogged) {
  for (Button* button : {&main.cmdAutoset, &main.cmdStart}) {
    clock.jumpTo(std::numeric_limits<std::int32_t>::max() - 500);
    main.Initialised = main.LinkOK = true;
    button->press();
  }
  EXPECT_EQ(logLines(),
            (Lines{"Tracewell - cmdAutoset_Click : Overflow", "Tracewell - TracewellOverflow"}));
  EXPECT_FALSE(program.message.isVisible());
}

}  // namespace tracewell
