// SPDX-License-Identifier: GPL-3.0-or-later
#include "LineAccount.h"

#include <algorithm>

namespace tracewell {
namespace {

constexpr int secondsKept = 60;
/// An acquisition asks for its next record within this time; a longer break was not spent waiting.
/// Milliseconds.
constexpr int longestBreak = 5000;
/// A reply that was missed may be later than any should be. The next query may have got it, and so
/// on, until one is left over. Milliseconds.
constexpr int longestLate = 10000;

}  // namespace

void LineAccount::Minute::add(int count, std::int64_t now) {
  lastAt_ = now;
  const std::int64_t second = now / 1000;
  while (!seconds_.empty() && seconds_.front().number <= second - secondsKept) seconds_.pop_front();
  if (seconds_.empty() || seconds_.back().number != second) seconds_.push_back({second, 0});
  seconds_.back().count += count;
}

LineReport::Tally LineAccount::Minute::tally(std::int64_t now) const {
  LineReport::Tally tally{.lastAt = lastAt_};
  for (const Second& second : seconds_)
    if (second.number > now / 1000 - secondsKept) tally.inLastMinute += second.count;
  return tally;
}

LineReport LineAccount::report(std::int64_t now) const {
  LineReport report = rest_;
  report.unaskedBytes = unasked_.tally(now);
  report.shortRecords = short_.tally(now);
  report.missingRecords = missing_.tally(now);
  report.lateRecords = late_.tally(now);
  report.endlessReplies = endless_.tally(now);
  if (wantedAt_ && now - *wantedAt_ > longestBreak) report.noRecordSince.reset();
  return report;
}

void LineAccount::beginAnew() {
  const LineReport::Doubt doubt = rest_.doubt;
  *this = LineAccount(longestThought_);
  rest_.doubt = doubt;
}

void LineAccount::heardUnasked(int bytes, std::int64_t since, std::int64_t now) {
  unasked_.add(bytes, now);
  if (!answerAt_ || since >= mayBeLateUntil()) return;
  rest_.doubt = {rest_.doubt.times + 1, *seriesFrom_, *answerAt_};
  seriesFrom_.reset();
  answerAt_.reset();
}

void LineAccount::gaveUpRecord(std::size_t came, std::size_t length, std::int64_t now) {
  if (came == 0) return missing_.add(1, now);
  short_.add(1, now);
  rest_.cameOfRecord = came;
  rest_.lengthOfRecord = length;
}

void LineAccount::missedLineEnd(std::size_t bytes, std::int64_t now) {
  endless_.add(1, now);
  rest_.bytesOfEndlessReply = bytes;
}

void LineAccount::wantedRecord(std::int64_t now) {
  const bool wasBreak = wantedAt_ && now - *wantedAt_ > longestBreak;
  if (!rest_.noRecordSince || wasBreak) rest_.noRecordSince = now;
  wantedAt_ = now;
}

void LineAccount::gaveRecord(std::int64_t now) {
  rest_.lastRecordAt = now;
  rest_.unansweredInRow = 0;
  rest_.noRecordSince.reset();
}

void LineAccount::gaveAnswer(std::int64_t askedAt, std::int64_t now) {
  if (missedAt_ && askedAt >= std::max(*missedAt_, answerAt_.value_or(0)) + longestLate)
    missedAt_.reset();
  if (!answerAt_ || askedAt >= mayBeLateUntil()) seriesFrom_ = now;
  answerAt_ = now;
  rest_.unansweredInRow = 0;
}

void LineAccount::missedAnswer(std::int64_t now) {
  missedAt_ = now;
  ++rest_.unansweredInRow;
}

/// The last replies that were returned may belong to others if there is one too many until then.
std::int64_t LineAccount::mayBeLateUntil() const {
  return missedAt_ ? std::max(*missedAt_, *answerAt_) + longestLate : *answerAt_ + longestThought_;
}

}  // namespace tracewell
