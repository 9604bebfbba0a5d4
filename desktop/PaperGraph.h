// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainter>

#include "Printer.h"

namespace tracewell {

/// Draws the page in the colours of paper: dark lines of different kinds on white, so that the
/// traces can be told apart in grey, too.
void paintOnPaper(const GraphPage& page, QPainter& painter, const QRectF& paper);

}  // namespace tracewell
