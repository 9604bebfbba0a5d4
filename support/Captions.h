// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "frmDSO.h"

namespace tracewell {

/// The captions of all windows in the chosen language.
class Captions {
 public:
  /// `windows` are those that get captions after the main window, in this order.
  Captions(frmDSO& main, std::vector<Window*> windows)
      : main_(main), windows_(std::move(windows)) {}

  /// Ticks the language's menu entry and gives every window its captions. Raises an error that
  /// names the file when it is missing, or has no section for a window.
  void LoadCaptions();

  /// One window's captions from the text of the caption file.
  void ApplyCaptions(Window& window);

 private:
  frmDSO& main_;
  std::vector<Window*> windows_;
  std::string buffer_;
};

}  // namespace tracewell
