// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>
#include <vector>

#include "Recorder.h"
#include "SaidTexts.h"

namespace tracewell {

/// Starts and stops the log: which measurements, which limits, and what happens at a limit.
class RecorderLogBar : public QWidget {
  Q_OBJECT

 public:
  RecorderLogBar(Recorder& recorder, QWidget* parent);
  void showState();
  void sayAgain() { texts_.sayAgain(); }

 signals:
  /// What the user should know; empty takes it back.
  void said(const QString& text);
  void used();

 private:
  void sayTexts();
  void toggle();
  std::vector<Quantity> quantities() const;
  /// None where one of them is no limit; that is said.
  std::optional<std::vector<MeasurementLimit>> limits();

  Recorder& recorder_;
  SaidTexts texts_;
  QPushButton* quantities_;
  std::vector<QAction*> entries_;
  QLineEdit* limits_;
  QCheckBox* pins_;
  QCheckBox* rings_;
  QPushButton* start_;
};

}  // namespace tracewell
