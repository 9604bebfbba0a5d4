// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LinePort.h"

namespace tracewell {

/// Uses a port as the program does, and keeps the records that it delivers.
class PortUser {
 public:
  explicit PortUser(LinePort& port) : port_(port) {
    port.dataReady = [this](const LineRecord& record) { records.push_back(record); };
  }

  void request(std::int16_t channel) {
    port_.prepare();
    port_.request({.request = ":ACQ" + std::to_string(channel) + ":POIN\r\n",
                   .channel = channel,
                   .stamp = stamp,
                   .count = 1014});
  }
  void send(const std::string& line, SerialPort::Reply reply = SerialPort::Reply::none) {
    port_.prepare();
    port_.command(line + "\r\n", reply);
  }
  /// The reply, or the number of the error.
  std::string ask(const std::string& query) {
    port_.prepare();
    try {
      return port_.query(query + "\r\n", timeOut);
    } catch (const Error& error) {
      return std::to_string(error.number());
    }
  }

  std::vector<LineRecord> records;
  int timeOut = 0;
  std::int64_t stamp = 0;

 private:
  LinePort& port_;
};

}  // namespace tracewell
