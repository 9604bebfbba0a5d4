// SPDX-License-Identifier: GPL-3.0-or-later
#include "Drawn.h"

#include <QPainter>
#include <QPainterPath>

namespace tracewell {
namespace {

/// To a tenth; one that is nothing has no sign.
QString tenths(qreal value) {
  return QString::number(qRound(value * 10));
}

QString nameOf(const QColor& colour) {
  return colour.name(QColor::HexArgb);
}

QString nameOf(const QBrush& brush) {
  QString text = nameOf(brush.color()) + QLatin1Char('/') + QString::number(brush.style());
  if (brush.gradient() == nullptr) return text;
  for (const QGradientStop& stop : brush.gradient()->stops())
    text += QLatin1Char(' ') + tenths(stop.first * 10) + nameOf(stop.second);
  return text;
}

}  // namespace

/// Before what is painted with it, where it is another one.
void CommandEngine::noteLook() {
  const QPen pen = painter()->pen();
  const QStringList parts = {nameOf(pen.color()),
                             tenths(pen.widthF()),
                             QString::number(int{pen.style()} + int{pen.capStyle()}),
                             nameOf(painter()->brush()),
                             tenths(painter()->opacity() * 10),
                             QString::number(painter()->renderHints())};
  const QString look = parts.join(QLatin1Char(' '));
  if (look != look_) commands << QStringLiteral("with ") + look;
  look_ = look;
}

void CommandEngine::note(const char* what, const QString& detail,
                         std::initializer_list<QPointF> points) {
  noteLook();
  QString text = QLatin1String(what) + detail;
  for (const QPointF& point : points) {
    const QPointF at = painter()->combinedTransform().map(point);
    text += QLatin1Char(' ') + tenths(at.x()) + QLatin1Char(' ') + tenths(at.y());
  }
  commands << text;
}

void CommandEngine::drawPath(const QPainterPath& path) {
  for (int i = 0; i < path.elementCount(); ++i)
    note("path ", QString::number(path.elementAt(i).type), {path.elementAt(i)});
}

void CommandEngine::drawRects(const QRectF* rects, int count) {
  for (int i = 0; i < count; ++i) note("box", {}, {rects[i].topLeft(), rects[i].bottomRight()});
}

void CommandEngine::drawLines(const QLineF* lines, int count) {
  for (int i = 0; i < count; ++i) note("line", {}, {lines[i].p1(), lines[i].p2()});
}

void CommandEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) {
  for (int i = 0; i < count; ++i) note("corner ", QString::number(mode), {points[i]});
}

void CommandEngine::drawTextItem(const QPointF& place, const QTextItem& text) {
  note("text ", text.text() + QLatin1Char(' ') + QString::number(text.font().pixelSize()), {place});
}

void CommandEngine::drawPixmap(const QRectF& place, const QPixmap&, const QRectF&) {
  note("picture", {}, {place.topLeft(), place.bottomRight()});
}

int CommandDevice::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth:
    case PdmHeight:
      return 4000;
    case PdmDepth:
      return 32;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return static_cast<int>(devicePixelRatioFScale());
    default:
      return 96;
  }
}

}  // namespace tracewell
