// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

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
  /// Shows what cmdStart has done, if it still waits to do so. It does so again behind its wait.
  void showEarly();

 private:
  void startOrStop();
  void waitToShow(bool hasStarted);
  bool connectFirst();
  void showAcquisition();

  frmDSO& main_;
  CommandExchange& exchange_;
  InstrumentState& instrument_;
  ErrorLog& errorLog_;
  /// What cmdStart has done, while it waits.
  std::optional<bool> hasStarted_;
};

}  // namespace tracewell
