// SPDX-License-Identifier: GPL-3.0-or-later
#include "SureReplies.h"

#include <algorithm>
#include <iterator>

namespace tracewell {

Sureness SureReplies::sureness(int reply, std::int64_t now) const {
  const auto next = doubted_.upper_bound(reply);
  if (next != doubted_.begin() && reply <= std::prev(next)->second) return Sureness::never;
  return sureAt(now) && reply > missing_->behind ? Sureness::notYet : Sureness::sure;
}

std::optional<std::int64_t> SureReplies::sureAt(std::int64_t now) const {
  return isDue(now) && last_ > missing_->behind ? std::optional(dueUntil()) : std::nullopt;
}

std::int64_t SureReplies::dueUntil() const {
  return std::max(missing_->lastAt, lastAt_.value_or(0)) + longestLate;
}

void SureReplies::beginAnew() {
  missing_.reset();
  lastAt_.reset();
}

void SureReplies::asked() {
  if (missing_) ++missing_->outstanding;
}

void SureReplies::missed(std::int64_t now) {
  if (!isDue(now)) missing_ = Missing{1, last_, now};
  missing_->lastAt = now;
}

void SureReplies::mayComeUnasked(std::int64_t now) {
  asked();
  missed(now);
}

void SureReplies::returned(std::int64_t askedAt, std::int64_t now) {
  if (!isDue(askedAt)) missing_.reset();
  if (missing_) {
    --missing_->outstanding;
    // Those before have become sure meanwhile.
    if (!isDue(now)) missing_->behind = last_;
  }
  ++last_;
  if (!lastAt_ || askedAt >= *lastAt_ + longestThought_) seriesFrom_ = last_;
  lastAt_ = now;
}

/// Once all have come, none can be taken for another.
void SureReplies::heardOutstanding() {
  if (missing_ && --missing_->outstanding == 0) missing_.reset();
}

void SureReplies::heardRecord() {
  missing_.reset();
  lastAt_.reset();
}

/// Each reply behind it is then that to the query before.
void SureReplies::mayHaveHeardMissing(std::int64_t at) {
  if (!sureAt(at)) return;
  doubtSince(missing_->behind + 1);
  missing_->behind = last_;
}

void SureReplies::heardUnasked(std::int64_t at) {
  mayHaveHeardMissing(at);
  if (lastAt_ && at < *lastAt_ + longestThought_) doubtSince(seriesFrom_);
}

void SureReplies::doubtSince(int first) {
  doubted_.erase(doubted_.lower_bound(first), doubted_.end());
  doubted_[first] = last_;
}

}  // namespace tracewell
