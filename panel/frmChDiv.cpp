// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmChDiv.h"

#include "Numbers.h"

namespace tracewell {

frmChDiv::frmChDiv(frmDSO& main) : Window("frmChDiv", "Volt/Div", main.services()), main_(main) {
  formActivate = [this] { Form_Activate(); };
  for (OptionButton& option : opVDiv)
    option.click = [this, &option] { selectedStep_ = static_cast<std::int16_t>(option.index()); };
  cmdSelect.click = [this] { cmdSelect_Click(); };
  cmdClose.click = [this] { cmdClose_Click(); };
}

void frmChDiv::pickFor(const char* channelNumber) {
  tag = channelNumber;
  showModal();
}

Knob& frmChDiv::knob() {
  return tag == "1" ? main_.knobChan1 : main_.knobChan2;
}

void frmChDiv::Form_Activate() {
  for (ValueLabel& label : lblChannel) {
    const std::string number = std::to_string(label.index() + 1);
    label.caption = services().words.say("Channel %1", {number});
    label.visible = number == tag;
  }
  opVDiv(toInt32(knob().value())).value = true;
}

void frmChDiv::cmdSelect_Click() {
  knob().value = selectedStep_;
  main_.refresh();
}

void frmChDiv::cmdClose_Click() {
  hide();
  main_.refresh();
}

}  // namespace tracewell
