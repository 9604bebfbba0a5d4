// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "MadeUnder.h"

namespace tracewell {

/// A waveform record of a channel, with what is known of how it was made.
struct ChannelRecord {
  /// As received, header included; empty before the first.
  std::string bytes;
  /// The line that it arrived on.
  InstrumentLine line;
  MadeUnder madeUnder;
  /// Milliseconds of Clock: when its sweep first arrived, and when it was last fetched. The same
  /// bytes again are the same sweep.
  std::int64_t sweepAt = 0;
  std::int64_t fetchedAt = 0;
  /// What was received before these bytes.
  struct Before {
    std::string bytes;
    InstrumentLine line;
    MadeUnder madeUnder;
    std::int64_t sweepAt = 0;
  };
  Before before = {};

  bool isSameSweep(const std::string& others, const InstrumentLine& othersLine) const {
    return bytes == others && line == othersLine;
  }
};

}  // namespace tracewell
