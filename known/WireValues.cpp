// SPDX-License-Identifier: GPL-3.0-or-later
#include "WireValues.h"

#include <algorithm>
#include <cmath>

#include "Numbers.h"
#include "ScaleTables.h"
#include "TrueNumbers.h"

namespace tracewell {
namespace {

using enum Setting;

/// No position is farther: eight divisions of the largest scale. What is has lost its point. Volts.
constexpr double farthestPosition = 40;

std::optional<WireValue> scaleValue(Setting scale, std::string_view caption) {
  return WireValue{trueScale(caption, scale == timeBase ? "s" : "V"), std::string(caption)};
}

std::optional<WireValue> sentScale(Setting scale, std::string_view argument) {
  const auto find = [&](const auto& values, const auto& captions) -> std::optional<WireValue> {
    const auto found = std::ranges::find(values, argument);
    if (found == values.end()) return std::nullopt;
    return scaleValue(scale, captions[static_cast<std::size_t>(found - values.begin())]);
  };
  return scale == timeBase ? find(TimeDivValue, TimeDivText) : find(VoltDivValue, VoltDivText);
}

/// The instrument has no other scales, or says that it has none. What differs is damaged.
std::optional<WireValue> toldScale(Setting scale, std::string_view reply) {
  const auto has = [&](const auto& captions) {
    return std::ranges::find(captions, reply) != captions.end();
  };
  const bool isCaption = scale == timeBase ? has(TimeDivText) : has(VoltDivText);
  return isCaption || reply == "Null" ? scaleValue(scale, reply) : std::nullopt;
}

/// The instrument has no other trigger modes.
std::optional<double> modeNumber(std::string_view text) {
  const std::optional<double> number = isWholeNumber(text) ? finiteNumber(text) : std::nullopt;
  return number >= autoLevel && number <= singleMode ? number : std::nullopt;
}

std::optional<double> sentMath(const WirePart& command) {
  const auto entry = std::ranges::find(mathCommands, command.header + " " + command.argument);
  if (entry == mathCommands.end()) return std::nullopt;
  return static_cast<double>(entry - mathCommands.begin());
}

std::optional<double> sentNumber(Setting setting, const WirePart& command) {
  if (setting == math) return sentMath(command);
  if (setting == running) return command.header == "RUN" ? runningState : stoppedState;
  if (setting == lock) return 0;
  if (setting == triggerMode) return modeNumber(command.argument);
  return finiteNumber(command.argument);
}

std::optional<double> toldPosition(std::string_view reply) {
  const std::optional<double> volts = trueNumber(reply, "V");
  return volts && std::fabs(*volts) <= farthestPosition ? volts : std::nullopt;
}

std::optional<double> toldNumber(Setting setting, std::string_view reply) {
  switch (setting) {
    case position1:
    case position2:
      return toldPosition(reply);
    case delay:
      return trueNumber(reply, "s");
    case triggerLevel:
      return trueNumber(reply, "V");
    case math:
      return std::nullopt;
    case triggerMode:
      return modeNumber(reply);
    default:
      return finiteNumber(reply);
  }
}

std::optional<WireValue> valueOf(std::optional<double> number) {
  return number ? std::optional(WireValue{number}) : std::nullopt;
}

}  // namespace

bool isScale(Setting setting) {
  return setting == scale1 || setting == scale2 || setting == timeBase;
}

std::optional<WireValue> sentValue(Setting setting, const WirePart& command) {
  return isScale(setting) ? sentScale(setting, command.argument)
                          : valueOf(sentNumber(setting, command));
}

std::optional<WireValue> toldValue(Setting setting, std::string_view reply) {
  reply = trimBlanks(reply);
  if (reply.empty()) return std::nullopt;
  return isScale(setting) ? toldScale(setting, reply) : valueOf(toldNumber(setting, reply));
}

}  // namespace tracewell
