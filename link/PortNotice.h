// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Says in the window which device the port is, and marks the graph when it is the simulated
/// instrument, so that nobody takes its traces for a measurement.
void showPort(frmDSO& main, std::int16_t portNumber);

}  // namespace tracewell
