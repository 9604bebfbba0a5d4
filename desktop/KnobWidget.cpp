// SPDX-License-Identifier: GPL-3.0-or-later
#include "KnobWidget.h"

#include <QKeyEvent>
#include <QMap>
#include <QMouseEvent>
#include <QPainter>
#include <QRadialGradient>
#include <QRegularExpression>
#include <QWheelEvent>
#include <cmath>
#include <numbers>
#include <optional>

namespace tracewell {
namespace {

/// The gap at the bottom, where no detent is.
constexpr qreal firstAngle = 225;
constexpr qreal sweep = 270;
/// More captions than this do not fit around the knob.
constexpr int mostCaptions = 12;
/// Longer is no value.
constexpr int mostTyped = 6;

/// A number and what stands behind it: "20m", ".5", "1V". What is no prefix is the unit.
struct Value {
  double number = 0;
  /// A power of ten; none where nothing says so.
  std::optional<int> exponent;
};

Value valueOf(const QString& text) {
  static const QRegularExpression form(QStringLiteral("^([0-9]*\\.?[0-9]*)(.*)$"));
  static const QMap<QString, int> exponents = {{QStringLiteral("n"), -9},
                                               {QStringLiteral("u"), -6},
                                               {QStringLiteral("m"), -3},
                                               {QStringLiteral("v"), 0},
                                               {QStringLiteral("s"), 0}};
  const QRegularExpressionMatch parts = form.match(text.toLower());
  Value value;
  value.number = parts.captured(1).toDouble();
  const auto unit = exponents.constFind(parts.captured(2).left(1));
  if (unit != exponents.cend()) value.exponent = *unit;
  return value;
}

/// Decades between two values, where the second may stand for any thousandth part if it names no
/// unit.
double distanceOf(const Value& detent, const Value& typed) {
  const double decades =
      std::log10(detent.number) + detent.exponent.value_or(0) - std::log10(typed.number);
  return std::fabs(typed.exponent ? decades - *typed.exponent : std::remainder(decades, 3));
}

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

void KnobWidget::setPale(bool isPale) {
  isPale_ = isPale;
  update();
}

QColor KnobWidget::mark() const {
  return isPale_ ? palette().color(QPalette::WindowText) : accent_;
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
  if (!typed_.isEmpty()) paintTyped(painter);
}

void KnobWidget::paintTyped(QPainter& painter) {
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  const QSizeF size(radius() * 1.5, painter.fontMetrics().height() + 6);
  const QRectF place(centre() - QPointF(size.width(), size.height()) / 2, size);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRoundedRect(place, 3, 3);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(place, Qt::AlignCenter, typed_);
}

void KnobWidget::paintDetents(QPainter& painter) {
  QFont font = painter.font();
  font.setPointSizeF(qMax(6.5, font.pointSizeF() * 0.78 * scale()));
  painter.setFont(font);
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
  const int last = static_cast<int>(captions_.size()) - 1;
  const int steps = static_cast<int>(std::lround(dragTravel_ * last / sweep));
  const int detent = qBound(0, draggedFrom_ + steps, last);
  if (detent != value_) turnTo(detent);
}

void KnobWidget::wheelEvent(QWheelEvent* event) {
  if (const int steps = wheel_.notches(*event); steps != 0) turnTo(value_ + steps);
  event->accept();
}

void KnobWidget::setTyped(const QString& typed) {
  typed_ = typed;
  update();
}

int KnobWidget::typedDetent() const {
  const Value typed = valueOf(typed_);
  // Rounding must not decide which of two equal ones is nearer.
  constexpr double same = 1e-6;
  int nearest = value_;
  double smallest = distanceOf(valueOf(captions_[value_]), typed);
  for (int detent = 0; detent < captions_.size(); ++detent) {
    const double distance = distanceOf(valueOf(captions_[detent]), typed);
    const bool isSame = std::fabs(distance - smallest) < same;
    const bool isCloser = isSame && qAbs(detent - value_) < qAbs(nearest - value_);
    if (distance < smallest - same || isCloser) nearest = detent;
    smallest = qMin(smallest, distance);
  }
  return nearest;
}

bool KnobWidget::takeTyped(const QKeyEvent& event) {
  const QString text = event.text();
  const bool isEmpty = typed_.isEmpty();
  const bool isDigit = text.size() == 1 && (text[0].isDigit() || text[0] == QLatin1Char('.'));
  const bool isUnit =
      !isEmpty && text.size() == 1 && QStringLiteral("numsvNUMSV").contains(text[0]);
  if (isDigit || isUnit) {
    if (typed_.size() < mostTyped) setTyped(typed_ + text);
    return true;
  }
  if (isEmpty) return false;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (valueOf(typed_).number > 0) turnTo(typedDetent());
      setTyped({});
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
      turnTo(static_cast<int>(captions_.size()) - 1);
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace tracewell
