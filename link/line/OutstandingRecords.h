// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <deque>
#include <set>
#include <string>
#include <string_view>

namespace tracewell {

/// The records that were given up and may still arrive. It tells which of the bytes that nobody
/// waits for are theirs.
///
/// Behind each record may stand a line end of its own: while another one is outstanding, at most
/// two bytes, for what follows is that one. Behind the last one it is any number of blanks
/// and line ends, as the record may have been shifted.
class OutstandingRecords {
 public:
  struct Taken {
    /// How many bytes at the front are theirs, line ends included.
    std::size_t bytes = 0;
    /// Some of these are not line ends behind a record, and so many records became whole.
    bool areOfRecord = false;
    std::size_t whole = 0;
  };

  bool areAny() const { return !records_.empty(); }
  /// How many bytes of the first one are missing. There must be one.
  std::size_t missingOfFirst() const { return records_.front().missing; }

  /// A record was given up, of which so many bytes have arrived. False if most of it has: its rest
  /// is nothing to wait for.
  bool add(std::size_t count, std::size_t arrived);
  /// All that will arrive of them has.
  void clear();
  /// Nothing has arrived for long: the first one is dropped if most of it has arrived. True if its
  /// rest may still come.
  bool dropBrokenOff();
  /// Nothing has arrived for so long that none of them will. True if the rest of one may still
  /// come.
  bool giveUp();
  /// The last byte of a record has arrived, or bytes that are no record's.
  void heardRecord();
  void heardOther() { isBehindRecord_ = false; }

  /// Takes off the front of `bytes` what is theirs.
  Taken take(std::string_view bytes);
  /// What stands behind the last record is more than a line end, or is as long as the rest of some
  /// that broke off: other bytes may have come first and shifted it. The samples of a flat signal
  /// are blanks, too; one that is a line end is a level far off the screen.
  bool mayBeShifted() const;

 private:
  struct Record {
    std::size_t count;
    std::size_t missing;
  };

  std::size_t ownEndOf(std::string_view bytes) const;
  void heardEnd(std::string_view bytes);
  bool breaksOff(const Record& record);
  void restMayCome(std::size_t missing);

  /// The first that was requested first.
  std::deque<Record> records_;
  /// No more than line ends and blanks have arrived since the last byte of a record.
  bool isBehindRecord_ = false;
  /// How many, and the first of them.
  std::size_t endBytes_ = 0;
  std::string endBegin_;
  /// How many bytes the rests of records that broke off may have together, up to those of a line
  /// end.
  std::set<std::size_t> rests_;
};

}  // namespace tracewell
