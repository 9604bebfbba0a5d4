// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

/// Under which scales a record was made: what the knobs say when it has come may be newer. They are
/// known where nothing has changed between its request and its arrival.
namespace tracewell {

/// A record of channel 1 or 2 is being requested, perhaps behind one that is still on its way.
void noteRequestScales(frmDSO& main, std::int16_t channel);

/// The record has come. One that is the same as the one before, to the last byte, is the same
/// sweep, as of an instrument that is stopped, and so are its scales.
void noteRecordScales(frmDSO& main, std::int16_t channel, bool isSameSweep);

/// Whether the scales of now are not those under which the channel's last record came. Not, where
/// those are not known.
bool hasOtherScales(const frmDSO& main, std::int16_t channel);

}  // namespace tracewell
