// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tracewell {

/// A binary record of a known length: what is asked for, and what has come.
struct LineRecord {
  /// The line that asks for it, with its CR LF.
  std::string request = {};
  /// Of two requests that wait for one channel the second is left out.
  std::int16_t channel = 0;
  /// Whoever asks marks the request with it.
  std::int64_t stamp = 0;
  /// How many bytes it has when it is whole.
  std::size_t count = 0;
  std::string bytes = {};
};

}  // namespace tracewell
