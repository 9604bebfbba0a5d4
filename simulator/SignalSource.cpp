// SPDX-License-Identifier: GPL-3.0-or-later
#include "SignalSource.h"

#include <cmath>
#include <numbers>

namespace tracewell {

double SineSource::volts(double seconds) const {
  return offset_ + amplitude_ * std::sin(2 * std::numbers::pi * hertz_ * seconds);
}

double RingingSquareSource::volts(double seconds) const {
  constexpr double overshoot = 0.35;
  constexpr double ringsPerHalf = 14;
  constexpr double decay = 12;
  const double phase = seconds * hertz_ - std::floor(seconds * hertz_);
  const double sinceEdge = phase < 0.5 ? 2 * phase : 2 * phase - 1;
  const double level = phase < 0.5 ? 1 : -1;
  const double ringing = overshoot * std::exp(-decay * sinceEdge) *
                         std::cos(2 * std::numbers::pi * ringsPerHalf * sinceEdge);
  return offset_ + amplitude_ * level * (1 - ringing);
}

}  // namespace tracewell
