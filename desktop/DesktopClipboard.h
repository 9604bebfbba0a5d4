// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Clipboard.h"

namespace tracewell {

/// The desktop's own clipboard.
class DesktopClipboard : public Clipboard {
 public:
  void put(const std::string& text, const Image& picture) override;
};

}  // namespace tracewell
