// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Puts the marker "Triger" at the height of the trigger level on the trace of the trigger's
/// source. It stays hidden until a level has been set, since the instrument's own is not read, and
/// while the source is no channel or its scale is not known. Called whenever one of these changes.
void UpdateTriggerMarker(frmDSO& main);

}  // namespace tracewell
