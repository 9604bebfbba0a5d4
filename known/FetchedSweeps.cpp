// SPDX-License-Identifier: GPL-3.0-or-later
#include "FetchedSweeps.h"

#include <algorithm>
#include <utility>

namespace tracewell {

FetchedSweeps::Proof FetchedSweeps::take(const Fetch& fetch) {
  Proof proof;
  if (fetch.bytes == Bytes::asBefore) {
    std::swap(last_, before_);
    proof.mayBeSame = !fetch.isFreeRunning;
    // A damaged record does not come twice.
    proof.isStopDisproved = ++returns_ > 1 && fetch.isStopped;
    if (proof.isStopDisproved) last_.otherBehind = before_.otherBehind = fetch.runningSince;
  } else if (fetch.bytes == Bytes::other) {
    proof = takeOther(fetch);
    returns_ = 0;
  }
  proof.isOther = fetch.isStopped && last_.otherBehind == fetch.runningSince;
  // Nor does it here: the one before may have been damaged, or there were two sweeps.
  if (fetch.bytes == Bytes::same) proof.isStopDisproved = proof.isOther;
  line_ = fetch.line;
  requested_ = fetch.requested;
  return proof;
}

/// A stopped instrument keeps one sweep. That may never have been fetched, and it may sweep once
/// more as it is stopped; one record more may be damaged.
FetchedSweeps::Proof FetchedSweeps::takeOther(const Fetch& fetch) {
  constexpr int proof = 4;
  const Moment stableSince = std::max(fetch.shownSince, fetch.runningSince);
  const Moment certain = fetch.mayHaveWaited ? lastOn(fetch.line) : fetch.requested;
  // What is shown differently need not be another sweep than the one before.
  const bool isChanged = line_ == fetch.line && requested_ >= stableSince;
  const bool wasOther = last_.otherBehind == fetch.runningSince;
  const bool isInARow = lastOn(fetch.line) >= stableSince;
  before_ = last_;
  last_ = {fetch.line, fetch.requested, isInARow ? before_.inARow + 1 : 1, before_.since,
           fetch.isStopped && (isChanged || wasOther) ? fetch.runningSince : 0};
  Proof proved;
  proved.mayBeSame =
      fetch.mayHaveWaited && !fetch.isStopped && before_.requested < fetch.shownSince;
  if (fetch.requested < fetch.runningSince) return proved;
  proved.isStopDisproved = fetch.isStopped && isChanged && wasOther;
  const bool isDoubted = fetch.isStopped || fetch.mayBeStopped;
  proved.isRunning = isDoubted && last_.inARow >= proof;
  const bool isSwept = (proved.isRunning || !isDoubted) && !proved.mayBeSame;
  if (isSwept) last_.since = std::max(last_.since, certain);
  return proved;
}

}  // namespace tracewell
