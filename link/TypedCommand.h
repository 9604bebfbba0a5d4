// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frmDSO.h"

namespace tracewell {

/// After a command that the user has typed and that was sent: what it may have changed on the
/// instrument, and the panel shows, is marked as not known until it is read or set here. Queries
/// change nothing.
void noteTypedCommand(frmDSO& main, const std::string& command);

}  // namespace tracewell
