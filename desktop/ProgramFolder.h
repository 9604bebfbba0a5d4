// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace tracewell {

/// The folder of setup, language files and error log: the executable's own, or, when that cannot be
/// written, one of the user's, which gets every shipped file that it does not hold yet.
std::filesystem::path programFolder();

}  // namespace tracewell
