// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

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

/// The same trial for every kind of port: records are given up half-way in every way that the
/// program knows, against the simulated instrument, and nothing of them may turn up later.
class AbandonedRecords {
 public:
  /// `run` lets events happen for so many milliseconds.
  AbandonedRecords(LinePort& port, std::function<void(int)> run)
      : port_(port), run_(std::move(run)) {}

  void tryAt(int baudRate) {
    SCOPED_TRACE(baudRate);
    port_.settings.baudRate = baudRate;
    port_.readTimeOut = 2000;
    const int recordTime = 1014 * 10 * 1000 / baudRate;
    user_.request("1");
    run_(recordTime / 3);
    EXPECT_EQ(user_.ask("*IDN?"), "KRM-410 SIMULATED\n");

    user_.request("2");
    run_(recordTime / 2);
    port_.reset();
    user_.send(":CHAN1:SCAL 2");
    port_.reset();
    EXPECT_EQ(user_.ask(":CHAN1:SCAL?"), "2.000 V\n");

    user_.request("1");
    run_(recordTime / 4);
    user_.send(":CHAN1:SCAL 5E-1");
    port_.reset();
    user_.request("2");
    for (int waited = 0; user_.records.empty() && waited < 3 * recordTime + 5000; waited += 50)
      run_(50);
    run_(100);
    ASSERT_EQ(user_.records.size(), 1u);
    EXPECT_EQ(user_.records[0].first, "2");
    EXPECT_EQ(user_.records[0].second.substr(0, 12), "KRM410 REC 2");
    user_.records.clear();
  }

 private:
  LinePort& port_;
  std::function<void(int)> run_;
  PortUser user_{port_};
};

}  // namespace tracewell
