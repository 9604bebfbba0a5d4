// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frmDSO.h"

namespace tracewell {

/// The traces that are shown, for a spreadsheet: a heading, then a line for each of the 500 points,
/// columns with tabs between them, LF behind every line. Empty where nothing is shown.
///
/// The first column is the time, from the middle of the screen on, in seconds; a channel is in
/// volts, counted from its zero. What its record came under decides, not what the knobs say now. A
/// column is in divisions, and says so, where that is not known, and for a channel in whose place
/// the instrument shows the math that was chosen here. Loaded traces have their place on the screen
/// in divisions, across, in a column before theirs, and up.
std::string traceTable(const frmDSO& main);

}  // namespace tracewell
