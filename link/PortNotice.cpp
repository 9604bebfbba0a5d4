// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortNotice.h"

namespace tracewell {

void showPort(frmDSO& main, std::int16_t portNumber) {
  const std::string device = main.services().ports.deviceOf(portNumber);
  main.lblPort.caption =
      "port " + std::to_string(portNumber) + (device.empty() ? "" : " - " + device);
}

void markTrace(frmDSO& main) {
  const bool isSimulated = main.services().port.openPort() == PortList::simulatedPort;
  main.graphDSO.note = isSimulated ? "SIMULATED" : "";
}

}  // namespace tracewell
