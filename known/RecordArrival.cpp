// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordArrival.h"

#include <utility>

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
  std::optional<std::int64_t> disprovedStop;
  if (made.stop && made.stop == held.madeUnder.stop) {
    disprovedStop = std::exchange(made.stop, std::nullopt);
    known.sweptTwiceBehindStop();
  }
  // On another line the same bytes may be of the same sweep, too.
  if (held.bytes == bytes) {
    made = whicheverHolds(made, held.madeUnder);
  } else if (held.before == bytes) {
    made = whicheverHolds(made, held.beforeMadeUnder);
    known.cameBack(arrival.channel);
  } else if (known.swept(arrival.channel, arrival.requested)) {
    made = known.madeUnder(arrival.channel, arrival.requested);
  }
  held = {bytes,       arrival.line,  made,       arrival.now,
          arrival.now, disprovedStop, held.bytes, held.madeUnder};
  return true;
}

}  // namespace tracewell
