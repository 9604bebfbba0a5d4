// SPDX-License-Identifier: GPL-3.0-or-later
#include "BannerPainter.h"

#include "QtValues.h"
#include "ShownText.h"

namespace tracewell {
namespace {

/// In heights of the letters.
constexpr qreal signSize = 1.15;
constexpr qreal bannerPadding = 0.6;

}  // namespace

void paintWeightSign(QPainter& painter, const QRectF& place, bool isWarning, const QColor& warning,
                     const QColor& ground) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(isWarning ? warning : QColor(0x2e, 0x75, 0x50));
  if (isWarning)
    painter.drawPolygon(
        QPolygonF({{place.center().x(), place.top()}, place.bottomRight(), place.bottomLeft()}));
  else
    painter.drawEllipse(place);
  QFont bold = painter.font();
  bold.setBold(true);
  bold.setPixelSize(qRound(place.height() * 0.72));
  painter.setFont(bold);
  painter.setPen(isWarning ? ground : QColor(Qt::white));
  painter.drawText(place.adjusted(0, isWarning ? place.height() * 0.2 : 0, 0, 0), Qt::AlignCenter,
                   isWarning ? QStringLiteral("!") : QStringLiteral("i"));
  painter.restore();
}

void paintBanner(QPainter& painter, const QRectF& room, const GraphMarks::Banner& banner,
                 const BannerColours& colours) {
  const QFontMetricsF metrics(painter.font());
  const qreal gap = metrics.ascent() * bannerPadding;
  const qreal side = metrics.ascent() * signSize;
  const qreal taken = side + 3 * gap;
  const QString text =
      metrics.elidedText(shownText(banner.text, roomOfLine), Qt::ElideRight, room.width() - taken);
  const QSizeF size(taken + metrics.horizontalAdvance(text) + 1, metrics.height() + gap);
  const QRectF place({room.center().x() - size.width() / 2, room.bottom() - size.height()}, size);
  const QColor colour = banner.isWarning ? colours.warning : colours.text;
  painter.setPen(QPen(colour, 1));
  painter.setBrush(colours.ground);
  painter.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  paintWeightSign(painter, {place.left() + gap, place.center().y() - side / 2, side, side},
                  banner.isWarning, colours.warning, colours.ground);
  painter.drawText(place.adjusted(side + 2 * gap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
}

}  // namespace tracewell
