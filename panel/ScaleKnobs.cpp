// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScaleKnobs.h"

#include "TriggerMarker.h"

namespace tracewell {

void ScaleKnobs::knobChan1_ValueChanged() {
  sendScale(ScaleKnob::Chan1, main_.knobChan1, main_.lblChan1);
}

void ScaleKnobs::knobChan2_ValueChanged() {
  sendScale(ScaleKnob::Chan2, main_.knobChan2, main_.lblChan2);
}

/// A delay keeps its seconds, not its divisions.
void ScaleKnobs::knobTime_ValueChanged() {
  if (main_.slideTime.value() != 0) main_.slideTime.isUnread = true;
  sendScale(ScaleKnob::Time, main_.knobTime, main_.lblTime);
}

void ScaleKnobs::sendScale(ScaleKnob kind, Knob& knob, ValueLabel& label) {
  exchange_.SendDSOCmd(ScaleCommandForKnob(kind, knob.value()));
  label.caption = scaleCaptionForKnob(kind, knob.value());
  // What could not be sent is not what the instrument has.
  label.isUnread = !exchange_.wasSent();
  knob.isUnread = !exchange_.wasSent();
  UpdateTriggerMarker(main_);
  cursors_.graphDSO_CursorMoved();
}

}  // namespace tracewell
