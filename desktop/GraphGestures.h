// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointF>
#include <optional>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace tracewell {

class Cursor;
class Graph;
class GraphView;
class ScaleStrip;

/// What the mouse does on a graph's plot, and the keyboard on the view around it: drags and steps
/// the cursors, enlarges the view and restores it. The strip shows the values under the pointer.
class GraphGestures : public QObject {
  Q_OBJECT

 public:
  /// Belongs to the view and filters the events of its plot.
  GraphGestures(GraphView& view, QWidget& plot, ScaleStrip& strip);

  /// Null for none. Lets go of a cursor of the graph before.
  void setGraph(Graph* graph);

  /// The cursor that the keys move, from 0.
  std::size_t activeCursor() const { return activeCursor_; }

  /// Shows what is under the pointer now: for when the traces have changed below it.
  void showValues();

  /// Carries out what a key stands for. False if it stands for nothing here.
  bool press(const QKeyEvent& event);

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  /// The other cursor is the active one.
  void activated();

 private:
  void activate(std::size_t cursor);
  void takeHold(const QMouseEvent& event);
  void follow(const QMouseEvent& event);
  void dragTo(const QPointF& position);
  void step(const QPointF& units);
  void showPointerShape(const QPointF& position);
  /// The number of the cursor there, from 0; the marker of the trigger level is none.
  std::optional<std::size_t> cursorAt(const QPointF& position) const;

  GraphView& view_;
  QWidget& plot_;
  ScaleStrip& strip_;
  Graph* graph_ = nullptr;
  Cursor* grabbed_ = nullptr;
  std::size_t activeCursor_ = 0;
  /// Where the mouse is over the plot.
  std::optional<QPointF> pointer_;
};

}  // namespace tracewell
