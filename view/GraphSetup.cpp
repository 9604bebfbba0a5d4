// SPDX-License-Identifier: GPL-3.0-or-later
#include "GraphSetup.h"

namespace tracewell {

void setUpCursors(Graph& graph) {
  for (const char* name : {"cur1", "cur2"}) {
    graph.cursor(name).visible = false;
    graph.cursor(name).style = CursorStyle::verticalLine;
  }
  graph.axis("XAxis").caption = "Time";
}

void setUpSecondAxis(Graph& graph) {
  Axis& second = graph.axis("YAxis-2");
  second.minimum = graph.axis("YAxis-1").minimum();
  second.maximum = graph.axis("YAxis-1").maximum();
  second.visible = false;
}

}  // namespace tracewell
