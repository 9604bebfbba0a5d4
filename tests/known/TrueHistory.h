// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <numbers>
#include <random>
#include <string>
#include <vector>

namespace tracewell {

/// What both channels show; each is of its own. Enough to compute every sample.
struct TrueSweep {
  int number = 0;
  int instrument = 0;
  std::array<double, 2> scales{};
  double seconds = 0;
  int math = 0;
  std::int64_t at = 0;
  /// By whoever turned the instrument's own knobs.
  bool isOfOwnPanel = false;
  /// How often the instrument had been stopped before.
  int stops = 0;
  /// How often each channel of it was sent.
  std::array<int, 2> sent{};

  /// Of a channel, 0 or 1; math has a scale of its own.
  bool isMath(std::size_t channel) const { return math != 0 && channel == (math == 3 ? 1 : 0); }
  /// Near to nothing for math.
  double volts(std::size_t channel) const {
    return isMath(channel) ? std::nan("") : scales[channel];
  }
  /// Hertz; in every other sweep both channels have the same.
  double frequency(std::size_t channel) const {
    return channel == 0 || number % 2 == 0 ? 1000 : 250;
  }
  /// Where the signal is at the trigger, in periods.
  double turns(std::size_t channel) const { return (channel == 0 ? 0.37 : 0.11) * number; }
  double signal(std::size_t channel, int sample) const {
    const double time = (sample - 250) / 50.0 * seconds;
    return std::sin(2 * std::numbers::pi * (frequency(channel) * time + turns(channel)));
  }
  int counts(std::size_t channel, int sample) const {
    if (isMath(channel)) return static_cast<int>(30 * (signal(0, sample) + signal(1, sample)));
    const double units = 50 * signal(channel, sample) / scales[channel];
    return static_cast<int>(std::lround(std::clamp(units, -30000.0, 30000.0)));
  }
};

struct Measured {
  int instrument;
  std::size_t channel;
  std::string item;
  /// What it depends on.
  std::string signal;
};
/// Of all instruments of a trial.
struct TrueHistory {
  std::mt19937 random;
  std::vector<TrueSweep> sweeps;
  std::vector<Measured> measured;
  int instruments = 0;
  /// The number of the sweep that the panel holds of a channel.
  std::function<int(std::size_t channel)> held;
  int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  double inTenths() { return (below(41) - 20) / 10.0; }
};

struct TrueChannel {
  double isDisplayed = 1;
  double volts = 1;
  double offset = 0;
  double probe = 1;
};

struct TrueTexts {
  /// The 1-2-5 step of a table that begins with 2.
  static double step(double first, int number) {
    return first * std::array{1.0, 2.5, 5.0}[static_cast<std::size_t>(number % 3)] *
           std::pow(10, number / 3);
  }
  /// "500.0 mV": four digits, a sign in the place of one.
  static std::string text(double value, const std::string& unit) {
    int power = 0;
    const double size = std::fabs(value);
    while (power < 3 && size > 0 && size * std::pow(1000, power) < 0.9999) ++power;
    const double shown = value * std::pow(1000, power);
    const int digits = std::fabs(shown) < 9.9995 ? 3 : std::fabs(shown) < 99.995 ? 2 : 1;
    std::array<char, 40> buffer;
    std::snprintf(buffer.data(), buffer.size(), "%.*f ", digits - (value < 0 ? 1 : 0), shown);
    return buffer.data() + std::string(power > 0 ? 1 : 0, " mun"[power]) + unit;
  }
};

}  // namespace tracewell
