// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Puts the marker "Triger" at the height of the trigger level on the trace of the trigger's
/// source. Both are the instrument's; while the user drags the slide, its level counts. The marker
/// is hidden while level, source, scale or position is not known, and if the source is no channel.
void showTriggerMarker(frmDSO& main);

}  // namespace tracewell
