// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Graph.h"

namespace tracewell {

/// The graph as the program starts with it: cursors hidden, and a second y axis that nothing is
/// plotted against.
void setUpCursors(Graph& graph);
void setUpSecondAxis(Graph& graph);

}  // namespace tracewell
