// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "frmDSO.h"

namespace tracewell {

/// Milliseconds that a reply may take at the baud rate in use: 600 at 19200 baud and one channel.
/// Raises "Division by zero" or "Overflow" when the state makes no sense.
std::int16_t ReplyTimeout(const SharedState& state);

/// A quarter of ReplyTimeout; dialogs that send many lines wait twice this for each reply.
std::int16_t ShortReplyTimeout(const SharedState& state);

/// Lets at least milliseconds + 1 milliseconds pass while events run, so any handler may run
/// inside. Throws ProgramEnded if the main window has been closed meanwhile.
void Delay(frmDSO& main, std::int32_t milliseconds);

}  // namespace tracewell
