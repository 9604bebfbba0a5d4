// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// Picks volts per division for a channel. Stays open, so that several steps can be tried in turn.
class frmChDiv : public Window {
 public:
  explicit frmChDiv(frmDSO& main);

  /// For which channel the steps are; one of the two shows.
  ControlArray<ValueLabel> lblChannel{*this, "lblChannel", 2};
  Frame fmVDiv{*this, "fmVDiv", "Volt/Div"};
  ControlArray<OptionButton> opVDiv{
      *this,
      "opVDiv",
      {"2mV", "5mV", "10mV", "20mV", "50mV", "100mV", "200mV", "500mV", "1V", "2V", "5V"}};
  Button cmdSelect{*this, "cmdSelect", "Select"};
  Button cmdClose{*this, "cmdClose", "Close"};

  void cmdChannel1_Click() { pickFor(main_.channel(1)); }
  void cmdChannel2_Click() { pickFor(main_.channel(2)); }

 private:
  void pickFor(Channel& channel);
  void Form_Activate();
  void cmdSelect_Click();
  void cmdClose_Click();

  frmDSO& main_;
  Channel* channel_ = &main_.channel(1);
  std::int16_t selectedStep_ = 0;
};

}  // namespace tracewell
