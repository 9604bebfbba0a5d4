// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "frmDSO.h"

namespace tracewell {

/// Runs `print`, which returns false if the user declined, and otherwise says in the status line
/// that it has printed. Raises what `print` raises.
void printAndSay(frmDSO& main, const std::function<bool(Printer&)>& print);

}  // namespace tracewell
