// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <filesystem>

#include "Theme.h"

namespace tracewell {

/// Place and size of the main window and the theme, kept in "window.state" of the program folder
/// from one run to the next. A state of the desktop and no setup: what is damaged counts as none,
/// and what cannot be written is forgotten.
class WindowState {
 public:
  explicit WindowState(const std::filesystem::path& programFolder);

  /// Before the window is first shown. Whatever the file says, it will be on a screen, as a whole
  /// and with its frame.
  void restore(QWidget& window) const;
  void keep(const QWidget& window) const;

  /// As the file says, until another one is set; `system` where it says nothing.
  Theme theme() const { return theme_; }
  void setTheme(Theme theme) { theme_ = theme; }

 private:
  std::filesystem::path file_;
  Theme theme_;
};

}  // namespace tracewell
