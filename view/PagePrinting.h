// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Acquisition.h"

namespace tracewell {

/// The graph on paper.
class PagePrinting {
 public:
  PagePrinting(frmDSO& main, ErrorLog& errorLog, Acquisition& acquisition)
      : main_(main), errorLog_(errorLog), acquisition_(acquisition) {}

  /// Stops the acquisition and prints the traces Chan1, Chan2 and Load1 to Load3, as far as they
  /// are shown, with the scales. Logs its failure.
  void cmdPrint_Click();
  void mnbPrintSetup_Click();

 private:
  GraphPage page();

  frmDSO& main_;
  ErrorLog& errorLog_;
  Acquisition& acquisition_;
};

}  // namespace tracewell
