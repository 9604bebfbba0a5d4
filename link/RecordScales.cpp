// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordScales.h"

#include <utility>

#include "KnownScales.h"
#include "StaleScales.h"

namespace tracewell {
namespace {

SharedState::RecordScale presentScale(const frmDSO& main, std::int16_t channel) {
  if (areScalesStale(main)) return {};
  const bool isMath = channel == mathChannel(main);
  return {isMath ? std::nullopt : voltsPerDivision(main, channel), secondsPerDivision(main)};
}

std::size_t indexOf(std::int16_t channel) {
  return channel == 1 ? 0 : 1;
}

}  // namespace

bool hasOtherScales(const frmDSO& main, std::int16_t channel) {
  const SharedState::RecordScale& scale = main.RecordScales[indexOf(channel)];
  return scale != SharedState::RecordScale() && scale != presentScale(main, channel);
}

/// Of the requests that wait the port keeps the first.
void noteRequestScales(frmDSO& main, std::int16_t channel) {
  auto& [onItsWay, waiting] = main.RequestScales[indexOf(channel)];
  const SharedState::RecordScale present = presentScale(main, channel);
  if (!onItsWay)
    onItsWay = present;
  else if (!waiting)
    waiting = present;
}

void noteRecordScales(frmDSO& main, std::int16_t channel, bool isSameSweep) {
  const std::size_t index = indexOf(channel);
  auto& [onItsWay, waiting] = main.RequestScales[index];
  const auto requested = std::exchange(onItsWay, std::exchange(waiting, std::nullopt));
  if (isSameSweep) return;
  const bool hasStayed = requested && *requested == presentScale(main, channel);
  main.RecordScales[index] = hasStayed ? *requested : SharedState::RecordScale();
}

}  // namespace tracewell
