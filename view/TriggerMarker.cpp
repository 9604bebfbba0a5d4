// SPDX-License-Identifier: GPL-3.0-or-later
#include "TriggerMarker.h"

#include "ScaleTables.h"

namespace tracewell {
namespace {

bool isSourceChannel2(const frmDSO& main) {
  return main.gridMeasure.text(SetupTable::trigger, SetupTable::firstValue) == "1";
}

}  // namespace

void UpdateTriggerMarker(frmDSO& main) {
  const bool isSecond = isSourceChannel2(main);
  const ValueLabel& scale = isSecond ? main.lblChan2 : main.lblChan1;
  const double voltsPerDivision = ParseScaleCaption(scale.caption());
  if (voltsPerDivision == 0) return;
  const double position = isSecond ? main.Ch2Pos : main.Ch1Pos;
  Cursor& marker = main.graphDSO.cursor("Triger");
  marker.style = CursorStyle::marker;
  marker.yPosition =
      SharedState::unitsPerDivision * (main.slideTrig.value() / voltsPerDivision + position);
}

}  // namespace tracewell
