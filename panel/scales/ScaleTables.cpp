// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScaleTables.h"

#include <algorithm>

#include "Error.h"
#include "Numbers.h"

namespace tracewell {

const std::array<std::string_view, voltDivSteps> VoltDivText = {
    "2.000 mV", "5.000 mV", "10.00 mV", "20.00 mV", "50.00 mV", "100.0 mV",
    "200.0 mV", "500.0 mV", "1.000 V",  "2.000 V",  "5.000 V"};

const std::array<std::string_view, voltDivSteps> VoltDivValue = {
    "2E-3", "5E-3", "1E-2", "2E-2", "5E-2", "1E-1", "2E-1", "5E-1", "1", "2", "5"};

const std::array<std::string_view, timeDivSteps> TimeDivText = {
    "2.000 ns", "5.000 ns", "10.00 ns", "20.00 ns", "50.00 ns", "100.0 ns", "200.0 ns", "500.0 ns",
    "1.000 us", "2.000 us", "5.000 us", "10.00 us", "20.00 us", "50.00 us", "100.0 us", "200.0 us",
    "500.0 us", "1.000 ms", "2.000 ms", "5.000 ms", "10.00 ms", "20.00 ms", "50.00 ms", "100.0 ms",
    "200.0 ms", "500.0 ms", "1.000 s",  "2.000 s",  "5.000 s"};

const std::array<std::string_view, timeDivSteps> TimeDivValue = {
    "2E-9", "5E-9", "1E-8", "2E-8", "5E-8", "1E-7", "2E-7", "5E-7", "1E-6", "2E-6",
    "5E-6", "1E-5", "2E-5", "5E-5", "1E-4", "2E-4", "5E-4", "1E-3", "2E-3", "5E-3",
    "1E-2", "2E-2", "5E-2", "1E-1", "2E-1", "5E-1", "1",    "2",    "5"};

namespace {

std::string_view commandPrefix(ScaleKnob kind) {
  switch (kind) {
    case ScaleKnob::Chan1:
      return ":CHAN1:SCAL ";
    case ScaleKnob::Chan2:
      return ":CHAN2:SCAL ";
    case ScaleKnob::Time:
      return ":TIM:SCAL ";
  }
  return {};
}

template <std::size_t size>
std::string entry(const std::array<std::string_view, size>& table, double position) {
  const std::int32_t index = toInt32(position);
  if (index < 0 || index >= std::ssize(table)) throw subscriptError();
  return std::string(table[static_cast<std::size_t>(index)]);
}

template <std::size_t size>
std::optional<int> stepOf(const std::array<std::string_view, size>& table, std::string_view reply,
                          int searchedSteps) {
  const auto end = table.begin() + searchedSteps;
  const auto found = std::find(table.begin(), end, reply);
  if (found == end) return std::nullopt;
  return static_cast<int>(found - table.begin());
}

}  // namespace

std::string ScaleCommandForKnob(ScaleKnob kind, double position) {
  const std::string value =
      kind == ScaleKnob::Time ? entry(TimeDivValue, position) : entry(VoltDivValue, position);
  return std::string(commandPrefix(kind)) + value;
}

std::string scaleCaptionForKnob(ScaleKnob kind, double position) {
  return kind == ScaleKnob::Time ? entry(TimeDivText, position) : entry(VoltDivText, position);
}

std::optional<int> ScaleStepForReply(ScaleKnob kind, std::string_view reply) {
  if (kind == ScaleKnob::Time) return stepOf(TimeDivText, reply, timeDivSteps - 1);
  return stepOf(VoltDivText, reply, voltDivSteps);
}

std::string_view captionNumber(std::string_view caption) {
  return caption.substr(0, 5);
}

char captionPrefix(std::string_view caption) {
  // The last two of a single character are that one.
  if (caption.empty()) return ' ';
  return caption.size() == 1 ? caption[0] : caption[caption.size() - 2];
}

double ParseScaleCaption(std::string_view caption) {
  const double number = leadingNumber(captionNumber(caption));
  switch (captionPrefix(caption)) {
    case 'm':
      return number / 1000;
    case 'u':
      return number / 1000000;
    default:
      return number;
  }
}

}  // namespace tracewell
