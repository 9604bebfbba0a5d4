// SPDX-License-Identifier: GPL-3.0-or-later
#include "LineAccount.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tracewell {
namespace {

constexpr int secondsKept = 60;
/// An acquisition asks for its next record within this time; a longer break was not spent waiting.
/// Milliseconds.
constexpr int longestBreak = 5000;
/// A missing reply may be later than any should be. The next query may get it, and so on, until one
/// is left over. Milliseconds.
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
  report.sureAt = sureAt(now);
  return report;
}

void LineAccount::beginAnew(std::int64_t now) {
  if (sureAt(now)) doubt({outstanding_->behind + 1, lastReply_});
  LineAccount anew(longestThought_);
  anew.lastReply_ = lastReply_;
  anew.doubted_ = std::move(doubted_);
  *this = std::move(anew);
}

/// An instrument that replies twice, the second time late, can give each query the reply to the one
/// before. So the whole series is in doubt: all replies whose query followed the previous reply
/// within the time that a reply may take.
void LineAccount::heardUnasked(int bytes, std::int64_t since, std::int64_t now) {
  unasked_.add(bytes, now);
  mayHaveHeardMissing(since);
  if (!answerAt_ || since >= *answerAt_ + longestThought_) return;
  doubt({seriesFrom_, lastReply_});
  answerAt_.reset();
}

/// Then the replies behind it are each that to the query before.
void LineAccount::mayHaveHeardMissing(std::int64_t at) {
  if (!sureAt(at)) return;
  doubt({outstanding_->behind + 1, lastReply_});
  outstanding_->behind = lastReply_;
}

void LineAccount::doubt(Series replies) {
  while (!doubted_.empty() && doubted_.back().first >= replies.first) doubted_.pop_back();
  doubted_.push_back(replies);
}

void LineAccount::gaveUpRecord(std::size_t came, std::size_t length, std::int64_t now) {
  if (came == 0) return missing_.add(1, now);
  mayHaveHeardMissing(now);
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

void LineAccount::gaveRecord(std::int64_t now, bool isInOrder) {
  if (isInOrder) outstanding_.reset();
  rest_.lastRecordAt = now;
  rest_.unansweredInRow = 0;
  rest_.noRecordSince.reset();
}

void LineAccount::gaveAnswer(std::int64_t askedAt, std::int64_t now) {
  if (!isReplyDue(askedAt)) outstanding_.reset();
  if (outstanding_) --outstanding_->count;
  ++lastReply_;
  if (!answerAt_ || askedAt >= *answerAt_ + longestThought_) seriesFrom_ = lastReply_;
  answerAt_ = now;
  rest_.unansweredInRow = 0;
}

void LineAccount::asked() {
  if (outstanding_) ++outstanding_->count;
}

void LineAccount::missedAnswer(std::int64_t now) {
  leftOutstanding(now);
  ++rest_.unansweredInRow;
}

void LineAccount::leftOutstanding(std::int64_t now) {
  if (!isReplyDue(now)) outstanding_ = Outstanding{1, lastReply_, now};
  outstanding_->lastAt = now;
}

/// Once all have come none can be taken for another.
void LineAccount::heardOutstanding() {
  if (outstanding_ && --outstanding_->count == 0) outstanding_.reset();
}

bool LineAccount::isSure(int reply, std::int64_t now) const {
  if (sureAt(now) && reply > outstanding_->behind) return false;
  const auto next = std::ranges::upper_bound(doubted_, reply, {}, &Series::first);
  return next == doubted_.begin() || reply > std::prev(next)->last;
}

std::optional<std::int64_t> LineAccount::sureAt(std::int64_t now) const {
  const bool isProving = isReplyDue(now) && lastReply_ > outstanding_->behind;
  return isProving ? std::optional(mayBeLateUntil()) : std::nullopt;
}

/// What is outstanding counts until then.
std::int64_t LineAccount::mayBeLateUntil() const {
  return std::max(outstanding_->lastAt, answerAt_.value_or(0)) + longestLate;
}

}  // namespace tracewell
