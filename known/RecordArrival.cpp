// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordArrival.h"

namespace tracewell {

bool takeRecord(ChannelRecord& held, const std::string& bytes, const RecordArrival& arrival,
                KnownInstrument& known) {
  MadeUnder made;
  if (arrival.line == known.presentLine())
    made = known.madeUnder(arrival.channel, arrival.requested);
  held.fetchedAt = arrival.now;
  if (held.isSameSweep(bytes, arrival.line)) {
    held.madeUnder.stop = made.stop;
    return false;
  }
  // On another line the same bytes may be of the same sweep, too.
  if (held.bytes == bytes)
    made = whicheverHolds(made, held.madeUnder);
  else if (held.before == bytes)
    known.cameBack(arrival.channel);
  else
    known.swept(arrival.channel, arrival.requested);
  // The record has disproved the stop.
  if (made.stop && !known.isStopped()) made = known.madeUnder(arrival.channel, arrival.requested);
  held = {bytes, arrival.line, made, arrival.now, arrival.now, std::move(held.bytes)};
  return true;
}

}  // namespace tracewell
