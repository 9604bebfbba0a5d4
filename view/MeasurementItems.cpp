// SPDX-License-Identifier: GPL-3.0-or-later
#include "MeasurementItems.h"

#include <cmath>
#include <optional>

#include "Numbers.h"
#include "TrueNumbers.h"

namespace tracewell {
namespace {

/// Divisions: twice the screen. A channel's zero may lie beyond its edge.
constexpr double farthest = 20;

std::optional<double> valueOf(std::string_view reply, std::string_view unit) {
  if (unit == "%" && reply.ends_with('%')) return finiteNumber(reply.substr(0, reply.size() - 1));
  if (const auto value = trueNumber(reply, unit); value || unit != "s") return value;
  const std::optional<double> picoseconds = trueNumber(reply, "ps");
  return picoseconds ? std::optional(scaled(*picoseconds, -12)) : std::nullopt;
}

bool isOnScreen(double value, std::string_view unit, const MeasuredUnder& scales) {
  if (unit == "V") return std::fabs(value) <= farthest * scales.voltsPerDivision;
  if (unit == "s") return value >= 0 && value <= farthest * scales.secondsPerDivision;
  return value >= 0 && (unit != "%" || value <= 100);
}

}  // namespace

const std::array<std::string_view, voltageItems> VoltMeasName = {"Vpp", "Vamp", "Vavg", "Vrms",
                                                                 "Vhi", "Vlo",  "Vmax", "Vmin"};
const std::array<std::string_view, voltageItems> VoltMeasQuery = {
    ":MEAS:VPP?", ":MEAS:VAMP?", ":MEAS:VAV?",  ":MEAS:VRMS?",
    ":MEAS:VHI?", ":MEAS:VLO?",  ":MEAS:VMAX?", ":MEAS:VMIN?"};
const std::array<std::string_view, timeItems> FreqMeasName = {
    "Freq", "Period", "Risetime", "Falltime", "+Width", "-Width", "Duty Cycle"};
const std::array<std::string_view, timeItems> FreqMeasQuery = {
    ":MEAS:FREQ?", ":MEAS:PER?",  ":MEAS:RIS?", ":MEAS:FALL?",
    ":MEAS:PWID?", ":MEAS:NWID?", ":MEAS:PDUT?"};

std::string_view measuredUnit(std::string_view query) {
  if (query.starts_with(":MEAS:V")) return "V";
  if (query == ":MEAS:FREQ?") return "Hz";
  return query == ":MEAS:PDUT?" ? "%" : "s";
}

bool isResult(std::string_view reply, std::string_view query, const MeasuredUnder& scales) {
  if (reply.starts_with('N')) return true;
  const std::string_view unit = measuredUnit(query);
  const std::optional<double> value = valueOf(reply, unit);
  return value && isOnScreen(*value, unit, scales);
}

}  // namespace tracewell
