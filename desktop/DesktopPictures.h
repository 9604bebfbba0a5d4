// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DesktopWindows.h"
#include "Pictures.h"

namespace tracewell {

/// Pictures with Qt's painter; the file formats are in PictureFormats.
class DesktopPictures : public Pictures {
 public:
  explicit DesktopPictures(DesktopWindows& windows) : windows_(windows) {}

  Image graphImage(const Graph& graph, const std::string& footnote) override;
  Image withText(const Image& image, const std::string& text, int x, int y) override;
  std::string encode(const Image& image, int format) override;
  Image load(const std::filesystem::path& path) override;

 private:
  DesktopWindows& windows_;
};

}  // namespace tracewell
