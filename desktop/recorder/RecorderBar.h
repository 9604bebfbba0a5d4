// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QWidget>

#include "RecorderCursors.h"
#include "RecorderView.h"
#include "SaidTexts.h"

namespace tracewell {

/// What of the records is drawn, and how: the row above the recorder's graph.
class RecorderBar : public QWidget {
  Q_OBJECT

 public:
  RecorderBar(RecorderView& view, RecorderCursors& cursors, QWidget* parent);
  /// After the view has changed by other means.
  void showState();
  void sayAgain() { texts_.sayAgain(); }

 signals:
  void chosen();

 private:
  QComboBox* addBox(const char* name);
  QCheckBox* addTick(const char* name, bool isTicked);
  void sayTexts();
  void take();

  RecorderView& view_;
  RecorderCursors& cursors_;
  SaidTexts texts_;
  QCheckBox* follow_;
  QComboBox* channel_;
  QComboBox* mode_;
  QComboBox* behind_;
  QCheckBox* fading_;
  QCheckBox* envelope_;
  QCheckBox* mean_;
  QComboBox* window_;
  QComboBox* level_;
  QComboBox* cursorKind_;
};

}  // namespace tracewell
