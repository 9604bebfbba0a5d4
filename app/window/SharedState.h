// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "SetupTable.h"
#include "WaveformRecord.h"

namespace tracewell {

/// What the subsystems share about the instrument and the program. Integers are 16-bit, and
/// arithmetic on them is checked (Numbers.h).
struct SharedState {
  static constexpr int messageCount = 21;

  /// Baud rate in use. A rate above 32767 does not fit and is refused with "Overflow".
  std::int16_t BaudRate = 19200;
  /// Channels displayed; multiplies the reply time-out.
  std::int16_t ChanCount = 1;
  /// Texts of the chosen language; 0 to 12 come from the message file, the rest stay empty.
  std::array<std::string, messageCount> Msg;

  /// The instrument's own panel is locked because it has been sent a command.
  bool InRemote = false;
  /// The last exchange succeeded; false after a read time-out.
  bool LinkOK = false;
  /// A first connect has read the instrument.
  bool Initialised = false;

  /// x of each sample in graph units: -250 to 249.
  Samples XIndex{};

  /// Number of the message that stands on each of these captions; 0 while it is the caption file's.
  struct ShownMessages {
    std::size_t lblConnect = 0;
    std::size_t cmdStart = 0;
    std::size_t cmdRunStop = 0;
  } shownMessages;

  /// Lines that the error log has got since it was last open.
  int NewLogLines = 0;

  /// Whole paths, in the order in which they were noted. Kept through app/window/KeptFiles.h.
  std::vector<std::filesystem::path> FilesToKeep;

  /// The setup table.
  SetupTable gridMeasure;
};

}  // namespace tracewell
