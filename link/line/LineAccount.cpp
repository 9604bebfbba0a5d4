// SPDX-License-Identifier: GPL-3.0-or-later
#include "LineAccount.h"

namespace tracewell {
namespace {

constexpr int secondsKept = 60;
/// An acquisition asks for its next record within this time; a longer break was not spent waiting.
/// Milliseconds.
constexpr int longestBreak = 5000;

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

}  // namespace tracewell
