// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QTableWidget>
#include <QWidget>

#include "RecorderView.h"
#include "SaidTexts.h"

namespace tracewell {

/// What is said of the records: which ones they are, their measurements, and statistics of the
/// measurement that is chosen in the table.
class RecorderTables : public QWidget {
  Q_OBJECT

 public:
  RecorderTables(RecorderView& view, QWidget* parent);
  void showState();
  void sayAgain() { texts_.sayAgain(); }

 private:
  void showMeasurements();
  void showStatistics();

  RecorderView& view_;
  SaidTexts texts_;
  QLabel* title_;
  QLabel* details_;
  QTableWidget* values_;
  QLabel* statisticsTitle_;
  QTableWidget* statistics_;
};

}  // namespace tracewell
