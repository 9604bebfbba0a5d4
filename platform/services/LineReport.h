// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace tracewell {

/// What has gone wrong on the line, as facts; whoever shows them finds the words. Moments are
/// milliseconds on Clock's scale. Another port number begins a new account; of it only the doubts
/// are counted on.
struct LineReport {
  /// Something that has happened now and then.
  struct Tally {
    int inLastMinute = 0;
    /// Of the last time, however long ago.
    std::optional<std::int64_t> lastAt;
  };

  /// Bytes that belong to nothing that was asked, blanks apart.
  Tally unaskedBytes;

  /// Records that had begun and stayed short, and how many bytes of how many the last one had.
  Tally shortRecords;
  std::size_t cameOfRecord = 0;
  std::size_t lengthOfRecord = 0;

  /// Records that were given up without a byte.
  Tally missingRecords;
  /// Records that came when one that had been given up was still owed: they answer nobody.
  Tally lateRecords;
  /// Questions to which bytes came in time, and no line end; how many bytes the last time.
  Tally endlessReplies;
  std::size_t bytesOfEndlessReply = 0;

  /// Since when records are asked for again and again, and none has come that could be handed out.
  std::optional<std::int64_t> noRecordSince;
  /// The last record that was handed out.
  std::optional<std::int64_t> lastRecordAt;

  /// Answers that were handed out and have become doubtful: bytes that nobody has asked for have
  /// come behind the last one sooner than any answer may take. An instrument that answers twice,
  /// the second time late, can so give each question the answer of the one before; hence all
  /// answers of the series are in doubt, one question of which followed the answer before within
  /// that time.
  struct Doubt {
    /// Grows by one each time, and never shrinks. At most once for the same last answer.
    int times = 0;
    /// What was handed out at these moments and in between is in doubt, the last time.
    std::int64_t firstAnswerAt = 0;
    std::int64_t lastAnswerAt = 0;
  };
  Doubt doubt;
};

}  // namespace tracewell
