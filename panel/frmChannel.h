// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "InstrumentState.h"
#include "SettingsBurst.h"
#include "SettingsDialog.h"

namespace tracewell {

/// The channel dialog: reads one channel's settings, edits its row of the setup table, and sends
/// the row.
class frmChannel : public SettingsDialog {
 public:
  frmChannel(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog, Acquisition& acquisition,
             SettingsBurst& burst, InstrumentState& instrument);

  ControlArray<CheckBox> cbCh{*this, "cbCh", {"Display On", "Invert On", "BW Limit On"}};
  Frame fmCoupling{*this, "fmCoupling", "Coupling"};
  ControlArray<OptionButton> obCoupling{*this, "obCoupling", {"AC", "DC", "GND"}};
  Frame fmProbe{*this, "fmProbe", "Probe"};
  ControlArray<OptionButton> obProbe{*this, "obProbe", {"1", "10", "100"}};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  /// Leaves the acquisition running meanwhile, and running afterwards in every case.
  void cmdCh1_Click() { editSettings(main_.channel(1)); }
  void cmdCh2_Click() { editSettings(main_.channel(2)); }

 private:
  void editSettings(Channel& channel);
  void readSettings(const Channel& channel);
  void sendSettings(const Channel& channel);
  /// Shows the reply to the query of a place in the row. What is no number leaves the control as
  /// the dialog last had it, and marks it as unread. Raises an error for a number without a
  /// control.
  void show(int place, const std::string& reply);
  void showOption(Frame& group, ControlArray<OptionButton>& options, const std::string& reply,
                  int place);
  void selectKept(ControlArray<OptionButton>& options, int column);
  void cmdOK_Click();
  void cmdCancel_Click();
  void keepSelected(ControlArray<OptionButton>& options, int column);

  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  SettingsBurst& burst_;
  InstrumentState& instrument_;
  /// The row that OK writes.
  int setupRow_ = SetupTable::channel1;
};

}  // namespace tracewell
