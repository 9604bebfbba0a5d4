// SPDX-License-Identifier: GPL-3.0-or-later
#include "Measurements.h"

#include "Doubles.h"

namespace tracewell {

class MeasurementsTest : public ProgramTest {
 protected:
  MeasurementsTest() {
    for (int number = 1; number <= 5; ++number) setRow(number, Lines(8, "0"));
    windows.user["frmVMeasure"] = [this] { choice.cmdOK.press(); };
  }
  void flag(int row, int column) { main.gridMeasure.setText(row, column, "1"); }
  /// The first labels.
  Lines labels(int count) {
    Lines captions;
    for (int i = 0; i < count; ++i) captions.push_back(main.lblMeasure(i).caption());
    return captions;
  }

  frmVMeasure& choice = program.measurementChoice;
  frmFMeasure& quickChoice = program.quickMeasurementChoice;
};

TEST_F(MeasurementsTest, FlaggedItemsOfBothChannelsInOrder) {
  flag(2, 2);  // Vpp of channel 1
  flag(4, 8);  // Duty Cycle of channel 1
  flag(3, 9);  // Vmin of channel 2
  flag(5, 2);  // Freq of channel 2
  port.answer(":MEAS:VPP?", {"2.04 V\n"});
  port.answer(":MEAS:PDUT?", {" 50.1 %\n"});
  port.answer(":MEAS:VMIN?", {"-1.0\n"});
  port.answer(":MEAS:FREQ?", {"1.000 kHz\n"});
  main.lblMeasure(15).caption = "old";
  main.tmDSO.enabled = true;
  main.cmdVMeasure.press();
  EXPECT_EQ(takeWire(), (Lines{":MEAS:SOUR 1", ":MEAS:VPP?", ":MEAS:PDUT?", ":MEAS:SOUR 2",
                               ":MEAS:VMIN?", ":MEAS:FREQ?"}));
  EXPECT_EQ(labels(5), (Lines{"Vpp(1)    : 2.04 V", "Duty Cycle(1): 50.1 %", "Vmin(2)   : -1.0",
                              "Freq(2)   : 1.000 kHz", ""}));
  EXPECT_EQ(labels(16).back(), "");
  EXPECT_EQ(port.timeOuts, std::vector<int>(4, 300));
  EXPECT_EQ(port.readTimeOut, 600);
  EXPECT_FALSE(main.tmDSO.enabled());
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[8]);
  EXPECT_EQ(main.cmdStart.caption(), main.Msg[3]);
}

TEST_F(MeasurementsTest, ValueThatIsNotThereIsAskedForThreeTimesMore) {
  setRow(3, {"1", "1"});
  port.answer(":MEAS:VPP?", {"N/A\n", "N/A\n", "1 V\n"});
  port.answer(":MEAS:VAMP?", {"N/A\n"});
  port.answer("*IDN?", {"KRM-410\n"});
  main.mnbVoltage.choose();
  Lines expected = {":MEAS:SOUR 1", ":MEAS:SOUR 2", ":MEAS:VPP?"};
  for (int i = 0; i < 2; ++i)
    expected.insert(expected.end(), {":MEAS:SOUR 2", "*IDN?", ":MEAS:VPP?"});
  expected.emplace_back(":MEAS:VAMP?");
  for (int i = 0; i < 3; ++i)
    expected.insert(expected.end(), {":MEAS:SOUR 2", "*IDN?", ":MEAS:VAMP?"});
  EXPECT_EQ(takeWire(), expected);
  EXPECT_EQ(labels(2), (Lines{"Vpp(2)    : 1 V", "Vamp(2)   : N/A"}));
  // Silence is asked again without the detour.
  flag(2, 2);
  setRow(3, {"0", "0"});
  port.replies.clear();
  main.cmdVMeasure.press();
  EXPECT_EQ(takeWire(), (Lines{":MEAS:SOUR 1", ":MEAS:VPP?", ":MEAS:VPP?", ":MEAS:VPP?",
                               ":MEAS:VPP?", ":MEAS:SOUR 2"}));
  EXPECT_EQ(labels(1), Lines{"Vpp(1)    : "});
}

TEST_F(MeasurementsTest, NothingPickedClearsTheLabelsAndCancelKeepsThem) {
  for (Button* end : {&choice.cmdOK, &choice.cmdCancel}) {
    const bool isCancel = end == &choice.cmdCancel;
    main.lblMeasure(0).caption = "old";
    windows.user["frmVMeasure"] = [&] {
      choice.cbV(0).value = isCancel ? 1 : 0;
      end->press();
    };
    main.cmdVMeasure.press();
    EXPECT_EQ(takeWire(), isCancel ? Lines() : (Lines{":MEAS:SOUR 1", ":MEAS:SOUR 2"}));
    EXPECT_EQ(labels(1), Lines{isCancel ? "old" : ""});
    EXPECT_EQ(cell(2, 2), "0");
    EXPECT_FALSE(main.tmDSO.enabled());
  }
}

TEST_F(MeasurementsTest, SeventeenthResultTakesTheLastLabel) {
  windows.user["frmVMeasure"] = [&] {
    choice.cmdSelectAll.press();
    choice.cmdSelectAll2.press();
    choice.cmdClearAll.press();
    choice.cmdSelectAll.press();
    for (int i = 10; i < 16; ++i) choice.cbV(i).toggle();
    for (int i = 7; i < 14; ++i) choice.cbF(i).toggle();
    choice.cmdOK.press();
  };
  for (const auto query : VoltMeasQuery) port.answer(std::string(query), {"v\n"});
  for (const auto query : FreqMeasQuery) port.answer(std::string(query), {"t\n"});
  main.cmdVMeasure.press();
  EXPECT_EQ(takeWire().size(), 2u + 17u);
  EXPECT_EQ(labels(15).back(), "Duty Cycle(1): t");
  EXPECT_EQ(labels(16).back(), "Vamp(2)   : v");
}

TEST_F(MeasurementsTest, QuickMeasurementReadsTheVoltageRowAndNeitherPadsNorRepeats) {
  port.answer(":MEAS:FREQ?", {"N/A\n"});
  port.answer(":MEAS:NWID?", {"500 us\n"});
  windows.user["frmFMeasure"] = [&] {
    quickChoice.cbChan.choose(1);
    quickChoice.cbF(0).toggle();
    quickChoice.cbF(5).toggle();
    quickChoice.cmdOK.press();
  };
  main.tmDSO.enabled = true;
  main.mnbFrequency.choose();
  const Lines expected = {":MEAS:SOUR 2", ":MEAS:FREQ?", ":MEAS:NWID?"};
  EXPECT_EQ(takeWire(), expected);
  EXPECT_EQ(labels(2), (Lines{"FreqN/A", "-Width500 us"}));
  EXPECT_EQ(port.timeOuts, (std::vector<int>{150, 150}));
  EXPECT_EQ(port.readTimeOut, 600);
  EXPECT_TRUE(main.tmDSO.enabled());
  for (const int row : {1, 2}) EXPECT_EQ(cell(row, 7), "1") << row;
  main.cmdFMeasure.press();
  EXPECT_EQ(takeWire(), expected);
  windows.user["frmFMeasure"] = [&] {
    EXPECT_EQ(quickChoice.cbChan.text(), "2");
    EXPECT_TRUE(quickChoice.cbF(5).isChecked());
    quickChoice.cmdSelectAll.press();
    quickChoice.cmdCancel.press();
  };
  main.mnbFrequency.choose();
  EXPECT_TRUE(takeWire().empty());
  EXPECT_EQ(cell(2, 3), "0");
}

TEST_F(MeasurementsTest, SecondMeasurementInsideTheFirstIsNotBegun) {
  setRow(2, {"1", "1"});
  port.answer(":MEAS:VPP?", {"1\n"});
  port.answer(":MEAS:VAMP?", {"2\n"});
  clock.callAfter(0, [&] {
    main.cmdFMeasure.press();
    main.mnbFrequency.choose();
    main.cmdVMeasure.press();
  });
  main.cmdVMeasure.press();
  EXPECT_EQ(takeWire(), (Lines{":MEAS:SOUR 1", ":MEAS:VPP?", ":MEAS:VAMP?", ":MEAS:SOUR 2"}));
  EXPECT_EQ(labels(2).back(), "Vamp(1)   : 2");
  EXPECT_EQ(windows.shown, Lines{"frmVMeasure"});
  main.BaudRate = 0;
  main.cmdVMeasure.press();
  main.cmdFMeasure.press();
  EXPECT_EQ(logLines(), (Lines{"Tracewell - cmdVMeasure_Click : Division by zero",
                               "Tracewell - cmdFMeasure_Click : Division by zero"}));
  EXPECT_EQ(main.lblConnect.caption(), main.Msg[8]);
}

}  // namespace tracewell
