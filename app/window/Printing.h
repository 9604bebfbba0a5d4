// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "frmDSO.h"

namespace tracewell {

/// Runs `print`, which tells whether the user has let it print, and says in the status line that
/// it has. What `print` raises goes on.
void printAndSay(frmDSO& main, const std::function<bool(Printer&)>& print);

}  // namespace tracewell
