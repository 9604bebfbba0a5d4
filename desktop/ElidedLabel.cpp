// SPDX-License-Identifier: GPL-3.0-or-later
#include "ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace tracewell {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setTextFormat(Qt::PlainText);
}

void ElidedLabel::setSign(Sign sign) {
  if (sign == sign_) return;
  sign_ = sign;
  update();
}

/// As high as the letters, and a gap.
int ElidedLabel::signWidth() const {
  return sign_ == none || text().isEmpty() ? 0 : fontMetrics().ascent() * 3 / 2;
}

/// Told apart by shape, too: a disc, or a triangle.
void ElidedLabel::paintSign(QPainter& painter, const QRectF& place) const {
  const bool isWarning = sign_ == warning;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(isWarning ? warningColour_ : QColor(0x2e, 0x75, 0x50));
  if (isWarning)
    painter.drawPolygon(
        QPolygonF({{place.center().x(), place.top()}, place.bottomRight(), place.bottomLeft()}));
  else
    painter.drawEllipse(place);
  QFont bold = font();
  bold.setBold(true);
  bold.setPixelSize(qRound(place.height() * 0.72));
  painter.setFont(bold);
  painter.setPen(isWarning ? palette().color(QPalette::Window) : Qt::white);
  painter.drawText(place.adjusted(0, isWarning ? place.height() * 0.2 : 0, 0, 0), Qt::AlignCenter,
                   isWarning ? QStringLiteral("!") : QStringLiteral("i"));
  painter.restore();
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  QRect room = contentsRect();
  if (const int width = signWidth(); width > 0) {
    const qreal side = fontMetrics().ascent() * 1.15;
    paintSign(painter, {room.left() + 0.5, room.center().y() - side / 2 + 0.5, side, side});
    room.setLeft(room.left() + width);
    if (sign_ == warning) painter.setPen(warningColour_);
  }
  const QString line = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
  painter.drawText(room, static_cast<int>(alignment()) | Qt::TextSingleLine, line);
}

/// The whole text, where it is not to be seen.
bool ElidedLabel::event(QEvent* event) {
  const bool isElided =
      fontMetrics().horizontalAdvance(text()) > contentsRect().width() - signWidth();
  if (event->type() != QEvent::ToolTip || !isElided) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  return true;
}

}  // namespace tracewell
