// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

namespace tracewell {

/// A line to an instrument: the port's number, and how often a line had been opened then. Another
/// instrument may be on it each time.
struct InstrumentLine {
  std::int16_t portNumber = -1;
  int openings = -1;
  bool operator==(const InstrumentLine&) const = default;
};

/// The settings under which a record was made; none where one is not known.
struct MadeUnder {
  /// None for math, too, which has a scale of its own.
  std::optional<double> voltsPerDivision;
  std::optional<double> secondsPerDivision;
  /// The instrument's math in place of the channel: its entry in the math box.
  std::optional<int> mathEntry;
  /// The stop behind which it was fetched: records of one stop are of one sweep.
  std::optional<std::int64_t> stop;
  bool operator==(const MadeUnder&) const = default;
};

/// What is sure whichever of the two holds.
MadeUnder whicheverHolds(const MadeUnder& a, const MadeUnder& b);

}  // namespace tracewell
