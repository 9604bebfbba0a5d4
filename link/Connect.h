// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "InstrumentState.h"

namespace tracewell {

/// The buttons that open the link and start and stop the periodic acquisition.
class Connect {
 public:
  Connect(frmDSO& main, CommandExchange& exchange, InstrumentState& instrument, ErrorLog& errorLog)
      : main_(main), exchange_(exchange), instrument_(instrument), errorLog_(errorLog) {}

  /// The first press reads the instrument; each press then starts or stops the acquisition.
  void cmdStart_Click();
  /// Reads the instrument again, after the port's settings have changed, then goes on as cmdStart.
  void cmdRS232_Click();
  /// Shows the state of the acquisition, if cmdStart still waits to do so.
  void showDue();

 private:
  void startOrStop();
  bool connectFirst();
  void readInstrument();
  void showAcquisition();

  frmDSO& main_;
  CommandExchange& exchange_;
  InstrumentState& instrument_;
  ErrorLog& errorLog_;
  bool isShowDue_ = false;
};

}  // namespace tracewell
