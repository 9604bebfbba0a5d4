// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frmDSO.h"

namespace tracewell {

/// Lays a record over the live traces as the load window does: in the first reference that is free,
/// with its volts per division beside it, at the height at which its channel's trace is now. The
/// status line says which one, or that none is free. False if none is.
bool showAsReference(frmDSO& main, int channel, const ChannelRecord& record);

}  // namespace tracewell
