// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
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

}  // namespace tracewell
