// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>
#include <filesystem>
#include <map>
#include <optional>
#include <set>

#include "Clock.h"
#include "Error.h"
#include "Instrument.h"
#include "SerialPort.h"
#include "ServerAddress.h"
#include "StandBy.h"

namespace tracewell {

/// What the port numbers mean on this machine.
///
/// Number 0 is the built-in simulated instrument. On Windows n is COMn. Elsewhere 1 to 32 are ttyS0
/// to ttyS31, 33 to 64 ttyUSB0 to ttyUSB31, 65 to 96 ttyACM0 to ttyACM31. A link "comN" in the
/// program folder stands for number N whatever its range, and so does a file "comN" with the line
/// "tcp://host:port", which means a serial device server; on Windows from com10 on. Once seen, it
/// stands for that number until the program ends. A number does not become the usual device when a
/// link goes, nor another server.
class PortDirectory : public ChannelOpener, public PortList {
 public:
  PortDirectory(std::filesystem::path programFolder, Clock& clock, StandBy& standBy);

  std::unique_ptr<ByteChannel> open(const LineSettings& settings) override;
  std::vector<Entry> ports() override;
  std::string deviceOf(std::int16_t number) override;
  State stateOf(std::int16_t number) override;

 private:
  std::filesystem::path overrideOf(int number) const;
  bool isOverridden(int number) const;
  /// Empty if the number is no server's. Raises an error if its file cannot be read as one.
  std::optional<ServerAddress> serverOf(int number);
  std::unique_ptr<ByteChannel> openServer(const ServerAddress& server);
  QString systemDevice(int number) const;
  bool isPresent(int number, const QSet<QString>& devices) const;

  std::filesystem::path programFolder_;
  /// The numbers that have had a file or link of their own during this run.
  mutable std::set<int> overridden_;
  std::map<int, ServerAddress> servers_;
  /// A server that did not answer, and until when it is not tried again.
  struct Silence {
    ServerAddress server;
    Error error;
    std::int64_t until;
  };
  std::optional<Silence> silence_;
  Clock& clock_;
  StandBy& standBy_;
  Instrument simulatedInstrument_;
};

}  // namespace tracewell
