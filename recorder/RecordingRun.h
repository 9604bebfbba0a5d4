// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Clock.h"
#include "EventDispatcher.h"
#include "KnownInstrument.h"
#include "RecordArrival.h"
#include "RecorderOptions.h"
#include "RecorderOutput.h"
#include "SerialPort.h"

namespace tracewell {

/// What the program tells whoever has started it.
enum class RecorderEnd : int {
  done = 0,
  wrongOptions = 1,
  noLine = 2,
  noAnswer = 3,
  notWritten = 4,
  limitPassed = 5,
  endedEarly = 6
};

/// Fetches records and hands them on, from the reading of the scales to the release of the
/// instrument's own panel. A line that is opened anew has its scales read again, since another
/// instrument may be on it.
class RecordingRun {
 public:
  /// What it says of itself, and how it ends.
  struct Told {
    /// A line for the standard error.
    std::function<void(const std::string&)> message;
    /// In place of the one before; for a terminal.
    std::function<void(const std::string&)> progress;
    std::function<void(RecorderEnd)> ended;
  };

  RecordingRun(const RecorderOptions& options, RecorderOutput& output, SerialPort& port,
               Clock& clock, const EventDispatcher& dispatcher, Told told);
  RecordingRun(const RecordingRun&) = delete;

  /// Out of the event loop, like all that follows.
  void begin();
  /// The system, or the user, wants it to end.
  void endBySignal();

 private:
  void tick();
  void turn();
  void request(std::int64_t now);
  void readScales();
  bool isScaleWrong() const;
  bool isTold(Setting scale) const;
  void ask(const std::string& query, Setting scale);
  void arrived(const LineRecord& fetched);
  void take(int channel, const ChannelRecord& record);
  void tellSame();
  void failed(const std::string& why);
  void tellTrouble();
  void tellProgress(int channel, const OwnMeasurements& values);
  bool isComplete(int channel) const;
  bool isComplete() const;
  void release();
  void end(RecorderEnd how);

  InstrumentLine line() const { return {port_.openPort(), port_.openings()}; }
  std::int64_t& countOf(int channel) { return counts_[static_cast<std::size_t>(channel - 1)]; }

  const RecorderOptions& options_;
  RecorderOutput& output_;
  SerialPort& port_;
  Clock& clock_;
  const EventDispatcher& dispatcher_;
  Told told_;
  KnownInstrument known_{[this] { return line(); },
                         [this](int reply) { return port_.sureness(reply); }};
  std::array<ChannelRecord, 2> records_;
  /// New ones of each channel.
  std::array<std::int64_t, 2> counts_{};
  std::size_t next_ = 0;
  std::int64_t nextRequestAt_ = 0;
  /// Since when a record is awaited.
  std::optional<std::int64_t> waitingSince_;
  /// Why nothing can be requested, as long as that is so, and whether the line is to blame.
  std::string failure_;
  bool isLineFailing_ = false;
  std::string trouble_;
  /// A line on which no record comes is not asked for its scales over and over.
  bool hasComeSinceReading_ = false;
  /// The opening of the line on which the scales were read; none if they are to be read again.
  std::optional<int> readOn_;
  bool isLimitPassed_ = false;
  int undecidedRows_ = 0;
  bool isSameTold_ = false;
  bool isLocked_ = false;
  bool isOver_ = false;
  /// As long as this object lives, for ticks that are due later.
  std::shared_ptr<int> alive_ = std::make_shared<int>();
};

}  // namespace tracewell
