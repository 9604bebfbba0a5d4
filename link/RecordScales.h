// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

/// Under which scales a record was made: what the knobs say when it has come may be newer. They are
/// known where nothing has changed between its request and its arrival.
namespace tracewell {

/// A record of channel 1 or 2 is being requested, perhaps once more.
void noteRequestScales(frmDSO& main, std::int16_t channel);

/// The record has come.
void noteRecordScales(frmDSO& main, std::int16_t channel);

}  // namespace tracewell
