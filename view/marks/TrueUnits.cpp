// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrueUnits.h"

#include <algorithm>
#include <cmath>

#include "Graph.h"
#include "Numbers.h"
#include "TrueNumbers.h"

namespace tracewell {
namespace {

/// Three decimal digits below what a double holds: a computed 1 mV is not a bit less than one.
constexpr double tolerance = 1e-12;

/// The largest prefix with which `magnitude` is one or more.
const UnitPrefix& prefixFor(double magnitude) {
  const auto fits = [magnitude](const UnitPrefix& prefix) {
    return scaled(magnitude, -prefix.exponent) >= 1 - tolerance;
  };
  const auto fitting = std::find_if(unitPrefixes.rbegin(), unitPrefixes.rend(), fits);
  return fitting == unitPrefixes.rend() ? unitPrefixes.front() : *fitting;
}

/// 2 for 0.04, 1 for 0.1, none for 4.
int decimalsFor(double resolution) {
  constexpr double most = 6;
  return static_cast<int>(std::clamp(std::ceil(-std::log10(resolution) - tolerance), 0.0, most));
}

/// `prefixOf` is what the prefix suits; the decimals tell two values apart that differ by
/// `resolution`.
std::string withUnit(double value, double resolution, double prefixOf, std::string_view unit) {
  const UnitPrefix& prefix = prefixFor(prefixOf);
  const int decimals = decimalsFor(scaled(resolution, -prefix.exponent));
  std::string text = formatDecimals(scaled(value, -prefix.exponent), decimals);
  return text.append(" ").append(prefix.text).append(unit);
}

}  // namespace

std::string valueOf(double units, double perDivision, std::string_view unit) {
  const double value = units * perDivision / Graph::unitsPerDivision;
  const double resolution = perDivision / Graph::unitsPerDivision;
  return withUnit(value, resolution, std::max(std::fabs(value), perDivision), unit);
}

std::vector<std::string> timeBadge(double secondsPerDivision, double x1, double x2) {
  const double distance = std::fabs(x1 - x2);
  std::vector<std::string> lines = {"|Δt| = " + valueOf(distance, secondsPerDivision, "s")};
  if (distance == 0) return lines;
  const double frequency = Graph::unitsPerDivision / (distance * secondsPerDivision);
  // One unit more or less is the same share of the frequency.
  lines.push_back("1/|Δt| = " + withUnit(frequency, frequency / distance, frequency, "Hz"));
  return lines;
}

std::vector<std::string> voltageBadge(double voltsPerDivision, std::optional<double> zero,
                                      double y1, double y2) {
  std::vector<std::string> lines;
  if (zero) {
    lines.push_back("P1 = " + valueOf(y1 - *zero, voltsPerDivision, "V"));
    lines.push_back("P2 = " + valueOf(y2 - *zero, voltsPerDivision, "V"));
  }
  lines.push_back("ΔV = " + valueOf(y1 - y2, voltsPerDivision, "V"));
  return lines;
}

}  // namespace tracewell
