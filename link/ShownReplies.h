// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frmDSO.h"

namespace tracewell {

/// The box below the command line shows records, what settings were sent, and replies. It is marked
/// as long as a reply in it is not sure.

/// Adds a line to the box and shows it at once.
void echoLine(frmDSO& main, const std::string& line);
/// The same with the reply that was returned last.
void echoReply(frmDSO& main, const std::string& reply);
/// Shows the reply that was returned last, and nothing else.
void showReply(frmDSO& main, const std::string& reply);

bool isReplyUnsure(const frmDSO& main);

}  // namespace tracewell
