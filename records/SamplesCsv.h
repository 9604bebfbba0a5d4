// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "RecordStore.h"

namespace tracewell {

/// Records as a table of text, for pandas, a spreadsheet, and PulseView or sigrok-cli:
///
///     Time (s),CH1 (V)
///     -0.0025,0.12
///     -0.00249,0.14
///
/// Time counts from the middle of the first record on, as in the graphs; each further record stands
/// as much later as its sweep came, so that between records there is a leap. Records of one sweep
/// share their rows. Others of two channels stand one behind the other, with the other channel's
/// column empty: sigrok, which knows no empty cells, takes a single channel or a single sweep.
class SamplesTable {
 public:
  /// 1, 2 or both.
  explicit SamplesTable(std::vector<int> channels) : channels_(std::move(channels)) {}

  /// Its scales are known, and it is whole.
  static bool canHold(const ChannelRecord& record);

  std::string heading() const;
  /// Of a record of channel 1, of channel 2, or of both where they are of one sweep.
  std::string rows(const ChannelRecord* first, const ChannelRecord* second);

 private:
  std::vector<int> channels_;
  std::optional<std::int64_t> begunAt_;
};

struct SamplesCsvResult {
  std::size_t records = 0;
  /// Not written, since the scales were not known, or the record was cut.
  std::size_t leftOut = 0;
};

struct Stretch {
  bool operator==(const Stretch&) const = default;

  RecordStore::Number first = 0;
  RecordStore::Number end = 0;
  /// 1 or 2; 0 for both.
  int channel = 0;
};

/// Hands the table of a stretch over in pieces, the heading first, a record at a time.
SamplesCsvResult writeSamples(const RecordStore& store, const Stretch& stretch,
                              const std::function<void(std::string_view)>& write);

}  // namespace tracewell
