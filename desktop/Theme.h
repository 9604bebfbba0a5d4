// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

namespace tracewell {

/// Dark like an instrument's front, or light where the desktop is: palette and style sheet for the
/// whole program. Forms mark their parts with dynamic properties ("channel", "readout", ...) that
/// the style sheets refer to.
void applyTheme(QApplication& application);

}  // namespace tracewell
