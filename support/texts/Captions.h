// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "frmDSO.h"

namespace tracewell {

/// The captions of all windows in the chosen language.
class Captions {
 public:
  explicit Captions(frmDSO& main) : main_(main) {}

  /// The windows that get captions after the main window, in this order.
  void setWindows(std::vector<Window*> windows) { windows_ = std::move(windows); }

  /// Ticks the language's menu entry and gives every window its captions. Raises an error that
  /// names the file when it is missing, or has no section for a window.
  void LoadCaptions();

  /// One window's captions from the text of the caption file. Raises an error if it has no section
  /// for the window.
  void ApplyCaptions(Window& window);

  /// Appends the window's section, with its present captions, to the text of the caption file in
  /// memory: a template for translators.
  void DumpCaptions(const Window& window);

 private:
  frmDSO& main_;
  std::vector<Window*> windows_;
  std::string buffer_;
};

}  // namespace tracewell
