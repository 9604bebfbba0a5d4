// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Setting.h"

/// What the lines to the instrument do to its settings. Nothing else knows.
namespace tracewell {

/// One command or query out of a line.
struct WirePart {
  /// In capitals, without the colon that may lead it and without the "?": "CHAN1:SCAL".
  std::string header;
  /// The text behind the blank, without the blanks around it.
  std::string argument;
  bool isQuery = false;
};

/// The parts of a line, which ";" and line ends separate.
std::vector<WirePart> wireParts(std::string_view line);

/// What a command does: it sets one setting, or makes some not known.
struct WireEffect {
  std::optional<Setting> sets;
  std::vector<Setting> touches;
  /// It is in no table.
  bool isUnknown = false;
};

/// A command that is not in the tables may change anything.
WireEffect effectOf(const WirePart& command);

/// Milliseconds that the instrument is given for an autoset.
constexpr int autosetDuration = 10000;

/// Behind it, the instrument finds its own settings.
bool beginsAutoset(std::string_view line);

/// The setting that a query asks for; none for a command.
std::optional<Setting> askedBy(const WirePart& part);

/// The setting that a change of `setting` changes, too. A probe changes the scale. A scale changes
/// position or delay in divisions, since the instrument keeps them in volts and seconds.
std::optional<Setting> dependentOn(Setting setting);

/// The scale in whose divisions a position or delay is counted; none for another setting.
std::optional<Setting> scaleOf(Setting setting);

/// The commands that set the instrument's math, by entry of the math box; the last is off. Unlike
/// all other commands they begin without a colon.
constexpr std::array<std::string_view, 4> mathCommands = {"CHAN1:MATH 1", "CHAN1:MATH 2",
                                                          "CHAN2:MATH 2", "CHAN1:MATH 0"};

/// The channel in whose place the instrument shows its math with an entry of the box; 0 for off. A
/// sum or a difference is in the first, the difference the other way round in the second.
int mathChannelOf(std::size_t entry);

}  // namespace tracewell
