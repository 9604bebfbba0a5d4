// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <limits>
#include <string_view>

/// What the instrument can measure by itself: names as they are shown, and the queries to them.
namespace tracewell {

constexpr int voltageItems = 8;
constexpr int timeItems = 7;

extern const std::array<std::string_view, voltageItems> VoltMeasName;
extern const std::array<std::string_view, voltageItems> VoltMeasQuery;
extern const std::array<std::string_view, timeItems> FreqMeasName;
extern const std::array<std::string_view, timeItems> FreqMeasQuery;

/// Of the result of a query.
std::string_view measuredUnit(std::string_view query);

/// The scales under which a result was measured; infinite where they are not known.
struct MeasuredUnder {
  double voltsPerDivision = std::numeric_limits<double>::infinity();
  double secondsPerDivision = std::numeric_limits<double>::infinity();
};

/// A reply to that query is a value in its unit, which can have been measured on a screen of these
/// scales, or the word that there is none. What lost a letter or a point is damaged.
bool isResult(std::string_view reply, std::string_view query, const MeasuredUnder& scales);

}  // namespace tracewell
