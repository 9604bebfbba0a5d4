// SPDX-License-Identifier: GPL-3.0-or-later
#include "ConnectionIndicator.h"

namespace tracewell {
namespace {

constexpr Colour blue{0, 0, 255};
constexpr Colour green{0, 255, 0};
constexpr Colour red{255, 0, 0};

}  // namespace

void showWaitingForConnect(frmDSO& main) {
  main.lblConnect.caption = main.Msg[1];
  main.spConnect.fillColour = blue;
}

void showRunning(frmDSO& main) {
  main.spConnect.fillColour = green;
  main.lblConnect.caption = main.Msg[7];
  main.cmdStart.caption = main.Msg[2];
}

void showStopped(frmDSO& main) {
  main.spConnect.fillColour = red;
  main.lblConnect.caption = main.Msg[8];
  main.cmdStart.caption = main.Msg[3];
}

void showConnectFailed(frmDSO& main) {
  main.lblConnect.caption = main.Msg[9];
}

}  // namespace tracewell
