// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>
#include <functional>

#include "Theme.h"

namespace tracewell {

/// The themes to choose from, as a menu of their own at the end of `menu`. The caption files do not
/// name it: it is no control of the main window.
class ThemeMenu : public QMenu {
  Q_OBJECT

 public:
  /// `chosen` is told what the user has chosen; `present` is ticked until then.
  ThemeMenu(QMenu& menu, Theme present, std::function<void(Theme)> chosen);

 private:
  void sayInLanguage();
};

}  // namespace tracewell
