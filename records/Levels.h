// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "WaveformRecord.h"

namespace tracewell {

/// The levels of a record, in units. Its two states are found by the histogram method of IEEE Std
/// 181 (algorithms for the state levels of a two-state waveform): the range from the lowest to the
/// highest value is halved, and each half has its state where its samples lie closest.
struct Levels {
  int minimum = 0;
  int maximum = 0;
  bool isClippedBelow = false;
  bool isClippedAbove = false;
  /// None where the samples of that half lie everywhere alike, as those of a triangle do.
  std::optional<double> base;
  std::optional<double> top;

  bool isClipped() const { return isClippedBelow || isClippedAbove; }
  /// Where the edges are looked for, also in records without two states.
  double low() const { return isClippedBelow ? minimum : base.value_or(minimum); }
  double high() const { return isClippedAbove ? maximum : top.value_or(maximum); }
  double middle() const { return (low() + high()) / 2; }
  double height() const { return high() - low(); }
};

/// `noise` is its standard deviation, in units.
Levels levelsOf(const Samples& samples, double noise);

}  // namespace tracewell
