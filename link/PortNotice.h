// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Says in the window which device the port is.
void showPort(frmDSO& main, std::int16_t portNumber);

/// Marks the graph when the trace that has just come is the simulated instrument's, so that nobody
/// takes it for a measurement. The mark stays until a trace of another port comes.
void markTrace(frmDSO& main);

/// Both in the language in force.
void sayPortAgain(frmDSO& main);

}  // namespace tracewell
