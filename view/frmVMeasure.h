// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Captions.h"
#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// Which measurements to run: voltage boxes 0 to 7 and time boxes 0 to 6 are channel 1's, the
/// others channel 2's. OK writes the flags into rows 2 to 5 of the setup table and tells its
/// opener.
class frmVMeasure : public Window {
 public:
  frmVMeasure(frmDSO& main, Captions& captions);

  Frame fmChannel1{*this, "fmChannel1", "Channel One :"};
  Frame fmChannel2{*this, "fmChannel2", "Channel Two :"};
  ControlArray<Frame> fmVoltage{*this, "fmVoltage", {"Voltage Measure", "Voltage Measure"}};
  ControlArray<Frame> fmFrequence{*this, "fmFrequence", {"Frequence Measure", "Frequence Measure"}};
  ControlArray<CheckBox> cbV{*this,
                             "cbV",
                             {"Vpp", "Vamp", "Vavg", "Vrms", "Vhi", "Vlo", "Vmax", "Vmin", "Vpp",
                              "Vamp", "Vavg", "Vrms", "Vhi", "Vlo", "Vmax", "Vmin"}};
  ControlArray<CheckBox> cbF{
      *this,
      "cbF",
      {"Freq", "Period", "Risetime", "Falltime", "+Width", "-Width", "Duty Cycle", "Freq", "Period",
       "Risetime", "Falltime", "+Width", "-Width", "Duty Cycle"}};
  Button cmdSelectAll{*this, "cmdSelectAll", "Select All"};
  Button cmdClearAll{*this, "cmdClearAll", "Clear All"};
  Button cmdSelectAll2{*this, "cmdSelectAll2", "Select All"};
  Button cmdClearAll2{*this, "cmdClearAll2", "Clear All"};
  /// Says when more are ticked than there are cells to show them.
  ValueLabel lblHint{*this, "lblHint", ""};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  /// Sets every box from its flag.
  void showFlags();

 private:
  int ticked();
  void showHint();
  void setChannel(int channel, bool isChecked);
  void cmdOK_Click();
  void cmdCancel_Click();

  frmDSO& main_;
  Captions& captions_;
};

}  // namespace tracewell
