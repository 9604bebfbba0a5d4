// SPDX-License-Identifier: GPL-3.0-or-later
#include "SyntheticRecord.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <numbers>
#include <sstream>

#include "Converter.h"

namespace tracewell {
namespace {

constexpr double turn = 2 * std::numbers::pi;

std::vector<std::string> cells(const std::string& line) {
  std::vector<std::string> result;
  std::istringstream stream(line);
  for (std::string cell; std::getline(stream, cell, ',');) result.push_back(cell);
  return result;
}

double fraction(double value) {
  return value - std::floor(value);
}

class Noise {
 public:
  explicit Noise(std::uint32_t seed) : random_(seed) {}
  double next() {
    double sum = 0;
    for (int i = 0; i < 4; ++i) {
      random_ ^= random_ << 13;
      random_ ^= random_ >> 17;
      random_ ^= random_ << 5;
      sum += random_ / 4294967296.0 - 0.5;
    }
    return 1.7 * sum;
  }

 private:
  std::uint32_t random_;
};

struct Pulse {
  double edge;
  double duty;
  double ringing;

  double ring(double behind) const {
    return ringing * std::exp(-40 * behind) * std::sin(turn * 12 * behind);
  }
  double at(double turns) const {
    const double since = fraction(turns + edge / 2);
    double level = since < duty ? -1 + 2 * since / edge : 1 - 2 * (since - duty) / edge;
    if (edge == 0) level = since < duty ? 1 : -1;
    return std::clamp(level, -1.0, 1.0) + ring(fraction(since - edge)) -
           ring(fraction(since - duty - edge));
  }
};

}  // namespace

std::vector<RecordRow> readRecordRows(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  const std::vector<std::string> names = cells(line);
  std::vector<RecordRow> rows;
  while (std::getline(file, line)) {
    const std::vector<std::string> values = cells(line);
    for (RecordRow& row = rows.emplace_back(); const std::string& name : names)
      row[name] = values.at(row.size());
  }
  return rows;
}

Samples syntheticRecord(const RecordRow& row) {
  const auto number = [&row](const char* name) { return std::stod(row.at(name)); };
  const double period = number("period");
  const Pulse pulse{number("edge") / period, number("duty"), number("ringing")};
  const std::string shape = row.at("shape");
  Noise noise(static_cast<std::uint32_t>(std::stoul(row.at("seed"))));
  Samples samples{};
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double turns = static_cast<double>(i) / period + number("phase");
    const double ramp = fraction(turns + pulse.duty / 2);
    const double value = shape == "sine"     ? std::sin(turn * turns)
                         : shape == "pulse"  ? pulse.at(turns)
                         : ramp < pulse.duty ? 2 * ramp / pulse.duty - 1
                                             : 1 - 2 * (ramp - pulse.duty) / (1 - pulse.duty);
    const double units =
        number("offset") + number("amplitude") * value + number("noise") * noise.next();
    const double steps = std::clamp(std::nearbyint(units / converter::step), -128.0, 127.0);
    samples[i] = static_cast<std::int16_t>(converter::step * steps);
  }
  return samples;
}

}  // namespace tracewell
