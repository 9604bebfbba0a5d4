// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tracewell {

/// A waveform as the instrument sends it: a 14-byte header, then 500 samples of two bytes, high
/// byte first, in two's complement.
struct WaveformRecord {
  static constexpr int headerBytes = 14;
  static constexpr int sampleCount = 500;
  static constexpr int byteCount = headerBytes + 2 * sampleCount;
  /// Where the high byte of a sample is.
  static constexpr std::size_t positionOf(std::size_t sample) { return headerBytes + 2 * sample; }
};

using Samples = std::array<std::int16_t, WaveformRecord::sampleCount>;

/// The samples of `record`, each shifted by `offset`. A sample that is missing, 0x8000, or outside
/// 16 bits after the shift takes the value of the sample before it (the first one then 0).
Samples decodeSamples(std::string_view record, std::int16_t offset);

/// The same for redrawing a record that is held, where 0x8000 is a value like any other. Raises
/// "Subscript out of range" for a record that is cut, "Overflow" for a sample that does not fit.
Samples shiftSamples(std::string_view record, std::int16_t shift);

/// "1,12,13,...\r\n": the channel's number and every value, as the reply box shows a record.
std::string recordText(std::int16_t channel, const Samples& samples);

}  // namespace tracewell
