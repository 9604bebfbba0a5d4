// SPDX-License-Identifier: GPL-3.0-or-later
#include "Unanswered.h"

#include <utility>

namespace tracewell {

void Unanswered::watch(Control& control) {
  control.trust = [this, &control] {
    const auto noted = holds_.find(&control);
    return noted == holds_.end() || noted->second() ? Trust::holds : Trust::unread;
  };
  control.chosen = [this, &control] { settle(control); };
}

/// Behind a line that has failed there may be another instrument; an autoset changes all settings.
void Unanswered::note(Control& control, bool isAnswered) {
  note(control, [this, isAnswered, line = known_.presentLine(), since = known_.upsetAt(),
                 reply = port_.lastReply()] {
    return isAnswered && port_.isSure(reply) && line == known_.presentLine() && !known_.isUpset() &&
           since == known_.upsetAt() && port_.report().failure.empty();
  });
}

void Unanswered::note(Control& control, std::function<bool()> holds) {
  holds_[&control] = std::move(holds);
  control.notifyChanged();
}

void Unanswered::settle(Control& control) {
  holds_.erase(&control);
  control.notifyChanged();
}

}  // namespace tracewell
