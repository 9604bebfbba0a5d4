// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tracewell {

/// What the whole program has one of. Integers are 16-bit, and arithmetic on them is checked
/// (Numbers.h).
struct ModuleState {
  static constexpr int messageCount = 21;

  /// Baud rate in use. A rate above 32767 does not fit and is refused with "Overflow".
  std::int16_t BaudRate = 19200;
  /// Channels displayed; multiplies the reply time-out.
  std::int16_t ChanCount = 1;
  /// Texts of the chosen language; 0 to 12 come from the message file, the rest stay empty.
  std::array<std::string, messageCount> Msg;
};

}  // namespace tracewell
