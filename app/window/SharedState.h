// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "SetupTable.h"

namespace tracewell {

/// What the subsystems share about the instrument and the program. Integers are 16-bit, and
/// arithmetic on them is checked (Numbers.h).
struct SharedState {
  static constexpr int sampleCount = 500;
  static constexpr int messageCount = 21;

  /// Baud rate in use. A rate above 32767 does not fit and is refused with "Overflow".
  std::int16_t BaudRate = 19200;
  /// Channels displayed; multiplies the reply time-out.
  std::int16_t ChanCount = 1;
  /// Texts of the chosen language; 0 to 12 come from the message file, the rest stay empty.
  std::array<std::string, messageCount> Msg;

  /// Channel 1, channel 2: displayed.
  std::array<bool, 2> ChanOn{};
  /// 1 or 2: whose record is requested next.
  std::int16_t AcqChan = 0;
  /// A record has been requested, or the acquisition resumed, and the port not been reset by
  /// StopAcq since.
  bool PortBusy = false;
  /// The instrument's own panel is locked because it has been sent a command.
  bool InRemote = false;
  /// The last exchange succeeded; false after a read time-out.
  bool LinkOK = false;
  /// A first connect has read the instrument.
  bool Initialised = false;
  std::int16_t WaveCount = 0;
  std::int16_t TestChar = 0;

  /// Last whole record of each channel, header included.
  std::string Ch1Raw;
  std::string Ch2Raw;
  /// Vertical positions in divisions: channel 1 may be fractional, channel 2 is a whole number.
  double Ch1Pos = 0;
  std::int16_t Ch2Pos = 0;
  /// The same in sample units, as they were when the instrument was last read.
  std::int16_t Ch1PosCounts = 0;
  std::int16_t Ch2PosCounts = 0;

  /// x of each sample in graph units: -250 to 249.
  std::array<std::int16_t, sampleCount> XIndex{};

  /// The trigger level of the slide is the instrument's, or is being set: the instrument's own is
  /// not read.
  bool TriggerLevelSet = false;
  /// The trigger source that the instrument has told or taken, as its number in the trigger
  /// dialog; none while that is not known.
  std::optional<std::int16_t> TriggerSource;
  /// The entry of the math box that the instrument has in force; none while that is not known.
  std::optional<std::int16_t> MathEntry;

  /// Channel of the quick frequency measurement, 1 or 2.
  std::int16_t FMeasChan = 1;

  /// True while the cursors measure time.
  bool CursorTimeMode = false;
  /// Last position read from each cursor, in graph units.
  double Cur1Pos = 0;
  double Cur2Pos = 0;

  /// Number of the message that stands on each of these captions; 0 while it is the caption file's.
  struct ShownMessages {
    std::size_t lblConnect = 0;
    std::size_t cmdStart = 0;
    std::size_t cmdRunStop = 0;
  } shownMessages;

  /// When the last record of each channel came; Clock milliseconds.
  std::array<std::optional<std::int64_t>, 2> RecordTime;
  /// Scales of a record of a channel; none where they are not known, and no volts for the math
  /// that the instrument shows in the channel's place.
  struct RecordScale {
    std::optional<double> voltsPerDivision;
    std::optional<double> secondsPerDivision;
    bool operator==(const RecordScale&) const = default;
  };
  /// As they were when the records of each channel that are awaited were requested.
  struct RequestScale {
    std::optional<RecordScale> onItsWay;
    std::optional<RecordScale> waiting;
  };
  std::array<RequestScale, 2> RequestScales;
  /// Those of the last record that has come. Kept through link/RecordScales.h, both.
  std::array<RecordScale, 2> RecordScales;
  /// Where the scales were read: number of the port, and its count of openings then.
  struct ScaleOrigin {
    std::int16_t portNumber = 0;
    int openings = 0;
    bool operator==(const ScaleOrigin&) const = default;
  };
  std::optional<ScaleOrigin> scaleOrigin;

  /// Lines that the error log has got since it was last open.
  int NewLogLines = 0;

  /// Whole paths, in the order in which they were noted. Kept through app/window/KeptFiles.h.
  std::vector<std::filesystem::path> FilesToKeep;

  /// The setup table.
  SetupTable gridMeasure;
};

}  // namespace tracewell
