// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "Captions.h"
#include "Controls.h"
#include "SettingsDialog.h"

namespace tracewell {

/// The acquisition dialog: edits row 6 of the setup table, which is sent after OK without waiting
/// and without reading back. The averaging box shows while the mode box reads "Average", a text
/// that is typed, not picked.
class frmAcq : public SettingsDialog {
 public:
  frmAcq(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog, Acquisition& acquisition,
         Captions& captions);

  Label lblMode{*this, "lblMode", "Mode : "};
  ComboBox cbMode{*this, "cbMode", {"Sample"}};
  Label lblAverage{*this, "lblAverage", "Average : "};
  ComboBox cbAverage{*this, "cbAverage", {"2", "4", "8", "16", "32", "64", "128"}};
  Label lblLength{*this, "lblLength", "Length : "};
  ComboBox cbLength{*this, "cbLength", {"500"}};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  void cmdAcq_Click();

 private:
  /// In the order of their values in the table.
  std::array<ComboBox*, 3> boxes() { return {&cbMode, &cbAverage, &cbLength}; }
  void showSettings();
  void sendSettings();
  void cbMode_Click();
  void cmdOK_Click();
  void cmdCancel_Click();

  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  Captions& captions_;
};

}  // namespace tracewell
