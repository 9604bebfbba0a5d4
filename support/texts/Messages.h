// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "frmDSO.h"

namespace tracewell {

/// "la1" to "la5" for the language number in the setup table; empty for any other text there.
std::string languageCode(const SetupTable& table);

/// "dso_la1.msg" and the like in the program folder, for the language in the setup table.
std::filesystem::path languageFile(const frmDSO& main, std::string_view extension);

/// Fills messages 0 to 12 from the message file of the chosen language: line i is a key, ",", and
/// the text of message i. Raises an error that names the file when it is missing or too short; the
/// messages are then as they were.
void LoadMessages(frmDSO& main);

}  // namespace tracewell
