// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Values at the cursors in true units, with as many digits as the scale supports. The read-out
/// below the graph has its own form.
namespace tracewell {

/// `units` graph units of a scale, as "-1.25 mV": with enough decimals to tell two units apart, and
/// the prefix that suits the value, but none below the scale's. Writes "us" as the instrument does.
std::string valueOf(double units, double perDivision, std::string_view unit);

/// The distance of two positions on the time axis, in graph units, and its reciprocal unless they
/// are equal.
std::vector<std::string> timeBadge(double secondsPerDivision, double x1, double x2);

/// Two heights, in graph units: volts from the channel's zero, left out if `zero` is not known, and
/// P1 - P2.
std::vector<std::string> voltageBadge(double voltsPerDivision, std::optional<double> zero,
                                      double y1, double y2);

}  // namespace tracewell
