// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordArrival.h"

#include <utility>

namespace tracewell {
namespace {

using Bytes = FetchedSweeps::Bytes;

Bytes compared(const ChannelRecord& held, const std::string& bytes) {
  if (held.bytes == bytes) return Bytes::same;
  return held.before.bytes == bytes ? Bytes::asBefore : Bytes::other;
}

}  // namespace

bool takeRecord(ChannelRecord& held, const std::string& bytes, const RecordArrival& arrival,
                KnownInstrument& known) {
  const Bytes which = compared(held, bytes);
  const bool isOfOtherLine = which == Bytes::same && held.line != arrival.line;
  const KnownInstrument::Fetched fetched =
      arrival.line == known.presentLine() ? known.fetched(arrival.channel, arrival.requested, which)
                                          : KnownInstrument::Fetched();
  held.fetchedAt = arrival.now;
  if (which == Bytes::same && !isOfOtherLine) {
    held.madeUnder.stop = fetched.made.stop;
    held.madeUnder.isOther = fetched.made.isOther;
    return false;
  }
  MadeUnder made = fetched.made;
  // On another line the same bytes may be of the same sweep, too.
  if (isOfOtherLine || fetched.mayBeSame) {
    const bool isBefore = which == Bytes::asBefore;
    made = whicheverHolds(made, isBefore ? held.before.madeUnder : held.madeUnder);
    made.stop = fetched.made.stop;
    made.isOther = fetched.made.isOther;
  }
  const std::int64_t sweepAt = fetched.isBack ? held.before.sweepAt : arrival.now;
  held = {bytes,   arrival.line, made,
          sweepAt, arrival.now,  {std::move(held.bytes), held.madeUnder, held.sweepAt}};
  return true;
}

}  // namespace tracewell
