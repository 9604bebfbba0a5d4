// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace tracewell {

/// What has gone wrong on the line, as facts; the caller finds the words. Moments are milliseconds
/// on Clock's scale. Another port number begins a new report.
struct LineReport {
  /// Something that has happened now and then.
  struct Tally {
    int inLastMinute = 0;
    /// When it happened last, however long ago.
    std::optional<std::int64_t> lastAt;
  };

  /// Why the line is gone that was open, in the port's words, until it is open again.
  std::string failure;
  /// Queries in a row that went unanswered, with no record since.
  int unansweredInRow = 0;

  /// Unasked bytes: they belong to no query or request. Blanks do not count.
  Tally unaskedBytes;

  /// Records that began and stayed short, and how many bytes of how many the last one had.
  Tally shortRecords;
  std::size_t cameOfRecord = 0;
  std::size_t lengthOfRecord = 0;

  /// Records of which no byte arrived before they were given up.
  Tally missingRecords;
  /// Records that arrived while one that had been given up was outstanding: they are discarded.
  Tally lateRecords;
  /// Queries that got bytes in time but no line end, and how many bytes the last time.
  Tally endlessReplies;
  std::size_t bytesOfEndlessReply = 0;

  /// Since when records are requested repeatedly without one that could be delivered.
  std::optional<std::int64_t> noRecordSince;
  /// When the last record was delivered.
  std::optional<std::int64_t> lastRecordAt;

  /// When the replies that are not sure yet will be, if nothing more comes.
  std::optional<std::int64_t> sureAt;
};

}  // namespace tracewell
