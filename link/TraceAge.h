// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "frmDSO.h"

/// How old the traces are: a trace stays on the screen when no record comes any more.
namespace tracewell {

/// A record of channel 1 or 2 has come.
void noteRecord(frmDSO& main, std::int16_t channel);

/// Milliseconds between two records of a channel, as long as all is well: what a record takes on
/// the line, at least the interval of the requests, for each channel that is displayed.
std::int64_t recordPeriod(const frmDSO& main);

/// Says of each displayed channel how old its trace is, and makes those pale that are older than
/// three periods, or another instrument's. Live is what is being fetched.
void showTraceAges(frmDSO& main);

}  // namespace tracewell
