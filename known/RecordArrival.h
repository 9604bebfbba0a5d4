// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "ChannelRecord.h"
#include "KnownInstrument.h"

namespace tracewell {

/// How a record has come.
struct RecordArrival {
  int channel = 0;
  /// The line that has brought it.
  InstrumentLine line;
  /// The model's moment of its request.
  KnownInstrument::Moment requested = 0;
  /// Milliseconds of Clock.
  std::int64_t now = 0;
};

/// Takes a record of a channel in the place of the one that is held, and tells `known` of it. False
/// if it is the same one again: then no more than that it is there still, and behind which stop.
bool takeRecord(ChannelRecord& held, const std::string& bytes, const RecordArrival& arrival,
                KnownInstrument& known);

}  // namespace tracewell
