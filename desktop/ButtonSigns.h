// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

namespace tracewell {

/// Captions of several buttons can read "Stop". A sign in front says what a button acts on, as its
/// form names it in the property "sign": "traces" of this window, the serial "line", or the
/// "instrument" itself.
void showSign(QPushButton& button);

}  // namespace tracewell
