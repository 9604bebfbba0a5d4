// SPDX-License-Identifier: GPL-3.0-or-later
#include "LineWidget.h"

#include <QPainter>

namespace tracewell {

LineWidget::LineWidget(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LineWidget::setLine(const QColor& colour, bool isDotted) {
  colour_ = colour;
  isDotted_ = isDotted;
  update();
}

void LineWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(5, 8, 10));
  painter.setPen(QPen(colour_, 2, isDotted_ ? Qt::DotLine : Qt::SolidLine));
  painter.drawLine(8, height() / 2, width() - 8, height() / 2);
}

}  // namespace tracewell
