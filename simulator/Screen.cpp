// SPDX-License-Identifier: GPL-3.0-or-later
#include "Screen.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tracewell {
namespace {

enum TriggerSource : int { fromChannel1, fromChannel2, external, powerLine };
enum TriggerMode : int { autoLevel, automatic, normal, single };
enum Coupling : int { ac, dc, ground };

std::string channelName(int channel) {
  return "CHAN" + std::to_string(channel) + ":";
}

/// Longer than a period of any signal, in steps finer than its steepest part.
constexpr double searchStep = 2e-6;
constexpr int searchSteps = 22500;
constexpr int middleSample = Screen::sampleCount / 2;

}  // namespace

Screen::Screen() {
  sources_[0] = std::make_unique<SineSource>(1000, 1.0, 0.2);
  sources_[1] = std::make_unique<RingingSquareSource>(500, 1.0, 0.3);
}

double Screen::inputVolts(const InstrumentSettings& settings, int channel, double seconds) const {
  const SignalSource& source = *sources_[static_cast<std::size_t>(channel - 1)];
  const std::string name = channelName(channel);
  const int coupling = settings.option(name + "COUP");
  if (coupling == ground) return 0;
  const double volts = source.volts(seconds) - (coupling == ac ? source.offset() : 0);
  const double probe = std::pow(10, settings.option(name + "PROB"));
  return (settings.option(name + "INV") == 1 ? -volts : volts) * probe;
}

double Screen::shownVolts(const InstrumentSettings& settings, int channel, double seconds) const {
  const double one = inputVolts(settings, 1, seconds);
  const double two = inputVolts(settings, 2, seconds);
  const int math = settings.option(channelName(channel) + "MATH");
  if (channel == 1 && math == 1) return one + two;
  if (channel == 1 && math == 2) return one - two;
  if (channel == 2 && math == 2) return two - one;
  return channel == 1 ? one : two;
}

double Screen::triggerVolts(const InstrumentSettings& settings, double seconds) const {
  switch (settings.option("TRIG:SOUR")) {
    case fromChannel1:
      return inputVolts(settings, 1, seconds);
    case fromChannel2:
      return inputVolts(settings, 2, seconds);
    case powerLine:
      return std::sin(2 * std::numbers::pi * 50 * seconds);
    default:
      return 0;  // Nothing is connected to the external input.
  }
}

double Screen::findTrigger(const InstrumentSettings& settings, double from) const {
  const double level = settings.number("TRIG:LEV");
  const double direction = settings.option("TRIG:SLOP") == 0 ? 1 : -1;
  const auto isAbove = [&](double at) {
    return direction * (triggerVolts(settings, at) - level) > 0;
  };
  bool wasAbove = true;
  for (int step = 0; step < searchSteps; ++step) {
    const double at = from + step * searchStep;
    const bool above = isAbove(at);
    if (above && !wasAbove) {
      double low = at - searchStep;
      double high = at;
      for (int i = 0; i < 20; ++i) {
        const double middle = (low + high) / 2;
        (isAbove(middle) ? high : low) = middle;
      }
      return high;
    }
    wasAbove = above;
  }
  return -1;
}

void Screen::levelToTheMiddle(InstrumentSettings& settings, double from) const {
  double lowest = triggerVolts(settings, from);
  double highest = lowest;
  for (int step = 0; step < searchSteps; step += 10) {
    const double at = from + step * searchStep;
    lowest = std::min(lowest, triggerVolts(settings, at));
    highest = std::max(highest, triggerVolts(settings, at));
  }
  settings.setNumber("TRIG:LEV", (lowest + highest) / 2);
}

/// About Gaussian, about one unit wide, the same sequence at every start.
double Screen::noise() {
  double sum = 0;
  for (int i = 0; i < 4; ++i) {
    random_ ^= random_ << 13;
    random_ ^= random_ >> 17;
    random_ ^= random_ << 5;
    sum += static_cast<double>(random_) / 4294967296.0 - 0.5;
  }
  return sum * 1.7;
}

void Screen::sweep(InstrumentSettings& settings, double seconds) {
  if (!isRunning_) return;
  const int mode = settings.option("TRIG:MOD");
  double trigger = findTrigger(settings, seconds);
  if (trigger < 0 && mode == autoLevel) {
    levelToTheMiddle(settings, seconds);
    trigger = findTrigger(settings, seconds);
  }
  if (trigger < 0 && mode >= normal) return;
  if (trigger < 0) trigger = seconds;

  const double average =
      settings.option("ACQ:MOD") == 1 ? std::pow(2, settings.option("ACQ:AVER") + 1) : 1;
  const double timePerUnit = settings.number("TIM:SCAL") / unitsPerDivision;
  for (int channel = 1; channel <= 2; ++channel) {
    const double voltsPerUnit = settings.number(channelName(channel) + "SCAL") / unitsPerDivision;
    const bool isLimited = settings.option(channelName(channel) + "BWL") == 1;
    const double noiseUnits = (isLimited ? 0.6 : 1.5) / std::sqrt(average);
    Trace& trace = traces_[static_cast<std::size_t>(channel - 1)];
    for (int i = 0; i < sampleCount; ++i) {
      const double at = trigger + settings.number("TIM:DEL") + (i - middleSample) * timePerUnit;
      const double units = shownVolts(settings, channel, at) / voltsPerUnit + noiseUnits * noise();
      // The converter has eight bits, 25 steps to a division.
      trace[static_cast<std::size_t>(i)] =
          2 * static_cast<int>(std::clamp(std::round(units / 2), -128.0, 127.0));
    }
  }
  if (mode == single) stop();
}

void Screen::autoset(InstrumentSettings& settings) {
  settings.setNumber("CHAN1:SCAL", 1);
  settings.setNumber("CHAN1:OFFS", 2);
  settings.setNumber("CHAN2:SCAL", 1);
  settings.setNumber("CHAN2:OFFS", -2);
  settings.setNumber("TIM:SCAL", 5e-4);
  settings.setNumber("TIM:DEL", 0);
  settings.setNumber("TRIG:LEV", 0.2);
  settings.setOption("TRIG:SOUR", fromChannel1);
  settings.setOption("TRIG:MOD", automatic);
  for (const std::string channel : {"CHAN1:", "CHAN2:"}) {
    settings.setOption(channel + "COUP", dc);
    settings.setOption(channel + "PROB", 0);
    settings.setOption(channel + "MATH", 0);
  }
}

std::string recordBytes(int channel, const Screen::Trace& trace) {
  std::string bytes = "KRM410 REC " + std::to_string(channel) + "  ";
  bytes.reserve(bytes.size() + 2 * trace.size());
  for (const int sample : trace) {
    const auto bits = static_cast<std::uint16_t>(sample);
    bytes += static_cast<char>(bits >> 8);
    bytes += static_cast<char>(bits & 0xFF);
  }
  return bytes;
}

}  // namespace tracewell
