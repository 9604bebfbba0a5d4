// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <memory>
#include <string>

#include "ByteChannel.h"
#include "Error.h"
#include "VirtualClock.h"

namespace tracewell {

/// A line that delivers its answers byte by byte at a rate of its own. The far end outlives the
/// channels that are opened to it, as an instrument outlives a cable.
struct FarEnd {
  /// What to answer to a line, without CR LF.
  std::function<std::string(const std::string& line)> answer;
  /// Milliseconds from a line to the first byte of its answer, and between bytes. May be changed by
  /// `answer` for the answer that it gives.
  double thought = 5;
  double byteTime = 0.5;
  /// It pauses once, behind so many bytes of an answer that is longer.
  std::size_t pauseBehind = std::string::npos;
  double pause = 3500;
  /// Bytes that nobody has asked for. They go out from the next time on that the channel is read.
  std::string unasked;
  /// When all that is to be sent has been sent.
  double lineFreeAt = 0;
  /// After so many bytes the line is gone.
  std::size_t hangUpAfter = std::string::npos;
  bool isAway = false;
  /// It takes nothing more, but may still send.
  bool isDeaf = false;
  int opened = 0;
  /// How often it was looked whether anything had come.
  int looks = 0;
};

class PacedChannel : public ByteChannel {
 public:
  PacedChannel(FarEnd& farEnd, VirtualClock& clock) : farEnd_(farEnd), clock_(clock) {}

  void write(std::string_view bytes) override {
    if (isGone() || farEnd_.isDeaf) throw Error(deviceError, "RS232", "gone");
    const std::string line(bytes.substr(0, bytes.size() - 2));
    const std::string answer = farEnd_.answer(line);
    sendFrom(static_cast<double>(clock_.milliseconds()) + farEnd_.thought, answer);
    announce();
  }

  void rest(int milliseconds) override { restsUntil_ = clock_.milliseconds() + milliseconds; }

  std::string read(int timeOut) override {
    ++farEnd_.looks;
    restsUntil_ = 0;
    std::string bytes = take();
    for (int waited = 0; bytes.empty() && waited < timeOut && !isGone(); ++waited) {
      clock_.sleep(1);
      bytes = take();
    }
    if (bytes.empty() && isGone()) throw Error(deviceError, "RS232", "gone");
    return bytes;
  }

 private:
  bool isGone() const { return farEnd_.isAway || taken_ >= farEnd_.hangUpAfter; }

  void sendFrom(double at, const std::string& bytes) {
    farEnd_.lineFreeAt = std::max(farEnd_.lineFreeAt, at);
    const bool isPausing = bytes.size() > farEnd_.pauseBehind;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if (isPausing && i == farEnd_.pauseBehind) farEnd_.lineFreeAt += farEnd_.pause;
      due_.emplace_back(farEnd_.lineFreeAt += farEnd_.byteTime, bytes[i]);
    }
    if (isPausing) farEnd_.pauseBehind = std::string::npos;
  }

  std::string take() {
    if (!farEnd_.unasked.empty()) announce();
    sendFrom(static_cast<double>(clock_.milliseconds()), std::exchange(farEnd_.unasked, {}));
    std::string bytes;
    while (!due_.empty() && due_.front().first <= static_cast<double>(clock_.milliseconds()) &&
           taken_ < farEnd_.hangUpAfter) {
      bytes += due_.front().second;
      due_.pop_front();
      ++taken_;
    }
    return bytes;
  }

  void announce() {
    clock_.callAfter(10, [this, alive = std::weak_ptr(alive_)] {
      if (alive.expired()) return;
      if (!due_.empty() && !isGone()) announce();
      const std::function<void()> tell = readable;
      if (tell && (isGone() || clock_.milliseconds() >= restsUntil_)) tell();
    });
  }

  FarEnd& farEnd_;
  VirtualClock& clock_;
  std::deque<std::pair<double, char>> due_;
  std::size_t taken_ = 0;
  std::int64_t restsUntil_ = 0;
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

class PacedOpener : public ChannelOpener {
 public:
  explicit PacedOpener(VirtualClock& clock) : clock_(clock) {}
  std::unique_ptr<ByteChannel> open(const LineSettings&) override {
    if (farEnd.isAway) throw Error(deviceError, "RS232", "no such port");
    ++farEnd.opened;
    farEnd.lineFreeAt = 0;
    return std::make_unique<PacedChannel>(farEnd, clock_);
  }
  FarEnd farEnd;

 private:
  VirtualClock& clock_;
};

}  // namespace tracewell
