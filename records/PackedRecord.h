// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "WaveformRecord.h"

namespace tracewell {

/// A whole record in three quarters of its bytes: of each sample its distance from the lowest one,
/// in 12 bits. The converter has 8.
class PackedRecord {
 public:
  /// None for a record that is not whole, or whose samples reach over 82 divisions or more.
  static std::optional<PackedRecord> of(std::string_view record);

  /// As it was received, to the byte.
  std::string bytes() const;
  Samples samples() const;

 private:
  std::array<char, WaveformRecord::headerBytes> header_;
  std::int16_t lowest_;
  /// Two distances in three bytes, the lower bits first.
  std::array<std::uint8_t, WaveformRecord::sampleCount / 2 * 3> distances_;
};

}  // namespace tracewell
