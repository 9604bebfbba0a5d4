// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "MadeUnder.h"

namespace tracewell {

/// A waveform record of a channel, with what is known of how it was made.
struct ChannelRecord {
  /// As it came, header included; empty before the first.
  std::string bytes;
  /// On which line it came.
  InstrumentLine line;
  MadeUnder madeUnder;
  /// Milliseconds of Clock: when its sweep came first, and when it was fetched last. The same bytes
  /// again are the same sweep.
  std::int64_t sweepAt = 0;
  std::int64_t fetchedAt = 0;

  bool isSameSweep(const std::string& others, const InstrumentLine& othersLine) const {
    return bytes == others && line == othersLine;
  }
};

}  // namespace tracewell
