// SPDX-License-Identifier: GPL-3.0-or-later
#include "MeasurementItems.h"

namespace tracewell {

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

}  // namespace tracewell
