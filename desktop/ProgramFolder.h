// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tracewell {

/// The folder of setup, language files and error log.
struct ProgramFolder {
  std::filesystem::path path;
  /// Names of shipped files that are new to the user and stand beside those that he has changed.
  std::vector<std::string> offered = {};
  /// Why nothing can be kept; empty where it can.
  std::string failure = "";
};

/// The executable's own, or, when that cannot be written, one of the user's, which follows the
/// shipped files. Where that cannot be made either, the shipped files are used where they are.
ProgramFolder programFolder();

/// Where programFolder is or will be, as far as ports are concerned, without making it.
std::filesystem::path folderOfPorts();

/// Copies the shipped files of `from` to `to`, which is made if need be. A file that is there and
/// that the user has not changed follows the shipped one; beside one that he has changed the new
/// one is put as "<name>.new", once, and named in the result. Setups are the user's. What was
/// copied and offered stands in "shipped-files".
std::vector<std::string> fillProgramFolder(const std::filesystem::path& from,
                                           const std::filesystem::path& to);

}  // namespace tracewell
