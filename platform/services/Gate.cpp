// SPDX-License-Identifier: GPL-3.0-or-later
#include "Gate.h"

#include "Error.h"

namespace tracewell {

void Gate::mustBeOpen() const {
  if (isClosed_) throw ProgramEnded();
}

void Gate::leaveToUser() const {
  mustBeOpen();
  if (beforeModal) beforeModal();
}

}  // namespace tracewell
