// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QPointer>
#include <QTimer>
#include <memory>

#include "Recorder.h"

namespace tracewell {

class RecorderWindow;

/// The recorder on the desktop: keeps records from the start on, and shows its window when the user
/// opens it from the View menu. The caption files do not name that entry: it is no control of the
/// main window.
class DesktopRecorder : public QObject {
  Q_OBJECT

 public:
  explicit DesktopRecorder(frmDSO& main);
  ~DesktopRecorder() override;

  /// Adds the entry to the View menu of the main window's form.
  void addTo(QWidget& form);
  /// The window, which stays as the user has left it while it is closed.
  RecorderWindow& open();

  Recorder& recorder() { return recorder_; }

 private:
  Recorder recorder_;
  /// For the log, which begins in the window and goes on while that is closed.
  QTimer everySecond_;
  std::unique_ptr<RecorderWindow> window_;
};

}  // namespace tracewell
