// SPDX-License-Identifier: GPL-3.0-or-later
#include "ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "BannerPainter.h"

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

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  QRect room = contentsRect();
  if (const int width = signWidth(); width > 0) {
    const qreal side = fontMetrics().ascent() * 1.15;
    paintWeightSign(painter, {room.left() + 0.5, room.center().y() - side / 2 + 0.5, side, side},
                    sign_ == warning, warningColour_, palette().color(QPalette::Window));
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
