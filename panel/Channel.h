// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "ScaleTables.h"
#include "frmDSO.h"

namespace tracewell {

/// What belongs to one of the two channels.
struct Channel {
  int number;
  CheckBox& display;
  Slide& slide;
  ValueLabel& scale;
  Knob& knob;
  MenuEntry& menuEntry;
  std::string& record;
  const std::array<std::string_view, 5>& queries;
  std::int16_t setupRow;
  ScaleKnob kind;

  /// Number 1 or 2.
  static Channel of(frmDSO& main, int number);

  /// ":CHAN1:"
  std::string stem() const { return ":CHAN" + std::to_string(number) + ":"; }
};

}  // namespace tracewell
