// SPDX-License-Identifier: GPL-3.0-or-later
#include "StandBy.h"

#include "Error.h"

namespace tracewell {

void StandBy::turn() {
  const std::int64_t now = clock_.milliseconds();
  if (now - lastTurn_ < longestGap) return;
  lastTurn_ = now;
  if (meanwhile) meanwhile();
  {
    const Gate::Hold held(gate_);
    clock_.breathe();
  }
  if (gate_.isEndDue()) throw ProgramEnded();
}

}  // namespace tracewell
