// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// What the screen shows beside the traces: the channels' zeros, what has left the screen, names,
/// scales, and true values at the cursors. Values that have not been read are left out.
GraphMarks screenMarks(const frmDSO& main);

/// Volts of the displayed channels, from their zeros, and the time at a point in graph units.
std::vector<GraphMarks::Text> valuesAt(const frmDSO& main, double x, double y);

}  // namespace tracewell
