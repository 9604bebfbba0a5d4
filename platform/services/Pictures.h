// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "Image.h"

namespace tracewell {

class Graph;

/// Takes, marks, encodes and loads pictures. Implemented by desktop/DesktopPictures, and by
/// tests/RecordingPictures.
class Pictures {
 public:
  /// Picture formats, by the type code that the save window keeps.
  enum Format : int { wmf = 3, bmp, gif, ico, cur, pcx, tif, png, jpg };

  virtual ~Pictures() = default;

  /// The graph as the screen shows it, with the lines of `footnote` below. Raises an error if it is
  /// not shown.
  virtual Image graphImage(const Graph& graph, const std::string& footnote) = 0;

  /// `image` with `text` on it, its upper left corner at (x, y) in pixels.
  virtual Image withText(const Image& image, const std::string& text, int x, int y) = 0;

  /// The bytes of a picture file. Raises an error for a code that is no Format, and for an empty
  /// image. Icons and cursors hold the image scaled down to at most 256 pixels each way.
  virtual std::string encode(const Image& image, int format) = 0;

  /// The picture in a file of one of the formats bmp, gif, pcx, tif, png and jpg. Raises
  /// fileNotFound or pathAccess as readWholeFile does, and an error that names the path if the
  /// bytes are no such picture.
  virtual Image load(const std::filesystem::path& path) = 0;
};

}  // namespace tracewell
