// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "ChannelRecord.h"
#include "Controls.h"
#include "Dials.h"
#include "Graph.h"
#include "KnownInstrument.h"
#include "Numbers.h"
#include "ScaleTables.h"

namespace tracewell {

/// The slide shows the instrument's value, as far as its caption shows digits.
inline bool showsKnown(const Slide& slide, const KnownInstrument& known, Setting setting) {
  constexpr double shownPrecision = 0.005;
  const std::optional<double> value = known.number(setting);
  return value && std::fabs(*value - slide.value()) <= shownPrecision;
}

/// One of the two channels: its controls in the main window, and what the panel holds of it. The
/// two are alike but for their positions, of which the second's is kept in whole divisions.
struct Channel {
  /// 1 or 2.
  const int number;
  CheckBox& display;
  Knob& knob;
  ValueLabel& scale;
  Slide& slide;
  MenuEntry& menuEntry;
  Plot& plot;
  const ScaleKnob kind;

  bool isDisplayed = false;
  ChannelRecord record{};
  /// Vertical position in divisions.
  double position = 0;
  /// The same in sample units, as it was when the instrument was last read.
  std::int16_t positionCounts = 0;
  /// By how many units the trace was shifted when it was drawn: where its zero is.
  std::int16_t drawnShift = 0;
  /// And whether the slide showed the instrument's position then.
  bool isDrawnAsKnown = false;
  KnownInstrument::Moment drawnAt = 0;

  /// 0 or 1.
  std::size_t index() const { return static_cast<std::size_t>(number - 1); }
  /// ":CHAN1:"
  std::string stem() const { return ":CHAN" + std::to_string(number) + ":"; }

  /// Its trace has been drawn, shifted by that many units.
  void drawn(std::int16_t shift, const KnownInstrument& known) {
    drawnShift = shift;
    isDrawnAsKnown = showsKnown(slide, known, ofChannel(Setting::position1, number));
    drawnAt = known.now();
  }

  /// Raises "Overflow" where it does not fit.
  double keptPosition(double divisions) const {
    return number == 1 ? divisions : toInt16(divisions);
  }
  /// The position in sample units, for a record that has come. Raises "Overflow".
  std::int16_t recordShift() const {
    return number == 1 ? toInt16(Graph::unitsPerDivision * position)
                       : mulInt16(toInt16(position), Graph::unitsPerDivision);
  }
};

}  // namespace tracewell
