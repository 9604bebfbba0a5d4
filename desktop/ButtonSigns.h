// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

namespace tracewell {

/// The start button and that of the instrument can both read "Stop". A sign in front says what a
/// button acts on, as its form names it in the property "sign": the "instrument" itself.
void showSign(QPushButton& button);

}  // namespace tracewell
