// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "GraphMarks.h"

class QCustomPlot;

namespace tracewell {

class Graph;

/// What the screen shows over the plot beside what belongs to the graph itself: the marks, the
/// values under the pointer, the frame of the keyboard focus. A picture of the graph is taken while
/// it is hidden.
class GraphOverlay : public QWidget {
  Q_OBJECT

 public:
  explicit GraphOverlay(QCustomPlot& plot);

  /// Null for none. The graph outlives its being shown.
  void setGraph(const Graph* graph);
  void setFocusShown(bool isShown);
  /// Where the mouse is over the plot.
  void setPointer(const std::optional<QPointF>& position);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  using Texts = std::vector<GraphMarks::Text>;

  void paintSides(QPainter& painter, const std::vector<GraphMarks::Side>& sides) const;
  void paintNames(QPainter& painter, const Texts& names) const;
  void paintScales(QPainter& painter, const Texts& scales) const;
  void paintBadge(QPainter& painter, const Texts& lines) const;
  void paintPointerValues(QPainter& painter) const;

  QRectF flagPlace(const GraphMarks::Side& side, const QList<QRectF>& taken) const;
  QPointF badgePlace(const QSizeF& size) const;
  QSizeF sizeOf(const Texts& row) const;
  /// The texts beside each other on a ground of their own.
  void paintRow(QPainter& painter, const Texts& row, const QRectF& place) const;
  void paintGround(QPainter& painter, const QRectF& place) const;
  QColor colourOf(int plot) const;
  QPointF toPixels(double x, double y) const;

  QCustomPlot& plot_;
  const Graph* graph_ = nullptr;
  bool isFocusShown_ = false;
  std::optional<QPointF> pointer_;
};

}  // namespace tracewell
