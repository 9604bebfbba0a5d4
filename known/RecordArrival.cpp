// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordArrival.h"

#include <utility>

namespace tracewell {
namespace {

using Bytes = FetchedSweeps::Bytes;

/// A record of this channel that has the same bytes, of two that are held.
struct Earlier {
  const InstrumentLine& line;
  const MadeUnder& madeUnder;
  std::int64_t sweepAt;
};

}  // namespace

bool takeRecord(ChannelRecord& held, const std::string& bytes, const RecordArrival& arrival,
                KnownInstrument& known) {
  const ChannelRecord::Before& before = held.before;
  const bool isSame = held.bytes == bytes;
  const bool isBefore = !isSame && before.bytes == bytes;
  const Earlier earlier = isBefore ? Earlier{before.line, before.madeUnder, before.sweepAt}
                                   : Earlier{held.line, held.madeUnder, held.sweepAt};
  const bool isOfOtherLine = (isSame || isBefore) && earlier.line != arrival.line;
  const Bytes which = isSame                       ? Bytes::same
                      : isBefore && !isOfOtherLine ? Bytes::asBefore
                                                   : Bytes::other;
  const KnownInstrument::Fetched fetched =
      arrival.line == known.presentLine() ? known.fetched(arrival.channel, arrival.requested, which)
                                          : KnownInstrument::Fetched();
  held.fetchedAt = arrival.now;
  if (isSame && !isOfOtherLine) {
    held.madeUnder.stop = fetched.made.stop;
    held.madeUnder.isOther = fetched.made.isOther;
    return false;
  }
  MadeUnder made = fetched.made;
  // On another line the same bytes may be of the same sweep, too.
  if (isOfOtherLine || fetched.mayBeSame) {
    made = whicheverHolds(made, earlier.madeUnder);
    made.stop = fetched.made.stop;
    made.isOther = fetched.made.isOther;
  }
  const std::int64_t sweepAt = isOfOtherLine || fetched.isBack ? earlier.sweepAt : arrival.now;
  held = {bytes,   arrival.line, made,
          sweepAt, arrival.now,  {std::move(held.bytes), held.line, held.madeUnder, held.sweepAt}};
  return true;
}

}  // namespace tracewell
