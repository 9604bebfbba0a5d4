// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

namespace tracewell {

/// The start button and the instrument's run/stop button can both read "Stop". A sign in front
/// shows what a button acts on. Its form names the sign in the property "sign": "instrument" for
/// the instrument itself.
void showSign(QPushButton& button);

/// A patch of the colour. Its edge shows it even on a button of that colour.
void showSwatch(QPushButton& button, const QColor& colour);

}  // namespace tracewell
