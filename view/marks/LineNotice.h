// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Says in the status line what is wrong on the line, as long as it goes on, and takes it back when
/// it does no longer. To be called now and then.
void showLineNotice(frmDSO& main);

}  // namespace tracewell
