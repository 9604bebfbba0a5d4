// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ByteChannel.h"
#include "Gate.h"
#include "LineReport.h"
#include "Property.h"

namespace tracewell {

/// The port to the instrument: command lines with their reply lines, and binary records of a known
/// length. Implemented by LinePort, and by tests/ScriptedPort.
///
/// Every operation may raise an Error. A missing reply raises number 30312 (portReadTimeOut), so
/// that a silent instrument can be told from a broken line. While an operation waits, no handler
/// runs and the window stays alive; if the program is to end, it throws ProgramEnded. Only
/// dataReady comes from the event loop.
class SerialPort {
 public:
  explicit SerialPort(const Gate& gate) : gate_(gate) {}
  virtual ~SerialPort() = default;

  /// Takes effect at the next prepare. The same settings again leave an open line open.
  LineSettings settings;
  /// Milliseconds that read waits for a whole reply; 0 or less means defaultReadTimeOut.
  int readTimeOut = defaultReadTimeOut;
  static constexpr int defaultReadTimeOut = 2000;
  /// True while command lines are exchanged, false for a binary record.
  bool textMode = true;
  /// Free for the program. beginRead keeps it and restores it before that record's dataReady.
  std::string tag;
  /// Free for the program, kept and restored like tag. A request that is left out because one of
  /// its tag is waiting leaves no stamp.
  std::int64_t stamp = 0;

  /// Makes the line ready for a transfer and opens it if need be. In text mode it abandons a
  /// pending record; in binary mode the record goes on, and the next request waits for its end.
  /// Raises deviceError if the line cannot be opened. Throws ProgramEnded once the program has
  /// ended.
  void prepare() {
    gate_.mustBeOpen();
    prepareLine();
  }

  /// The number of the port that was opened last, whatever `settings` say about the next one. At
  /// dataReady it is the port of the record: a record that is pending when a line is closed is
  /// never delivered.
  virtual std::int16_t openPort() const = 0;

  /// How often a line has been opened; another instrument may be on it each time. At dataReady it
  /// names the line of the record, as openPort does.
  virtual int openings() const = 0;

  /// What has gone wrong on the line lately.
  virtual LineReport report() const = 0;

  /// What the instrument sends in reply to a line.
  enum class Expects { nothing, reply, record };

  /// Sends the bytes of a command at once. If a reply or record is expected, read or beginRead
  /// sends them, since they know how to await it.
  virtual void write(std::string_view bytes, Expects expects) = 0;

  /// Sends the query and returns its reply line with the LF, without a CR before it. First waits
  /// for outstanding replies, so that none is taken for this one; then up to readTimeOut for the
  /// reply.
  virtual std::string read() = 0;

  /// Requests a record of `count` bytes and raises dataReady when it is whole. While the line is
  /// busy the request waits, one for each tag.
  virtual void beginRead(int count) = 0;

  /// Ends the transfer and discards what has arrived. The first call inside dataReady ends the
  /// record just delivered and keeps a waiting request.
  virtual void reset() = 0;

  Event<const std::string&> dataReady;

 private:
  virtual void prepareLine() = 0;

  const Gate& gate_;
};

/// The ports of this machine, for the user to choose from.
class PortList {
 public:
  virtual ~PortList() = default;

  /// The simulated instrument that the program carries.
  static constexpr std::int16_t simulatedPort = 0;

  struct Entry {
    std::int16_t number;
    /// The device's name, for example "ttyUSB0" or "simulated instrument".
    std::string device;
  };
  /// The ports that are there now, in ascending order.
  virtual std::vector<Entry> ports() = 0;

  /// The device that a number means, whether it is there now or not; empty for a number without
  /// one.
  virtual std::string deviceOf(std::int16_t number) = 0;

  /// Whether its device could be opened, as far as that shows without trying.
  enum class State { ready, absent, inUseElsewhere };
  virtual State stateOf(std::int16_t number) = 0;
};

}  // namespace tracewell
