// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "frmDSO.h"

namespace tracewell {

/// Runs `print` and says in the status line that it has printed. Returns false, and says nothing,
/// if the user declined, as `print` tells. Raises what `print` raises.
bool printAndSay(frmDSO& main, const std::function<bool(Printer&)>& print);

}  // namespace tracewell
