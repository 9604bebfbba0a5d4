// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tracewell {

/// What the desktop itself says, in the language in force. Its translations are in
/// languages/*.ts, as are those of the forms and of what the logic says.
QString panelText(const char* english);

}  // namespace tracewell
