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
#include "StandBy.h"

namespace tracewell {

/// The one owner of the line to the instrument. It knows what has been asked, and so whose the next
/// bytes are; an answer is handed out for its own question or not at all.
///
/// The instrument answers in the order in which it is asked, each question less than longestThought
/// after it was put, or never. On that all rules here rest:
///
/// - A record is on its way from its request on, byte or no byte, until it is whole or
///   longestThought has passed without a byte. Further requests wait, one for each channel. It
///   counts when nothing but blanks and line ends follows it for the settling time.
/// - A record of which less than half has come when it is given up stays owed. Others are asked for
///   all the same, and the next one that comes answers nobody, since it may be the one that is
///   owed. Then the line is drained for recordDrain; whoever asked last asks again. An answered
///   question proves that nothing is owed any longer, unless one before it had no answer.
/// - A question without an answer stays owed. A line that comes while more is owed than the present
///   question answers nobody. Before the next question or record the line is *drained*: until all
///   that is owed has come, or it has been quiet for long enough (drainTime). A line that does not
///   come to rest within twice that time is not asked: the question is unanswered, unsent.
/// - Bytes that nobody has asked for make the line untrusted until it has been quiet for as long.
/// - After two questions in a row without an answer the instrument counts as silent: further ones
///   are put without draining, as long as nothing is heard.
/// - A plain command never waits. A question in it counts as one without an answer.
///
/// All times are milliseconds. Every wait is one of StandBy.
class Conversation {
 public:
  static constexpr int longestThought = 3000;
  /// A line whose time-out is longer than longestThought is drained for that and so much more.
  static constexpr int drainMargin = 1000;
  /// How long the line must be quiet before a record that is owed comes no more, once the first one
  /// has come: an instrument that is steadily late keeps the distance of the requests, which is
  /// longestThought and the interval of whoever asks.
  static constexpr int recordDrain = 2 * longestThought;
  /// The rest of a record is awaited for twice the time of its bytes, and so much more.
  static constexpr int restMargin = 250;
  /// Bytes of one answer follow each other, through whatever adapter, within so long.
  static constexpr int settling = 20;
  /// While the most of a record is still to come its bytes are not looked at, for at most so long.
  static constexpr int longestRest = 200;
  /// A reply of more bytes is none.
  static constexpr std::size_t longestReply = 4096;

  Conversation(ChannelOpener& opener, Clock& clock, const EventDispatcher& dispatcher,
               StandBy& standBy);
  Conversation(const Conversation&) = delete;

  /// Opens the line, or opens it anew with other settings, if need be. Raises deviceError when it
  /// cannot be opened or is gone.
  void use(const LineSettings& settings);
  /// The settings of the line that was opened last.
  const LineSettings& openSettings() const { return openSettings_; }
  /// How often a line has been opened.
  int openings() const { return openings_; }
  LineReport report() const { return account_.report(clock_.milliseconds()); }

  /// Sends a line. A reply to it is owed, if there is one, and read by nobody. Raises deviceError.
  void command(std::string_view line, bool isAnswered = false);

  /// The reply line to `query`, through its LF. Raises portReadTimeOut where there is none within
  /// `timeOut` of the query, where one came but may not be trusted, and where the user gave up;
  /// deviceError; throws ProgramEnded.
  std::string ask(std::string_view query, int timeOut);

  /// Requests a record, now or when the line is free. One of a channel that waits already is left
  /// out. Raises deviceError.
  void request(LineRecord record);

  /// Whoever wanted a record, here or waiting, does not want it any longer.
  void abandon();

  /// Called out of the event loop with each whole record.
  std::function<void(const LineRecord&)> delivered;

 private:
  /// What is under way, and so whose the next bytes are.
  enum class State {
    /// Nothing is owed.
    idle,
    replyAwaited,
    recordAwaited,
    /// It is whole; what comes right behind it tells whether it is one.
    recordHeard,
    /// Answers are owed that nobody waits for, or bytes have come that nobody has asked for.
    draining
  };

  void close();
  void forget();
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
  std::string awaitReply(std::int64_t deadline);
  std::string onlyLine(std::string received, std::size_t length);
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
  /// The record on its way (recordAwaited), and whether somebody still wants it.
  LineRecord record_;
  bool isWanted_ = false;
  /// One that is whole and not delivered yet.
  std::optional<LineRecord> whole_;
  /// Bytes of records that were given up and may still come, and whether any has since the last of
  /// them was given up.
  std::size_t owedBytes_ = 0;
  bool isOwedComing_ = false;
  /// A question had no answer: the next one that comes may be its own, and proves nothing.
  bool isQuestionOwed_ = false;
  /// Requests that wait for the line, the oldest first.
  std::deque<LineRecord> held_;

  /// Questions put and not answered, the present one included.
  int unanswered_ = 0;
  int unansweredInRow_ = 0;
  /// More has come than was owed, or what cannot be counted.
  bool isStray_ = false;
  /// The last drain did not bring the line to rest.
  bool isRestless_ = false;
  /// How long the line must be quiet to be trusted again.
  int drainTime_ = longestThought;
  /// On Clock's scale.
  std::int64_t askedAt_ = 0;
  std::int64_t heardAt_ = 0;
  std::int64_t lineEndAt_ = std::numeric_limits<int>::min();
  LineAccount account_{longestThought};
  /// As long as this object lives, for actions that are due later.
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace tracewell
