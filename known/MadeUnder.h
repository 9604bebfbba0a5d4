// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

namespace tracewell {

/// A line to an instrument: the port's number, and how often a line had been opened or closed.
/// Another instrument may be on it each time.
struct InstrumentLine {
  std::int16_t portNumber = -1;
  int openings = -1;
  bool operator==(const InstrumentLine&) const = default;
};

/// The settings under which a record was made; empty where not known.
struct MadeUnder {
  /// Empty for math too, which has its own scale.
  std::optional<double> voltsPerDivision;
  std::optional<double> secondsPerDivision;
  /// The instrument's math in place of the channel: its entry in the math box.
  std::optional<int> mathEntry;
  /// The stop behind which it was fetched: its moment, which no other stop has, on any line.
  std::optional<std::int64_t> stop;
  /// It may be another sweep than what was fetched behind that stop before.
  bool isOther = false;
  bool operator==(const MadeUnder&) const = default;
};

/// What is certain whichever of the two holds.
MadeUnder whicheverHolds(const MadeUnder& a, const MadeUnder& b);

/// Both were fetched behind one stop, and nothing else was.
inline bool areOfOneSweep(const MadeUnder& a, const MadeUnder& b) {
  return a.stop && a.stop == b.stop && !a.isOther && !b.isOther;
}

}  // namespace tracewell
