// SPDX-License-Identifier: GPL-3.0-or-later
#include "Unanswered.h"

namespace tracewell {

void Unanswered::watch(Control& control) {
  watched_.push_back(&control);
  control.trust = [this, &control] {
    return controls_.contains(&control) ? Trust::unread : Trust::holds;
  };
  control.chosen = [this, &control] { note(control, true); };
}

void Unanswered::note(Control& control, bool isAnswered) {
  if (isAnswered)
    controls_.erase(&control);
  else
    controls_.insert(&control);
  control.notifyChanged();
}

void Unanswered::doubtAll() {
  for (Control* control : watched_) note(*control, false);
}

}  // namespace tracewell
