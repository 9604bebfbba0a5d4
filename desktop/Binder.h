// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace tracewell {

class Window;

/// Joins every control of `window` to the object of its name in `form`: what the program sets is
/// shown, what the user does becomes the control's user action. A control of the wrong kind, or
/// without an object, is a fault of the form and raises an Error that names it; so does a control
/// of a kind that nothing here shows.
void bindControls(Window& window, QWidget& form);

/// Takes the controls off their form again. Call it while the form still stands.
void unbindControls(Window& window);

}  // namespace tracewell
