// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace tracewell {

class Window;

/// Joins every control of `window` to the object of its name in `form`. What the program sets is
/// shown; what the user does becomes the control's user action. A control without an object, with
/// one of the wrong kind, or of a kind that no binder shows is a fault of the form: it raises an
/// Error that names it.
void bindControls(Window& window, QWidget& form);

/// Detaches the controls from their form. Call it while the form still exists.
void unbindControls(Window& window);

}  // namespace tracewell
