// SPDX-License-Identifier: GPL-3.0-or-later
#include "WaveformRecord.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "Error.h"
#include "Numbers.h"

namespace tracewell {
namespace {

/// The exact value of a two-byte sample.
int sampleAt(std::string_view record, std::size_t position) {
  const int high = static_cast<std::uint8_t>(record[position]);
  const int low = static_cast<std::uint8_t>(record[position + 1]);
  return high < 128 ? high * 256 + low : high * 256 + low - 65536;
}

bool fits(int value) {
  return value >= std::numeric_limits<std::int16_t>::min() &&
         value <= std::numeric_limits<std::int16_t>::max();
}

}  // namespace

Samples decodeSamples(std::string_view record, std::int16_t offset) {
  Samples samples{};
  std::int16_t previous = 0;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const std::size_t position = WaveformRecord::positionOf(i);
    if (position + 1 < record.size()) {
      const int sample = sampleAt(record, position);
      // The negation that makes a sample negative has no 16-bit result for 0x8000.
      const bool isValid = sample != std::numeric_limits<std::int16_t>::min();
      if (isValid && fits(sample + offset)) previous = static_cast<std::int16_t>(sample + offset);
    }
    samples[i] = previous;
  }
  return samples;
}

Samples shiftSamples(std::string_view record, std::int16_t shift) {
  if (record.size() < WaveformRecord::byteCount) throw subscriptError();
  Samples samples;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const int sample = sampleAt(record, WaveformRecord::positionOf(i));
    samples[i] = addInt16(static_cast<std::int16_t>(sample), shift);
  }
  return samples;
}

std::string recordText(std::int16_t channel, const Samples& samples) {
  constexpr std::string_view lineEnd = "\r\n";
  constexpr std::size_t longestValue = 7;
  std::array<char, (WaveformRecord::sampleCount + 1) * longestValue + lineEnd.size()> buffer;
  char* const valuesEnd = buffer.data() + buffer.size() - lineEnd.size();
  char* end = std::to_chars(buffer.data(), valuesEnd, channel).ptr;
  for (const std::int16_t sample : samples) {
    *end++ = ',';
    end = std::to_chars(end, valuesEnd, sample).ptr;
  }
  end = std::ranges::copy(lineEnd, end).out;
  return {buffer.data(), end};
}

}  // namespace tracewell
