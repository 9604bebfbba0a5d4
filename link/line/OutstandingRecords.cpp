// SPDX-License-Identifier: GPL-3.0-or-later
#include "OutstandingRecords.h"

#include <algorithm>

namespace tracewell {
namespace {

constexpr std::string_view lineEnd = "\r\n";

}  // namespace

bool OutstandingRecords::add(std::size_t count, std::size_t arrived) {
  if (breaksOff({count, count - arrived})) return false;
  // A few bytes may have been something else, and all of it is still to come.
  records_.push_back({count, count});
  return true;
}

bool OutstandingRecords::dropBrokenOff() {
  if (!areAny() || !breaksOff(records_.front())) return false;
  records_.pop_front();
  return true;
}

bool OutstandingRecords::giveUp() {
  const bool hasBegun = areAny() && records_.front().missing < records_.front().count;
  if (hasBegun) restMayCome(records_.front().missing);
  records_.clear();
  return hasBegun;
}

void OutstandingRecords::clear() {
  records_.clear();
  rests_.clear();
}

bool OutstandingRecords::breaksOff(const Record& record) {
  const bool isMostThere = 2 * record.missing <= record.count;
  if (isMostThere) restMayCome(record.missing);
  return isMostThere;
}

void OutstandingRecords::restMayCome(std::size_t missing) {
  std::set<std::size_t> more = {missing};
  for (const std::size_t rest : rests_) more.insert(rest + missing);
  rests_.merge(more);
  rests_.erase(rests_.upper_bound(lineEnd.size()), rests_.end());
}

void OutstandingRecords::heardRecord() {
  isBehindRecord_ = true;
  endBytes_ = 0;
  endBegin_.clear();
}

void OutstandingRecords::heardEnd(std::string_view bytes) {
  constexpr std::size_t telling = 3;
  endBytes_ += bytes.size();
  endBegin_.append(bytes.substr(0, telling - endBegin_.size()));
}

bool OutstandingRecords::mayBeShifted() const {
  const bool isLineEnd = endBegin_ == "\r" || lineEnd.ends_with(endBegin_);
  return !isLineEnd || rests_.contains(endBytes_);
}

std::size_t OutstandingRecords::ownEndOf(std::string_view bytes) const {
  constexpr std::string_view blanks("\r\n \0", 4);
  if (!isBehindRecord_) return 0;
  const std::size_t blank = std::min(bytes.find_first_not_of(blanks), bytes.size());
  return areAny() ? std::min(blank, lineEnd.size() - std::min(endBytes_, lineEnd.size())) : blank;
}

OutstandingRecords::Taken OutstandingRecords::take(std::string_view bytes) {
  Taken taken;
  while (true) {
    const std::size_t end = ownEndOf(bytes.substr(taken.bytes));
    taken.bytes += end;
    heardEnd(bytes.substr(taken.bytes - end, end));
    if (!areAny() || taken.bytes == bytes.size()) return taken;
    const std::size_t samples = std::min(records_.front().missing, bytes.size() - taken.bytes);
    taken.bytes += samples;
    taken.areOfRecord = true;
    isBehindRecord_ = false;
    records_.front().missing -= samples;
    if (records_.front().missing > 0) return taken;
    records_.pop_front();
    ++taken.whole;
    heardRecord();
  }
}

}  // namespace tracewell
