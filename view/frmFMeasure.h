// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// Channel and items of the quick frequency measurement. OK writes the flags into rows 1 and 2 of
/// the setup table and tells its opener. Row 2, which the quick measurement reads,
/// is also the voltage row of channel 1: the two dialogs share it.
class frmFMeasure : public Window {
 public:
  explicit frmFMeasure(frmDSO& main);

  Label lblChan{*this, "lblChan", "Cource Channel :"};
  ComboBox cbChan{*this, "cbChan", {"1", "2"}};
  Frame fmFrequence{*this, "fmFrequence", "Frequence Measure"};
  ControlArray<CheckBox> cbF{
      *this, "cbF", {"Freq", "Period", "Risetime", "Falltime", "+Width", "-Width", "Duty Cycle"}};
  Button cmdSelectAll{*this, "cmdSelectAll", "Select All"};
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel"};

  /// Channel of the quick measurement, 1 or 2.
  std::int16_t FMeasChan = 1;

 private:
  void Form_Activate();
  void cmdOK_Click();

  frmDSO& main_;
};

}  // namespace tracewell
