// SPDX-License-Identifier: GPL-3.0-or-later
#include "LampWidget.h"

#include <QPainter>
#include <QRadialGradient>

#include "Accessible.h"

namespace tracewell {

LampWidget::LampWidget(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void LampWidget::setColour(const QColor& colour) {
  colour_ = colour;
  update();
}

void LampWidget::setState(const QString& state) {
  if (state == state_) return;
  state_ = state;
  tellWords(*this);
}

void LampWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal side = qMin(width(), height()) - 4;
  const QRectF disc((width() - side) / 2, (height() - side) / 2, side, side);
  QRadialGradient light(disc.center() - QPointF(side / 6, side / 6), side * 0.75);
  light.setColorAt(0, colour_.lighter(150));
  light.setColorAt(0.6, colour_);
  light.setColorAt(1, colour_.darker(140));
  painter.setBrush(light);
  painter.setPen(QPen(colour_.darker(180), 1.2));
  painter.drawEllipse(disc);
}

}  // namespace tracewell
