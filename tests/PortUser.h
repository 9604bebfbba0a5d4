// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LinePort.h"

namespace tracewell {

/// Uses a port as the program does, and keeps the records that it delivers.
class PortUser {
 public:
  explicit PortUser(LinePort& port) : port_(port) {
    port.dataReady = [this](const std::string& data) {
      records.emplace_back(port_.tag, data);
      port_.reset();
    };
  }

  void request(const std::string& channel) {
    port_.textMode = false;
    port_.prepare();
    port_.write(":ACQ" + channel + ":POIN\r\n", SerialPort::Expects::record);
    port_.tag = channel;
    port_.beginRead(1014);
  }
  void send(const std::string& line, SerialPort::Expects expects = SerialPort::Expects::nothing) {
    port_.textMode = true;
    port_.prepare();
    port_.write(line + "\r\n", expects);
  }
  /// The reply, or the number of the error.
  std::string ask(const std::string& query) {
    send(query, SerialPort::Expects::reply);
    std::string reply;
    try {
      reply = port_.read();
    } catch (const Error& error) {
      reply = std::to_string(error.number());
    }
    port_.reset();
    return reply;
  }

  /// Tag and bytes.
  std::vector<std::pair<std::string, std::string>> records;

 private:
  LinePort& port_;
};

}  // namespace tracewell
