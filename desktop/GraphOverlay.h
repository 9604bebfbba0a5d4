// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "GraphMarks.h"

namespace tracewell {

class Graph;
class ScaleStrip;

/// What the screen shows over the plot: the marks, as large as its font, and the frame of the
/// keyboard focus. Passes the scales to the strip above the plot. It is hidden while a picture of
/// the graph is taken.
class GraphOverlay : public QWidget {
  Q_OBJECT

 public:
  /// Lies over the plot, in which units of the graph have the pixels that `toPixels` says.
  GraphOverlay(QWidget& plot, ScaleStrip& strip, std::function<QPointF(double, double)> toPixels);

  /// Null for none. The graph lives as long as it is shown.
  void setGraph(const Graph* graph);
  void setFocusShown(bool isShown);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  using Texts = std::vector<GraphMarks::Text>;

  void paintSides(QPainter& painter, const std::vector<GraphMarks::Side>& sides) const;
  void paintNames(QPainter& painter, const Texts& names) const;
  void paintBadge(QPainter& painter, const Texts& lines) const;

  QRectF flagPlace(const GraphMarks::Side& side, const QList<QRectF>& taken) const;
  QPointF badgePlace(const QSizeF& size) const;
  QSizeF sizeOf(const Texts& row) const;
  /// Paints the texts side by side on their own ground.
  void paintRow(QPainter& painter, const Texts& row, const QRectF& place) const;
  void paintGround(QPainter& painter, const QRectF& place) const;
  QColor colourOf(int plot) const;
  /// Pixels that correspond to `pixels` with the usual font.
  qreal grown(qreal pixels) const;

  ScaleStrip& strip_;
  std::function<QPointF(double, double)> toPixels_;
  const Graph* graph_ = nullptr;
  bool isFocusShown_ = false;
};

}  // namespace tracewell
