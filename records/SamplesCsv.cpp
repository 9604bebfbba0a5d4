// SPDX-License-Identifier: GPL-3.0-or-later
#include "SamplesCsv.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "Numbers.h"

namespace tracewell {
namespace {

constexpr double unitsPerDivision = 50;
/// The middle of the screen, from which time counts in the graphs, too.
constexpr double middle = WaveformRecord::sampleCount / 2.0;
/// More than a sample of 16 bits and a scale of three digits have between them.
constexpr int digitsOfVolts = 7;

/// Enough to tell two samples apart, however long after the first record they are.
int digitsOfTime(double at, double step) {
  constexpr int most = 17;
  constexpr int behind = 3;
  const double steps = at / step + WaveformRecord::sampleCount;
  return std::min(most, static_cast<int>(std::ceil(std::log10(steps))) + behind);
}

std::vector<int> channelsOf(const Stretch& stretch) {
  return stretch.channel == 0 ? std::vector<int>{1, 2} : std::vector<int>{stretch.channel};
}

/// The one that shares the rows of a record, if it is in the stretch, too.
std::optional<RecordStore::Number> partnerIn(const RecordStore& store, const Stretch& stretch,
                                             RecordStore::Number number) {
  const auto partner = stretch.channel == 0 ? store.partnerOf(number) : std::nullopt;
  const bool isThere = partner && *partner >= stretch.first && *partner < stretch.end &&
                       SamplesTable::canHold(store.record(*partner)) &&
                       store.partnerOf(*partner) == number;
  return isThere ? partner : std::nullopt;
}

}  // namespace

bool SamplesTable::canHold(const ChannelRecord& record) {
  return record.madeUnder.voltsPerDivision && record.madeUnder.secondsPerDivision &&
         record.bytes.size() == WaveformRecord::byteCount;
}

std::string SamplesTable::heading() const {
  std::string text = "Time (s)";
  for (const int channel : channels_) text += ",CH" + std::to_string(channel) + " (V)";
  return text + "\n";
}

std::string SamplesTable::rows(const ChannelRecord* first, const ChannelRecord* second) {
  const std::array<const ChannelRecord*, 2> records = {first, second};
  std::array<Samples, 2> samples{};
  for (std::size_t i = 0; i < records.size(); ++i)
    if (records[i] != nullptr) samples[i] = decodeSamples(records[i]->bytes, 0);
  const ChannelRecord& leading = first != nullptr ? *first : *second;
  if (!begunAt_) begunAt_ = leading.sweepAt;
  const double at = static_cast<double>(leading.sweepAt - *begunAt_) * 1e-3;
  const double step = *leading.madeUnder.secondsPerDivision / unitsPerDivision;
  const int digits = digitsOfTime(at, step);
  std::string text;
  for (std::size_t i = 0; i < WaveformRecord::sampleCount; ++i) {
    text += shortNumberText(at + (static_cast<double>(i) - middle) * step, digits);
    for (const int channel : channels_) {
      const auto index = static_cast<std::size_t>(channel - 1);
      text += ",";
      if (records[index] == nullptr) continue;
      const double voltsPerUnit = *records[index]->madeUnder.voltsPerDivision / unitsPerDivision;
      text += shortNumberText(samples[index][i] * voltsPerUnit, digitsOfVolts);
    }
    text += "\n";
  }
  return text;
}

SamplesCsvResult writeSamples(const RecordStore& store, const Stretch& stretch,
                              const std::function<void(std::string_view)>& write) {
  SamplesTable table(channelsOf(stretch));
  SamplesCsvResult result;
  write(table.heading());
  for (RecordStore::Number number = stretch.first; number < stretch.end; ++number) {
    if (!store.isKept(number)) continue;
    const int channel = store.facts(number).channel;
    if (stretch.channel != 0 && channel != stretch.channel) continue;
    const ChannelRecord record = store.record(number);
    if (!SamplesTable::canHold(record)) {
      ++result.leftOut;
      continue;
    }
    ++result.records;
    const auto partner = partnerIn(store, stretch, number);
    // It stands beside the earlier of the two.
    if (partner && *partner < number) continue;
    std::optional<ChannelRecord> other;
    if (partner) other = store.record(*partner);
    const ChannelRecord* const beside = other ? &*other : nullptr;
    write(channel == 1 ? table.rows(&record, beside) : table.rows(beside, &record));
  }
  return result;
}

}  // namespace tracewell
