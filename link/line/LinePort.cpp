// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinePort.h"

#include <utility>

#include "Flag.h"

namespace tracewell {
LinePort::LinePort(ChannelOpener& opener, Clock& clock, Gate& gate,
                   const EventDispatcher& dispatcher, StandBy& standBy)
    : SerialPort(gate), dispatcher_(dispatcher), conversation_(opener, clock, dispatcher, standBy) {
  conversation_.delivered = [this](const Conversation::Record& record) { deliver(record); };
}

void LinePort::prepareLine() {
  conversation_.use(settings);
  if (textMode) conversation_.abandon();
}

void LinePort::write(std::string_view bytes, Expects expects) {
  if (expects == Expects::reply || expects == Expects::record)
    request_ = bytes;
  else
    conversation_.command(bytes, expects == Expects::unreadReply);
}

std::string LinePort::read() {
  const int timeOut = readTimeOut > 0 ? readTimeOut : defaultReadTimeOut;
  std::string line = conversation_.ask(request_, timeOut);
  if (line.ends_with("\r\n")) line.erase(line.size() - 2, 1);
  return line;
}

void LinePort::beginRead(int count) {
  conversation_.request({.request = request_,
                         .tag = tag,
                         .stamp = stamp,
                         .count = static_cast<std::size_t>(count),
                         .bytes = {}});
}

void LinePort::reset() {
  if (std::exchange(isJustDelivered_, false)) return;
  conversation_.abandon();
}

void LinePort::deliver(const Conversation::Record& record) {
  dispatcher_.dispatch([&] {
    tag = record.tag;
    stamp = record.stamp;
    // Over before the box of a failing handler runs events.
    const Flag justDelivered(isJustDelivered_);
    dataReady.raise(record.bytes);
  });
}

}  // namespace tracewell
