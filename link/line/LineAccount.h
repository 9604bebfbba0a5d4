// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>

#include "LineReport.h"

namespace tracewell {

/// Keeps the facts for LineReport. It is told what happens on the line and when, and knows none of
/// the rules.
class LineAccount {
 public:
  LineReport report(std::int64_t now) const;
  /// Another instrument is on the line.
  void beginAnew() { *this = LineAccount(); }
  /// The line has failed; it has been opened again.
  void lost(const std::string& reason) { rest_.failure = reason; }
  void opened() {
    rest_.failure.clear();
    rest_.unansweredInRow = 0;
  }

  void heardUnasked(int bytes, std::int64_t now) { unasked_.add(bytes, now); }
  void gaveUpRecord(std::size_t came, std::size_t length, std::int64_t now);
  void heardLateRecord(std::int64_t now) { late_.add(1, now); }
  void missedLineEnd(std::size_t bytes, std::int64_t now);
  /// A record is wanted; repeated while the acquisition runs.
  void wantedRecord(std::int64_t now);
  void gaveRecord(std::int64_t now);
  void missedAnswer() { ++rest_.unansweredInRow; }
  /// A query was not sent, since the line did not come to rest.
  void leftUnasked() { ++rest_.unansweredInRow; }
  void gaveAnswer() { rest_.unansweredInRow = 0; }

 private:
  /// Counts over the last minute, second by second.
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

  Minute unasked_;
  Minute short_;
  Minute missing_;
  Minute late_;
  Minute endless_;
  /// The parts of the report that are no tallies.
  LineReport rest_;
  std::optional<std::int64_t> wantedAt_;
};

}  // namespace tracewell
