// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <filesystem>

#include "Theme.h"

namespace tracewell {

/// Place and size of the main window and the theme, kept in "window.state" of the program folder
/// from one run to the next. It is a state of the desktop and no setup: a damaged file counts as
/// none, and a failure to write is ignored.
class WindowState {
 public:
  explicit WindowState(const std::filesystem::path& programFolder);

  /// Call it before the window is first shown. Whatever the file says, the window will be on a
  /// screen, whole and with its frame.
  void restore(QWidget& window) const;
  void keep(const QWidget& window) const;

  /// The theme of the file, until another one is set; `system` if the file names none.
  Theme theme() const { return theme_; }
  void setTheme(Theme theme) { theme_ = theme; }

 private:
  std::filesystem::path file_;
  Theme theme_;
};

}  // namespace tracewell
