// SPDX-License-Identifier: GPL-3.0-or-later
#include <qcustomplot.h>

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <cmath>

#include "Graph.h"
#include "GraphOverlay.h"
#include "GraphView.h"
#include "ScaleStrip.h"

/// What the mouse and the keyboard do on the graph.
namespace tracewell {
namespace {

/// How near to a cursor the mouse takes hold of it. Pixels.
constexpr qreal grip = 6;

}  // namespace

QPointF GraphView::toUnits(const QPointF& position) const {
  return {plot_->xAxis->pixelToCoord(position.x()), plot_->yAxis->pixelToCoord(position.y())};
}

std::optional<std::size_t> GraphView::cursorAt(const QPointF& position) const {
  if (graph_ == nullptr) return std::nullopt;
  for (std::size_t i = 0; i < cursorItems_.size(); ++i) {
    const Cursor& cursor = graph_->cursors()[i];
    const qreal distance = cursor.style() == CursorStyle::verticalLine
                               ? position.x() - plot_->xAxis->coordToPixel(cursor.xPosition())
                               : position.y() - plot_->yAxis->coordToPixel(cursor.yPosition());
    if (cursor.visible() && std::fabs(distance) <= grip) return i;
  }
  return std::nullopt;
}

void GraphView::activate(std::size_t cursor) {
  activeCursor_ = cursor;
  markDirty();
}

void GraphView::takeHold(const QMouseEvent& event) {
  setFocus(Qt::MouseFocusReason);
  grabbed_ = nullptr;
  const std::optional<std::size_t> found = cursorAt(event.position());
  if (event.button() != Qt::LeftButton || !found) return;
  activate(*found);
  grabbed_ = &graph_->cursors()[*found];
}

void GraphView::dragTo(const QPointF& position) {
  const QPointF units = toUnits(position);
  graph_->dragCursor(*grabbed_, std::round(units.x()), std::round(units.y()));
}

void GraphView::follow(const QMouseEvent& event) {
  pointer_ = event.position();
  showValues();
  // A box that came up during the drag has had the release.
  if (!(event.buttons() & Qt::LeftButton)) grabbed_ = nullptr;
  if (grabbed_ != nullptr)
    dragTo(event.position());
  else
    showPointerShape(event.position());
}

void GraphView::showValues() {
  if (!pointer_ || graph_ == nullptr || !graph_->valuesAt) return strip_->setValues({});
  const QPointF units = toUnits(*pointer_);
  strip_->setValues(graph_->valuesAt(units.x(), units.y()));
}

/// The tip would cover what is looked at: it belongs to the line below.
bool GraphView::event(QEvent* event) {
  if (event->type() == QEvent::FontChange) takeFont();
  const bool isTip = event->type() == QEvent::ToolTip;
  if (isTip && !caption_->geometry().contains(static_cast<QHelpEvent*>(event)->pos())) return true;
  return QWidget::event(event);
}

/// Which way a line can be moved shows where it can be taken.
void GraphView::showPointerShape(const QPointF& position) {
  const std::optional<std::size_t> found = cursorAt(position);
  if (!found)
    plot_->setCursor(Qt::CrossCursor);
  else if (graph_->cursors()[*found].style() == CursorStyle::verticalLine)
    plot_->setCursor(Qt::SplitHCursor);
  else
    plot_->setCursor(Qt::SplitVCursor);
}

/// The plot's own mouse handling knows nothing of cursors, so they are looked for first.
bool GraphView::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      takeHold(*static_cast<QMouseEvent*>(event));
      break;
    case QEvent::MouseMove:
      follow(*static_cast<QMouseEvent*>(event));
      break;
    case QEvent::MouseButtonRelease:
      grabbed_ = nullptr;
      break;
    case QEvent::MouseButtonDblClick:
      if (graph_ != nullptr) graph_->toggleEnlarged();
      break;
    case QEvent::ContextMenu:
      // The plot keeps what the mouse does to itself.
      return QCoreApplication::sendEvent(this, event);
    case QEvent::Leave:
      pointer_.reset();
      showValues();
      break;
    case QEvent::Resize:
      overlay_->setGeometry(plot_->rect());
      markDirty();
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

void GraphView::focusInEvent(QFocusEvent* event) {
  overlay_->setFocusShown(true);
  QWidget::focusInEvent(event);
}

void GraphView::focusOutEvent(QFocusEvent* event) {
  overlay_->setFocusShown(false);
  QWidget::focusOutEvent(event);
}

void GraphView::keyPressEvent(QKeyEvent* event) {
  if (graph_ == nullptr) return;
  const double distance = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
  QPointF step;
  switch (event->key()) {
    case Qt::Key_Left:
      step = {-distance, 0};
      break;
    case Qt::Key_Right:
      step = {distance, 0};
      break;
    case Qt::Key_Down:
      step = {0, -distance};
      break;
    case Qt::Key_Up:
      step = {0, distance};
      break;
    case Qt::Key_E:
      graph_->toggleEnlarged();
      return;
    case Qt::Key_Escape:
      if (graph_->enlarged()) graph_->toggleEnlarged();
      return;
    case Qt::Key_C:
      activate(1 - activeCursor_);
      return;
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  Cursor& cursor = graph_->cursors()[activeCursor_];
  graph_->dragCursor(cursor, cursor.xPosition() + step.x(), cursor.yPosition() + step.y());
}

}  // namespace tracewell
