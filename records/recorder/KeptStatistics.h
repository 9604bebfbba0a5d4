// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

#include "OwnMeasurements.h"
#include "RecordStore.h"
#include "SamplesCsv.h"

namespace tracewell {

/// Statistics over many records. Each record is measured once, a few at a time, so that nobody
/// waits; what has been measured takes 0.6 MB.
class KeptStatistics {
 public:
  explicit KeptStatistics(const RecordStore& store) : store_(store) {}

  /// Measures some of the kept records that have not been. False when all have been.
  bool work(int most);

  struct Result {
    Statistics values;
    /// Records that are in the stretch, and how many of them have been measured.
    std::size_t records = 0;
    std::size_t measured = 0;
    /// Of those records; 0 where there are none.
    RecordStore::Number first = 0;
    RecordStore::Number last = 0;
  };
  /// Of one channel, stretch.channel. Phase and delay, of two records, are not counted.
  Result over(const Stretch& stretch, Quantity quantity) const;

 private:
  static constexpr std::size_t ofOneRecord = static_cast<std::size_t>(Quantity::phase);
  struct Measured {
    int channel = 0;
    /// Not a number where there is no value. No measurement has more digits.
    std::array<float, ofOneRecord> values{};
  };

  const RecordStore& store_;
  /// In the order of the store's ring.
  std::vector<Measured> measured_;
  RecordStore::Number next_ = 0;
};

}  // namespace tracewell
