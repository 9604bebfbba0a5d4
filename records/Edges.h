// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "Levels.h"

namespace tracewell {

/// A way from one state to the other, in samples from the first one on; between two samples the
/// signal is taken as straight.
struct Edge {
  bool isRising = false;
  /// When it is half-way, and the standard error of that: noise moves it, and what is faster than
  /// the samples may be anywhere between two of them.
  double middle = 0;
  double error = 0;
  /// How far it would move with the levels, if these are off by their standard error.
  double ofLevels = 0;
  /// From 10 % to 90 % of the way; none where the record does not hold all of that.
  std::optional<double> duration;
};

/// The edges in their order, rising and falling in turn. What does not go from a quarter of the way
/// between the states to three quarters is none, so noise makes no edges.
/// `noise` is its standard deviation, in units.
std::vector<Edge> edgesOf(const Samples& samples, const Levels& levels, double noise);

/// Edges that come again after the same time.
struct Rhythm {
  /// Samples, and its standard error.
  double period = 0;
  double error = 0;
  /// An edge of each kind; none where the record has none.
  std::optional<double> rising;
  std::optional<double> falling;
  /// Standard error of the time between them.
  double shiftError = 0;
};

/// How a series of edges repeats, by least squares over all of them.
struct RhythmResult {
  std::optional<Rhythm> rhythm;
  /// There is no rhythm although an edge of some kind comes again.
  bool isIrregular = false;
};
RhythmResult rhythmOf(const std::vector<Edge>& edges);

}  // namespace tracewell
