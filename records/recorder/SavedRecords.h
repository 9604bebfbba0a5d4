// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>

#include "RecordStore.h"
#include "WaveformSetWriter.h"
#include "Words.h"
#include "frmDSO.h"

namespace tracewell {

/// Of channel 1 and 2; none for one that is not saved.
using RecordsOfSet = std::array<std::optional<RecordStore::Number>, 2>;

/// What the save window would save if these records were its traces: at the positions at which the
/// panel shows its traces now, since a record does not know its own. The scale is the record's. The
/// description tells name, moments and scales.
WaveformSet setOfRecords(const frmDSO& main, const RecordStore& store, const RecordsOfSet& numbers,
                         const Words& words);

/// "as found; CH1 2026-03-15T14:29:05.250+01:00, 500.0 mV/div, 1.000 ms/div"
std::string noteOf(const RecordStore& store, RecordStore::Number number, const Words& words);

/// "record-20260315-142905.png", by the time of the first of them.
std::string nameOfSet(const RecordStore& store, const RecordsOfSet& numbers);

/// By the end of the name, in small letters, as the load window wants it; none for a format that
/// it does not show.
std::optional<int> pictureFormatOf(const std::string& name);

}  // namespace tracewell
