// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "frmDSO.h"

namespace tracewell {

/// "500.0 mV", as the instrument writes it; empty for what is no scale of its own.
std::string captionOfVolts(std::optional<double> perDivision);

/// Lays a record over the live traces as the load window does: in the first reference that is free,
/// with `name` and its volts per division beside it, at the height at which its channel's trace is
/// now. The status line says which one, or that none is free. False if none is.
bool showAsReference(frmDSO& main, int channel, const ChannelRecord& record,
                     const std::string& name);

}  // namespace tracewell
