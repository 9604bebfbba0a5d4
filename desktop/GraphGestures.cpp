// SPDX-License-Identifier: GPL-3.0-or-later
#include "GraphGestures.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <cmath>

#include "Graph.h"
#include "GraphView.h"
#include "ScaleStrip.h"

namespace tracewell {
namespace {

/// How near to a cursor the mouse takes hold of it. Pixels.
constexpr qreal grip = 6;

}  // namespace

GraphGestures::GraphGestures(GraphView& view, QWidget& plot, ScaleStrip& strip)
    : QObject(&view), view_(view), plot_(plot), strip_(strip) {
  plot.installEventFilter(this);
}

void GraphGestures::setGraph(Graph* graph) {
  graph_ = graph;
  grabbed_ = nullptr;
}

std::optional<std::size_t> GraphGestures::cursorAt(const QPointF& position) const {
  if (graph_ == nullptr) return std::nullopt;
  for (std::size_t i = 0; i < graph_->cursors().size(); ++i) {
    const Cursor& cursor = graph_->cursors()[i];
    const QPointF away = position - view_.toPixels(cursor.xPosition(), cursor.yPosition());
    const qreal distance = cursor.style() == CursorStyle::verticalLine ? away.x() : away.y();
    const bool isForUser = cursor.visible() && cursor.style() != CursorStyle::marker;
    if (isForUser && std::fabs(distance) <= grip) return i;
  }
  return std::nullopt;
}

void GraphGestures::activate(std::size_t cursor) {
  activeCursor_ = cursor;
  emit activated();
}

void GraphGestures::takeHold(const QMouseEvent& event) {
  view_.setFocus(Qt::MouseFocusReason);
  grabbed_ = nullptr;
  const std::optional<std::size_t> found = cursorAt(event.position());
  if (event.button() != Qt::LeftButton || !found) return;
  activate(*found);
  grabbed_ = &graph_->cursors()[*found];
}

void GraphGestures::dragTo(const QPointF& position) {
  const QPointF units = view_.toUnits(position);
  graph_->dragCursor(*grabbed_, std::round(units.x()), std::round(units.y()));
}

void GraphGestures::follow(const QMouseEvent& event) {
  pointer_ = event.position();
  showValues();
  // A box that came up during the drag has had the release.
  if (!(event.buttons() & Qt::LeftButton)) grabbed_ = nullptr;
  if (grabbed_ != nullptr)
    dragTo(event.position());
  else
    showPointerShape(event.position());
}

void GraphGestures::showValues() {
  if (!pointer_ || graph_ == nullptr || !graph_->valuesAt) return strip_.setValues({});
  const QPointF units = view_.toUnits(*pointer_);
  strip_.setValues(graph_->valuesAt(units.x(), units.y()));
}

/// The shape tells which way a cursor can be dragged.
void GraphGestures::showPointerShape(const QPointF& position) {
  const std::optional<std::size_t> found = cursorAt(position);
  if (!found)
    plot_.setCursor(Qt::CrossCursor);
  else if (graph_->cursors()[*found].style() == CursorStyle::verticalLine)
    plot_.setCursor(Qt::SplitHCursor);
  else
    plot_.setCursor(Qt::SplitVCursor);
}

/// The plot's own mouse handling knows nothing of cursors, so this looks for them first.
bool GraphGestures::eventFilter(QObject* watched, QEvent* event) {
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
      // The plot keeps mouse events to itself.
      return QCoreApplication::sendEvent(&view_, event);
    case QEvent::Leave:
      pointer_.reset();
      showValues();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

void GraphGestures::step(const QPointF& units) {
  Cursor& cursor = graph_->cursors()[activeCursor_];
  graph_->dragCursor(cursor, cursor.xPosition() + units.x(), cursor.yPosition() + units.y());
}

bool GraphGestures::press(const QKeyEvent& event) {
  if (graph_ == nullptr) return true;
  const double distance = event.modifiers() & Qt::ShiftModifier ? 10 : 1;
  switch (event.key()) {
    case Qt::Key_Left:
      step({-distance, 0});
      return true;
    case Qt::Key_Right:
      step({distance, 0});
      return true;
    case Qt::Key_Down:
      step({0, -distance});
      return true;
    case Qt::Key_Up:
      step({0, distance});
      return true;
    case Qt::Key_E:
      graph_->toggleEnlarged();
      return true;
    case Qt::Key_Escape:
      if (graph_->enlarged()) graph_->toggleEnlarged();
      return true;
    case Qt::Key_C:
      activate(1 - activeCursor_);
      return true;
    default:
      return false;
  }
}

}  // namespace tracewell
