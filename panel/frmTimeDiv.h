// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "frmDSO.h"

namespace tracewell {

/// Picks time per division. Stays open, so that several steps can be tried in turn.
class frmTimeDiv : public Window {
 public:
  explicit frmTimeDiv(frmDSO& main);

  ValueLabel lblHeading{*this, "lblHeading", ""};
  Frame fmTimeDiv{*this, "fmTimeDiv", "Time/Div"};
  ControlArray<OptionButton> obTimeDiv{
      *this, "obTimeDiv", {"2ns",   "5ns",   "10ns", "20ns", "50ns", "100ns", "200ns", "500ns",
                           "1us",   "2us",   "5us",  "10us", "20us", "50us",  "100us", "200us",
                           "500us", "1ms",   "2ms",  "5ms",  "10ms", "20ms",  "50ms",  "100ms",
                           "200ms", "500ms", "1s",   "2s",   "5s"}};
  Button cmdOK{*this, "cmdOK", "Select"};
  Button cmdCancel{*this, "cmdCancel", "Close"};

  void cmdTime_Click();

 private:
  void Form_Activate();
  void cmdOK_Click();

  frmDSO& main_;
  std::int16_t selectedStep_ = 0;
};

}  // namespace tracewell
