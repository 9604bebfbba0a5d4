// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "Clock.h"
#include "EventDispatcher.h"
#include "SerialPort.h"

namespace tracewell {

/// The port's rules of conversation over any ByteChannel: reply lines, records, and above all what
/// happens to bytes that were asked for and are no longer wanted.
///
/// An abandoned record is *owed*: its bytes are still on their way and are swallowed when they
/// come, until all are there or the line has been quiet for long enough. A query waits for that; a
/// plain command does not, as nothing comes back for it; the request of a further record is *held*
/// and goes out by itself when the line is free, so that a trace still refreshes where a record
/// takes longer than the time between two requests.
class LinePort : public SerialPort {
 public:
  /// Milliseconds that an instrument may think before the first byte of a record.
  static constexpr int longestThought = 1000;
  /// A line that was sending and has been quiet for so many milliseconds has nothing more to say.
  static constexpr int quietGap = 250;
  /// A reply of more bytes than this that still has no end is babble.
  static constexpr std::size_t longestReply = 65536;

  LinePort(ChannelOpener& opener, const Clock& clock, const EventDispatcher& dispatcher);
  LinePort(const LinePort&) = delete;

  void prepare() override;
  void write(std::string_view bytes) override;
  std::string read() override;
  void beginRead(int count) override;
  void reset() override;
  std::int16_t openPort() const override { return openSettings_.portNumber; }

 private:
  struct Record {
    std::string request;
    std::string tag;
    /// 0 until beginRead has told it.
    std::size_t count = 0;
    std::string received;
  };

  void open();
  void close();
  void send(std::string_view bytes);
  std::string take(std::int64_t timeOut);
  void request(Record record);
  void abandonTransfer();
  bool isLineBusy();
  void awaitQuietLine();
  void swallowOwed(std::string& bytes);
  void arrived();
  void requestHeld();
  void gather(const std::string& bytes);
  void deliverWhole();
  void deliver(Record record);
  std::string replyLine(std::string received) const;

  ChannelOpener& opener_;
  const Clock& clock_;
  const EventDispatcher& dispatcher_;
  std::unique_ptr<ByteChannel> channel_;
  LineSettings openSettings_;

  /// The record that comes next, and the one whose request waits for its end.
  std::optional<Record> current_;
  std::optional<Record> held_;
  /// What prepare has found: whether the next request has to wait.
  bool mustHold_ = false;
  /// Requests written for which no record has come: more than one if the instrument missed some or
  /// has been slow.
  std::size_t unanswered_ = 0;
  std::size_t owedBytes_ = 0;
  /// A reply whose time-out has passed and which may still come.
  bool isLineOwed_ = false;
  /// When nothing is owed any longer, on Clock's scale.
  std::int64_t quietAt_ = 0;
  bool isDelivering_ = false;
};

}  // namespace tracewell
