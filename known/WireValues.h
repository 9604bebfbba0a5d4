// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Setting.h"
#include "WireRules.h"

/// The values of settings as they go over the line: positions in volts, the delay in seconds, all
/// else in the units that Setting.h says.
namespace tracewell {

struct WireValue {
  /// None for a scale that the instrument does not have: "Null".
  std::optional<double> number;
  /// Of a scale, as the instrument writes it, "500.0 mV".
  std::string caption = "";
};

/// What a command that sets the setting sets it to; none if its argument is no value of it.
std::optional<WireValue> sentValue(Setting setting, const WirePart& command);

/// What a reply to the setting's query tells; none if it is no value of it. A position is accepted
/// in any form that the panel makes one of. Math has no query.
std::optional<WireValue> toldValue(Setting setting, std::string_view reply);

bool isScale(Setting setting);

constexpr double stoppedState = 0;
constexpr double runningState = 1;
/// Modes of the trigger. From normalMode on the instrument sweeps when there is a trigger, else
/// freely.
constexpr double autoLevel = 0;
constexpr double normalMode = 2;
constexpr double singleMode = 3;

}  // namespace tracewell
