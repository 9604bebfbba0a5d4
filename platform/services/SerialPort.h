// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ByteChannel.h"
#include "Gate.h"
#include "LineRecord.h"
#include "LineReport.h"
#include "Property.h"
#include "Sureness.h"

namespace tracewell {

/// The port to the instrument: commands, queries with their reply lines, and binary records.
/// Implemented by LinePort, and by tests/ScriptedPort.
///
/// Every operation may raise an Error; a missing reply raises number 30312 (portReadTimeOut), so
/// that a silent instrument can be told from a broken line. While a query waits no handler runs,
/// the window stays alive, and ProgramEnded is thrown out of it when the end has been asked for.
/// Only dataReady and lost arrive out of the event loop.
class SerialPort {
 public:
  static constexpr int defaultReadTimeOut = 2000;

  explicit SerialPort(const Gate& gate) : gate_(gate) {}
  virtual ~SerialPort() = default;

  /// Takes effect at the next prepare. The same settings again leave an open line open.
  LineSettings settings;

  /// Opens the line if need be; each of the transfers below wants one that is open. Raises
  /// deviceError if it cannot be opened. Throws ProgramEnded once the program has ended.
  void prepare() {
    gate_.mustBeOpen();
    prepareLine();
  }

  /// The number of the port that was opened last, whatever `settings` say about the next one. At
  /// dataReady it is the port of the record: a record that is pending when a line is closed is
  /// never delivered.
  virtual std::int16_t openPort() const = 0;

  /// How often a line has been opened or closed; another instrument may be on it each time. At
  /// dataReady it names the line of the record, as openPort does.
  virtual int openings() const = 0;

  /// What has gone wrong on the line lately.
  virtual LineReport report() const = 0;

  /// The number of the reply that was returned last. They are counted over all lines.
  virtual int lastReply() const = 0;

  /// Whether that reply is the one to its query. It may become sure, or turn out to be another's.
  virtual Sureness sureness(int reply) const = 0;
  bool isSure(int reply) const { return sureness(reply) == Sureness::sure; }

  /// What the instrument sends back to a command: nothing, or a reply that is not read.
  enum class Reply { none, unread };

  /// Sends a line, with its CR LF. It does not wait. Gives up a record that is on its way, as
  /// abandon does.
  virtual void command(std::string_view line, Reply reply) = 0;

  /// Sends a query, with its CR LF, and returns its reply line with the LF; a CR before the LF is
  /// left out. Waits up to `timeOut` milliseconds for it (defaultReadTimeOut where that is 0 or
  /// less), and before that for the answers to what was asked earlier, so that none of them is
  /// taken for it. Gives up a record that is on its way, as abandon does.
  virtual std::string query(std::string_view line, int timeOut) = 0;

  /// Requests a record; dataReady is raised with it when it is whole. While the line is busy the
  /// request waits, one for each channel.
  virtual void request(LineRecord record) = 0;

  /// Nobody wants the records any longer that are on their way or wait for the line.
  virtual void abandon() = 0;

  Event<const LineRecord&> dataReady;
  /// The line has failed while nobody used it; the report says why.
  Event<> lost;

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
