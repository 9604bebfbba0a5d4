// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "RecordStore.h"

namespace tracewell {

/// A stretch of records as text, for pandas, a spreadsheet, and PulseView or sigrok-cli:
///
///     Time (s),CH1 (V)
///     0,0.12
///     1e-05,0.14
///
/// Time counts from the first sample on; each record begins when its sweep came, so that between
/// records there is a leap. Records of both channels that are of one sweep share their rows. Other
/// records of both channels stand one behind the other, with the other channel's column empty:
/// sigrok, which knows no empty cells, takes a single channel or a single sweep.
struct SamplesCsvResult {
  std::size_t records = 0;
  /// Not written, since the scales were not known, or the record was cut.
  std::size_t leftOut = 0;
};

struct Stretch {
  RecordStore::Number first = 0;
  RecordStore::Number end = 0;
  /// 1 or 2; 0 for both.
  int channel = 0;
};

/// Hands the text over in pieces, the heading first, a record at a time.
SamplesCsvResult writeSamples(const RecordStore& store, const Stretch& stretch,
                              const std::function<void(std::string_view)>& write);

/// The shortest text of a number with so many digits that count, as 1.5e-06.
std::string shortNumberText(double value, int digits);

}  // namespace tracewell
