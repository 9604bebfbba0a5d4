// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

/// Lamp, connection text and start button: what the window says about the acquisition.
namespace tracewell {

/// Blue lamp and message 1: nothing has been asked of the instrument yet.
void showWaitingForConnect(frmDSO& main);
/// Green lamp, message 7; the button reads message 2.
void showRunning(frmDSO& main);
/// Red lamp, message 8; the button reads message 3.
void showStopped(frmDSO& main);
/// Message 9; lamp and button stay.
void showConnectFailed(frmDSO& main);

}  // namespace tracewell
