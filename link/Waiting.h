// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "CommandExchange.h"

namespace tracewell {

/// Milliseconds that a reply may take at the baud rate in use: 600 at 19200 baud and one channel.
/// Raises "Division by zero" or "Overflow" when the state makes no sense.
std::int16_t ReplyTimeout(const ModuleState& state);

/// A quarter of ReplyTimeout; dialogs that send many lines wait twice this for each reply.
std::int16_t ShortReplyTimeout(const ModuleState& state);

/// While it lives, replies are given `factor` times the short time-out; then the normal one again.
/// Making one raises what ReplyTimeout does.
class ShortTimeOut {
 public:
  ShortTimeOut(const ModuleState& state, CommandExchange& exchange, std::int16_t factor = 2);
  ~ShortTimeOut();
  ShortTimeOut(const ShortTimeOut&) = delete;

 private:
  const ModuleState& state_;
  CommandExchange& exchange_;
  int normal_;
};

/// Lets at least milliseconds + 1 milliseconds pass while events run, so any handler may run
/// inside; shorter when the user gives up the burst that it belongs to. Raises "Overflow" when the
/// 32-bit tick count wraps meanwhile, and throws ProgramEnded if the main window has been closed
/// meanwhile.
void Delay(frmDSO& main, std::int32_t milliseconds);

}  // namespace tracewell
