// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <vector>

namespace tracewell {

/// Where something of that size may stand, in pixels: above the place, else beside it, ever farther
/// away, `inside` and on nothing that is `taken`. Empty if nowhere.
QRectF roomBeside(const QPointF& place, const QSizeF& size, const QRectF& inside,
                  const std::vector<QRectF>& taken);

}  // namespace tracewell
