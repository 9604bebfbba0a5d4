// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Graph.h"

namespace tracewell {

/// The graph of the oscilloscope: the plots Chan1, Chan2 and Load1 to Load4; the axes XAxis,
/// YAxis-1 and YAxis-2; the cursors cur1 and cur2, and the marker Triger.
class ScopeGraph : public Graph {
 public:
  static constexpr int plotCount = 6;
  /// Number of the first plot for loaded traces; the ones below show the channels.
  static constexpr int firstReference = 3;

  ScopeGraph(Window& owner, std::string_view name);
};

}  // namespace tracewell
