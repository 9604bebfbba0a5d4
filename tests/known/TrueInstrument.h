// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <numbers>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace tracewell {

/// An instrument whose true state can be looked at. It keeps volts and seconds, not divisions, and
/// shows two sines of exactly 1 V. It shares nothing with the program and its simulator.
class TrueInstrument {
 public:
  /// What both channels show; each is of its own. Enough to compute every sample.
  struct Sweep {
    int number = 0;
    int instrument = 0;
    std::array<double, 2> scales{};
    double seconds = 0;
    int math = 0;
    std::int64_t at = 0;
    /// By whoever turned the instrument's own knobs.
    bool isOfOwnPanel = false;
    /// How often each channel of it was sent.
    std::array<int, 2> sent{};

    /// Of a channel, 0 or 1; math has a scale of its own.
    bool isMath(std::size_t channel) const { return math != 0 && channel == (math == 3 ? 1 : 0); }
    /// Near to nothing for math.
    double volts(std::size_t channel) const {
      return isMath(channel) ? std::nan("") : scales[channel];
    }
    double signal(std::size_t channel, int sample) const {
      const double time = (sample - 250) / 50.0 * seconds;
      const double turns = channel == 0 ? 1000 * time + 0.37 * number : 250 * time + 0.11 * number;
      return std::sin(2 * std::numbers::pi * turns);
    }
    int counts(std::size_t channel, int sample) const {
      if (isMath(channel)) return static_cast<int>(30 * (signal(0, sample) + signal(1, sample)));
      const double units = 50 * signal(channel, sample) / scales[channel];
      return static_cast<int>(std::lround(std::clamp(units, -30000.0, 30000.0)));
    }
  };
  struct Channel {
    double isDisplayed = 1;
    double volts = 1;
    double offset = 0;
    double probe = 1;
  };
  struct Measured {
    int instrument;
    std::size_t channel;
    std::string item;
    /// What it depends on.
    std::string signal;
  };
  /// Of all instruments of a trial.
  struct History {
    std::mt19937 random;
    std::vector<Sweep> sweeps;
    std::vector<Measured> measured;
    int instruments = 0;
    /// The number of the sweep that the panel holds of a channel.
    std::function<int(std::size_t channel)> held;
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    double inTenths() { return (below(41) - 20) / 10.0; }
  };

  explicit TrueInstrument(History& history) : id(++history.instruments), history_(history) {
    shuffle();
    mode = 1 + below(3);
    sweep();
  }
  TrueInstrument(const TrueInstrument&) = delete;
  TrueInstrument& operator=(const TrueInstrument&) = delete;

  const int id;
  std::array<Channel, 2> channels;
  double seconds = 1e-3;
  double delay = 0;
  double level = 0;
  double source = 0;
  double mode = 1;
  /// 0 for off, else an entry of the math box counted from 1.
  int math = 0;
  bool isLocked = false;
  bool isStopped = false;
  /// Whether the trigger comes.
  bool isTriggered = true;
  std::int64_t now = 0;
  /// Its own panel has been used since it was asked for everything.
  bool isOfOwnPanel = false;

  std::string signal(std::size_t channel) const {
    const std::string stem = channel == 0 ? "CHAN1:" : "CHAN2:";
    std::string depended = text(channels[channel].volts, "V") + text(seconds, "s");
    for (const char* input : {"COUP", "INV", "BWL"}) depended += others_.at(stem + input) + ",";
    return depended + std::to_string(math) + "," + std::to_string(channels[channel].probe);
  }

  /// What it sends back to a line.
  std::string receive(const std::string& line) {
    std::string answers;
    for (std::size_t start = 0; start <= line.size();) {
      const std::size_t end = std::min(line.find_first_of(";\r\n", start), line.size());
      const std::string answer = obey(line.substr(start, end - start));
      if (answer.size() == 1014) return answer;
      answers += (answers.empty() || answer.empty() ? "" : ";") + answer;
      start = end + 1;
    }
    return answers.empty() ? "" : answers + "\n";
  }

  /// Autoset, a reset, what somebody does at its panel.
  void shuffle() {
    for (Channel& channel : channels) {
      channel.isDisplayed = below(4) > 0;
      channel.volts = step(2e-3, below(11)) * channel.probe;
      channel.offset = channel.volts * history_.inTenths();
    }
    seconds = step(2e-9, below(29));
    delay = seconds * history_.inTenths();
    level = history_.inTenths();
    source = below(4);
    mode = below(4);
    hasChanged_ = true;
  }
  void setUpAnew() {
    math = 0;
    isStopped = false;
    mode = std::max(mode, 1.0);
    sweep();
  }
  void sweep() {
    const std::array scales = {channels[0].volts, channels[1].volts};
    sweep_ = history_.sweeps.size();
    history_.sweeps.push_back(
        {static_cast<int>(sweep_), id, scales, seconds, math, now, isOfOwnPanel, {}});
    hasChanged_ = false;
    if (mode == 0) level = history_.inTenths();
  }

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

 private:
  int below(int limit) { return history_.below(limit); }

  std::string obey(const std::string& part) {
    const std::size_t first = part.find_first_not_of(" :");
    if (first == std::string::npos) return "";
    const std::size_t end = std::min(part.find_first_of(" ?", first), part.size());
    std::string header = part.substr(first, end - first);
    const bool isOfSmallLetters = std::islower(header[0]) != 0;
    for (char& c : header) c = static_cast<char>(std::toupper(c));
    if (header.starts_with("CHANNEL")) header.erase(4, 3);
    if (const auto it = header.find("SCALE"); it != std::string::npos) header.erase(it + 4);
    isLocked = header != "SYST:UNL";
    // Not every instrument takes all that is typed.
    if (isOfSmallLetters && id % 2 == 0) return "";
    if (part.find('?', end) == end) return answer(header);
    if (header == "ACQ1:POIN" || header == "ACQ2:POIN") return record(header[3] == '1' ? 0 : 1);
    const std::size_t value = part.find_first_not_of(' ', end);
    take(header, value == std::string::npos ? "" : part.substr(value));
    return "";
  }

  void take(const std::string& header, const std::string& value) {
    const double number = std::atof(value.c_str());
    hasChanged_ = true;
    if (const auto named = numbers_.find(header); named != numbers_.end()) {
      if (number > 0 || !header.ends_with(":SCAL")) named->second.first = number;
    } else if (header.ends_with(":PROB")) {
      Channel& channel = channels[header[4] == '2' ? 1 : 0];
      const double probe = std::pow(10, number);
      channel.volts *= probe / std::exchange(channel.probe, probe);
    } else if (header.ends_with(":MATH")) {
      math = header[4] == '2' ? 3 : static_cast<int>(number);
    } else if (header == "RUN") {
      isStopped = false;
    } else if (header == "STOP") {
      // It may sweep once more.
      if (!isStopped && isTriggered && below(2) == 0) sweep();
      isStopped = true;
    } else if (header == "MEAS:SOUR") {
      measured_ = value == "2" ? 1 : 0;
    } else if (header == "AUT" || header == "*RST" || header == "SELF:TEST") {
      shuffle();
      if (header == "SELF:TEST") return;
      math = 0;
      isStopped = false;
    } else {
      others_[header] = value;
    }
  }

  std::string answer(const std::string& header) {
    if (const auto named = numbers_.find(header); named != numbers_.end()) {
      const auto& [value, unit] = named->second;
      return unit.empty() ? std::to_string(std::lround(value)) : text(value, unit);
    }
    if (header.ends_with(":PROB"))
      return std::to_string(std::lround(std::log10(channels[header[4] == '2' ? 1 : 0].probe)));
    if (header == "*IDN") return "TRUE " + std::to_string(id);
    if (header.starts_with("MEAS:")) {
      if (below(12) == 0) return "N/A";
      history_.measured.push_back({id, measured_, header.substr(5), signal(measured_)});
      return "M" + std::to_string(history_.measured.size() - 1);
    }
    return others_.contains(header) ? others_[header] : "0";
  }

  /// Where the trigger does not come a sweep that was made before is sent, unless that would be one
  /// that nobody could know to be of another setting.
  std::string record(std::size_t channel) {
    const bool isTakenForNew =
        hasChanged_ && history_.held(channel) != history_.sweeps[sweep_].number;
    if (!isStopped && (isTriggered || isTakenForNew)) sweep();
    Sweep& sent = history_.sweeps[sweep_];
    ++sent.sent[channel];
    const std::string number = std::to_string(sent.number);
    std::string bytes =
        (channel == 0 ? "#1" : "#2") + std::string(12 - number.size(), '0') + number;
    for (int i = 0, counts = 0; i < 500; ++i) {
      counts = sent.counts(channel, i);
      bytes += {static_cast<char>((counts >> 8) & 0xFF), static_cast<char>(counts & 0xFF)};
    }
    return bytes;
  }

  History& history_;
  std::size_t sweep_ = 0;
  bool hasChanged_ = true;
  std::size_t measured_ = 0;
  /// What is answered as it was set.
  std::map<std::string, std::pair<double&, std::string>> numbers_ = {
      {"CHAN1:DISP", {channels[0].isDisplayed, ""}},
      {"CHAN2:DISP", {channels[1].isDisplayed, ""}},
      {"CHAN1:SCAL", {channels[0].volts, "V"}},
      {"CHAN2:SCAL", {channels[1].volts, "V"}},
      {"CHAN1:OFFS", {channels[0].offset, "V"}},
      {"CHAN2:OFFS", {channels[1].offset, "V"}},
      {"TIM:SCAL", {seconds, "s"}},
      {"TIM:DEL", {delay, "s"}},
      {"TRIG:LEV", {level, "V"}},
      {"TRIG:SOUR", {source, ""}},
      {"TRIG:MOD", {mode, ""}}};
  std::map<std::string, std::string> others_ = {{"CHAN1:COUP", "1"}, {"CHAN2:COUP", "1"},
                                                {"CHAN1:INV", "0"},  {"CHAN2:INV", "0"},
                                                {"CHAN1:BWL", "0"},  {"CHAN2:BWL", "0"}};
};

}  // namespace tracewell
