// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>

#include "LineReport.h"

namespace tracewell {

/// Keeps the account of a line that LineReport tells. It is told what happens and when, and knows
/// nothing of the rules.
class LineAccount {
 public:
  /// `longestThought` is the time within which every answer comes, in milliseconds.
  explicit LineAccount(int longestThought) : longestThought_(longestThought) {}

  LineReport report(std::int64_t now) const;
  /// Another instrument is on the line.
  void beginAnew();

  /// So many bytes were heard, of which the first may have come as early as `since`.
  void heardUnasked(int bytes, std::int64_t since, std::int64_t now);
  void gaveUpRecord(std::size_t came, std::size_t length, std::int64_t now);
  void heardLateRecord(std::int64_t now) { late_.add(1, now); }
  void missedLineEnd(std::size_t bytes, std::int64_t now);
  /// Somebody wants a record, as again and again while the acquisition runs.
  void wantedRecord(std::int64_t now);
  void gaveRecord(std::int64_t now);
  /// The answer to a question that was put at `askedAt` is handed out.
  void gaveAnswer(std::int64_t askedAt, std::int64_t now);

 private:
  /// Counts over a minute, by the second.
  class Minute {
   public:
    void add(int count, std::int64_t now);
    LineReport::Tally tally(std::int64_t now) const;

   private:
    struct Second {
      std::int64_t number;
      int count;
    };
    std::deque<Second> seconds_;
    std::optional<std::int64_t> lastAt_;
  };

  int longestThought_;
  Minute unasked_;
  Minute short_;
  Minute missing_;
  Minute late_;
  Minute endless_;
  /// All of a report that is no tally.
  LineReport rest_;
  std::optional<std::int64_t> wantedAt_;
  std::optional<std::int64_t> seriesFrom_;
  std::optional<std::int64_t> answerAt_;
};

}  // namespace tracewell
