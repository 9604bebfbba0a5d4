// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Values at the cursors in the units that they have, with the digits that the scale deserves. The
/// read-out below the graph has a form of its own.
namespace tracewell {

/// `units` graph units of a scale, as "-1.25 mV": with as many decimals as tell two units apart,
/// and the prefix that suits the value, but none below the scale's. "us" is written as the
/// instrument does.
std::string valueOf(double units, double perDivision, std::string_view unit);

/// Two positions on the time axis, in graph units: how far they are apart, and how often a second
/// that is, unless they are at the same place.
std::vector<std::string> timeBadge(double secondsPerDivision, double x1, double x2);

/// Two heights, in graph units: volts counted from the channel's zero, which is left out where
/// `zero` is not known, and P1 - P2.
std::vector<std::string> voltageBadge(double voltsPerDivision, std::optional<double> zero,
                                      double y1, double y2);

}  // namespace tracewell
