// SPDX-License-Identifier: GPL-3.0-or-later
#include "Conversation.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tracewell {
namespace {

Error timeOutError() {
  return {portReadTimeOut, "RS232", "The instrument did not reply in time"};
}

Error closedError() {
  return {deviceError, "RS232", "The port is not open"};
}

/// Bytes that mean nothing between lines. A line end is not one of them: it ends something.
bool isBlank(char byte) {
  return byte == '\r' || byte == ' ' || byte == '\0';
}

bool isBlank(std::string_view bytes) {
  return std::ranges::all_of(bytes, [](char byte) { return isBlank(byte); });
}

/// The upper half of a sample within the screen's height. No reply has such a byte within.
bool hasSample(std::string_view line) {
  constexpr std::string_view ends("\r\n \0", 4);
  const std::size_t first = line.find_first_not_of(ends);
  if (first == std::string_view::npos) return false;
  line = line.substr(first, line.find_last_not_of(ends) + 1 - first);
  return line.find_first_of(std::string_view("\0\xFF", 2)) != std::string_view::npos;
}

}  // namespace

Conversation::Conversation(ChannelOpener& opener, Clock& clock, const EventDispatcher& dispatcher,
                           StandBy& standBy)
    : opener_(opener), clock_(clock), dispatcher_(dispatcher), standBy_(standBy) {}

void Conversation::use(const LineSettings& settings) {
  if (channel_ && !(openSettings_ == settings)) close();
  if (!channel_) {
    channel_ = opener_.open(settings);
    if (openSettings_.portNumber != settings.portNumber) forget();
    openSettings_ = settings;
    ++openings_;
    account_.opened();
    channel_->readable = [this] { dispatcher_.dispatch([this] { arrived(); }); };
  }
  hear(take(0));
}

void Conversation::command(std::string_view line, bool isAnswered) {
  send(line);
  if (!isAnswered) return;
  askedAt_ = clock_.milliseconds();
  ++unanswered_;
  replies_.mayComeUnasked(askedAt_);
  if (state_ == State::idle) state_ = State::draining;
}

std::string Conversation::ask(std::string_view query, int timeOut) {
  makeReadyToAsk(timeOut);
  // At rest, the line end of the last one has come.
  if (state_ == State::idle) outstanding_.heardOther();
  send(query);
  askedAt_ = clock_.milliseconds();
  ++unanswered_;
  replies_.asked();
  state_ = State::replyAwaited;
  std::string received;
  try {
    std::string reply = awaitReply(received, askedAt_ + timeOut);
    unanswered_ = 0;
    // Unless it may be that to an earlier query, all that was requested before has come.
    if (!replies_.isDue(askedAt_)) outstanding_.clear();
    state_ = State::idle;
    replies_.returned(askedAt_, clock_.milliseconds());
    account_.gaveAnswer();
    return reply;
  } catch (...) {
    // They have come, whether the user has given up meanwhile or the line has failed.
    const std::int64_t cameAt = heardAt_;
    if (!received.empty()) hearOwed(received);
    heardAt_ = cameAt;
    leaveUnanswered();
    throw;
  }
}

void Conversation::request(LineRecord record) {
  account_.wantedRecord(clock_.milliseconds());
  hear(take(0));
  const bool waitsAlready = std::ranges::any_of(
      held_, [&](const LineRecord& held) { return held.channel == record.channel; });
  if (!waitsAlready) held_.push_back(std::move(record));
  sendHeld();
}

void Conversation::abandon() {
  isWanted_ = false;
  whole_.reset();
  held_.clear();
}

/// Outstanding bytes may still arrive after the line is opened again, or meanwhile, unheard.
void Conversation::close() {
  channel_.reset();
  ++openings_;
  replies_.mayHaveHeardMissing(judgedAt());
  whole_.reset();
  held_.clear();
  if (state_ == State::recordAwaited) {
    isStray_ = true;
    if (record_.bytes.empty()) owe();
  }
  if (state_ != State::idle) state_ = State::draining;
}

/// Another instrument has nothing outstanding.
void Conversation::forget() {
  state_ = State::idle;
  unanswered_ = 0;
  outstanding_.clear();
  outstanding_.heardOther();
  isStray_ = false;
  replies_.beginAnew();
  account_.beginAnew();
}

LineReport Conversation::report() const {
  LineReport report = account_.report(clock_.milliseconds());
  report.sureAt = replies_.sureAt(judgedAt());
  return report;
}

/// Among the bytes of a pending record may be a missing reply: until it is whole or given up, time
/// stands still.
std::int64_t Conversation::judgedAt() const {
  const std::int64_t now = clock_.milliseconds();
  const bool isUndecided = isRecordPending() && (now < trustedAt() || !record_.bytes.empty());
  return isUndecided ? askedAt_ : now;
}

template <class Transfer>
auto Conversation::transfer(Transfer use) {
  if (!channel_) throw closedError();
  try {
    return use(*channel_);
  } catch (const Error& error) {
    account_.lost(error.description());
    close();
    throw;
  }
}

void Conversation::send(std::string_view bytes) {
  transfer([bytes](ByteChannel& channel) { channel.write(bytes); });
}

std::string Conversation::take(std::int64_t timeOut) {
  return transfer(
      [timeOut](ByteChannel& channel) { return channel.read(static_cast<int>(timeOut)); });
}

/// Reads until `until`, or until the desktop's next turn is due.
std::string Conversation::listen(std::int64_t until) {
  standBy_.turn();
  if (standBy_.isGivenUp()) throw timeOutError();
  const std::int64_t left = until - clock_.milliseconds();
  return take(std::clamp<std::int64_t>(left, 0, StandBy::longestGap));
}

/// The state alone decides what the bytes belong to. awaitReply reads those of a reply itself.
void Conversation::hear(const std::string& bytes) {
  // A record may have arrived unread, so the clock alone does not end the wait for it.
  if (bytes.empty() || state_ == State::draining) review();
  if (bytes.empty()) return;
  if (state_ == State::recordAwaited)
    hearRecord(bytes);
  else if (state_ == State::recordHeard)
    hearBehindRecord(bytes);
  else
    hearOwed(bytes);
}

void Conversation::hearRecord(const std::string& bytes) {
  heardAt_ = clock_.milliseconds();
  record_.bytes += bytes;
  if (record_.bytes.size() < record_.count) return restUntilMoreHasCome();
  const std::string behind = record_.bytes.substr(record_.count);
  record_.bytes.resize(record_.count);
  outstanding_.heardRecord();
  if (outstanding_.areAny()) return refuseRecord(behind);
  state_ = State::recordHeard;
  clock_.callAfter(settlingTime(), [this, alive = std::weak_ptr(alive_)] {
    if (!alive.expired()) dispatcher_.dispatch([this] { arrived(); });
  });
  hearBehindRecord(behind);
}

/// Anything but a record's own end shows that a late reply may have come first and shifted all.
void Conversation::hearBehindRecord(std::string_view bytes) {
  const std::size_t own = outstanding_.take(bytes).bytes;
  if (own == bytes.size()) return;
  replies_.mayHaveHeardMissing(askedAt_);
  hearLines(bytes.substr(own), askedAt_);
}

/// The record may be an earlier one that was given up. The outstanding count stays the same: either
/// this record is outstanding, or the earlier one.
void Conversation::refuseRecord(std::string_view behind) {
  account_.heardLateRecord(clock_.milliseconds());
  state_ = State::draining;
  isOwedComing_ = true;
  drainTime_ = recordDrain;
  if (isWanted_) {
    // Asked first again. Otherwise a channel that always answers would wait for one that never
    // does.
    std::erase_if(held_,
                  [this](const LineRecord& held) { return held.channel == record_.channel; });
    record_.bytes.clear();
    held_.push_front(record_);
  }
  if (!behind.empty()) hearOwed(behind);
}

/// Rests for nine tenths of the time that the missing bytes take, repeatedly, so that the last
/// bytes are read as they arrive.
void Conversation::restUntilMoreHasCome() {
  constexpr int notWorthIt = 4;
  const double missing = openSettings_.timeOf(record_.count - record_.bytes.size());
  const int time = static_cast<int>(std::min<double>(0.9 * missing, longestRest));
  if (time > notWorthIt) channel_->rest(time);
}

/// Lines that no query waits for. Each one settles an outstanding reply; any beyond that are stray.
/// A line right behind another is stray too, since both may be halves of one.
void Conversation::hearLines(std::string_view bytes, std::int64_t since) {
  const std::int64_t now = clock_.milliseconds();
  state_ = State::draining;
  heardAt_ = now;
  if (!bytes.empty()) outstanding_.heardOther();
  int unasked = 0;
  for (const char byte : bytes) {
    const bool isBehindALine = now < lineEndAt_ + settling;
    if (!isBlank(byte) && (unanswered_ == 0 || isBehindALine)) ++unasked;
    if (byte != '\n') continue;
    if (unanswered_ > 0) replies_.heardOutstanding();
    unanswered_ = std::max(unanswered_ - 1, 0);
    lineEndAt_ = now;
  }
  if (unasked == 0) return;
  isStray_ = true;
  account_.heardUnasked(unasked, now);
  replies_.heardUnasked(since);
}

/// Bytes that no query waits for belong to outstanding records first, then to lines.
void Conversation::hearOwed(std::string_view bytes) {
  if (state_ == State::idle && !outstanding_.areAny() && isBlank(bytes)) return;
  bytes.remove_prefix(payWith(bytes));
  hearLines(bytes, clock_.milliseconds());
}

/// Takes outstanding records off the front of the bytes. Returns how many bytes these had.
std::size_t Conversation::payWith(std::string_view bytes) {
  const OutstandingRecords::Taken taken = outstanding_.take(bytes);
  if (!taken.areOfRecord) return taken.bytes;
  replies_.mayHaveHeardMissing(askedAt_);
  isOwedComing_ = true;
  drainTime_ = std::max(drainTime_, recordDrain);
  for (std::size_t i = 0; i < taken.whole; ++i) account_.heardLateRecord(clock_.milliseconds());
  return taken.bytes;
}

/// The pending record is given up. The rest of one that has broken off may come in front of a reply
/// or of another record, just like a missing reply.
void Conversation::owe() {
  if (outstanding_.add(record_.count, record_.bytes.size()))
    isOwedComing_ = false;
  else
    replies_.mayComeUnasked(clock_.milliseconds());
}

/// When the line can be trusted again if nothing more arrives.
std::int64_t Conversation::trustedAt() const {
  const std::int64_t quietSince = std::max(askedAt_, heardAt_);
  if (state_ == State::recordAwaited) return quietSince + longestThought;
  if (state_ == State::recordHeard) return heardAt_ + settlingTime();
  const bool isAllThere = unanswered_ == 0 && !outstanding_.areAny() && !isStray_;
  return quietSince + (isAllThere ? settling : drainTime_);
}

/// Ends whatever has been quiet for long enough.
void Conversation::review() {
  const std::int64_t now = clock_.milliseconds();
  if (state_ == State::idle || now < trustedAt()) return;
  if (state_ == State::recordAwaited) {
    account_.gaveUpRecord(record_.bytes.size(), record_.count, now);
    if (!record_.bytes.empty()) replies_.mayHaveHeardMissing(askedAt_);
    owe();
  }
  if (state_ == State::recordHeard) {
    if (outstanding_.mayBeShifted() && replies_.isDue(askedAt_))
      replies_.mayHaveHeardMissing(askedAt_);
    else if (isWanted_)
      whole_ = std::move(record_);
  }
  const bool isOwedOver = isOwedComing_ && now >= std::max(askedAt_, heardAt_) + recordDrain;
  if (state_ == State::draining) {
    const bool mayRestCome = isOwedOver ? outstanding_.giveUp() : outstanding_.dropBrokenOff();
    if (mayRestCome) replies_.mayComeUnasked(now);
    if (isOwedOver) isOwedComing_ = false;
  }
  // A query sent while the record arrived is answered after it.
  const bool isMoreOwed = state_ == State::recordHeard && unanswered_ > 0;
  state_ = isMoreOwed ? State::draining : State::idle;
  if (isMoreOwed) return;
  unanswered_ = 0;
  isStray_ = false;
  drainTime_ = longestThought;
}

bool Conversation::isSilent() const {
  return state_ == State::draining && unansweredInRow_ >= 2 && heardAt_ <= askedAt_;
}

void Conversation::makeReadyToAsk(int timeOut) {
  abandon();
  if (standBy_.isGivenUp()) throw timeOutError();
  drainTime_ = std::max(timeOut + drainMargin, longestThought);
  review();
  if (isRecordPending()) finishRecord();
  // The instrument has replied, or a pause was as long as a drain: it gets another chance.
  if (state_ == State::idle) unansweredInRow_ = 0;
  if (!isSilent()) drain(timeOut);
}

/// Waits for the rest of the record, however slowly its bytes trickle, up to a deadline.
void Conversation::finishRecord() {
  const double left = openSettings_.timeOf(record_.count - record_.bytes.size());
  const auto longest = static_cast<std::int64_t>(std::ceil(2 * left)) + restMargin;
  const std::int64_t deadline = clock_.milliseconds() + longest;
  while (isRecordPending() && clock_.milliseconds() < deadline)
    hear(listen(std::min(deadline, trustedAt())));
}

/// Raises the time-out error, and sends no query, if the line does not come to rest.
void Conversation::drain(int timeOut) {
  const int longest = isRestless_ ? timeOut : 2 * drainTime_;
  const std::int64_t deadline = clock_.milliseconds() + longest;
  while (state_ != State::idle) {
    if (clock_.milliseconds() >= deadline) {
      isRestless_ = true;
      account_.leftUnasked();
      throw timeOutError();
    }
    hear(listen(std::min(deadline, trustedAt())));
  }
  isRestless_ = false;
}

std::string Conversation::awaitReply(std::string& received, std::int64_t deadline) {
  while (true) {
    const std::size_t searched = received.size();
    received += listen(deadline);
    if (received.size() > searched) heardAt_ = clock_.milliseconds();
    const std::size_t end = received.find('\n', searched);
    if (end < longestReply) return onlyLine(received, end + 1);
    if (received.size() <= longestReply && clock_.milliseconds() < deadline) continue;
    if (!received.empty()) account_.missedLineEnd(received.size(), clock_.milliseconds());
    throw timeOutError();
  }
}

/// A line is the reply if no other reply is outstanding and nothing follows it: half of a damaged
/// reply is not one. While a record is outstanding, bytes as long as a record begin with it, and
/// those that have bytes of samples may be one that was cut.
std::string Conversation::onlyLine(std::string& received, std::size_t length) {
  const std::int64_t until = clock_.milliseconds() + settlingTime();
  const bool mayHaveSamples = outstanding_.areAny() || replies_.isDue(askedAt_);
  const bool hasRecord =
      (outstanding_.areAny() && length >= outstanding_.missingOfFirst()) ||
      (mayHaveSamples && hasSample(std::string_view(received).substr(0, length)));
  const auto isAlone = [&] {
    return unanswered_ == 1 && !hasRecord && isBlank(std::string_view(received).substr(length));
  };
  while (isAlone() && clock_.milliseconds() < until) received += listen(until);
  if (!isAlone()) throw timeOutError();
  return received.substr(0, length);
}

void Conversation::leaveUnanswered() {
  state_ = State::draining;
  ++unansweredInRow_;
  account_.missedAnswer();
  replies_.missed(clock_.milliseconds());
}

void Conversation::arrived() {
  if (!channel_) return;
  try {
    hear(take(0));
    // No query waits for these bytes: an endless stream must not keep the processor busy.
    if (state_ == State::draining) channel_->rest(StandBy::longestGap);
    if (whole_) {
      const LineRecord record = *std::exchange(whole_, std::nullopt);
      account_.gaveRecord(clock_.milliseconds());
      if (unanswered_ == 0) {
        replies_.heardRecord();
        outstanding_.clear();
      }
      delivered(record);
    }
    if (dispatcher_.isOpen()) sendHeld();
  } catch (const Error&) {
    // The line is closed now. The next user of the port opens it again or is told the reason.
    if (lost) lost();
  }
}

void Conversation::sendHeld() {
  if (state_ != State::idle || held_.empty()) return;
  hear(take(0));
  if (state_ != State::idle) return;
  record_ = std::move(held_.front());
  held_.pop_front();
  send(record_.request);
  askedAt_ = clock_.milliseconds();
  isWanted_ = true;
  state_ = State::recordAwaited;
}

/// How long after its last byte a reply is sure to be complete. Milliseconds.
int Conversation::settlingTime() const {
  return settling + static_cast<int>(std::ceil(openSettings_.timeOf(2)));
}

}  // namespace tracewell
