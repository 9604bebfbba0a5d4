// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Why the traces do not follow the signal now, or cannot be counted in volts and seconds: the
/// weightiest reason alone, in the language in force. Empty while all is well.
GraphMarks::Banner traceBanner(const frmDSO& main);

}  // namespace tracewell
