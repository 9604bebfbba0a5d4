// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Acquisition.h"
#include "InstrumentState.h"
#include "frmMsg.h"

namespace tracewell {

/// Has the instrument find its own settings and reads what it has found.
class Autoset {
 public:
  Autoset(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog, Acquisition& acquisition,
          InstrumentState& instrument, frmMsg& message);

  void cmdAutoset_Click();
  /// Whether the instrument is at it. Then the status line says that `caption` has to wait.
  bool isUnderWay(const Property<std::string>& caption) const;

 private:
  void waitUntilItIsOver();
  void hideMessage();

  frmDSO& main_;
  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  Acquisition& acquisition_;
  InstrumentState& instrument_;
  frmMsg& message_;
};

}  // namespace tracewell
