// SPDX-License-Identifier: GPL-3.0-or-later
#include "LinePort.h"

namespace tracewell {

LinePort::LinePort(ChannelOpener& opener, Clock& clock, Gate& gate,
                   const EventDispatcher& dispatcher, StandBy& standBy)
    : SerialPort(gate), conversation_(opener, clock, dispatcher, standBy) {
  conversation_.delivered = [this, &dispatcher](const LineRecord& record) {
    dispatcher.dispatch([&] { dataReady.raise(record); });
  };
  conversation_.lost = [this, &dispatcher] { dispatcher.dispatch([this] { lost.raise(); }); };
}

void LinePort::command(std::string_view line, Reply reply) {
  conversation_.abandon();
  conversation_.command(line, reply == Reply::unread);
}

std::string LinePort::query(std::string_view line, int timeOut) {
  std::string reply = conversation_.ask(line, timeOut > 0 ? timeOut : defaultReadTimeOut);
  if (reply.ends_with("\r\n")) reply.erase(reply.size() - 2, 1);
  return reply;
}

}  // namespace tracewell
