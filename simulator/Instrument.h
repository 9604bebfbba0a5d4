// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "Faults.h"
#include "Screen.h"
#include "Settings.h"

namespace tracewell {

/// How long a byte takes on the line.
struct LineRate {
  int baudRate = 19200;
  int dataBits = 8;
  bool hasParity = false;
  int stopBits = 1;

  /// Milliseconds; the start bit counts too.
  double byteTime() const {
    return 1000.0 * (1 + dataBits + (hasParity ? 1 : 0) + stopBits) / baudRate;
  }
};

/// The simulated KRM-410: lines in, bytes out, each at the time when a real line would carry it.
/// Times are milliseconds on any scale that does not step back.
///
/// Commands may stand with or without a leading ":", in capitals or not, and end with LF or CR LF.
/// A query of a setting, a measurement, "*IDN?" or "SYST:ERR?" is answered with a line that ends
/// with LF; ":ACQ1:POIN" with a record. What is not understood is counted and not answered.
class Instrument {
 public:
  /// Applies to what is sent from now on.
  void setLineRate(const LineRate& rate) { rate_ = rate; }

  /// Bytes that the panel puts on the line at `now`.
  void receive(std::string_view bytes, double now);
  /// The bytes that have come out of the line by `now` and were not taken yet.
  std::string transmit(double now);
  /// When the next byte comes out; none while nothing is to be sent.
  std::optional<double> nextByteAt() const;

  /// The cable has been pulled by the HANGUP fault. plugIn ends that, and all that was under way.
  bool hasHungUp() const { return faults_.hangUpAfter == 0; }
  void plugIn();

  /// A line as under ":SIM:", for example "DROP 7". False if it is none.
  bool setFault(const std::string& line);

 private:
  void obey(std::string line, double at);
  void answerQuery(const std::string& name, double at);
  std::optional<std::string> replyTo(const std::string& name);
  void sendRecord(int channel, double at);
  void sendLine(std::string reply, double at);
  void send(const std::string& bytes, double at);
  void autoset(double at);

  struct TimedByte {
    double at;
    char byte;
  };

  LineRate rate_;
  InstrumentSettings settings_;
  Screen screen_;
  Faults faults_;
  std::string line_;
  std::deque<TimedByte> sending_;
  double receivedUntil_ = 0;
  double sentUntil_ = 0;
  double busyUntil_ = 0;
  long sentCount_ = 0;
  long queryCount_ = 0;
  int errorCount_ = 0;
};

}  // namespace tracewell
