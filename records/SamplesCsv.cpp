// SPDX-License-Identifier: GPL-3.0-or-later
#include "SamplesCsv.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <vector>

namespace tracewell {
namespace {

constexpr double unitsPerDivision = 50;
/// More than a sample of 16 bits and a scale of three digits have between them.
constexpr int digitsOfVolts = 7;

bool isWritten(const RecordStore& store, RecordStore::Number number) {
  const RecordFacts& facts = store.facts(number);
  return facts.madeUnder.voltsPerDivision && facts.madeUnder.secondsPerDivision &&
         store.bytesOf(number).size() == WaveformRecord::byteCount;
}

class SamplesTable {
 public:
  SamplesTable(const RecordStore& store, const Stretch& stretch)
      : store_(store), stretch_(stretch) {
    for (const int channel : {1, 2})
      if (stretch.channel == 0 || stretch.channel == channel) channels_.push_back(channel);
  }

  std::string heading() const {
    std::string text = "Time (s)";
    for (const int channel : channels_) text += ",CH" + std::to_string(channel) + " (V)";
    return text + "\n";
  }

  bool isWanted(RecordStore::Number number) const {
    return stretch_.channel == 0 || store_.facts(number).channel == stretch_.channel;
  }

  /// With its partner, if that is in the stretch, too.
  std::optional<RecordStore::Number> partnerOf(RecordStore::Number number) const {
    const auto partner = stretch_.channel == 0 ? store_.partnerOf(number) : std::nullopt;
    const bool isThere = partner && *partner >= stretch_.first && *partner < stretch_.end &&
                         isWritten(store_, *partner) && store_.partnerOf(*partner) == number;
    return isThere ? partner : std::nullopt;
  }

  std::string rows(RecordStore::Number number, std::optional<RecordStore::Number> partner) {
    const RecordFacts& facts = store_.facts(number);
    if (!firstSweep_) firstSweep_ = facts.sweepAt;
    const double begin = static_cast<double>(facts.sweepAt - *firstSweep_) * 1e-3;
    const double step = *facts.madeUnder.secondsPerDivision / unitsPerDivision;
    const int digits = digitsOfTime(begin, step);
    std::array<std::optional<Column>, 2> columns;
    for (const auto& one : {std::optional(number), partner})
      if (one) columns[static_cast<std::size_t>(store_.facts(*one).channel - 1)] = columnOf(*one);
    std::string text;
    for (std::size_t i = 0; i < WaveformRecord::sampleCount; ++i) {
      text += shortNumberText(begin + static_cast<double>(i) * step, digits);
      for (const int channel : channels_) {
        const auto& column = columns[static_cast<std::size_t>(channel - 1)];
        text += ",";
        if (column)
          text += shortNumberText(column->samples[i] * column->voltsPerUnit, digitsOfVolts);
      }
      text += "\n";
    }
    return text;
  }

 private:
  struct Column {
    Samples samples;
    double voltsPerUnit;
  };
  Column columnOf(RecordStore::Number number) const {
    return {decodeSamples(store_.bytesOf(number), 0),
            *store_.facts(number).madeUnder.voltsPerDivision / unitsPerDivision};
  }
  /// As many as tell two samples apart, however long after the first record they are.
  static int digitsOfTime(double begin, double step) {
    constexpr int most = 17;
    constexpr int behind = 3;
    const double steps = begin / step + WaveformRecord::sampleCount;
    return std::min(most, static_cast<int>(std::ceil(std::log10(steps))) + behind);
  }

  const RecordStore& store_;
  const Stretch& stretch_;
  std::vector<int> channels_;
  std::optional<std::int64_t> firstSweep_;
};

}  // namespace

std::string shortNumberText(double value, int digits) {
  std::array<char, 40> text;
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value,
                                          std::chars_format::general, digits);
  return {text.data(), end};
}

SamplesCsvResult writeSamples(const RecordStore& store, const Stretch& stretch,
                              const std::function<void(std::string_view)>& write) {
  SamplesTable table(store, stretch);
  SamplesCsvResult result;
  write(table.heading());
  for (RecordStore::Number number = stretch.first; number < stretch.end; ++number) {
    if (!store.isKept(number) || !table.isWanted(number)) continue;
    if (!isWritten(store, number)) {
      ++result.leftOut;
      continue;
    }
    const auto partner = table.partnerOf(number);
    ++result.records;
    // It stands beside the earlier of the two.
    if (partner && *partner < number) continue;
    write(table.rows(number, partner));
  }
  return result;
}

}  // namespace tracewell
