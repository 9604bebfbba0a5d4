// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Says in the window which device the port is.
void showPort(frmDSO& main, std::int16_t portNumber);

/// The same in the language in force.
void sayPortAgain(frmDSO& main);

}  // namespace tracewell
