// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "ByteChannel.h"
#include "Clock.h"
#include "EventDispatcher.h"
#include "LineAccount.h"
#include "LineRecord.h"
#include "OutstandingRecords.h"
#include "StandBy.h"
#include "SureReplies.h"

namespace tracewell {

/// The one owner of the line to the instrument. It knows what is outstanding, and so whose the next
/// bytes are. It returns a reply for its own query or not at all.
///
/// All rules rest on one assumption: the instrument replies in the order in which it is asked, less
/// than longestThought after each query or request, or never.
///
/// - A record is pending from its request on, until it is whole or longestThought has passed
///   without a byte. Further requests wait, one for each channel. A record counts if only blanks
///   and line ends follow it within the settling time; while a reply is missing, none
///   or a line end.
/// - A record that is given up with less than half of its bytes stays outstanding. Others are still
///   requested, but the next one that arrives is discarded: it may be the outstanding one. Then the
///   line is drained for recordDrain, and the discarded record is requested again first. A reply
///   proves that no record is outstanding, unless an earlier reply is missing.
/// - An unanswered query stays outstanding. While more than one reply is outstanding, an arriving
///   line is discarded. Before the next query or record the line is *drained*: until everything
///   outstanding has arrived, or it has been quiet for long enough (drainTime). If the line does
///   not come to rest within twice that time, the query counts as unanswered and is not sent.
/// - A reply that is returned while an earlier one is missing may be that one, if it is later than
///   longestThought: it is not sure. SureReplies says until when.
/// - Unasked bytes make the line untrusted until it has been quiet for as long.
/// - After two unanswered queries in a row the instrument counts as silent: further ones are sent
///   without draining until something is heard.
/// - A plain command never waits. A query in it counts as unanswered.
///
/// All times are milliseconds. Every wait is one of StandBy.
class Conversation {
 public:
  static constexpr int longestThought = 3000;
  /// If the time-out is longer than longestThought, the line is drained for the time-out and this
  /// margin.
  static constexpr int drainMargin = 1000;
  /// How long the line must be quiet until outstanding records no longer count, once the first one
  /// has arrived. A steadily late instrument keeps the distance of the requests: longestThought and
  /// the caller's interval.
  static constexpr int recordDrain = 2 * longestThought;
  /// The rest of an abandoned record is awaited for twice the time of its bytes and this margin.
  static constexpr int restMargin = 250;
  /// Bytes of one reply follow each other within this time, through any adapter.
  static constexpr int settling = 20;
  /// While most of a record is still to come the line is not looked at, for at most this long.
  static constexpr int longestRest = 200;
  /// A longer reply is discarded.
  static constexpr std::size_t longestReply = 4096;

  Conversation(ChannelOpener& opener, Clock& clock, const EventDispatcher& dispatcher,
               StandBy& standBy);
  Conversation(const Conversation&) = delete;

  /// Opens the line, or opens it anew with other settings, if need be. Raises deviceError if it
  /// cannot be opened or is gone.
  void use(const LineSettings& settings);
  /// The settings of the line that was opened last.
  const LineSettings& openSettings() const { return openSettings_; }
  /// How often a line has been opened, has failed, or was left for another one.
  int openings() const { return openings_; }
  LineReport report() const;
  int lastReply() const { return replies_.last(); }
  Sureness sureness(int reply) const { return replies_.sureness(reply, judgedAt()); }

  /// Sends a line. With `isAnswered` its reply is outstanding, and will be discarded. Raises
  /// deviceError.
  void command(std::string_view line, bool isAnswered = false);

  /// Returns the reply line to `query`, through its LF. Raises portReadTimeOut if no reply arrives
  /// within `timeOut`, if it cannot be trusted, or if the user gave up. Raises deviceError; throws
  /// ProgramEnded.
  std::string ask(std::string_view query, int timeOut);

  /// Requests a record, now or when the line is free. If a request of its channel is waiting, it is
  /// left out. Raises deviceError.
  void request(LineRecord record);

  /// Records, pending or waiting, are no longer wanted.
  void abandon();

  /// Called from the event loop with each whole record.
  std::function<void(const LineRecord&)> delivered;
  /// Called from the event loop when the line has failed while nobody used it.
  std::function<void()> lost;

 private:
  /// What is pending, and so whose the next bytes are.
  enum class State {
    /// Nothing is outstanding.
    idle,
    replyAwaited,
    recordAwaited,
    /// A record is whole; what follows right behind it tells whether it counts.
    recordHeard,
    /// Replies are outstanding that no one waits for, or unasked bytes have arrived.
    draining
  };

  bool isRecordPending() const {
    return state_ == State::recordAwaited || state_ == State::recordHeard;
  }
  std::int64_t judgedAt() const;
  void close();
  void forget();
  template <class Transfer>
  auto transfer(Transfer use);
  void send(std::string_view bytes);
  std::string take(std::int64_t timeOut);
  std::string listen(std::int64_t until);

  void hear(const std::string& bytes);
  void hearRecord(const std::string& bytes);
  void hearBehindRecord(std::string_view bytes);
  void restUntilMoreHasCome();
  void refuseRecord(std::string_view behind);
  void hearOwed(std::string_view bytes);
  std::size_t payWith(std::string_view bytes);
  void hearLines(std::string_view bytes, std::int64_t since);
  void review();
  void owe();
  std::int64_t trustedAt() const;

  void makeReadyToAsk(int timeOut);
  void finishRecord();
  void drain(int timeOut);
  /// What arrives stands in `received`, also if they throw.
  std::string awaitReply(std::string& received, std::int64_t deadline);
  std::string onlyLine(std::string& received, std::size_t length);
  void leaveUnanswered();
  bool isSilent() const;

  void arrived();
  void sendHeld();
  int settlingTime() const;

  ChannelOpener& opener_;
  Clock& clock_;
  const EventDispatcher& dispatcher_;
  StandBy& standBy_;
  std::unique_ptr<ByteChannel> channel_;
  LineSettings openSettings_;
  int openings_ = 0;

  State state_ = State::idle;
  /// The pending record (recordAwaited), and whether it is still wanted.
  LineRecord record_;
  bool isWanted_ = false;
  /// A record that is whole and not delivered yet.
  std::optional<LineRecord> whole_;
  /// Records that were given up, and whether any byte of them has arrived since the last one was.
  OutstandingRecords outstanding_;
  bool isOwedComing_ = false;
  /// Requests that wait for the line, the oldest first.
  std::deque<LineRecord> held_;

  /// Queries sent and not answered, the present one included.
  int unanswered_ = 0;
  int unansweredInRow_ = 0;
  /// More has arrived than was outstanding, or something that cannot be counted.
  bool isStray_ = false;
  /// The last drain did not bring the line to rest.
  bool isRestless_ = false;
  /// How long the line must be quiet to be trusted again.
  int drainTime_ = longestThought;
  /// On Clock's scale.
  std::int64_t askedAt_ = 0;
  std::int64_t heardAt_ = 0;
  std::int64_t lineEndAt_ = std::numeric_limits<int>::min();
  LineAccount account_;
  SureReplies replies_{longestThought};
  /// Lives as long as this object; delayed actions check it.
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace tracewell
