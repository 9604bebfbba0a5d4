// SPDX-License-Identifier: GPL-3.0-or-later
#include "PortNotice.h"

namespace tracewell {
void showPort(frmDSO& main, std::int16_t portNumber) {
  const std::string device = main.services().ports.deviceOf(portNumber);
  const Words& words = main.services().words;
  const std::string number = std::to_string(portNumber);
  main.lblPort.caption =
      device.empty() ? words.say("port %1", {number}) : words.say("port %1 - %2", {number, device});
}

void sayPortAgain(frmDSO& main) {
  showPort(main, main.services().port.settings.portNumber);
}

}  // namespace tracewell
