// SPDX-License-Identifier: GPL-3.0-or-later
#include "Doubles.h"

namespace tracewell {

class RS232Test : public ProgramTest {
 protected:
  /// Opens the dialog, types the five settings and presses a button.
  void edit(const Lines& settings, Button& button) {
    windows.user["frmRS232"] = [&] {
      int box = 0;
      for (const std::string& setting : settings) dialog.cbRS232(box++).type(setting);
      button.press();
    };
    main.mnbRS232.choose();
  }

  frmRS232& dialog = program.rs232;
  LineSettings& settings = port.settings;
};

TEST_F(RS232Test, AppliesInThePortsOwnCodes) {
  const std::pair<Lines, LineSettings> cases[] = {
      {{"9600", "7", "1", "None", "33"}, {33, 9600, 7, 0, 0}},
      {{"4800", "8", "2", "Odd", "0"}, {0, 4800, 8, 2, 3}},
      {{"300", "9", "1.5", "Even", "-1"}, {-1, 300, 8, 2, 1}}};
  for (const auto& [typed, expected] : cases) {
    edit(typed, dialog.cmdOK);
    EXPECT_EQ(settings, expected) << typed[0];
    EXPECT_EQ(main.BaudRate, expected.baudRate);
  }
  EXPECT_EQ(row(0), (Lines{"300", "9", "1.5", "Even", "-1"}));
}

/// Applied when it has been read at the start; loading another one changes the table only.
TEST_F(RS232Test, SetupOfTheProgramHoldsFromItsStartOn) {
  const LineSettings kept{33, 4800, 7, 2, 3};
  setRow(0, {"4800", "7", "2", "Odd", "33"});
  program.setupFiles.WriteSetupFile(folder.path() / "default.dso");
  setRow(0, {"fast", "8", "1", "None", "7"});
  program.setupFiles.WriteSetupFile(folder.path() / "other.dso");
  Tracewell restarted(services);
  restarted.start();
  EXPECT_EQ(settings, kept);
  EXPECT_EQ(restarted.main.lblPort.caption(), "port 33 - ttyUSB0");
  EXPECT_EQ(restarted.main.BaudRate, 19200);
  EXPECT_TRUE(port.wire.empty());
  EXPECT_TRUE(port.prepared.empty());

  // A rate that is none leaves the line as it was, and the status line says what is in use.
  for (const char* rate : {"fast", "9600"}) {
    restarted.main.gridMeasure.setText(0, 2, rate);
    restarted.setupFiles.WriteSetupFile(folder.path() / "other.dso");
    dialogs.pickedFile = folder.path() / "other.dso";
    restarted.main.mnbLoadSetup.choose();
    EXPECT_EQ(settings, kept);
    const std::string& status = restarted.main.lblStatus.caption();
    EXPECT_NE(status.find("In use: port 33, 4800 baud 7-O-2"), std::string::npos) << status;
  }
}

TEST_F(RS232Test, OpensWithTheTableAndNamesTheDevice) {
  main.gridMeasure.setText(0, 6, "33");
  windows.user["frmRS232"] = [&] {
    EXPECT_EQ(dialog.cbRS232(0).text(), "19200");
    EXPECT_EQ(dialog.cbRS232(4).text(), "33");
    EXPECT_EQ(dialog.lblDevice.caption(), "ttyUSB0");
    dialog.cbRS232(4).type("0");
    EXPECT_EQ(dialog.lblDevice.caption(), "simulated instrument");
    for (const char* noPort : {"5", "40000", "tty", ""}) {
      dialog.cbRS232(4).type(noPort);
      EXPECT_EQ(dialog.lblDevice.caption(), "") << noPort;
    }
  };
  main.mnbRS232.choose();
  EXPECT_TRUE(dialogs.runTimeErrors.empty());
}

TEST_F(RS232Test, WrongTextEndsTheHandlerAndCancelAppliesNothing) {
  const LineSettings before = settings;
  const Lines rowBefore = row(0);
  edit({"4800", "7", "2", "Odd", "1"}, dialog.cmdCancel);
  EXPECT_EQ(settings, before);
  edit({"38400", "7", "2", "Odd", "1"}, dialog.cmdOK);
  edit({"fast", "7", "2", "Odd", "1"}, dialog.cmdOK);
  EXPECT_EQ(settings, before);
  // The rate is applied before the port's number is found wrong.
  edit({"4800", "7", "2", "Odd", "tty"}, dialog.cmdOK);
  EXPECT_EQ(main.BaudRate, 4800);
  EXPECT_EQ(settings.dataBits, before.dataBits);
  EXPECT_EQ(row(0), rowBefore);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialogs.runTimeErrors, (Lines{"6 Overflow", "13 Type mismatch", "13 Type mismatch"}));
}

}  // namespace tracewell
