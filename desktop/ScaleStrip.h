// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "GraphMarks.h"

namespace tracewell {

class Graph;

/// The colour of a graph's marks for a plot, or for no plot if 0: readable on the plot area.
QColor markColour(const Graph& graph, int plot);

/// The line above the plot, read from afar: the scales, and at its right end the values under the
/// pointer, which replace the scales if there is no room for both.
class ScaleStrip : public QWidget {
  Q_OBJECT

 public:
  using Texts = std::vector<GraphMarks::Text>;

  explicit ScaleStrip(QWidget* parent);

  /// Null for none.
  void setGraph(const Graph* graph);
  void setScales(const Texts& scales);
  void setValues(const Texts& values);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintRow(QPainter& painter, const Texts& row, qreal left) const;

  const Graph* graph_ = nullptr;
  Texts scales_;
  Texts values_;
};

}  // namespace tracewell
