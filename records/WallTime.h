// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace tracewell {

/// Milliseconds since 1970, of the clock on the wall, which may step.
std::int64_t wallTimeNow();

/// ISO 8601 with milliseconds and the zone that was in force here then:
/// "2026-03-15T14:29:05.250+01:00".
std::string isoTime(std::int64_t wallTime);

}  // namespace tracewell
