// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

namespace tracewell {

/// Stems of the settings queries of each dialog; "?" behind one asks, " value" sets.
extern const std::array<std::string_view, 5> ChanQuery1;
extern const std::array<std::string_view, 5> ChanQuery2;
/// Those of channel 1 or 2.
const std::array<std::string_view, 5>& channelQueries(int channel);
extern const std::array<std::string_view, 3> AcqQuery;
extern const std::array<std::string_view, 6> TrigQuery;
extern const std::array<std::string_view, 5> TrigAdvQuery;
/// Without the leading colon of the others, and so sent.
extern const std::array<std::string_view, 3> BrightQuery;

}  // namespace tracewell
