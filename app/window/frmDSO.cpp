// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmDSO.h"

namespace tracewell {

frmDSO::frmDSO(Services& services)
    : Window("frmDSO", "Tracewell", services),
      known(
          [&port = services.port] {
            return InstrumentLine{port.settings.portNumber, port.openings()};
          },
          [&port = services.port](int reply) { return port.sureness(reply); }) {
  lblTest.visible = false;
  cmdNewErrors.visible = false;
  opOff.value.setQuietly(true);
  cbCurChan.text = "1";
  cbCh1.value.setQuietly(1);
  cbMath.text = "Off";
}

std::vector<std::string> frmDSO::voltDetents() {
  return {"2m", "5m", "10m", "20m", "50m", ".1", ".2", ".5", "1V", "2V", "5V"};
}

std::vector<std::string> frmDSO::timeDetents() {
  return {"2n",  "5n",  "10n", "20n", "50n", ".1u", ".2u", ".5u", "1u", "2u",
          "5u",  "10u", "20u", "50u", ".1m", ".2m", ".5m", "1m",  "2m", "5m",
          "10m", "20m", "50m", ".1s", ".2s", ".5s", "1s",  "2s",  "5s"};
}

}  // namespace tracewell
