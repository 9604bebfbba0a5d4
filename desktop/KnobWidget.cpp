// SPDX-License-Identifier: GPL-3.0-or-later
#include "KnobWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRadialGradient>
#include <QWheelEvent>
#include <cmath>
#include <numbers>

namespace tracewell {
namespace {

/// The gap at the bottom, where no detent is.
constexpr qreal firstAngle = 225;
constexpr qreal sweep = 270;
/// More captions than this do not fit around the knob.
constexpr int mostCaptions = 12;

}  // namespace

KnobWidget::KnobWidget(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::OpenHandCursor);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void KnobWidget::setDetents(const QStringList& captions) {
  captions_ = captions;
  update();
}

void KnobWidget::setValue(double value) {
  value_ = qBound(0, static_cast<int>(std::lround(value)), static_cast<int>(captions_.size()) - 1);
  update();
}

void KnobWidget::setAccent(const QColor& accent) {
  accent_ = accent;
  update();
}

QPointF KnobWidget::centre() const {
  return {width() / 2.0, height() / 2.0 + radius() * 0.12};
}

qreal KnobWidget::scale() const {
  return qBound(1.0, qMin(width() / 200.0, height() / 190.0), 1.6);
}

qreal KnobWidget::radius() const {
  return qMin(width() / 2.0 - 33 * scale(), (height() / 2.0 - 14 * scale()) * 0.86);
}

QPointF KnobWidget::gap() const {
  return pointAt(270, radius() + 9);
}

qreal KnobWidget::angleOf(int detent) const {
  const auto steps = qMax<qsizetype>(captions_.size() - 1, 1);
  return firstAngle - sweep * detent / static_cast<qreal>(steps);
}

QPointF KnobWidget::pointAt(qreal angle, qreal distance) const {
  const qreal radians = angle * std::numbers::pi / 180;
  return centre() + QPointF(std::cos(radians), -std::sin(radians)) * distance;
}

qreal KnobWidget::angleAt(const QPointF& position) const {
  const QPointF from = position - centre();
  return std::atan2(-from.y(), from.x()) * 180 / std::numbers::pi;
}

int KnobWidget::nearestDetent(const QPointF& position) const {
  int nearest = 0;
  qreal smallest = 360;
  for (int detent = 0; detent < captions_.size(); ++detent) {
    const qreal distance = std::fabs(std::remainder(angleAt(position) - angleOf(detent), 360));
    if (distance < smallest) {
      smallest = distance;
      nearest = detent;
    }
  }
  return nearest;
}

bool KnobWidget::hasCaption(int detent) const {
  const int every = static_cast<int>(captions_.size() - 1) / mostCaptions + 1;
  return detent == value_ || (detent % (every + (every > 1 ? 1 : 0)) == 0);
}

void KnobWidget::turnTo(int detent) {
  emit turned(qBound(0, detent, static_cast<int>(captions_.size()) - 1));
}

void KnobWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintDetents(painter);
  paintCap(painter);
}

void KnobWidget::paintDetents(QPainter& painter) {
  QFont font = painter.font();
  font.setPointSizeF(qMax(6.5, font.pointSizeF() * 0.78 * scale()));
  painter.setFont(font);
  for (int detent = 0; detent < captions_.size(); ++detent) {
    const bool isChosen = detent == value_;
    QColor colour = isChosen ? accent_ : palette().color(QPalette::WindowText);
    if (!isChosen) colour.setAlphaF(0.75F);
    painter.setPen(QPen(colour, isChosen ? 2 : 1));
    painter.drawLine(pointAt(angleOf(detent), radius() + 4 * scale()),
                     pointAt(angleOf(detent), radius() + 8 * scale()));
    // Beside the chosen caption there is no room for its neighbours.
    const bool isCrowded =
        captions_.size() > mostCaptions && !isChosen && qAbs(detent - value_) < 2;
    if (!hasCaption(detent) || isCrowded) continue;
    // As far from its detent on every side, however long it is.
    const QSizeF room = painter.fontMetrics().size(Qt::TextSingleLine, captions_[detent]);
    const QPointF edge = pointAt(angleOf(detent), radius() + 11 * scale());
    const QPointF outward = pointAt(angleOf(detent), 1) - centre();
    const QPointF at = edge + QPointF(outward.x() * room.width(), outward.y() * room.height()) / 2;
    painter.drawText(QRectF(at - QPointF(room.width(), room.height()) / 2, room), Qt::AlignCenter,
                     captions_[detent]);
  }
}

void KnobWidget::paintCap(QPainter& painter) {
  const qreal size = radius();
  const QColor body = palette().color(QPalette::Button);
  QRadialGradient light(centre() - QPointF(size / 3, size / 3), size * 1.4);
  light.setColorAt(0, body.lighter(155));
  light.setColorAt(1, body.darker(125));
  painter.setBrush(light);
  painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2)
                            : QPen(body.darker(190), 1.5));
  painter.drawEllipse(centre(), size, size);
  painter.setPen(QPen(accent_, qMax(2.5, size / 12), Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(pointAt(angleOf(value_), size * 0.45), pointAt(angleOf(value_), size * 0.85));
}

void KnobWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  // On the cap the drag only begins; outside it a click picks the caption there.
  const QPointF from = event->position() - centre();
  if (std::hypot(from.x(), from.y()) > radius()) turnTo(nearestDetent(event->position()));
  draggedFrom_ = value_;
  dragTravel_ = 0;
  dragAngle_ = angleAt(event->position());
}

/// The cap turns with the hand, wherever it was taken hold of.
void KnobWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  const qreal angle = angleAt(event->position());
  dragTravel_ += std::remainder(dragAngle_ - angle, 360);
  dragAngle_ = angle;
  const int last = static_cast<int>(captions_.size()) - 1;
  const int steps = static_cast<int>(std::lround(dragTravel_ * last / sweep));
  const int detent = qBound(0, draggedFrom_ + steps, last);
  if (detent != value_) turnTo(detent);
}

void KnobWidget::wheelEvent(QWheelEvent* event) {
  if (const int steps = wheel_.notches(*event); steps != 0) turnTo(value_ + steps);
  event->accept();
}

void KnobWidget::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
      turnTo(value_ + 1);
      break;
    case Qt::Key_Down:
    case Qt::Key_Left:
      turnTo(value_ - 1);
      break;
    case Qt::Key_PageUp:
      turnTo(value_ + 3);
      break;
    case Qt::Key_PageDown:
      turnTo(value_ - 3);
      break;
    case Qt::Key_Home:
      turnTo(0);
      break;
    case Qt::Key_End:
      turnTo(static_cast<int>(captions_.size()) - 1);
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace tracewell
