// SPDX-License-Identifier: GPL-3.0-or-later
#include "SimulatedChannel.h"

#include <algorithm>
#include <cmath>

#include "Error.h"

namespace tracewell {
namespace {

/// Bytes are announced in handfuls, so that a record takes few wake-ups. Milliseconds.
constexpr int gathering = 25;

Error pulledError() {
  return {deviceError, "RS232", "The cable of the simulated instrument has been pulled"};
}

}  // namespace

SimulatedChannel::SimulatedChannel(Instrument& instrument, Clock& clock,
                                   const LineSettings& settings)
    : instrument_(instrument), clock_(clock) {
  instrument.plugIn();
  instrument.setLineRate({.baudRate = std::max(settings.baudRate, 1),
                          .dataBits = settings.dataBits,
                          .hasParity = settings.parity != 0,
                          .stopBits = settings.stopBits == 0 ? 1 : 2});
}

void SimulatedChannel::write(std::string_view bytes) {
  if (instrument_.hasHungUp()) throw pulledError();
  instrument_.receive(bytes, now());
  announceNextBytes();
}

std::string SimulatedChannel::read(int timeOut) {
  const double deadline = now() + timeOut;
  while (true) {
    std::string bytes = instrument_.transmit(now());
    if (!bytes.empty()) return bytes;
    if (instrument_.hasHungUp()) throw pulledError();
    if (now() >= deadline) return {};
    const double wakeUp = std::min(deadline, instrument_.nextByteAt().value_or(deadline));
    clock_.sleep(std::max(1, static_cast<int>(std::ceil(wakeUp - now()))));
  }
}

void SimulatedChannel::announceNextBytes() {
  const std::optional<double> next = instrument_.nextByteAt();
  if (isAnnounced_ || !next) return;
  isAnnounced_ = true;
  const int delay = gathering + std::max(0, static_cast<int>(std::ceil(*next - now())));
  clock_.callAfter(delay, [this, alive = std::weak_ptr(alive_)] {
    if (alive.expired()) return;
    isAnnounced_ = false;
    const std::function<void()> tell = readable;
    if (tell) tell();
    if (!alive.expired()) announceNextBytes();
  });
}

}  // namespace tracewell
