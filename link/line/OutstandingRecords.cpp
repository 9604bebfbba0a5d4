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
    const std::size_t samples = std::min(missing_.front(), bytes.size() - taken.bytes);
    taken.bytes += samples;
    taken.haveSamples = true;
    isBehindRecord_ = false;
    missing_.front() -= samples;
    if (missing_.front() > 0) return taken;
    missing_.pop_front();
    ++taken.whole;
    heardRecord();
  }
}

}  // namespace tracewell
