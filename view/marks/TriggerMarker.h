// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Puts the marker "Triger" at the height of the trigger level on the trace of the trigger's
/// source. Of both only what the instrument has counts, and while the user drags the slide the
/// level that it is at. The marker is hidden while the level, the source, the scale or the position
/// are not known, and for a source that is no channel.
void showTriggerMarker(frmDSO& main);

}  // namespace tracewell
