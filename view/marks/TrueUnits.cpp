// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrueUnits.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "Graph.h"
#include "Numbers.h"

namespace tracewell {
namespace {

struct Prefix {
  std::string_view text;
  int exponent;
};

/// From small to large. What lies beyond the ends stays with them.
constexpr std::array<Prefix, 7> prefixes = {
    {{"n", -9}, {"u", -6}, {"m", -3}, {"", 0}, {"k", 3}, {"M", 6}, {"G", 9}}};
/// Three decimal digits below what a double holds: a computed 1 mV is not a bit less than one.
constexpr double tolerance = 1e-12;

/// Powers of ten are exact only upwards.
double scaled(double value, int exponent) {
  return exponent < 0 ? value / std::pow(10, -exponent) : value * std::pow(10, exponent);
}

/// The largest prefix with which `magnitude` is one or more.
const Prefix& prefixFor(double magnitude) {
  const auto fits = [magnitude](const Prefix& prefix) {
    return scaled(magnitude, -prefix.exponent) >= 1 - tolerance;
  };
  const auto fitting = std::find_if(prefixes.rbegin(), prefixes.rend(), fits);
  return fitting == prefixes.rend() ? prefixes.front() : *fitting;
}

/// 2 for 0.04, 1 for 0.1, none for 4.
int decimalsFor(double resolution) {
  constexpr double most = 6;
  return static_cast<int>(std::clamp(std::ceil(-std::log10(resolution) - tolerance), 0.0, most));
}

/// `prefixOf` is what the prefix suits; the decimals tell two values apart that differ by
/// `resolution`.
std::string withUnit(double value, double resolution, double prefixOf, std::string_view unit) {
  const Prefix& prefix = prefixFor(prefixOf);
  const int decimals = decimalsFor(scaled(resolution, -prefix.exponent));
  std::string text = formatDecimals(scaled(value, -prefix.exponent), decimals);
  return text.append(" ").append(prefix.text).append(unit);
}

}  // namespace

std::optional<double> trueScale(std::string_view caption, std::string_view unit) {
  const std::size_t blank = caption.find(' ');
  if (blank == std::string_view::npos || !caption.ends_with(unit)) return std::nullopt;
  const std::string_view number = caption.substr(0, blank);
  std::string_view prefix = caption.substr(blank + 1);
  if (prefix.size() < unit.size()) return std::nullopt;
  prefix.remove_suffix(unit.size());
  const auto known = std::ranges::find(prefixes, prefix, &Prefix::text);
  // A long reply must not overflow.
  constexpr std::size_t longest = 12;
  const bool isPlain =
      number.size() <= longest && number.find_first_not_of("0123456789.") == std::string_view::npos;
  if (known == prefixes.end() || !isPlain || !isNumeric(number)) return std::nullopt;
  const double perDivision = scaled(leadingNumber(number), known->exponent);
  return perDivision > 0 ? std::optional(perDivision) : std::nullopt;
}

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
