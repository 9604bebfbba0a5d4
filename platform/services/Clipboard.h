// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "Image.h"

namespace tracewell {

/// What other programs can paste. Implemented by desktop/DesktopClipboard and
/// tests/RecordingClipboard.
class Clipboard {
 public:
  virtual ~Clipboard() = default;

  /// Replaces what was there. The other program takes what it can use: the text (UTF-8 with LF
  /// between lines) or the picture. If one of them is empty it is left out.
  virtual void put(const std::string& text, const Image& picture) = 0;
};

}  // namespace tracewell
