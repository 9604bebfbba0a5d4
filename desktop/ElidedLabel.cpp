// SPDX-License-Identifier: GPL-3.0-or-later
#include "ElidedLabel.h"

#include <QPainter>

namespace tracewell {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setTextFormat(Qt::PlainText);
  setContentsMargins(10, 0, 10, 2);
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect room = contentsRect();
  const QString line = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
}

}  // namespace tracewell
