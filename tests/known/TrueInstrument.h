// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <numbers>
#include <random>
#include <string>
#include <tuple>
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
    std::array<double, 2> volts{};
    double seconds = 0;
    int math = 0;
    std::int64_t at = 0;
    /// By whoever turned the instrument's own knobs.
    bool isOfOwnPanel = false;
    /// How often each channel of it was sent.
    std::array<int, 2> sent{};

    /// Of a channel, 0 or 1; math has a scale of its own.
    bool isMath(int channel) const { return math != 0 && channel == (math == 3 ? 1 : 0); }
    int counts(int channel, int sample) const {
      constexpr double turn = 2 * std::numbers::pi;
      const double time = (sample - 250) / 50.0 * seconds;
      const std::array signal = {std::sin(turn * (1000 * time + 0.37 * number)),
                                 std::sin(turn * (250 * time + 0.11 * number))};
      if (isMath(channel)) return static_cast<int>(30 * (signal[0] + signal[1]));
      const double units =
          50 * signal[static_cast<std::size_t>(channel)] / volts[static_cast<std::size_t>(channel)];
      return static_cast<int>(std::lround(std::clamp(units, -30000.0, 30000.0)));
    }
  };
  struct Channel {
    bool isDisplayed = true;
    double volts = 1;
    double offset = 0;
    double probe = 1;
    /// Coupling, inversion, bandwidth limit.
    std::array<std::string, 3> input = {"1", "0", "0"};
  };
  /// What a measurement depends on.
  using Signal = std::tuple<std::string, std::array<std::string, 3>, std::string, int, double>;
  struct Measured {
    int instrument;
    int channel;
    std::string item;
    Signal signal;
  };
  /// Of all instruments of a trial.
  struct History {
    std::mt19937 random;
    std::vector<Sweep> sweeps;
    std::vector<Measured> measured;
    int instruments = 0;
    /// The number of the sweep that the panel holds of a channel.
    std::function<int(int channel)> held;
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  };

  explicit TrueInstrument(History& history) : id(++history.instruments), history_(history) {
    shuffle();
    mode = 1 + mode % 3;
    sweep();
  }

  const int id;
  std::array<Channel, 2> channels;
  double seconds = 1e-3;
  double delay = 0;
  double level = 0;
  int source = 0;
  int mode = 1;
  /// 0 for off, else an entry of the math box counted from 1.
  int math = 0;
  bool isLocked = false;
  bool isStopped = false;
  /// Whether the trigger comes.
  bool isTriggered = true;
  std::int64_t now = 0;
  /// Its own panel has been used since it was asked for everything.
  bool isOfOwnPanel = false;

  Signal signal(int channel) const {
    const Channel& its = channels[static_cast<std::size_t>(channel)];
    return {text(its.volts, "V"), its.input, text(seconds, "s"), math, its.probe};
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
      channel.isDisplayed = history_.below(4) > 0;
      channel.volts = step(2e-3, history_.below(11)) * channel.probe;
      channel.offset = channel.volts * (history_.below(41) - 20) / 10;
    }
    seconds = step(2e-9, history_.below(29));
    delay = seconds * (history_.below(41) - 20) / 10;
    level = (history_.below(41) - 20) / 10.0;
    source = history_.below(4);
    mode = history_.below(4);
    hasChanged_ = true;
  }
  void setUpAnew() {
    math = 0;
    isStopped = false;
    mode = std::max(mode, 1);
    hasChanged_ = true;
    sweep();
  }
  /// A stopped one may have swept once more.
  void sweep() {
    history_.sweeps.push_back({static_cast<int>(history_.sweeps.size()),
                               id,
                               {channels[0].volts, channels[1].volts},
                               seconds,
                               math,
                               now,
                               isOfOwnPanel,
                               {}});
    sweep_ = history_.sweeps.size() - 1;
    hasChanged_ = false;
    if (mode == 0) level = (history_.below(41) - 20) / 10.0;
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
    while (power > -3 && size > 0 && size * std::pow(1000, -power) < 0.9999) --power;
    const double shown = value * std::pow(1000, -power);
    const int digits = std::fabs(shown) < 9.9995 ? 3 : std::fabs(shown) < 99.995 ? 2 : 1;
    std::array<char, 40> buffer;
    std::snprintf(buffer.data(), buffer.size(), "%.*f %s%s", digits - (value < 0 ? 1 : 0), shown,
                  std::array{"", "m", "u", "n"}[static_cast<std::size_t>(-power)], unit.c_str());
    return buffer.data();
  }

 private:
  std::string obey(const std::string& part) {
    const std::size_t first = part.find_first_not_of(" :");
    if (first == std::string::npos) return "";
    const std::size_t end = std::min(part.find_first_of(" ?", first), part.size());
    std::string header = part.substr(first, end - first);
    const bool isOfSmallLetters = std::islower(header[0]) != 0;
    for (char& c : header) c = static_cast<char>(std::toupper(c));
    if (const auto it = header.find("CHANNEL"); it == 0) header.erase(4, 3);
    if (const auto it = header.find("SCALE"); it != std::string::npos) header.erase(it + 4);
    const std::size_t value = part.find_first_not_of(' ', end);
    isLocked = header != "SYST:UNL";
    // Not every instrument takes all that is typed.
    if (isOfSmallLetters && id % 2 == 0) return "";
    if (part.find('?', end) == end) return answer(header);
    if (header == "ACQ1:POIN" || header == "ACQ2:POIN") return record(header[3] - '1');
    take(header, value == std::string::npos ? "" : part.substr(value));
    return "";
  }

  void take(const std::string& header, const std::string& value) {
    const double number = std::atof(value.c_str());
    Channel& channel = channels[header.starts_with("CHAN2") ? 1 : 0];
    const std::string what = header.starts_with("CHAN") ? header.substr(6) : header;
    hasChanged_ = true;
    if (what == "DISP")
      channel.isDisplayed = number != 0;
    else if (what == "SCAL" && number > 0)
      channel.volts = number;
    else if (what == "OFFS")
      channel.offset = number;
    else if (what == "PROB") {
      const double probe = std::pow(10, number);
      channel.volts *= probe / std::exchange(channel.probe, probe);
    } else if (what == "COUP")
      channel.input[0] = value;
    else if (what == "INV")
      channel.input[1] = value;
    else if (what == "BWL")
      channel.input[2] = value;
    else if (what == "MATH")
      math = header[4] == '2' ? 3 : static_cast<int>(number);
    else if (what == "TIM:SCAL" && number > 0)
      seconds = number;
    else if (what == "TIM:DEL")
      delay = number;
    else if (what == "TRIG:LEV")
      level = number;
    else if (what == "TRIG:SOUR")
      source = static_cast<int>(number);
    else if (what == "TRIG:MOD")
      mode = static_cast<int>(number);
    else if (what == "RUN")
      isStopped = false;
    else if (what == "STOP")
      stop();
    else if (what == "MEAS:SOUR")
      measured_ = static_cast<int>(number) - 1;
    else if (what == "AUT" || what == "*RST") {
      shuffle();
      math = 0;
      isStopped = false;
    } else if (what == "SELF:TEST")
      shuffle();
    else
      others_[header] = value;
  }

  void stop() {
    if (!isStopped && isTriggered && history_.below(2) == 0) sweep();
    isStopped = true;
  }

  std::string answer(const std::string& header) {
    const Channel& channel = channels[header.starts_with("CHAN2") ? 1 : 0];
    const std::string what = header.starts_with("CHAN") ? header.substr(6) : header;
    if (what == "DISP") return channel.isDisplayed ? "1" : "0";
    if (what == "SCAL") return text(channel.volts, "V");
    if (what == "OFFS") return text(channel.offset, "V");
    if (what == "PROB") return std::to_string(std::lround(std::log10(channel.probe)));
    if (what == "COUP") return channel.input[0];
    if (what == "INV") return channel.input[1];
    if (what == "BWL") return channel.input[2];
    if (what == "TIM:SCAL") return text(seconds, "s");
    if (what == "TIM:DEL") return text(delay, "s");
    if (what == "TRIG:LEV") return text(level, "V");
    if (what == "TRIG:SOUR") return std::to_string(source);
    if (what == "TRIG:MOD") return std::to_string(mode);
    if (what == "*IDN") return "TRUE " + std::to_string(id);
    if (what.starts_with("MEAS:")) {
      if (history_.below(12) == 0) return "N/A";
      history_.measured.push_back({id, measured_, what.substr(5), signal(measured_)});
      return "M" + std::to_string(history_.measured.size() - 1);
    }
    return others_.contains(header) ? others_[header] : "0";
  }

  /// Where the trigger does not come a sweep that was made before is sent, unless that would be one
  /// that nobody could know to be of another setting.
  std::string record(int channel) {
    const auto place = static_cast<std::size_t>(channel);
    const bool isTakenForNew =
        hasChanged_ && history_.held(channel) != history_.sweeps[sweep_].number;
    if (!isStopped && (isTriggered || isTakenForNew)) sweep();
    Sweep& sent = history_.sweeps[sweep_];
    ++sent.sent[place];
    std::array<char, 15> header;
    std::snprintf(header.data(), header.size(), "#%d%012d", channel + 1, sent.number);
    std::string bytes(header.data(), 14);
    for (int i = 0; i < 500; ++i) {
      const int counts = sent.counts(channel, i);
      bytes += static_cast<char>((counts >> 8) & 0xFF);
      bytes += static_cast<char>(counts & 0xFF);
    }
    return bytes;
  }

  History& history_;
  std::size_t sweep_ = 0;
  bool hasChanged_ = true;
  int measured_ = 0;
  std::map<std::string, std::string> others_;
};

}  // namespace tracewell
