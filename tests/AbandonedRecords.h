// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "LinePort.h"

namespace tracewell {

/// The same trial for every kind of port: records are given up half-way in every way that the
/// program knows, against the simulated instrument, and nothing of them may turn up later.
class AbandonedRecords {
 public:
  /// `run` lets events happen for so many milliseconds.
  AbandonedRecords(LinePort& port, std::function<void(int)> run)
      : port_(port), run_(std::move(run)) {
    port.dataReady = [this](const std::string& data) {
      records_.emplace_back(port_.tag, data);
      port_.reset();
    };
  }

  void tryAt(int baudRate) {
    SCOPED_TRACE(baudRate);
    port_.settings.baudRate = baudRate;
    port_.readTimeOut = 2000;
    const int recordTime = 1014 * 10 * 1000 / baudRate;
    request("1");
    run_(recordTime / 3);
    EXPECT_EQ(ask("*IDN?"), "KRM-410 SIMULATED\n");

    request("2");
    run_(recordTime / 2);
    port_.reset();
    send(":CHAN1:SCAL 2");
    EXPECT_EQ(ask(":CHAN1:SCAL?"), "2.000 V\n");

    request("1");
    run_(recordTime / 4);
    send(":CHAN1:SCAL 5E-1");
    request("2");
    run_(2 * recordTime + 600);
    ASSERT_EQ(records_.size(), 1u);
    EXPECT_EQ(records_[0].first, "2");
    EXPECT_EQ(records_[0].second.substr(0, 12), "KRM410 REC 2");
    records_.clear();
  }

 private:
  void request(const std::string& channel) {
    port_.textMode = false;
    port_.prepare();
    port_.write(":ACQ" + channel + ":POIN\r\n");
    port_.tag = channel;
    port_.beginRead(1014);
  }
  void send(const std::string& line) {
    port_.textMode = true;
    port_.prepare();
    port_.write(line + "\r\n");
    port_.reset();
  }
  std::string ask(const std::string& query) {
    port_.textMode = true;
    port_.prepare();
    port_.write(query + "\r\n");
    const std::string reply = port_.read();
    port_.reset();
    return reply;
  }

  LinePort& port_;
  std::function<void(int)> run_;
  std::vector<std::pair<std::string, std::string>> records_;
};

}  // namespace tracewell
