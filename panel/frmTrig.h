// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "SettingsBurst.h"
#include "SettingsDialog.h"

namespace tracewell {

/// The trigger dialog. Choices go into the setup table at each click, and Cancel leaves them there;
/// only OK sends them. The advanced group is in use while the mode box reads "Advance", a text that
/// is typed, not picked. Traps nothing.
class frmTrig : public SettingsDialog {
 public:
  frmTrig(frmDSO& main, CommandExchange& exchange, Acquisition& acquisition, SettingsBurst& burst);

  ControlArray<Label> lblTrig{
      *this,
      "lblTrig",
      {"Source :", "Mode :", "Slop :", "Coupling :", "Frequency Reject :", "Noise Reject :"}};
  ControlArray<ComboBox> cbTrig{*this, "cbTrig", 6};
  Frame fmAdv{*this, "fmAdv", "Advance"};
  ControlArray<Label> lblTrigAdv{
      *this, "lblTrigAdv", {"Mode :", "Type :", "Event :", "Level :", "Delay :"}};
  ControlArray<ComboBox> cbTrigAdv{*this, "cbTrigAdv", 2};
  ControlArray<TextBox> txtTrigAdv{*this, "txtTrigAdv", 3};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  void cmdTrig_Click();

 private:
  static constexpr int modeBox = 1;

  void fill();
  void readSettings();
  void readAdvancedSettings();
  void showStoredAdvancedSettings();
  void sendSettings();
  bool isAdvanced() { return cbTrig(modeBox).text() == "Advance"; }
  std::int16_t indexOf(const std::string& reply, int row, int value) const;
  void Form_Activate();
  void cbTrig_Click(int box);
  void cmdOK_Click();

  CommandExchange& exchange_;
  SettingsBurst& burst_;
  /// After OK the advanced settings are sent, too. Any click but that of the mode box ends it.
  bool sendsAdvanced_ = false;
};

}  // namespace tracewell
