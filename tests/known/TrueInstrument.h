// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <limits>
#include <map>
#include <utility>

#include "TrueHistory.h"

namespace tracewell {

/// An instrument whose true state can be looked at. It keeps volts and seconds, not divisions, and
/// shows two sines of exactly 1 V. It shares nothing with the program and its simulator.
class TrueInstrument : public TrueTexts {
 public:
  explicit TrueInstrument(TrueHistory& history) : id(++history.instruments), history_(history) {
    shuffle();
    mode = 1 + below(3);
    sweep();
  }
  TrueInstrument(const TrueInstrument&) = delete;
  TrueInstrument& operator=(const TrueInstrument&) = delete;

  const int id;
  std::array<TrueChannel, 2> channels;
  double seconds = 1e-3;
  double delay = 0;
  double level = 0;
  double source = 0;
  double mode = 1;
  /// 0 for off, else an entry of the math box counted from 1.
  int math = 0;
  bool isLocked = false;
  bool isStopped = false;
  /// The panel has set the mode.
  bool isModeSet = false;
  /// Whether the trigger comes.
  bool isTriggered = true;
  std::int64_t now = 0;
  /// Its own panel has been used since it was asked for everything.
  bool isOfOwnPanel = false;

  std::string signal(std::size_t channel) const {
    const std::string stem = channel == 0 ? "CHAN1:" : "CHAN2:";
    std::string depended = text(channels[channel].volts, "V") + text(seconds, "s");
    for (const char* input : {"COUP", "INV", "BWL"}) depended += others_.at(stem + input) + ",";
    for (const char* of : {"ACQ:MOD", "ACQ:AVER"}) depended += std::to_string(told(of)) + ",";
    return depended + std::to_string(math) + "," + std::to_string(channels[channel].probe);
  }

  /// What it sends back to a line.
  std::string receive(const std::string& line) {
    std::string answers;
    if (now >= foundAt_) {
      foundAt_ = never;
      shuffle();
    }
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
    for (TrueChannel& channel : channels) {
      channel.isDisplayed = below(4) > 0;
      channel.volts = step(2e-3, below(11)) * channel.probe;
      channel.offset = channel.volts * history_.inTenths();
    }
    seconds = step(2e-9, below(29));
    delay = seconds * history_.inTenths();
    level = history_.inTenths();
    source = below(4);
    mode = below(4);
    isModeSet = false;
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
        {static_cast<int>(sweep_), id, scales, seconds, math, now, isOfOwnPanel, stops_, {}});
    hasChanged_ = false;
    if (mode == 0) level = history_.inTenths();
  }

  /// What a command of which nothing else comes has set.
  double told(const std::string& header) const {
    const auto found = others_.find(header);
    return found == others_.end() ? 0 : std::atof(found->second.c_str());
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
    isModeSet = isModeSet || header == "TRIG:MOD";
    if (const auto named = numbers_.find(header); named != numbers_.end()) {
      if (number > 0 || !header.ends_with(":SCAL")) named->second.first = number;
    } else if (header.ends_with(":PROB")) {
      TrueChannel& channel = channels[header[4] == '2' ? 1 : 0];
      const double probe = std::pow(10, number);
      channel.volts *= probe / std::exchange(channel.probe, probe);
    } else if (header.ends_with(":MATH")) {
      math = header[4] == '2' ? 3 : static_cast<int>(number);
    } else if (header == "RUN") {
      isStopped = false;
    } else if (header == "STOP") {
      // It may sweep once more.
      if (!isStopped && isTriggered && below(2) == 0) sweep();
      if (!std::exchange(isStopped, true)) ++stops_;
    } else if (header == "MEAS:SOUR") {
      measured_ = value == "2" ? 1 : 0;
    } else if (header == "AUT" || header == "*RST" || header == "SELF:TEST") {
      shuffle();
      if (header == "SELF:TEST") return;
      // It finds its settings as time goes by.
      if (header == "AUT") foundAt_ = now + below(9500);
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
      const std::string unit = header == "MEAS:FREQ"   ? "Hz"
                               : header[5] == 'V'      ? "V"
                               : header == "MEAS:PDUT" ? "%"
                                                       : "s";
      return std::to_string(history_.measured.size() - 1) + " " + unit;
    }
    return others_.contains(header) ? others_[header] : "0";
  }

  /// Where the trigger does not come a sweep that was made before is sent, unless that would be one
  /// that nobody could know to be of another setting.
  std::string record(std::size_t channel) {
    const bool isTakenForNew = hasChanged_ &&
                               history_.held(channel) != history_.sweeps[sweep_].number &&
                               (mode < 2 || !isModeSet);
    if (!isStopped && (isTriggered || isTakenForNew)) sweep();
    TrueSweep& sent = history_.sweeps[sweep_];
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

  TrueHistory& history_;
  std::size_t sweep_ = 0;
  int stops_ = 0;
  bool hasChanged_ = true;
  static constexpr auto never = std::numeric_limits<std::int64_t>::max();
  std::int64_t foundAt_ = never;
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
