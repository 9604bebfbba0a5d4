// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tracewell {

/// What the screen, but not pictures and paper, shows on a graph beside its traces and cursors.
/// Texts are final, heights are graph units.
struct GraphMarks {
  /// In the colour of the plot of that number, or in the graph's own for 0.
  struct Text {
    int plot = 0;
    std::string text;
    bool operator==(const Text&) const = default;
  };
  /// A flag at the left edge, or an arrow to what lies above or below the screen.
  struct Side {
    enum Direction { here, above, below };
    int plot = 0;
    Direction direction = here;
    double height = 0;
    std::string text;
    bool operator==(const Side&) const = default;
  };

  /// At the lower edge: what concerns all traces.
  struct Banner {
    std::string text;
    bool isWarning = false;
    bool operator==(const Banner&) const = default;
  };

  std::vector<Side> sides;
  /// Texts at the right ends of their traces.
  std::vector<Text> names;
  /// Texts of the strip above the plot, which is read from afar.
  std::vector<Text> scales;
  /// Lines of the badge beside the cursors; may be empty.
  std::vector<Text> badge;
  /// No text while there is nothing to tell.
  Banner banner;

  bool operator==(const GraphMarks&) const = default;
};

}  // namespace tracewell
