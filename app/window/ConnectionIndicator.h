// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

/// Lamp, connection text, start button and run/stop button: what the window says about the
/// acquisition.
namespace tracewell {

/// Blue lamp and message 1: nothing has been asked of the instrument yet.
void showWaitingForConnect(frmDSO& main);
/// Green lamp, message 7; the button reads message 2.
void showRunning(frmDSO& main);
/// Red lamp, message 8; the button reads message 3.
void showStopped(frmDSO& main);
/// Message 9; lamp and button stay.
void showConnectFailed(frmDSO& main);

/// Message 2 or 3 on the start button, message 5 or 6 on the run/stop button.
void showOnStart(frmDSO& main, std::size_t message);
void showOnRunStop(frmDSO& main, std::size_t message);

/// The same messages in the words that are in force now.
void showMessagesAgain(frmDSO& main);

}  // namespace tracewell
