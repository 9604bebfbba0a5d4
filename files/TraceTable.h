// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frmDSO.h"

namespace tracewell {

/// The shown traces for a spreadsheet: a heading, then a line for each of the 500 points, with tabs
/// between columns and LF behind every line. Empty if no trace is shown.
///
/// The first column is the time in seconds from the middle of the screen. A channel is in volts
/// from its zero, by the settings that its record was made under, not by the knobs. If these are
/// not known, or if the instrument shows math in the channel's place, the column is in divisions
/// and says so. Loaded traces are in divisions, up, with a column for their divisions across before
/// them.
std::string traceTable(const frmDSO& main);

}  // namespace tracewell
