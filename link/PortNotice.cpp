// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortNotice.h"

namespace tracewell {
namespace {

constexpr std::int16_t simulatedPort = 0;

}  // namespace

void showPort(frmDSO& main, std::int16_t portNumber) {
  main.lblPort.caption =
      "port " + std::to_string(portNumber) + " - " + main.services().ports.deviceOf(portNumber);
  main.graphDSO.note = portNumber == simulatedPort ? "SIMULATED" : "";
}

}  // namespace tracewell
