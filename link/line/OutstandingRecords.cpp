// SPDX-License-Identifier: GPL-3.0-or-later
#include "OutstandingRecords.h"

#include <algorithm>

namespace tracewell {

void OutstandingRecords::heardRecord() {
  isBehindRecord_ = true;
  endBytes_ = 0;
}

std::size_t OutstandingRecords::ownEndOf(std::string_view bytes) const {
  constexpr std::string_view blanks("\r\n \0", 4);
  constexpr std::size_t longestEnd = 2;
  if (!isBehindRecord_) return 0;
  const std::size_t blank = std::min(bytes.find_first_not_of(blanks), bytes.size());
  return areAny() ? std::min(blank, longestEnd - std::min(endBytes_, longestEnd)) : blank;
}

OutstandingRecords::Taken OutstandingRecords::take(std::string_view bytes) {
  Taken taken;
  while (true) {
    const std::size_t end = ownEndOf(bytes.substr(taken.bytes));
    taken.bytes += end;
    endBytes_ += end;
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

/// A few bytes may have been something else, and all of it is still to come.
std::size_t OutstandingRecords::dropBrokenOff() {
  if (!areAny() || 2 * records_.front().missing > records_.front().count) return 0;
  const std::size_t missing = records_.front().missing;
  records_.pop_front();
  return missing;
}

}  // namespace tracewell
