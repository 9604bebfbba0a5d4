// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmTimeDiv.h"

#include "Numbers.h"

namespace tracewell {

frmTimeDiv::frmTimeDiv(frmDSO& main)
    : Window("frmTimeDiv", "Time/Div", main.services()), main_(main) {
  formActivate = [this] { Form_Activate(); };
  for (OptionButton& option : obTimeDiv) {
    option.click = [this, &option] { selectedStep_ = static_cast<std::int16_t>(option.index()); };
    option.trust = [this, &option] {
      return option.value() && option.index() == main_.knobTime.value() ? main_.knobTime.trust()
                                                                        : Trust::holds;
    };
  }
  cmdOK.click = [this] { cmdOK_Click(); };
  cmdCancel.click = [this] { hide(); };
}

void frmTimeDiv::cmdTime_Click() {
  showModal();
}

void frmTimeDiv::Form_Activate() {
  lblHeading.caption = services().words.say("Both channels");
  obTimeDiv(toInt32(main_.knobTime.value())).value = true;
}

void frmTimeDiv::cmdOK_Click() {
  main_.knobTime.moveTo(selectedStep_);
  main_.refresh();
}

}  // namespace tracewell
