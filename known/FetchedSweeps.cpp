// SPDX-License-Identifier: GPL-3.0-or-later
#include "FetchedSweeps.h"

#include <algorithm>
#include <utility>

namespace tracewell {

FetchedSweeps::Proof FetchedSweeps::take(const Fetch& fetch) {
  Proof proof;
  const Moment sweptSince = fetch.mayHaveWaited ? lastOn(fetch.line) : fetch.requested;
  // What came back before a stop says nothing of it.
  if (!isLastBehindChange(fetch)) returns_ = 0;
  if (fetch.bytes == Bytes::asBefore) {
    std::swap(last_, before_);
    // A damaged record does not come twice.
    proof.isBack = ++returns_ == 1;
    proof.mayBeSame = proof.isBack || !fetch.isFreeRunning;
    if (!proof.isBack) last_.otherBehind = before_.otherBehind = fetch.runningSince;
    if (!proof.mayBeSame) last_.since = std::max({last_.since, before_.since, sweptSince});
  } else if (fetch.bytes == Bytes::other) {
    proof = takeOther(fetch, sweptSince);
    returns_ = 0;
  }
  proof.isOther = fetch.isStopped && last_.otherBehind == fetch.runningSince;
  line_ = fetch.line;
  requested_ = fetch.requested;
  proof.sweptSince = sweptSince;
  return proof;
}

/// The newest record was requested since the instrument runs, or is stopped, as it does now.
bool FetchedSweeps::isLastBehindChange(const Fetch& fetch) const {
  return line_ == fetch.line && requested_ >= fetch.runningSince;
}

/// A stopped instrument keeps one sweep. That may never have been fetched, and it may sweep once
/// more as it is stopped; one record more may be damaged.
FetchedSweeps::Proof FetchedSweeps::takeOther(const Fetch& fetch, Moment sweptSince) {
  constexpr int runningInARow = 4;
  const Moment stableSince = std::max(fetch.shownSince, fetch.runningSince);
  const bool isOther = isLastBehindChange(fetch) || last_.otherBehind == fetch.runningSince;
  const bool isInARow = lastOn(fetch.line) >= stableSince;
  before_ = last_;
  last_ = {fetch.line, fetch.requested, isInARow ? before_.inARow + 1 : 1, since(fetch.line),
           isOther ? fetch.runningSince : 0};
  Proof proved;
  proved.mayBeSame =
      fetch.mayHaveWaited && !fetch.isStopped && before_.requested < fetch.shownSince;
  if (fetch.requested < fetch.runningSince) return proved;
  const bool isDoubted = fetch.isStopped || fetch.mayBeStopped;
  proved.isRunning = isDoubted && last_.inARow >= runningInARow;
  const bool isSwept = (proved.isRunning || !isDoubted) && !proved.mayBeSame;
  if (isSwept) last_.since = std::max(last_.since, sweptSince);
  return proved;
}

}  // namespace tracewell
