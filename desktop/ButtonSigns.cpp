// SPDX-License-Identifier: GPL-3.0-or-later
#include "ButtonSigns.h"

#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <functional>
#include <map>

namespace tracewell {
namespace {

/// Pixels of its picture, which is drawn in a square of 16 units.
constexpr int side = 64;
constexpr qreal units = 16;

QPainterPath wave(qreal left, qreal right, qreal middle, qreal height) {
  const qreal quarter = (right - left) / 4;
  QPainterPath path({left, middle});
  path.cubicTo({left + quarter / 2, middle - height}, {left + quarter * 1.5, middle - height},
               {left + quarter * 2, middle});
  path.cubicTo({left + quarter * 2.5, middle + height}, {left + quarter * 3.5, middle + height},
               {right, middle});
  return path;
}

void paintTraces(QPainter& painter) {
  painter.drawPath(wave(1, 15, 8, 9));
}

void paintLine(QPainter& painter) {
  painter.drawPolyline(QPolygonF({{1, 11}, {5, 11}, {5, 5}, {11, 5}, {11, 11}, {15, 11}}));
}

/// A screen and a knob.
void paintInstrument(QPainter& painter) {
  painter.drawRoundedRect(QRectF(1, 2.5, 14, 11), 1.5, 1.5);
  painter.drawPath(wave(3, 9.5, 8, 4));
  painter.drawEllipse(QPointF(12.2, 8), 1, 1);
}

}  // namespace

void showSign(QPushButton& button) {
  static const std::map<QString, std::function<void(QPainter&)>> signs = {
      {QStringLiteral("traces"), paintTraces},
      {QStringLiteral("line"), paintLine},
      {QStringLiteral("instrument"), paintInstrument}};
  const auto sign = signs.find(button.property("sign").toString());
  if (sign == signs.end()) return;
  button.ensurePolished();
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(side / units, side / units);
  painter.setPen(QPen(button.palette().color(QPalette::ButtonText), 1.5, Qt::SolidLine,
                      Qt::RoundCap, Qt::RoundJoin));
  sign->second(painter);
  painter.end();
  button.setIcon(QIcon(picture));
}

}  // namespace tracewell
