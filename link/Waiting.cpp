// SPDX-License-Identifier: GPL-3.0-or-later
#include "Waiting.h"

#include "Numbers.h"

namespace tracewell {
namespace {

/// The system's tick count, which wraps after 24 days like every 32-bit count of milliseconds.
std::int32_t tickCount(const Clock& clock) {
  return static_cast<std::int32_t>(clock.milliseconds());
}

std::int32_t elapsedSince(std::int32_t start, std::int32_t now) {
  const std::int64_t elapsed = std::int64_t{now} - start;
  return toInt32(static_cast<double>(elapsed));
}

}  // namespace

std::int16_t ReplyTimeout(const ModuleState& state) {
  constexpr double referenceRate = 19200;
  constexpr std::int16_t referenceTimeOut = 600;
  const std::int16_t factor = toInt16(divide(referenceRate, state.BaudRate));
  return mulInt16(mulInt16(factor, referenceTimeOut), state.ChanCount);
}

std::int16_t ShortReplyTimeout(const ModuleState& state) {
  return toInt16(ReplyTimeout(state) / 4.0);
}

ShortTimeOut::ShortTimeOut(const ModuleState& state, CommandExchange& exchange, std::int16_t factor)
    : state_(state), exchange_(exchange), normal_(ReplyTimeout(state)) {
  exchange_.readTimeOut = mulInt16(ShortReplyTimeout(state), factor);
}

ShortTimeOut::~ShortTimeOut() {
  try {
    // Counted again: a channel may have been switched on or off in the meantime.
    exchange_.readTimeOut = ReplyTimeout(state_);
  } catch (const Error&) {
    exchange_.readTimeOut = normal_;
  }
}

void Delay(frmDSO& main, std::int32_t milliseconds) {
  Clock& clock = main.services().clock;
  StandBy& standBy = main.services().standBy;
  const std::int32_t start = tickCount(clock);
  do {
    if (standBy.isGivenUp()) return;
    {
      const StandBy::Aside aside(standBy);
      clock.pumpEvents();
    }
    main.services().gate.mustBeOpen();
  } while (elapsedSince(start, tickCount(clock)) <= milliseconds);
}

}  // namespace tracewell
