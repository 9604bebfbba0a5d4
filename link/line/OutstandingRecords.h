// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <deque>
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

  /// A record of `count` bytes, more than none, was given up.
  void add(std::size_t count) { records_.push_back({count, count}); }
  /// None of them will arrive.
  void clear() { records_.clear(); }
  /// Nothing has arrived for long: drops the first one if most of it has, and tells how many bytes
  /// are missing. 0 if it stays.
  std::size_t dropBrokenOff();
  /// The last byte of a record has arrived, or bytes that are no record's.
  void heardRecord();
  void heardOther() { isBehindRecord_ = false; }

  /// Takes off the front of `bytes` what is theirs.
  Taken take(std::string_view bytes);

 private:
  struct Record {
    std::size_t count;
    std::size_t missing;
  };

  std::size_t ownEndOf(std::string_view bytes) const;

  /// The first that was requested first.
  std::deque<Record> records_;
  /// No more than line ends and blanks have arrived since the last byte of a record, and how many.
  bool isBehindRecord_ = false;
  std::size_t endBytes_ = 0;
};

}  // namespace tracewell
