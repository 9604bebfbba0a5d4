// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderWords.h"

#include <algorithm>
#include <cmath>

#include "Numbers.h"
#include "TrueNumbers.h"
#include "WallTime.h"

namespace tracewell {
namespace {

constexpr int digitsThatCount = 4;

/// The prefix with which four digits begin in front of the point.
const UnitPrefix& prefixOf(double magnitude) {
  constexpr double halfOfLastDigit = 1 - 5e-5;
  const UnitPrefix* fitting = &unitPrefixes.front();
  for (const UnitPrefix& prefix : unitPrefixes)
    if (scaled(magnitude, -prefix.exponent) >= halfOfLastDigit) fitting = &prefix;
  return *fitting;
}

std::string digitsOf(double value) {
  const double magnitude = std::fabs(value);
  const int before = magnitude < 1 ? 1 : static_cast<int>(std::floor(std::log10(magnitude))) + 1;
  return formatDecimals(value, std::max(0, digitsThatCount - before));
}

std::string scaleText(const Words& words, std::optional<double> perDivision,
                      std::string_view unit) {
  if (perDivision) return numberWithUnit(*perDivision, unit) + "/div";
  return unit == "V" ? words.say("V/div not known") : words.say("s/div not known");
}

void add(std::string& text, const std::string& part) {
  text += (text.empty() ? "" : ", ") + part;
}

std::string reasonOf(const Words& words, NoValue reason) {
  switch (reason) {
    case NoValue::incomplete:
      return words.say("record cut");
    case NoValue::scaleNotKnown:
      return words.say("scale not known");
    case NoValue::clipped:
      return words.say("clipped");
    case NoValue::flat:
      return words.say("flat");
    case NoValue::lessThanPeriod:
      return words.say("less than a period");
    case NoValue::irregular:
      return words.say("irregular");
    case NoValue::tooFewSamples:
      return words.say("too few samples");
    case NoValue::otherSweep:
      return words.say("not of one sweep");
    case NoValue::otherPeriod:
      return words.say("other period");
    case NoValue::none:
      break;
  }
  return "";
}

}  // namespace

std::string quantityName(const Words& words, Quantity quantity) {
  switch (quantity) {
    case Quantity::maximum:
      return words.say("Maximum");
    case Quantity::minimum:
      return words.say("Minimum");
    case Quantity::peakToPeak:
      return words.say("Peak to peak");
    case Quantity::mean:
      return words.say("Mean");
    case Quantity::rms:
      return words.say("RMS");
    case Quantity::acRms:
      return words.say("AC RMS");
    case Quantity::top:
      return words.say("Top");
    case Quantity::base:
      return words.say("Base");
    case Quantity::amplitude:
      return words.say("Amplitude");
    case Quantity::overshoot:
      return words.say("Overshoot");
    case Quantity::frequency:
      return words.say("Frequency");
    case Quantity::period:
      return words.say("Period");
    case Quantity::duty:
      return words.say("Duty");
    case Quantity::riseTime:
      return words.say("Rise time");
    case Quantity::fallTime:
      return words.say("Fall time");
    case Quantity::phase:
      return words.say("Phase to CH1");
    case Quantity::delay:
      return words.say("Delay to CH1");
  }
  return "";
}

std::string numberWithUnit(double value, std::string_view unit) {
  if (value == 0) return std::string("0 ").append(unit);
  const bool hasPrefix = unit == "V" || unit == "s" || unit == "Hz";
  const UnitPrefix& prefix = hasPrefix ? prefixOf(std::fabs(value)) : unitPrefixes[3];
  return digitsOf(scaled(value, -prefix.exponent))
      .append(" ")
      .append(prefix.text)
      .append(unit == "deg" ? "°" : unit);
}

std::string valueText(const Words& words, const OwnValue& value, QuantityUnit unit) {
  if (value.value) return numberWithUnit(*value.value, unitText(unit));
  if (value.atMost && value.reason == NoValue::tooFewSamples)
    return "< " + numberWithUnit(*value.atMost, unitText(unit));
  return reasonOf(words, value.reason);
}

std::string recordsText(const Words& words, std::size_t count) {
  return count == 1 ? words.say("1 record") : words.say("%1 records", {std::to_string(count)});
}

std::string rowsText(const Words& words, std::uintmax_t count) {
  return count == 1 ? words.say("1 row") : words.say("%1 rows", {std::to_string(count)});
}

std::string channelName(int channel) {
  return "CH" + std::to_string(channel);
}

std::string timeOfDay(std::int64_t wallTime, bool hasMilliseconds) {
  constexpr std::size_t behindDate = 11;
  return isoTime(wallTime).substr(behindDate, hasMilliseconds ? 12 : 8);
}

std::string circumstances(const Words& words, const RecordFacts& facts) {
  std::string text;
  if (facts.madeUnder.mathEntry)
    add(text, words.say("math, which has no volts"));
  else
    add(text, scaleText(words, facts.madeUnder.voltsPerDivision, "V"));
  add(text, scaleText(words, facts.madeUnder.secondsPerDivision, "s"));
  if (facts.isSimulated) add(text, words.say("SIMULATED"));
  return text;
}

std::string gapText(const Words& words, const RecordGap& gap) {
  std::string text;
  if (gap.isAnotherInstrument) add(text, words.say("another port"));
  if (gap.wasUnplugged) add(text, words.say("opened anew"));
  if (gap.hasOtherScales) add(text, words.say("other scales"));
  if (gap.wasStopped) add(text, words.say("stopped meanwhile"));
  if (gap.wasSilent) add(text, words.say("nothing fetched"));
  return text;
}

}  // namespace tracewell
