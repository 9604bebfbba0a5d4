// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmChDiv.h"

#include "Numbers.h"

namespace tracewell {

frmChDiv::frmChDiv(frmDSO& main) : Window("frmChDiv", "Volt/Div", main.services()), main_(main) {
  formActivate = [this] { Form_Activate(); };
  for (OptionButton& option : opVDiv) {
    option.click = [this, &option] { selectedStep_ = static_cast<std::int16_t>(option.index()); };
    option.trust = [this, &option] {
      return option.value() && option.index() == channel_->knob.value() ? channel_->knob.trust()
                                                                        : Trust::holds;
    };
  }
  cmdSelect.click = [this] { cmdSelect_Click(); };
  cmdClose.click = [this] { cmdClose_Click(); };
}

void frmChDiv::pickFor(Channel& channel) {
  channel_ = &channel;
  showModal();
}

void frmChDiv::Form_Activate() {
  for (ValueLabel& label : lblChannel) {
    const int number = label.index() + 1;
    label.caption = services().words.say("Channel %1", {std::to_string(number)});
    label.visible = number == channel_->number;
  }
  opVDiv(toInt32(channel_->knob.value())).value = true;
}

void frmChDiv::cmdSelect_Click() {
  channel_->knob.moveTo(selectedStep_);
  main_.refresh();
}

void frmChDiv::cmdClose_Click() {
  hide();
  main_.refresh();
}

}  // namespace tracewell
