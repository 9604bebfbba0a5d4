// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainter>

#include "GraphMarks.h"

namespace tracewell {

/// The sign of a sentence's weight: a triangle in `warning` with the ground's colour in it, or a
/// green disc. Told apart by shape, too.
void paintWeightSign(QPainter& painter, const QRectF& place, bool isWarning, const QColor& warning,
                     const QColor& ground);

struct BannerColours {
  QColor text;
  QColor warning;
  QColor ground;
};

/// Paints the banner in the middle of the lower edge of `room`, in the painter's font; what has no
/// room ends in "…".
void paintBanner(QPainter& painter, const QRectF& room, const GraphMarks::Banner& banner,
                 const BannerColours& colours);

}  // namespace tracewell
