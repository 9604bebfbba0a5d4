// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tracewell {

/// Everything that the panel can set, by its command without the leading colon, in capitals.
class InstrumentSettings {
 public:
  InstrumentSettings();

  /// Integer choices, such as "CHAN1:COUP" or "TRIG:MOD".
  int option(const std::string& name) const { return options_.at(name).value; }
  void setOption(const std::string& name, int value) { options_.at(name).value = value; }
  /// Volts, volts per division, seconds, seconds per division: "CHAN1:SCAL", "TIM:DEL", ...
  double number(const std::string& name) const { return numbers_.at(name); }
  void setNumber(const std::string& name, double value) { numbers_.at(name) = value; }

  /// Takes the value of a command; false if the command or its value is none.
  bool set(const std::string& name, const std::string& value);
  /// The reply to a query of a setting, without a line end; none if there is no such setting.
  std::optional<std::string> reply(const std::string& name) const;

 private:
  struct Option {
    int value;
    int highest;
  };

  std::map<std::string, Option> options_;
  std::map<std::string, double> numbers_;
  std::map<std::string, std::string> texts_;
};

/// Value and unit as the instrument writes them: five characters of number, a prefix where it needs
/// one. "500.0 mV", "1.000 kHz"; a sign takes a digit's place, so "-2.00 V" and "-500 mV".
std::string fourDigits(double value, std::string_view unit);

/// The whole text as a number ("5E-3", "-3E0", "1"); none if any of it is not.
std::optional<double> strictNumber(std::string_view text);

}  // namespace tracewell
