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

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  const QRect room = contentsRect();
  const QString line = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
  painter.drawText(room, static_cast<int>(alignment()) | Qt::TextSingleLine, line);
}

/// The whole text, where it is not to be seen.
bool ElidedLabel::event(QEvent* event) {
  const bool isElided = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
  if (event->type() != QEvent::ToolTip || !isElided) return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
  return true;
}

}  // namespace tracewell
