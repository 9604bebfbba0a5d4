// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "WaveformRecord.h"

namespace tracewell {

struct Sine {
  double offset = 0;
  double amplitude = 0;
  /// Samples, and its standard error.
  double period = 0;
  double error = 0;
  /// When it rises through its offset; samples.
  double rising = 0;
};

/// The sine that fits the record best, if the record is a sine of about that period: none where a
/// harmonic has more than a few percent of it. By least squares with the period unknown (the
/// four-parameter fit of IEEE Std 1057); samples at an edge of the converter do not count.
/// `noise` is its standard deviation, in units.
std::optional<Sine> sineOf(const Samples& samples, double period, double noise);

}  // namespace tracewell
