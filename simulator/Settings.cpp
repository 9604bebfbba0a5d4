// SPDX-License-Identifier: GPL-3.0-or-later
#include "Settings.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace tracewell {
namespace {

bool isClose(double a, double b) {
  return std::fabs(a - b) <= 1e-6 * std::fabs(b);
}

/// Scales come in steps of 1, 2 and 5 between two ends.
bool isScaleStep(double value, double lowest, double highest) {
  if (value < lowest * 0.999 || value > highest * 1.001) return false;
  const double decade = std::pow(10, std::floor(std::log10(value * 1.0001)));
  return isClose(value, decade) || isClose(value, 2 * decade) || isClose(value, 5 * decade);
}

bool isAllowed(const std::string& name, double value) {
  if (name.ends_with(":SCAL"))
    return name == "TIM:SCAL" ? isScaleStep(value, 2e-9, 5) : isScaleStep(value, 2e-3, 5);
  return std::fabs(value) <= 1000;
}

std::string_view unitOf(const std::string& name) {
  return name.starts_with("TIM:") ? "s" : "V";
}

std::string fixed(double value, int decimals) {
  std::array<char, 64> buffer;
  char* const start = buffer.data();
  const auto end =
      std::to_chars(start, start + buffer.size(), value, std::chars_format::fixed, decimals);
  return {start, end.ptr};
}

}  // namespace

InstrumentSettings::InstrumentSettings() {
  for (const std::string channel : {"CHAN1:", "CHAN2:"}) {
    options_[channel + "DISP"] = {1, 1};
    options_[channel + "INV"] = {0, 1};
    options_[channel + "BWL"] = {0, 1};
    options_[channel + "COUP"] = {1, 2};
    options_[channel + "PROB"] = {0, 2};
    options_[channel + "MATH"] = {0, 2};
  }
  options_["ACQ:MOD"] = {0, 1};
  options_["ACQ:AVER"] = {0, 6};
  options_["ACQ:LEN"] = {0, 0};
  options_["TRIG:SOUR"] = {0, 3};
  options_["TRIG:MOD"] = {1, 3};
  options_["TRIG:SLOP"] = {0, 1};
  options_["TRIG:COUP"] = {1, 1};
  options_["TRIG:REJ"] = {0, 2};
  options_["TRIG:NREJ"] = {0, 1};
  options_["TRIG:ADV:MOD"] = {0, 2};
  options_["TRIG:ADV:TYP"] = {0, 1};
  options_["DISP:BRIG:DATA"] = {50, 100};
  options_["DISP:BRIG:GRAT"] = {50, 100};
  options_["DISP:BRIG:WAV"] = {0, 1};
  options_["MEAS:SOUR"] = {1, 2};
  numbers_ = {{"CHAN1:SCAL", 0.5}, {"CHAN2:SCAL", 1}, {"CHAN1:OFFS", 0.5}, {"CHAN2:OFFS", -2},
              {"TIM:SCAL", 5e-4},  {"TIM:DEL", 0},    {"TRIG:LEV", 0.2}};
  texts_ = {{"TRIG:ADV:EVEN", "1"}, {"TRIG:ADV:LEV", "0"}, {"TRIG:ADV:DEL", "0"}};
}

bool InstrumentSettings::set(const std::string& name, const std::string& value) {
  if (texts_.contains(name)) {
    texts_[name] = value;
    return true;
  }
  const std::optional<double> number = strictNumber(value);
  if (!number) return false;
  if (numbers_.contains(name)) {
    if (!isAllowed(name, *number)) return false;
    numbers_[name] = *number;
    return true;
  }
  const auto option = options_.find(name);
  if (option == options_.end()) return false;
  const bool isInRange =
      *number == std::floor(*number) && *number >= 0 && *number <= option->second.highest;
  if (isInRange) option->second.value = static_cast<int>(*number);
  // There is one math function, shown in one channel or the other.
  if (isInRange && name == "CHAN1:MATH") options_["CHAN2:MATH"].value = 0;
  if (isInRange && name == "CHAN2:MATH") options_["CHAN1:MATH"].value = 0;
  return isInRange;
}

std::optional<std::string> InstrumentSettings::reply(const std::string& name) const {
  if (const auto text = texts_.find(name); text != texts_.end()) return text->second;
  if (const auto option = options_.find(name); option != options_.end())
    return std::to_string(option->second.value);
  if (const auto number = numbers_.find(name); number != numbers_.end())
    return fourDigits(number->second, unitOf(name));
  return std::nullopt;
}

std::string fourDigits(double value, std::string_view unit) {
  struct Prefix {
    double factor;
    std::string_view text;
  };
  constexpr std::array<Prefix, 6> prefixes = {
      {{1e-9, "n"}, {1e-6, "u"}, {1e-3, "m"}, {1, ""}, {1e3, "k"}, {1e6, "M"}}};
  const double size = std::fabs(value);
  const Prefix* chosen = &prefixes[3];
  if (size >= 1e-12) {
    chosen = &prefixes[0];
    for (const Prefix& prefix : prefixes)
      if (size >= prefix.factor * 0.99995) chosen = &prefix;
  }
  const double scaled = value / chosen->factor;
  const double magnitude = std::fabs(scaled);
  int decimals = magnitude < 9.9995 ? 3 : magnitude < 99.995 ? 2 : 1;
  if (value < 0) decimals -= 1;
  return fixed(scaled, decimals) + " " + std::string(chosen->text) + std::string(unit);
}

std::optional<double> strictNumber(std::string_view text) {
  double value = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (status != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
    return std::nullopt;
  return value;
}

}  // namespace tracewell
