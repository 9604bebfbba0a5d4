// SPDX-License-Identifier: GPL-3.0-or-later
#include "Unanswered.h"

namespace tracewell {

void Unanswered::watch(Control& control) {
  watched_.push_back(&control);
  control.trust = [this, &control] {
    const auto asked = replies_.find(&control);
    if (asked == replies_.end()) return Trust::holds;
    return asked->second && port_.isSure(*asked->second) ? Trust::holds : Trust::unread;
  };
  control.chosen = [this, &control] { settle(control); };
}

void Unanswered::note(Control& control, bool isAnswered) {
  replies_[&control] = isAnswered ? std::optional(port_.lastReply()) : std::nullopt;
  control.notifyChanged();
}

void Unanswered::settle(Control& control) {
  replies_.erase(&control);
  control.notifyChanged();
}

void Unanswered::doubtAll() {
  for (Control* control : watched_) note(*control, false);
}

void Unanswered::showMarks() const {
  for (Control* control : watched_)
    if (control->trust() != control->painted) control->notifyChanged();
}

}  // namespace tracewell
