// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScaleKnobs.h"

namespace tracewell {

void ScaleKnobs::knobChan1_ValueChanged() {
  sendScale(ScaleKnob::Chan1, main_.knobChan1, main_.lblChan1);
}

void ScaleKnobs::knobChan2_ValueChanged() {
  sendScale(ScaleKnob::Chan2, main_.knobChan2, main_.lblChan2);
}

void ScaleKnobs::knobTime_ValueChanged() {
  sendScale(ScaleKnob::Time, main_.knobTime, main_.lblTime);
}

void ScaleKnobs::knob_Stays(const Knob& knob) {
  if (knob.trust() == Trust::holds) return;
  main_.status.tell(StatusLine::failed, [&knob](const Words& words) {
    return knob.trust() == Trust::holds
               ? ""
               : words.say(
                     "The knob stands there already: turn it away and back to send its scale");
  });
}

void ScaleKnobs::sendScale(ScaleKnob kind, Knob& knob, ValueLabel& label) {
  exchange_.SendDSOCmd(ScaleCommandForKnob(kind, knob.value()));
  label.caption = scaleCaptionForKnob(kind, knob.value());
  cursors_.graphDSO_CursorMoved();
}

}  // namespace tracewell
