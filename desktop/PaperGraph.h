// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainter>

#include "Printer.h"

namespace tracewell {

enum class PaperInk { coloured, grey };

/// Draws the page in the colours of paper: dark lines of different kinds on white, so that the
/// traces can be told apart in grey, too.
void paintOnPaper(const GraphPage& page, QPainter& painter, const QRectF& paper,
                  PaperInk ink = PaperInk::coloured);

}  // namespace tracewell
