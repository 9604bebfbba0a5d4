// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string_view>

/// Numbers with a unit as the instrument writes them, read strictly: what is not in that form is no
/// number here.
namespace tracewell {

struct UnitPrefix {
  std::string_view text;
  int exponent;
};

/// From small to large.
constexpr std::array<UnitPrefix, 7> unitPrefixes = {
    {{"n", -9}, {"u", -6}, {"m", -3}, {"", 0}, {"k", 3}, {"M", 6}, {"G", 9}}};

/// value x 10^exponent.
double scaled(double value, int exponent);

/// Volts or seconds (`unit` "V" or "s") of a text such as "-750.0 mV"; nothing for any other text.
std::optional<double> trueNumber(std::string_view text, std::string_view unit);

/// Volts or seconds to a division, of a caption such as "500.0 us"; nothing for any other text.
std::optional<double> trueScale(std::string_view caption, std::string_view unit);

}  // namespace tracewell
