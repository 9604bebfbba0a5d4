// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "Screen.h"

namespace tracewell {

/// The reply to a measurement ("VPP", "FREQ", ...) of a trace, computed from its samples; "N/A"
/// when the trace does not show what it needs. None if there is no such measurement.
std::optional<std::string> measure(const std::string& item, const Screen::Trace& trace,
                                   double voltsPerDivision, double secondsPerDivision);

}  // namespace tracewell
