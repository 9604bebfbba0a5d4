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
/// Every operation may raise an Error; a missing reply raises number 30312 (portReadTimeOut), so
/// that a silent instrument can be told from a broken line. While one waits no handler runs, the
/// window stays alive, and ProgramEnded is thrown out of it when the end has been asked for. Only
/// dataReady arrives out of the event loop.
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
  /// Free for the program. beginRead keeps it, and it is put back before that record's dataReady.
  std::string tag;
  /// Free for the program, like tag: beginRead keeps it, and it is put back before that record's
  /// dataReady. A request that is left out, since one of its tag waits already, leaves no stamp.
  std::int64_t stamp = 0;

  /// Makes the line ready for a transfer and opens it if need be. In text mode it ends a record
  /// still under way; in binary mode that goes on, and the next request waits for its end. Raises
  /// deviceError if the line cannot be opened. Throws ProgramEnded once the program has ended.
  void prepare() {
    gate_.mustBeOpen();
    prepareLine();
  }

  /// The number of the port that was opened last, whatever `settings` say about the next one. At
  /// dataReady it is the one that the record was asked for and has come on: what is on its way when
  /// a line is closed is never delivered.
  virtual std::int16_t openPort() const = 0;

  /// How often a line has been opened; another instrument may be on it each time. At dataReady it
  /// tells, as openPort does, the line of the record.
  virtual int openings() const = 0;

  /// What has gone wrong on the line lately.
  virtual LineReport report() const = 0;

  /// What the instrument answers to a line; an unread reply is one that nobody waits for.
  enum class Expects { nothing, reply, record, unreadReply };

  /// Sends the bytes of a command, at once. Those whose answer is awaited are sent by read or
  /// beginRead, which know how it is to be awaited.
  virtual void write(std::string_view bytes, Expects expects) = 0;

  /// Sends the query and returns its reply line with the LF; a CR before the LF is left out. Waits
  /// up to readTimeOut for it, and before that for the answers to what was asked earlier, so that
  /// none of them is taken for it.
  virtual std::string read() = 0;

  /// Requests a record of `count` bytes; dataReady is raised with it when it is whole. While the
  /// line is busy the request waits, one for each tag.
  virtual void beginRead(int count) = 0;

  /// Ends the transfer and drops what has arrived. The first one inside dataReady ends the record
  /// just delivered and leaves a request that waits behind it in place.
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
  /// The ports that are there now, by rising number.
  virtual std::vector<Entry> ports() = 0;

  /// The device that a number means, whether it is there now or not; empty for a number without
  /// one.
  virtual std::string deviceOf(std::int16_t number) = 0;

  /// Whether its device could be opened, as far as that shows from outside.
  enum class State { ready, absent, inUseElsewhere };
  virtual State stateOf(std::int16_t number) = 0;
};

}  // namespace tracewell
