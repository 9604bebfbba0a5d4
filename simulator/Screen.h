// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "Settings.h"
#include "SignalSource.h"

namespace tracewell {

/// What stands on the instrument's screen: the samples of both channels, taken around a trigger.
class Screen {
 public:
  static constexpr int sampleCount = 500;
  static constexpr int unitsPerDivision = 50;
  /// One channel in units, without its vertical offset: what a record carries.
  using Trace = std::array<int, sampleCount>;

  Screen();

  /// Samples both channels at `seconds`, unless the trigger waits or the instrument is stopped.
  void sweep(InstrumentSettings& settings, double seconds);
  /// 1 or 2.
  const Trace& trace(int channel) const { return traces_[channel == 2 ? 1 : 0]; }

  void run() { isRunning_ = true; }
  void stop() { isRunning_ = false; }

  /// Scales, offsets, time base and trigger that suit the signals.
  static void autoset(InstrumentSettings& settings);

 private:
  double inputVolts(const InstrumentSettings& settings, int channel, double seconds) const;
  double shownVolts(const InstrumentSettings& settings, int channel, double seconds) const;
  double triggerVolts(const InstrumentSettings& settings, double seconds) const;
  /// Time of the next crossing of the level, or negative.
  double findTrigger(const InstrumentSettings& settings, double from) const;
  void levelToTheMiddle(InstrumentSettings& settings, double from) const;
  double noise();

  std::array<std::unique_ptr<SignalSource>, 2> sources_;
  std::array<Trace, 2> traces_{};
  bool isRunning_ = true;
  std::uint32_t random_ = 2463534242u;
};

/// The 1014 bytes that a trace travels in: 14 of the instrument's own, then 500 samples of two
/// bytes, high byte first.
std::string recordBytes(int channel, const Screen::Trace& trace);

}  // namespace tracewell
