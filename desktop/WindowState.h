// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <filesystem>

namespace tracewell {

/// Where the main window stands and how large it is, in "window.state" of the program folder from
/// one run to the next. A state of the desktop and no setup: what is damaged counts as none, and
/// what cannot be written is forgotten.
class WindowState {
 public:
  explicit WindowState(const std::filesystem::path& programFolder);

  /// Before the window is first shown. Whatever the file says, it will be on a screen, as a whole
  /// and with its frame.
  void restore(QWidget& window) const;
  void keep(const QWidget& window) const;

 private:
  std::filesystem::path file_;
};

}  // namespace tracewell
