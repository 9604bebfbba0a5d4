// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tracewell {

/// A picture in memory: rows from the top, pixels from the left, three bytes (red, green, blue) to
/// a pixel, nothing between rows.
struct Image {
  int width = 0;
  int height = 0;
  std::string pixels;

  bool isEmpty() const { return width == 0 || height == 0; }
  bool operator==(const Image&) const = default;
};

}  // namespace tracewell
