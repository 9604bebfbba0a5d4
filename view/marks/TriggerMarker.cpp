// SPDX-License-Identifier: GPL-3.0-or-later
#include "TriggerMarker.h"

#include "TraceMarks.h"

namespace tracewell {
namespace {

std::optional<double> level(const frmDSO& main) {
  if (main.slideTrig.isHeld()) return main.slideTrig.value();
  return main.known.number(Setting::triggerLevel);
}

/// Where the level lies on the trace of the trigger's source, in graph units.
std::optional<double> levelHeight(const frmDSO& main) {
  const std::optional<double> source = main.known.number(Setting::triggerSource);
  if (source != 0 && source != 1) return std::nullopt;
  const Channel& channel = main.channel(source == 0 ? 1 : 2);
  const auto volts = voltsOfTrace(main, channel);
  const auto zero = zeroOf(main, channel);
  const bool isPositionKnown = main.known.isKnown(ofChannel(Setting::position1, channel.number));
  if (!level(main) || !volts || !zero || !isPositionKnown) return std::nullopt;
  return Graph::unitsPerDivision * *level(main) / *volts + *zero;
}

}  // namespace

void showTriggerMarker(frmDSO& main) {
  const std::optional<double> height = levelHeight(main);
  Cursor& marker = main.graphDSO.cursor("Triger");
  marker.style = CursorStyle::marker;
  marker.visible = height.has_value();
  if (height) marker.yPosition = *height;
}

}  // namespace tracewell
