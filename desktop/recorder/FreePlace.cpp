// SPDX-License-Identifier: GPL-3.0-or-later
#include "FreePlace.h"

#include <algorithm>

namespace tracewell {

QRectF roomBeside(const QPointF& place, const QSizeF& size, const QRectF& inside,
                  const std::vector<QRectF>& taken) {
  constexpr qreal gap = 5;
  constexpr int rings = 4;
  for (int ring = 0; ring < rings; ++ring) {
    const qreal away = gap + ring * size.height();
    const qreal left = -size.width() - away;
    const qreal above = -size.height() - away;
    const QPointF corners[] = {{-size.width() / 2, above},
                               {away, -size.height() / 2},
                               {left, -size.height() / 2},
                               {away, above},
                               {left, above},
                               {away, away},
                               {left, away}};
    for (const QPointF& corner : corners) {
      const QRectF room(place + corner, size);
      const bool isFree =
          std::ranges::none_of(taken, [&](const QRectF& other) { return other.intersects(room); });
      if (isFree && inside.contains(room)) return room;
    }
  }
  return {};
}

}  // namespace tracewell
