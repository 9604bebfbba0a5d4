// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

/// Scales and positions belong to the instrument that was asked for them. Behind another port, or
/// on a line that has been opened anew, there may be another one.
namespace tracewell {

/// They have just been read.
void noteScalesRead(frmDSO& main);

/// They may be another instrument's.
bool areScalesStale(const frmDSO& main);

/// Shows them pale, and says how they are read, as long as they may be another instrument's.
void showStaleScales(frmDSO& main);

}  // namespace tracewell
