// SPDX-License-Identifier: GPL-3.0-or-later
#include "TrueNumbers.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "Numbers.h"

namespace tracewell {

/// Only positive powers of ten are exact.
double scaled(double value, int exponent) {
  return exponent < 0 ? value / std::pow(10, -exponent) : value * std::pow(10, exponent);
}

std::optional<double> trueNumber(std::string_view text, std::string_view unit) {
  const std::size_t blank = text.find(' ');
  if (blank == std::string_view::npos || !text.ends_with(unit)) return std::nullopt;
  const std::string_view number = text.substr(0, blank);
  std::string_view prefix = text.substr(blank + 1);
  if (prefix.size() < unit.size()) return std::nullopt;
  prefix.remove_suffix(unit.size());
  const auto known = std::ranges::find(unitPrefixes, prefix, &UnitPrefix::text);
  // A long reply must not overflow.
  constexpr std::size_t longest = 12;
  const auto isOfNumber = [](unsigned char c) {
    return std::isdigit(c) != 0 || c == '-' || c == '.';
  };
  const bool isPlain = number.size() <= longest && std::ranges::all_of(number, isOfNumber);
  if (known == unitPrefixes.end() || !isPlain || !isNumeric(number)) return std::nullopt;
  return scaled(leadingNumber(number), known->exponent);
}

std::optional<double> trueScale(std::string_view caption, std::string_view unit) {
  const std::optional<double> perDivision = trueNumber(caption, unit);
  return perDivision && *perDivision > 0 ? perDivision : std::nullopt;
}

}  // namespace tracewell
