// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// The channel dialog: edits one channel's row of the setup table. Its tag reads "1" after OK.
class frmChannel : public Window {
 public:
  explicit frmChannel(frmDSO& main);

  ControlArray<CheckBox> cbCh{*this, "cbCh", {"Display On", "Invert On", "BW Limit On"}};
  Frame fmCoupling{*this, "fmCoupling", "Coupling"};
  ControlArray<OptionButton> obCoupling{*this, "obCoupling", {"AC", "DC", "GND"}};
  Frame fmProbe{*this, "fmProbe", "Probe"};
  ControlArray<OptionButton> obProbe{*this, "obProbe", {"1", "10", "100"}};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  /// The row that OK writes; set by the opener.
  std::int16_t setupRow = SetupTable::channel1;

  /// Shows the reply to the query of a place in the row. What is no number leaves the control as
  /// the dialog last had it, and marks it as unread. Raises an error for a number without a
  /// control.
  void show(int place, const std::string& reply);

 private:
  void cmdOK_Click();
  void cmdCancel_Click();
  void keepSelected(ControlArray<OptionButton>& options, int column);

  frmDSO& main_;
};

}  // namespace tracewell
