// SPDX-License-Identifier: GPL-3.0-or-later
#include "GraphSize.h"

namespace tracewell {

void GraphSize::ToggleGraphSize() {
  main_.GraphEnlarged = !main_.GraphEnlarged();
  for (Control* panel : panels()) panel->visible = !main_.GraphEnlarged();
}

/// What makes room: all that stands beside the graph and below its buttons.
std::vector<Control*> GraphSize::panels() {
  return {&main_.fmCh1,        &main_.fmCh2,     &main_.fmTime,    &main_.fmTrig,
          &main_.fmInstrument, &main_.fmMeasure, &main_.lblDSOCmd, &main_.txtTest,
          &main_.cmdTest,      &main_.cmdDSOcmd, &main_.txtMsg};
}

}  // namespace tracewell
