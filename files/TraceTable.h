// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frmDSO.h"

namespace tracewell {

/// The traces that are shown, for a spreadsheet: a heading, then a line for each of the 500 points,
/// columns with tabs between them, LF behind every line. Empty where nothing is shown.
///
/// The first column is the time, from the middle of the screen on, in seconds; a channel is in
/// volts, counted from its zero. What it came under decides, not what the knobs say now. A column
/// is in divisions, and says so, where that is not known: always for a loaded trace, which has its
/// height on the screen, and for a channel in whose place the instrument shows its math.
std::string traceTable(const frmDSO& main);

}  // namespace tracewell
