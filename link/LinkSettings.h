// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// The values of the setup table's row `link`, in its order.
enum LinkValue : int { baudRateValue, dataBitsValue, stopBitsValue, parityValue, portValue };
constexpr int linkValues = 5;

/// The port's codes of what the table and the RS-232 dialog hold as text.
std::int16_t dataBitsCode(const std::string& text);
std::int16_t stopBitsCode(const std::string& text);
std::int16_t parityCode(const std::string& text);

/// All five settings of the table. Raises what a number that is none raises.
LineSettings linkSettings(const SetupTable& table);

/// Gives the port the settings of the table, without opening it. Where one of them is no number the
/// port's stay as they are, and the status line says so.
void applyLinkSettings(frmDSO& main);

/// The status line says what the table and the port have, where they differ, and no longer says it
/// where they agree.
void showDifferingLink(frmDSO& main);

}  // namespace tracewell
