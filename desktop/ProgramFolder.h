// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace tracewell {

/// The folder of setup, language files and error log: the executable's own, or, when that cannot be
/// written, one of the user's, which gets every shipped file that it does not hold yet.
std::filesystem::path programFolder();

/// Copies the shipped files of `from` to `to`, which is made if need be. What is there already is
/// the user's and stays, but for the language files of another version of the program.
void fillProgramFolder(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace tracewell
