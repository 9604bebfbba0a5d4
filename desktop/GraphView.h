// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QPointF>
#include <QWidget>
#include <array>
#include <memory>

class QCustomPlot;
class QCPGraph;
class QCPItemLine;
class QCPItemText;
class QLabel;

namespace tracewell {

class Graph;
class GraphExchange;
class GraphGestures;
class GraphOverlay;
class Plot;
class ScaleStrip;

/// Draws a Graph: a graticule of 10 by 8 divisions that stays the same in every theme, traces,
/// cursors and the trigger marker, the x axis's caption below. GraphGestures follows the mouse and
/// the keys: the user drags the cursors, or moves the active one with the arrow keys (Shift: ten
/// times as far); C makes the other one active. A double click or E enlarges the view and restores
/// it. An overlay and the strip above the plot show what is for the screen alone, and GraphExchange
/// serves other programs.
///
/// Changes are painted once an event-loop turn, however many they are. Each live trace is kept as a
/// picture of its own, so that a record has its own trace drawn and nothing else.
class GraphView : public QWidget {
  Q_OBJECT

 public:
  explicit GraphView(QWidget* parent = nullptr);
  ~GraphView() override;

  /// The graph stays the caller's and outlives the view, or is told to forget it by unbind.
  void bind(Graph& graph);
  void unbind();

  /// The one that is bound, if one is.
  const Graph* graph() const { return graph_; }

  /// A place of the graph on its plot, and back.
  QPointF toPixels(double x, double y) const;
  QPointF toUnits(const QPointF& pixels) const;

  /// What a saved picture shows: nothing dimmed or marked, no focus.
  QPixmap picture();

  QSize sizeHint() const override { return {820, 540}; }
  QSize minimumSizeHint() const override { return {320, 240}; }

 signals:
  /// The view is enlarged now, or restored: what else is in the window makes room or comes back.
  void enlarged(bool isEnlarged);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct CursorItems {
    QCPItemLine* line = nullptr;
    QCPItemText* name = nullptr;
  };

  void markDirty();
  /// Of the graph nothing but the data of that trace has changed.
  void markPlotted(std::size_t trace);
  void paintSoon();
  void takeFont();
  void replot();
  void replotLive();
  /// The data, if they are others than those that were drawn.
  void takeData(std::size_t trace);
  void makeLayers();
  qreal inPicture(qreal lineWidth) const;
  void showAxes();
  void showTrace(Plot& plot, QCPGraph& trace, qreal lineWidth);
  void showCursors();
  void showTriggerMarker();
  void makeGraticule();

  ScaleStrip* strip_;
  QCustomPlot* plot_;
  QLabel* caption_;
  GraphOverlay* overlay_ = nullptr;
  GraphGestures* gestures_;
  std::array<QCPGraph*, 6> traces_{};
  std::array<bool, 6> isDataNew_{};
  std::array<CursorItems, 2> cursorItems_;
  std::array<QCPItemLine*, 2> centreLines_{};
  QCPItemText* trigger_ = nullptr;
  QCPItemText* note_ = nullptr;
  Graph* graph_ = nullptr;
  std::unique_ptr<GraphExchange> exchange_;
  bool isPaintDue_ = false;
  bool isDirty_ = false;
  bool isForPicture_ = false;
};

}  // namespace tracewell
