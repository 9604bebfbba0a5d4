// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtPlugin>
#include <string>

#include "Image.h"
#include "PictureGuard.h"

namespace tracewell {

/// The formats that only a library knows. Raises std::exception, in the library's words.
class PictureCoder {
 public:
  /// Pixels that a picture may have either way.
  static constexpr int largestSideLoaded = 8192;

  virtual ~PictureCoder() = default;

  /// As Pictures::encode, but for metafiles. The image is whole.
  virtual std::string encode(const Image& image, int format) = 0;

  /// Of several pages or frames the first; transparent parts become white. Refuses what is larger
  /// than largestSideLoaded and largestPictureArea.
  virtual Image decode(GuardedPicture picture) = 0;
};

}  // namespace tracewell

Q_DECLARE_INTERFACE(tracewell::PictureCoder, "tracewell.PictureCoder/" TRACEWELL_VERSION)
