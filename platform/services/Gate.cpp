// SPDX-License-Identifier: GPL-3.0-or-later
#include "Gate.h"

#include "Error.h"

namespace tracewell {

void Gate::mustBeOpen() const {
  if (isClosed_) throw ProgramEnded();
}

}  // namespace tracewell
