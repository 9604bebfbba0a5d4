// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinePort.h"

#include <algorithm>
#include <utility>

namespace tracewell {
namespace {

Error timeOutError() {
  return {portReadTimeOut, "RS232", "The instrument did not reply in time"};
}

}  // namespace

LinePort::LinePort(ChannelOpener& opener, const Clock& clock, const EventDispatcher& dispatcher)
    : opener_(opener), clock_(clock), dispatcher_(dispatcher) {}

void LinePort::prepare() {
  if (channel_ && !(openSettings_ == settings)) close();
  if (!channel_) open();
  if (textMode) {
    abandonTransfer();
    std::string stale = take(0);
    swallowOwed(stale);
    return;
  }
  // Events may not have run for a while: a record may be on its way although the line seems quiet.
  std::string waiting = take(0);
  swallowOwed(waiting);
  gather(waiting);
  mustHold_ = isLineBusy();
  if (mustHold_) return;
  current_.reset();
  held_.reset();
}

void LinePort::write(std::string_view bytes) {
  if (textMode) {
    if (bytes.ends_with("?\r\n")) awaitQuietLine();
    send(bytes);
  } else if (!mustHold_) {
    request({.request = std::string(bytes), .tag = {}, .received = {}});
  } else if (!held_) {
    held_ = Record{.request = std::string(bytes), .tag = {}, .received = {}};
  }
}

std::string LinePort::read() {
  const int timeOut = readTimeOut > 0 ? readTimeOut : defaultReadTimeOut;
  const std::int64_t deadline = clock_.milliseconds() + timeOut;
  std::string received;
  while (received.find('\n') == std::string::npos) {
    const std::int64_t left = deadline - clock_.milliseconds();
    const std::string bytes = left > 0 ? take(left) : std::string();
    if (bytes.empty() || received.size() > longestReply) {
      isLineOwed_ = true;
      quietAt_ = clock_.milliseconds() + timeOut;
      if (bytes.empty()) throw timeOutError();
      throw Error(deviceError, "RS232", "The reply of the instrument has no end");
    }
    received += bytes;
  }
  return replyLine(std::move(received));
}

std::string LinePort::replyLine(std::string received) const {
  received.resize(received.find('\n') + 1);
  if (received.ends_with("\r\n")) received.erase(received.size() - 2, 1);
  return received;
}

void LinePort::beginRead(int count) {
  std::optional<Record>& record = held_ ? held_ : current_;
  if (!record) record = Record{};
  // A held request that has been told its count stays as it is: it is the older one.
  if (record->count != 0) return;
  record->count = static_cast<std::size_t>(count);
  record->tag = tag;
}

void LinePort::reset() {
  if (isDelivering_) return;
  abandonTransfer();
  if (!channel_) return;
  try {
    std::string stale = take(0);
    swallowOwed(stale);
  } catch (const Error&) {
    // The line is gone, so nothing is left to reset; the next prepare says so if it stays away.
  }
}

void LinePort::open() {
  channel_ = opener_.open(settings);
  openSettings_ = settings;
  channel_->readable = [this] { dispatcher_.dispatch([this] { arrived(); }); };
}

/// A line that is opened anew owes nothing.
void LinePort::close() {
  channel_.reset();
  current_.reset();
  held_.reset();
  unanswered_ = 0;
  owedBytes_ = 0;
  isLineOwed_ = false;
}

void LinePort::send(std::string_view bytes) {
  if (!channel_) throw Error(deviceError, "RS232", "The port is not open");
  try {
    channel_->write(bytes);
  } catch (const Error&) {
    close();
    throw;
  }
}

std::string LinePort::take(std::int64_t timeOut) {
  if (!channel_) throw Error(deviceError, "RS232", "The port is not open");
  try {
    return channel_->read(static_cast<int>(timeOut));
  } catch (const Error&) {
    close();
    throw;
  }
}

void LinePort::request(Record record) {
  current_ = std::move(record);
  send(current_->request);
  ++unanswered_;
  quietAt_ = clock_.milliseconds() + longestThought;
}

void LinePort::abandonTransfer() {
  held_.reset();
  if (!current_) return;
  // While requests are unanswered each may still bring a whole record.
  owedBytes_ += std::max<std::size_t>(unanswered_, 1) * current_->count - current_->received.size();
  unanswered_ = 0;
  current_.reset();
}

bool LinePort::isLineBusy() {
  if (clock_.milliseconds() >= quietAt_) {
    owedBytes_ = 0;
    isLineOwed_ = false;
    return false;
  }
  return owedBytes_ > 0 || isLineOwed_ || (current_ && !current_->received.empty());
}

void LinePort::awaitQuietLine() {
  while (isLineBusy()) {
    std::string bytes = take(quietAt_ - clock_.milliseconds());
    swallowOwed(bytes);
  }
}

void LinePort::swallowOwed(std::string& bytes) {
  if (isLineOwed_ && !bytes.empty()) {
    const std::size_t end = bytes.find('\n');
    isLineOwed_ = end == std::string::npos;
    bytes.erase(0, isLineOwed_ ? bytes.size() : end + 1);
  }
  if (owedBytes_ > 0 && !bytes.empty()) {
    const std::size_t swallowed = std::min(owedBytes_, bytes.size());
    owedBytes_ -= swallowed;
    bytes.erase(0, swallowed);
    quietAt_ = clock_.milliseconds() + quietGap;
  }
}

void LinePort::arrived() {
  if (!channel_) return;
  std::string bytes;
  try {
    bytes = take(0);
  } catch (const Error&) {
    return;  // Closed now. Whoever uses the port next opens it again or is told the reason.
  }
  swallowOwed(bytes);
  gather(bytes);
  deliverWhole();
  requestHeld();
}

void LinePort::requestHeld() {
  if (!held_ || held_->count == 0 || isLineBusy()) return;
  try {
    request(*std::exchange(held_, std::nullopt));
  } catch (const Error&) {
    // Closed now, as above: the next request is told the reason.
  }
}

void LinePort::gather(const std::string& bytes) {
  if (bytes.empty() || !current_) return;
  quietAt_ = clock_.milliseconds() + quietGap;
  current_->received += bytes;
}

void LinePort::deliverWhole() {
  if (!current_ || current_->count == 0 || current_->received.size() < current_->count) return;
  Record record = *std::exchange(current_, std::nullopt);
  const std::size_t missed = unanswered_ > 0 ? unanswered_ - 1 : 0;
  unanswered_ = 0;
  owedBytes_ += missed * record.count;
  std::string behind = record.received.substr(record.count);
  record.received.resize(record.count);
  swallowOwed(behind);
  deliver(std::move(record));
}

void LinePort::deliver(Record record) {
  tag = record.tag;
  isDelivering_ = true;
  dispatcher_.dispatch([&] { dataReady.raise(record.received); });
  isDelivering_ = false;
}

}  // namespace tracewell
