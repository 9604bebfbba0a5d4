// SPDX-License-Identifier: GPL-3.0-or-later
#include "TriggerMarker.h"

#include <optional>

#include "ScaleTables.h"

namespace tracewell {
namespace {

/// Where the level lies on the trace of the trigger's source, in graph units; nothing for a source
/// without a trace, and while source, scale or position are not known.
std::optional<double> levelHeight(const frmDSO& main) {
  const bool isSecond = main.TriggerSource == 1;
  if (!isSecond && main.TriggerSource != 0) return std::nullopt;
  const ValueLabel& scale = isSecond ? main.lblChan2 : main.lblChan1;
  const Slide& slide = isSecond ? main.slideCH2 : main.slideCH1;
  const double voltsPerDivision = ParseScaleCaption(scale.caption());
  const bool isKnown = !scale.isUnread() && !slide.isUnread() && !scale.isStale();
  if (voltsPerDivision == 0 || !isKnown) return std::nullopt;
  const double position = isSecond ? main.Ch2Pos : main.Ch1Pos;
  return Graph::unitsPerDivision * (main.slideTrig.value() / voltsPerDivision + position);
}

}  // namespace

void UpdateTriggerMarker(frmDSO& main) {
  const std::optional<double> height = levelHeight(main);
  Cursor& marker = main.graphDSO.cursor("Triger");
  marker.style = CursorStyle::marker;
  marker.visible = main.TriggerLevelSet && height.has_value();
  if (height) marker.yPosition = *height;
  main.graphDSO.notifyChanged();
}

void ForgetUnaskedSettings(frmDSO& main) {
  main.TriggerLevelSet = false;
  main.TriggerSource.reset();
  main.MathEntry.reset();
  main.slideTrig.isUnread = true;
  main.slideTime.isUnread = true;
  main.cbMath.isUnread = true;
  UpdateTriggerMarker(main);
}

}  // namespace tracewell
