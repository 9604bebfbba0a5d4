// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "Conversation.h"
#include "SerialPort.h"

namespace tracewell {

/// The port over any ByteChannel. What a transfer means on the line is the Conversation's.
class LinePort : public SerialPort {
 public:
  LinePort(ChannelOpener& opener, Clock& clock, Gate& gate, const EventDispatcher& dispatcher,
           StandBy& standBy);
  LinePort(const LinePort&) = delete;

  std::int16_t openPort() const override { return conversation_.openSettings().portNumber; }
  int openings() const override { return conversation_.openings(); }
  LineReport report() const override { return conversation_.report(); }
  void write(std::string_view bytes, Expects expects) override;
  std::string read() override;
  void beginRead(int count) override;
  void reset() override;

 private:
  void prepareLine() override;
  void deliver(const Conversation::Record& record);

  const EventDispatcher& dispatcher_;
  Conversation conversation_;
  /// The line that read or beginRead sends.
  std::string request_;
  /// The next reset is the one that ends the record just delivered.
  bool isJustDelivered_ = false;
};

}  // namespace tracewell
