// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordArrival.h"

namespace tracewell {
namespace {

using Bytes = FetchedSweeps::Bytes;

Bytes compared(const ChannelRecord& held, const std::string& bytes) {
  if (held.bytes == bytes) return Bytes::same;
  return held.before == bytes ? Bytes::asBefore : Bytes::other;
}

}  // namespace

bool takeRecord(ChannelRecord& held, const std::string& bytes, const RecordArrival& arrival,
                KnownInstrument& known) {
  const Bytes which = compared(held, bytes);
  const bool isOfOtherLine = which == Bytes::same && held.line != arrival.line;
  MadeUnder made;
  FetchedSweeps::Proof proof;
  if (arrival.line == known.presentLine()) {
    made = known.madeUnder(arrival.channel, arrival.requested);
    proof = known.fetched(arrival.channel, arrival.requested, which);
    if (proof.isRunning) made = known.madeUnder(arrival.channel, arrival.requested);
    made.isOther = made.isOther || proof.isOther;
  }
  held.fetchedAt = arrival.now;
  held.disprovedStop = proof.isStopDisproved ? made.stop : std::nullopt;
  if (which == Bytes::same && !isOfOtherLine) {
    held.madeUnder.stop = made.stop;
    held.madeUnder.isOther = made.isOther;
    return false;
  }
  // On another line the same bytes may be of the same sweep, too.
  const MadeUnder& then = which == Bytes::asBefore ? held.beforeMadeUnder : held.madeUnder;
  if (isOfOtherLine || proof.mayBeSame) {
    const MadeUnder either = whicheverHolds(made, then);
    made = {either.voltsPerDivision, either.secondsPerDivision, either.mathEntry, made.stop,
            made.isOther};
  }
  held = {bytes,       arrival.line,       made,       arrival.now,
          arrival.now, held.disprovedStop, held.bytes, held.madeUnder};
  return true;
}

}  // namespace tracewell
