// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "OwnMeasurements.h"
#include "RecordStore.h"
#include "Words.h"

/// What the recorder shows, as texts in the language in force.
namespace tracewell {

/// "Peak to peak"
std::string quantityName(const Words& words, Quantity quantity);

/// The value in its unit with so many digits that count, as "1.000 kHz"; where there is none, why:
/// "less than a period", "< 40.00 us".
std::string valueText(const Words& words, const OwnValue& value, QuantityUnit unit);

/// The same for a value that there is: prefixes from "n" to "G" for volts, seconds and hertz.
std::string numberWithUnit(double value, std::string_view unit);

/// "1 record", "312 records"
std::string recordsText(const Words& words, std::size_t count);

/// "1 row", "312 rows"
std::string rowsText(const Words& words, std::uintmax_t count);

/// "CH1"
std::string channelName(int channel);

/// The time of day at a moment of the clock on the wall, "14:29:05.250", or "14:29:05".
std::string timeOfDay(std::int64_t wallTime, bool hasMilliseconds = true);

/// "500.0 mV/div, 1.000 ms/div, SIMULATED"; says of a scale that it is not known.
std::string circumstances(const Words& words, const RecordFacts& facts);

/// What lies in front of a record: "unplugged, other scales"; empty for nothing.
std::string gapText(const Words& words, const RecordGap& gap);

}  // namespace tracewell
