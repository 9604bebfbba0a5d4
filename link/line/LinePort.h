// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "Conversation.h"
#include "SerialPort.h"

namespace tracewell {

/// The port over any ByteChannel. Conversation carries out the transfers.
class LinePort : public SerialPort {
 public:
  LinePort(ChannelOpener& opener, Clock& clock, Gate& gate, const EventDispatcher& dispatcher,
           StandBy& standBy);
  LinePort(const LinePort&) = delete;

  std::int16_t openPort() const override { return conversation_.openSettings().portNumber; }
  int openings() const override { return conversation_.openings(); }
  LineReport report() const override { return conversation_.report(); }
  int lastReply() const override { return conversation_.lastReply(); }
  Sureness sureness(int reply) const override { return conversation_.sureness(reply); }
  void command(std::string_view line, Reply reply) override;
  std::string query(std::string_view line, int timeOut) override;
  void request(LineRecord record) override { conversation_.request(std::move(record)); }
  void abandon() override { conversation_.abandon(); }

 private:
  void prepareLine() override { conversation_.use(settings); }

  Conversation conversation_;
};

}  // namespace tracewell
