// SPDX-License-Identifier: GPL-3.0-or-later
#include "KnobWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRadialGradient>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "Accessible.h"
#include "KnobValues.h"
#include "PanelText.h"
#include "TextGrowth.h"

namespace tracewell {
namespace {

/// The gap at the bottom, where no detent is.
constexpr qreal firstAngle = 225;
constexpr qreal sweep = 270;
/// More captions than this do not fit around the knob.
constexpr int mostCaptions = 12;
/// Of the captions: pixels, and of the size of the panel's text.
constexpr int leastPixels = 9;
constexpr qreal captionShare = 0.78;
/// Around what is typed as long as it is no value.
const QColor noValue(0xe5, 0x53, 0x45);
/// Below the cap.
constexpr qreal roomOfMark = 18;
/// Longer is no value: "100.00 mV".
constexpr int mostTyped = 9;

/// A point at that angle, at a distance of 1.
QPointF directionOf(qreal angle) {
  const qreal radians = angle * std::numbers::pi / 180;
  return {std::cos(radians), -std::sin(radians)};
}

}  // namespace

KnobWidget::KnobWidget(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::OpenHandCursor);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void KnobWidget::setDetents(const QStringList& captions) {
  captions_ = captions;
  takePlace();
}

void KnobWidget::setValue(double value) {
  const int detent = qBound(0, static_cast<int>(std::lround(value)), lastDetent());
  if (detent == value_) return;
  value_ = detent;
  update();
  tellValue(*this);
  tellWords(*this);
}

QString KnobWidget::inWords() const {
  if (!typed_.isEmpty()) {
    const bool isBegun = std::ranges::any_of(typed_, [](QChar c) { return c.isDigit(); });
    const bool isWrong = (isBegun || isRefused_) && !typedValue(typed_, unit_);
    return isWrong ? panelText("%1 is no value").arg(typed_) : typed_;
  }
  const KnobValue value = captionValue(captions_[value_]);
  if (unit_.isEmpty() || value.number <= 0) return captions_[value_];
  static const QStringList prefixes = {QStringLiteral("n"), QStringLiteral("\u00b5"),
                                       QStringLiteral("m"), QString()};
  // A tenth of a volt is a hundred millivolts.
  const int shift = value.number < 1 ? 1 : 0;
  const qsizetype prefix = value.exponent.value_or(0) / 3 + prefixes.size() - 1 - shift;
  return QStringLiteral("%1 %2%3")
      .arg(value.number * (shift == 0 ? 1 : 1000))
      .arg(prefixes.value(prefix), unit_);
}

void KnobWidget::setAccent(const QColor& accent) {
  accent_ = accent;
  update();
}

void KnobWidget::setPale(bool isPale) {
  isPale_ = isPale;
  update();
}

QColor KnobWidget::mark() const {
  return isPale_ ? palette().color(QPalette::WindowText) : accent_;
}

qreal KnobWidget::scale() const {
  return qBound(1.0, qMin(width() / 200.0, height() / 190.0), 1.6);
}

QFont KnobWidget::captionFont() const {
  QFont font = this->font();
  font.setPixelSize(qMax(leastPixels, qRound(pixelsOf(*this) * captionShare * scale())));
  return font;
}

QRectF KnobWidget::extent(qreal radius, bool hasMark) const {
  QRectF extent(-radius, -radius, 2 * radius, 2 * radius);
  if (hasMark) extent.setBottom(radius + roomOfMark);
  for (int detent = 0; detent <= lastDetent(); ++detent) extent |= captionPlace(detent, {}, radius);
  return extent;
}

void KnobWidget::measureCaptions() {
  const QFont font = captionFont();
  if (measured_ == captions_ && measuredFont_ == font) return;
  measured_ = captions_;
  measuredFont_ = font;
  const QFontMetricsF metrics(font);
  captionSizes_.clear();
  for (const QString& caption : captions_)
    captionSizes_ << metrics.size(Qt::TextSingleLine, caption);
}

void KnobWidget::takePlace() {
  measureCaptions();
  // What the captions take up beside the cap depends on its size hardly at all.
  radius_ = 0;
  for (int round = 0; round < 3; ++round) {
    const QSizeF room = extent(radius_, true).size();
    radius_ += qMin(width() - room.width(), height() - room.height()) / 2;
  }
  const QRectF whole = extent(radius_, true);
  centre_ = QRectF(rect()).center() - extent(radius_, false).center();
  centre_.setY(qMin(centre_.y(), height() - whole.bottom()));
  update();
}

QPointF KnobWidget::gap() const {
  return pointAt(270, radius() + 10);
}

qreal KnobWidget::angleOf(int detent) const {
  const auto steps = qMax<qsizetype>(captions_.size() - 1, 1);
  return firstAngle - sweep * detent / static_cast<qreal>(steps);
}

QPointF KnobWidget::pointAt(qreal angle, qreal distance) const {
  return centre() + directionOf(angle) * distance;
}

/// As far from its detent on every side, however long it is.
QRectF KnobWidget::captionPlace(int detent, const QPointF& centre, qreal radius) const {
  const QSizeF room = captionSizes_[detent];
  const QPointF outward = directionOf(angleOf(detent));
  const QPointF half(room.width() / 2, room.height() / 2);
  const QPointF at = centre + outward * (radius + 11 * scale()) +
                     QPointF(outward.x() * half.x(), outward.y() * half.y());
  return {at - half, room};
}

qreal KnobWidget::angleAt(const QPointF& position) const {
  const QPointF from = position - centre();
  return std::atan2(-from.y(), from.x()) * 180 / std::numbers::pi;
}

int KnobWidget::nearestDetent(const QPointF& position) const {
  const qreal angle = angleAt(position);
  const auto distanceOf = [&](int detent) {
    return std::fabs(std::remainder(angle - angleOf(detent), 360));
  };
  int nearest = 0;
  for (int detent = 1; detent <= lastDetent(); ++detent)
    if (distanceOf(detent) < distanceOf(nearest)) nearest = detent;
  return nearest;
}

bool KnobWidget::hasCaption(int detent) const {
  const int every = static_cast<int>(captions_.size() - 1) / mostCaptions + 1;
  return detent == value_ || (detent % (every + (every > 1 ? 1 : 0)) == 0);
}

/// Who listens hears where it stands then, and not the value before.
void KnobWidget::turnTo(int detent) {
  const bool wasTyped = !typed_.isEmpty();
  const int before = value_;
  typed_.clear();
  update();
  emit turned(qBound(0, detent, lastDetent()));
  if (wasTyped && value_ == before) tellWords(*this);
}

void KnobWidget::resizeEvent(QResizeEvent*) {
  takePlace();
}

void KnobWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) takePlace();
}

void KnobWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintDetents(painter);
  paintCap(painter);
  if (!typed_.isEmpty()) paintTyped(painter);
}

void KnobWidget::paintTyped(QPainter& painter) {
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  const QFontMetrics metrics = painter.fontMetrics();
  const qreal width = qMax(radius() * 1.5, metrics.horizontalAdvance(typed_) + 10.0);
  const QSizeF size(width, metrics.height() + 6);
  const QRectF place(centre() - QPointF(size.width(), size.height()) / 2, size);
  const bool isValue = typedValue(typed_, unit_).has_value();
  painter.setPen(QPen(isValue ? palette().color(QPalette::Highlight) : noValue, 2));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRoundedRect(place, 3, 3);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(place, Qt::AlignCenter, typed_);
}

void KnobWidget::paintDetents(QPainter& painter) {
  measureCaptions();
  painter.setFont(captionFont());
  for (int detent = 0; detent < captions_.size(); ++detent) {
    const bool isChosen = detent == value_;
    painter.setPen(
        QPen(isChosen ? mark() : palette().color(QPalette::WindowText), isChosen ? 2 : 1.2));
    painter.drawLine(pointAt(angleOf(detent), radius() + 4 * scale()),
                     pointAt(angleOf(detent), radius() + 8 * scale()));
    // Beside the chosen caption there is no room for its neighbours.
    const bool isCrowded =
        captions_.size() > mostCaptions && !isChosen && qAbs(detent - value_) < 2;
    if (!hasCaption(detent) || isCrowded) continue;
    painter.drawText(captionPlace(detent, centre(), radius()), Qt::AlignCenter, captions_[detent]);
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
                            : QPen(palette().color(QPalette::Shadow), 1.5));
  painter.drawEllipse(centre(), size, size);
  painter.setPen(QPen(mark(), qMax(2.5, size / 12), Qt::SolidLine, Qt::RoundCap));
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
  const int last = lastDetent();
  const int steps = static_cast<int>(std::lround(dragTravel_ * last / sweep));
  const int detent = qBound(0, draggedFrom_ + steps, last);
  if (detent != value_) turnTo(detent);
}

void KnobWidget::wheelEvent(QWheelEvent* event) {
  if (const int steps = wheel_.notches(*event); steps != 0) turnTo(value_ + steps);
}

void KnobWidget::setTyped(const QString& typed) {
  if (typed == typed_) return;
  typed_ = typed;
  isRefused_ = false;
  update();
  tellWords(*this);
}

bool KnobWidget::takeTyped(const QKeyEvent& event) {
  const QString text = event.text();
  const bool isEmpty = typed_.isEmpty();
  const bool isBeginning =
      text.size() == 1 && (text[0].isDigit() || QStringLiteral(".,-").contains(text[0]));
  const bool isMore = !isEmpty && text.size() == 1 && text[0].isPrint();
  if (isBeginning || isMore) {
    if (typed_.size() < mostTyped) setTyped(typed_ + text);
    return true;
  }
  if (isEmpty) return false;
  const auto typed = typedValue(typed_, unit_);
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!typed) {
        isRefused_ = true;
        tellWords(*this);
        return true;
      }
      turnTo(nearestCaption(captions_, *typed, value_));
      return true;
    case Qt::Key_Escape:
      setTyped({});
      return true;
    case Qt::Key_Backspace:
      setTyped(typed_.chopped(1));
      return true;
    default:
      return false;
  }
}

void KnobWidget::focusOutEvent(QFocusEvent* event) {
  setTyped({});
  QWidget::focusOutEvent(event);
}

void KnobWidget::keyPressEvent(QKeyEvent* event) {
  if (takeTyped(*event)) return;
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
      turnTo(lastDetent());
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace tracewell
