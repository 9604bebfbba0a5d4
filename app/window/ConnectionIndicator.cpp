// SPDX-License-Identifier: GPL-3.0-or-later
#include "ConnectionIndicator.h"

namespace tracewell {
namespace {

constexpr Colour blue{0, 0, 255};
constexpr Colour green{0, 255, 0};
constexpr Colour red{255, 0, 0};

void showConnection(frmDSO& main, std::size_t message) {
  main.shownMessages.lblConnect = message;
  main.lblConnect.caption = main.state.Msg[message];
}

}  // namespace

void showWaitingForConnect(frmDSO& main) {
  showConnection(main, 1);
  main.spConnect.fillColour = blue;
}

void showRunning(frmDSO& main) {
  main.spConnect.fillColour = green;
  showConnection(main, 7);
  showOnStart(main, 2);
  main.status.withdraw(StatusLine::stoppedByError);
}

void showStopped(frmDSO& main) {
  main.spConnect.fillColour = red;
  showConnection(main, 8);
  showOnStart(main, 3);
}

void showConnectFailed(frmDSO& main) {
  showConnection(main, 9);
}

void showOnStart(frmDSO& main, std::size_t message) {
  main.shownMessages.cmdStart = message;
  main.cmdStart.caption = main.state.Msg[message];
}

void showOnRunStop(frmDSO& main, std::size_t message) {
  main.shownMessages.cmdRunStop = message;
  main.cmdRunStop.caption = main.state.Msg[message];
}

void showMessagesAgain(frmDSO& main) {
  const frmDSO::ShownMessages& shown = main.shownMessages;
  if (shown.lblConnect != 0) showConnection(main, shown.lblConnect);
  if (shown.cmdStart != 0) showOnStart(main, shown.cmdStart);
  if (shown.cmdRunStop != 0) showOnRunStop(main, shown.cmdRunStop);
}

}  // namespace tracewell
