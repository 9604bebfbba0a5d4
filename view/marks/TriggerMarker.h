// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Puts the marker "Triger" at the height of the trigger level on the trace of the trigger's
/// source. Of both only what the instrument has counts: the marker is hidden while the level, the
/// source, the scale or the position are not known, and for a source that is no channel. What the
/// setup table holds is a choice, not a setting in force. Called whenever one of these changes.
void UpdateTriggerMarker(frmDSO& main);

/// After autoset, and with another instrument: reading an instrument does not ask for them.
void ForgetUnaskedSettings(frmDSO& main);

}  // namespace tracewell
