// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frmDSO.h"

namespace tracewell {

/// Says something that the user should know and that waits for no answer. It stays until the next.
inline void showStatus(frmDSO& main, const std::string& text) {
  main.lblStatus.caption = text;
}

}  // namespace tracewell
