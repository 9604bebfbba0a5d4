// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QPalette>

namespace tracewell {

/// How the panel looks; `system` follows the desktop.
enum class Theme { system, light, dark, highContrast };

/// The look of a desktop with these colours: high contrast where text and ground are black and
/// white or close to it, and boxes have no shade of their own; else dark or light like its windows.
Theme themeOf(const QPalette& desktop);

/// Sets palette and style sheet of the whole program, at any time. Forms mark their parts with
/// dynamic properties ("kind", "channel") that the style sheets refer to. `system` takes
/// the colours of a high-contrast desktop as they are.
void applyTheme(QApplication& application, Theme chosen, const QPalette& desktop);

/// The same on the desktop as it was when this was first called.
void applyTheme(QApplication& application, Theme chosen = Theme::system);

}  // namespace tracewell
