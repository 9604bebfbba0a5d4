// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "RecorderPicture.h"

namespace tracewell {

/// Two cursors of the recorder's graph. Their places are shares of the axes, so that they stay
/// where they are when other records are shown.
struct RecorderCursors {
  enum Kind { off, across, up };
  Kind kind = off;
  /// From 0, the left or lower end, to 1.
  std::array<double, 2> acrossAt{0.35, 0.65};
  std::array<double, 2> upAt{0.65, 0.35};

  std::array<double, 2>& at() { return kind == across ? acrossAt : upAt; }
  const std::array<double, 2>& at() const { return kind == across ? acrossAt : upAt; }
  /// Along the axis that they stand on, never beyond its ends.
  void move(std::size_t cursor, double to);
};

/// Where they stand and how far they are apart, a line for each; heights are those of a channel.
std::vector<std::string> cursorTexts(const RecorderCursors& cursors, const RecorderPicture& picture,
                                     int channel);

}  // namespace tracewell
