// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QMenu>
#include <functional>

namespace tracewell {

/// The path of the manual, whether the program was installed, unpacked or built; empty if there is
/// none.
QString manualFile(const QString& executableFolder);

/// Opens the manual, which also lists the keys, with the desktop's program for such files. The
/// caption files do not name this entry: it is no control of the main window.
class ManualEntry : public QAction {
  Q_OBJECT

 public:
  /// `refused` is called with the file if no program can show it.
  ManualEntry(QMenu& menu, std::function<void(const QString& file)> refused);

 private:
  void showState();
};

}  // namespace tracewell
