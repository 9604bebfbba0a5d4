// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <vector>

#include "LineReport.h"

namespace tracewell {

/// Keeps the facts for LineReport. It is told what happens on the line and when, and knows none of
/// the rules.
class LineAccount {
 public:
  /// `longestThought` is the time within which every reply should arrive, in milliseconds.
  explicit LineAccount(int longestThought) : longestThought_(longestThought) {}

  LineReport report(std::int64_t now) const;
  /// Another instrument is on the line.
  void beginAnew(std::int64_t now);
  /// The line has failed; it has been opened again.
  void lost(const std::string& reason) { rest_.failure = reason; }
  void opened() {
    rest_.failure.clear();
    rest_.unansweredInRow = 0;
  }

  /// `bytes` unasked bytes were heard, the first of them at `since` at the earliest.
  void heardUnasked(int bytes, std::int64_t since, std::int64_t now);
  void gaveUpRecord(std::size_t came, std::size_t length, std::int64_t now);
  /// A missing reply may have come among the bytes of a record.
  void mayHaveHeardMissing(std::int64_t at);
  void heardLateRecord(std::int64_t now) { late_.add(1, now); }
  void missedLineEnd(std::size_t bytes, std::int64_t now);
  /// A record is wanted; repeated while the acquisition runs.
  void wantedRecord(std::int64_t now);
  /// `isInOrder` if nothing was asked behind its request: then what was missing never comes.
  void gaveRecord(std::int64_t now, bool isInOrder);
  /// A query was sent. One of gaveAnswer, missedAnswer and leftOutstanding follows.
  void asked();
  /// Nobody waits for its reply.
  void leftOutstanding(std::int64_t now);
  void missedAnswer(std::int64_t now);
  /// A line arrived while a reply was outstanding, and is not returned.
  void heardOutstanding();
  /// A query was not sent, since the line did not come to rest.
  void leftUnasked() { ++rest_.unansweredInRow; }
  /// The reply to a query sent at `askedAt` is returned.
  void gaveAnswer(std::int64_t askedAt, std::int64_t now);

  /// As SerialPort says.
  int lastReply() const { return lastReply_; }
  bool isSure(int reply, std::int64_t now) const;
  /// A reply that is missing may still come.
  bool isReplyDue(std::int64_t now) const { return outstanding_ && now < mayBeLateUntil(); }

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

  struct Outstanding {
    /// Queries sent less lines heard. One of them was given up.
    int count;
    /// The last reply that was returned before.
    int behind;
    /// When the last of them was given up.
    std::int64_t lastAt;
  };
  struct Series {
    int first;
    int last;
  };

  void doubt(Series replies);
  std::optional<std::int64_t> sureAt(std::int64_t now) const;
  std::int64_t mayBeLateUntil() const;

  int longestThought_;
  Minute unasked_;
  Minute short_;
  Minute missing_;
  Minute late_;
  Minute endless_;
  /// The parts of the report that are no tallies.
  LineReport rest_;
  std::optional<std::int64_t> wantedAt_;
  int lastReply_ = 0;
  /// The first reply that unasked bytes would put in doubt, and when the last one was returned;
  /// none if there is none.
  int seriesFrom_ = 0;
  std::optional<std::int64_t> answerAt_;
  std::optional<Outstanding> outstanding_;
  /// Replies that were found to be those to other queries, in ascending order.
  std::vector<Series> doubted_;
};

}  // namespace tracewell
