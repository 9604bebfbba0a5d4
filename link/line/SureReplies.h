// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "Sureness.h"

namespace tracewell {

/// Numbers the replies that the line returns, and says of each how sure it is.
///
/// - While a reply is missing the next query may get it, and so on, until one is left over. So the
///   replies behind it are not sure yet. They become sure once a record has arrived, or when
///   no reply was missed or returned for longestLate. If every outstanding line arrives
///   before the line is drained, nothing is missing any more.
/// - Unasked bytes may be one that was left over, or the instrument replies twice. Then the
///   replies before are never sure: those that were not yet, and the last series, in which each
///   query followed the reply before within longestThought.
///
/// All moments are milliseconds on Clock's scale.
class SureReplies {
 public:
  /// A missing reply may be later than any should be.
  static constexpr int longestLate = 10000;

  /// `longestThought` is the time within which every reply should arrive.
  explicit SureReplies(int longestThought) : longestThought_(longestThought) {}

  /// The number of the reply that was returned last; 0 if none was.
  int last() const { return last_; }
  Sureness sureness(int reply, std::int64_t now) const;
  /// When the replies that are not sure yet will be; none if there are none.
  std::optional<std::int64_t> sureAt(std::int64_t now) const;
  /// A reply that is missing may still come.
  bool isDue(std::int64_t now) const { return missing_ && now < dueUntil(); }

  /// Another instrument is on the line.
  void beginAnew();
  /// A query was sent. Returned or missed follows.
  void asked();
  /// Nobody waits for its reply any more.
  void missed(std::int64_t now);
  /// Bytes that nobody will wait for may come in front of a reply: that to a query in a command, or
  /// the rest of a record that broke off.
  void mayComeUnasked(std::int64_t now);
  /// The reply to a query sent at `askedAt` is returned.
  void returned(std::int64_t askedAt, std::int64_t now);
  /// A line arrived while a reply was outstanding, and is not returned.
  void heardOutstanding();
  /// A record has arrived behind whose request nothing was asked. What is missing never comes, and
  /// nothing before it was left over.
  void heardRecord();
  /// A missing reply may have come, among other bytes.
  void mayHaveHeardMissing(std::int64_t at);
  void heardUnasked(std::int64_t at);

 private:
  struct Missing {
    /// Queries sent less lines heard, from the one that was missed first.
    int outstanding;
    /// The last reply that was returned before.
    int behind;
    /// When the last one was missed.
    std::int64_t lastAt;
  };

  std::int64_t dueUntil() const;
  void doubtSince(int first);

  int longestThought_;
  int last_ = 0;
  std::optional<std::int64_t> lastAt_;
  /// The first reply of the last series.
  int seriesFrom_ = 0;
  std::optional<Missing> missing_;
  /// The first and the last of each series that is never sure.
  std::map<int, int> doubted_;
};

}  // namespace tracewell
