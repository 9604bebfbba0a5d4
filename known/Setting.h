// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace tracewell {

/// The settings of the instrument that the panel shows or needs in order to show records.
enum class Setting : std::size_t {
  /// Of a channel, in pairs: ofChannel picks one.
  display1,
  display2,
  /// Volts per division.
  scale1,
  scale2,
  /// Divisions.
  position1,
  position2,
  /// Number of the option in the channel dialog.
  probe1,
  probe2,
  /// Coupling, inversion and bandwidth limit together: only the time of their change is kept.
  input1,
  input2,
  /// Seconds per division.
  timeBase,
  /// Divisions.
  delay,
  /// Number of the entry in the trigger dialog.
  triggerMode,
  triggerSource,
  /// Volts.
  triggerLevel,
  /// Entry of the math box.
  math,
  /// 1 while the instrument's own panel is locked.
  lock,
  /// 1 running, 0 stopped.
  running,
  /// Numbers of the entries in the acquisition dialog.
  acquireMode,
  acquireAverage,
  acquireLength,
  /// Numbers of the entries, and the numbers, in the trigger dialog's advanced group.
  advancedMode,
  advancedType,
  advancedEvent,
  advancedLevel,
  advancedDelay
};
constexpr std::size_t settingCount = 26;

/// The setting of channel 1 or 2 out of a pair.
constexpr Setting ofChannel(Setting first, int channel) {
  return static_cast<Setting>(static_cast<std::size_t>(first) +
                              static_cast<std::size_t>(channel - 1));
}

/// Why a setting is not known.
enum class Doubt {
  none,
  neverRead,
  noAnswer,
  /// It had a reply, which may turn out to be that to another query.
  unsureAnswer,
  /// It had a reply, which may be that to another query for all that can be told.
  wrongAnswer,
  /// A command for it was begun and failed.
  notSent,
  /// Something may have changed it since.
  mayHaveChanged,
  /// It was told by the instrument that was on the line before.
  anotherInstrument
};

}  // namespace tracewell
