// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordScales.h"

#include "KnownScales.h"

namespace tracewell {
namespace {

SharedState::RecordScale presentScale(const frmDSO& main, std::int16_t channel) {
  const bool isMath = channel == mathChannel(main);
  return {isMath ? std::nullopt : voltsPerDivision(main, channel), secondsPerDivision(main)};
}

std::size_t indexOf(std::int16_t channel) {
  return channel == 1 ? 0 : 1;
}

}  // namespace

/// Which of two requests a record answers does not show.
void noteRequestScales(frmDSO& main, std::int16_t channel) {
  auto& requested = main.RequestScales[indexOf(channel)];
  const SharedState::RecordScale present = presentScale(main, channel);
  requested = !requested || *requested == present ? present : SharedState::RecordScale();
}

void noteRecordScales(frmDSO& main, std::int16_t channel) {
  const std::size_t index = indexOf(channel);
  const auto requested = std::exchange(main.RequestScales[index], std::nullopt);
  const bool hasStayed = requested && *requested == presentScale(main, channel);
  main.RecordScales[index] = hasStayed ? *requested : SharedState::RecordScale();
}

}  // namespace tracewell
