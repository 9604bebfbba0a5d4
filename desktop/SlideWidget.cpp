// SPDX-License-Identifier: GPL-3.0-or-later
#include "SlideWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "Accessible.h"

namespace tracewell {
namespace {

/// Room at each end for half the pointer.
constexpr qreal margin = 9;
constexpr qreal pointerLength = 11;
constexpr qreal pointerWidth = 20;
/// A mark at each whole number, as long as they are not more than so many.
constexpr double mostMarks = 20;
constexpr int numberWidth = 24;

}  // namespace

SlideWidget::SlideWidget(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setOrientation(Qt::Vertical);
}

void SlideWidget::setRange(double minimum, double maximum, double step) {
  minimum_ = minimum;
  maximum_ = maximum;
  step_ = step;
  update();
}

void SlideWidget::setValue(double value) {
  if (value == value_) return;
  value_ = value;
  update();
  tellValue(*this);
  // Others follow by themselves.
  if (words_.isEmpty()) tellWords(*this);
}

void SlideWidget::setInWords(const QString& words) {
  if (words == words_) return;
  words_ = words;
  tellWords(*this);
}

QString SlideWidget::inWords() const {
  return words_.isEmpty() ? QString::number(value_, 'f', step_ < 1 ? 2 : 0) : words_;
}

void SlideWidget::setAccent(const QColor& accent) {
  accent_ = accent;
  update();
}

void SlideWidget::setPale(bool isPale) {
  isPale_ = isPale;
  update();
}

void SlideWidget::setNumbered(bool isNumbered) {
  isNumbered_ = isNumbered;
  updateGeometry();
  update();
}

void SlideWidget::setOrientation(Qt::Orientation orientation) {
  orientation_ = orientation;
  if (isVertical())
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  else
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  updateGeometry();
}

QSize SlideWidget::sizeHint() const {
  return isVertical() ? QSize(thickness(), 150) : QSize(150, 34);
}

QSize SlideWidget::minimumSizeHint() const {
  return isVertical() ? QSize(thickness(), 90) : QSize(90, 34);
}

/// The numbers stand on one side only: as much is left free on the other, so that the track keeps
/// to the middle.
int SlideWidget::thickness() const {
  return 44 + (isNumbered_ ? 2 * numberWidth : 0);
}

qreal SlideWidget::positionOf(double value) const {
  const double part = (qBound(minimum_, value, maximum_) - minimum_) / (maximum_ - minimum_);
  if (isVertical()) return height() - margin - part * (height() - 2 * margin);
  return margin + part * (width() - 2 * margin);
}

double SlideWidget::valueAt(const QPointF& position) const {
  const double part = isVertical() ? (height() - margin - position.y()) / (height() - 2 * margin)
                                   : (position.x() - margin) / (width() - 2 * margin);
  const double exact = minimum_ + part * (maximum_ - minimum_);
  // Whole steps only, in decimals that read as they look.
  const double perUnit = std::round(1 / step_);
  return std::round(exact * perUnit) / perUnit;
}

QPointF SlideWidget::pointAt(qreal along, qreal across) const {
  return isVertical() ? QPointF(width() / 2.0 - 6 + across, along)
                      : QPointF(along, height() / 2.0 - 4 + across);
}

void SlideWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor text = palette().color(QPalette::WindowText);
  painter.setPen(QPen(palette().color(QPalette::Mid), 6, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(pointAt(positionOf(minimum_), 0), pointAt(positionOf(maximum_), 0));
  const double spacing = maximum_ - minimum_ > mostMarks ? (maximum_ - minimum_) / 10 : 1;
  const int marks = static_cast<int>((maximum_ - std::ceil(minimum_)) / spacing) + 1;
  for (int i = 0; i < marks; ++i) {
    const double mark = std::ceil(minimum_) + i * spacing;
    painter.setPen(QPen(text, mark == 0 ? 2 : 1));
    const qreal end = mark == 0 ? 20 : 15;
    // On whole pixels: two rows of half a pixel each would be half as dark.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawLine(pointAt(positionOf(mark), 12), pointAt(positionOf(mark), end));
    if (isNumbered_) paintNumber(painter, mark);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF centre = pointAt(positionOf(value_), 0);
  const QSizeF size =
      isVertical() ? QSizeF(pointerWidth, pointerLength) : QSizeF(pointerLength, pointerWidth);
  const QRectF pointer(centre.x() - size.width() / 2, centre.y() - size.height() / 2, size.width(),
                       size.height());
  const QColor accent = isPale_ ? text : accent_;
  painter.setBrush(isEnabled() ? accent : palette().color(QPalette::Mid));
  painter.setPen(QPen(accent.darker(160), 1));
  painter.drawRoundedRect(pointer, 3, 3);
  if (!hasFocus()) return;
  // Apart from the pointer, which may have the same colour.
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRoundedRect(pointer.adjusted(-3, -3, 3, 3), 5, 5);
}

void SlideWidget::paintNumber(QPainter& painter, double mark) {
  const QPointF at = pointAt(positionOf(mark), 24);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(QRectF(at.x(), at.y() - 12, numberWidth, 24), Qt::AlignLeft | Qt::AlignVCenter,
                   QString::number(mark));
}

void SlideWidget::moveTo(double value) {
  emit dragged(qBound(minimum_, value, maximum_));
}

void SlideWidget::stepTo(double value) {
  const double perUnit = std::round(1 / step_);
  moveTo(std::round(value * perUnit) / perUnit);
  emit released();
}

void SlideWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  isDragged_ = true;
  moveTo(valueAt(event->position()));
}

void SlideWidget::mouseMoveEvent(QMouseEvent* event) {
  if (isDragged_) moveTo(valueAt(event->position()));
}

void SlideWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && std::exchange(isDragged_, false)) emit released();
}

/// A dialog that opens meanwhile gets the release of the button.
bool SlideWidget::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked && std::exchange(isDragged_, false)) emit takenAway();
  return QWidget::event(event);
}

void SlideWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) stepTo(0);
}

void SlideWidget::wheelEvent(QWheelEvent* event) {
  if (const int steps = wheel_.notches(*event); steps != 0) stepTo(value_ + steps * step_);
}

void SlideWidget::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
      stepTo(value_ + step_);
      break;
    case Qt::Key_Down:
    case Qt::Key_Left:
      stepTo(value_ - step_);
      break;
    case Qt::Key_PageUp:
      stepTo(value_ + 1);
      break;
    case Qt::Key_PageDown:
      stepTo(value_ - 1);
      break;
    case Qt::Key_Home:
      stepTo(minimum_);
      break;
    case Qt::Key_End:
      stepTo(maximum_);
      break;
    case Qt::Key_0:
      stepTo(0);
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace tracewell
