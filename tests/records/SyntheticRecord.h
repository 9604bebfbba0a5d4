// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "WaveformRecord.h"

namespace tracewell {

/// A row of records.csv, by the names of its columns; make_table.py says what they mean.
using RecordRow = std::map<std::string, std::string>;
std::vector<RecordRow> readRecordRows(const std::string& path);

/// The samples of a row, as make_table.py has them.
Samples syntheticRecord(const RecordRow& row);

}  // namespace tracewell
