// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "frmDSO.h"

/// What the panel knows of the instrument's scales; none while it has not been told, or may have
/// been told by another instrument.
namespace tracewell {

std::optional<double> voltsPerDivision(const frmDSO& main, int channel);
std::optional<double> secondsPerDivision(const frmDSO& main);

/// The same for what is measured on the screen: none, either, where a trace that is shown is known
/// to have come under another scale, as one that stays when the knob is turned.
std::optional<double> voltsOfTrace(const frmDSO& main, int channel);
std::optional<double> secondsOfTraces(const frmDSO& main);

/// What sets the instrument's math, by entry of the math box; the last is off. Unlike all other
/// commands they begin without a colon.
constexpr std::array<std::string_view, 4> mathCommands = {"CHAN1:MATH 1", "CHAN1:MATH 2",
                                                          "CHAN2:MATH 2", "CHAN1:MATH 0"};

/// The number of the channel in whose place the instrument shows its math; 0 where it shows none.
/// A sum or a difference is in the first, the difference the other way round in the second.
int mathChannel(const frmDSO& main);

}  // namespace tracewell
