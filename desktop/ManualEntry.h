// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QMenu>
#include <functional>

namespace tracewell {

/// The manual where the program has been installed, unpacked or built; empty if there is none.
QString manualFile(const QString& executableFolder);

/// Opens the manual, which also lists the keys, with whatever shows such files here. The caption
/// files do not name it: it is no control of the main window.
class ManualEntry : public QAction {
  Q_OBJECT

 public:
  /// `refused` is told the file that no program here could be found for.
  ManualEntry(QMenu& menu, std::function<void(const QString& file)> refused);

 private:
  void showState();
};

}  // namespace tracewell
