// SPDX-License-Identifier: GPL-3.0-or-later
#include "PackedRecord.h"

#include <algorithm>

namespace tracewell {

std::optional<PackedRecord> PackedRecord::of(std::string_view record) {
  if (record.size() != WaveformRecord::byteCount) return std::nullopt;
  const Samples samples = decodeSamples(record, 0);
  const int lowest = std::ranges::min(samples);
  PackedRecord packed;
  std::ranges::copy(record.substr(0, packed.header_.size()), packed.header_.begin());
  packed.lowest_ = static_cast<std::int16_t>(lowest);
  auto out = packed.distances_.begin();
  for (std::size_t i = 0; i < samples.size(); i += 2) {
    const int first = samples[i] - lowest;
    const int second = samples[i + 1] - lowest;
    *out++ = static_cast<std::uint8_t>(first & 0xFF);
    *out++ = static_cast<std::uint8_t>(first >> 8 | (second & 0xF) << 4);
    *out++ = static_cast<std::uint8_t>(second >> 4);
  }
  // Not where a distance takes more bits, or a sample is missing and the one before has its place.
  return packed.bytes() == record ? std::optional(packed) : std::nullopt;
}

Samples PackedRecord::samples() const {
  Samples samples;
  const auto* in = distances_.data();
  for (std::size_t i = 0; i < samples.size(); i += 2, in += 3) {
    samples[i] = static_cast<std::int16_t>(lowest_ + (in[0] | (in[1] & 0xF) << 8));
    samples[i + 1] = static_cast<std::int16_t>(lowest_ + (in[1] >> 4 | in[2] << 4));
  }
  return samples;
}

std::string PackedRecord::bytes() const {
  std::string record(WaveformRecord::byteCount, '\0');
  std::ranges::copy(header_, record.begin());
  std::size_t at = header_.size();
  for (const std::int16_t sample : samples()) {
    record[at++] = static_cast<char>(static_cast<std::uint16_t>(sample) >> 8);
    record[at++] = static_cast<char>(sample & 0xFF);
  }
  return record;
}

}  // namespace tracewell
