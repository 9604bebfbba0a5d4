// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tracewell {

/// The folder of setup, language files and error log.
struct ProgramFolder {
  std::filesystem::path path;
  /// Names of shipped files that are new to the user and stand beside those that the user has
  /// changed.
  std::vector<std::string> offered = {};
  /// Why nothing can be kept; empty where it can.
  std::string failure = "";
};

/// The executable's folder or, if that cannot be written, one of the user's: filledFolder.
ProgramFolder programFolder();

/// The folder that programFolder uses or would make, as far as ports are concerned.
std::filesystem::path folderOfPorts();

/// Copies the shipped files of `from` to `to`, which is made if need be and becomes the program's
/// folder. A file that the user has not changed follows the shipped one. Beside a changed one the
/// new one is put as "<name>.new", once, and offered. Setups are the user's. "shipped-files" lists
/// what was copied and offered. If `to` cannot be made or filled, `from` is used as it is; but not
/// if only files are missing from a `to` that has been in use.
ProgramFolder filledFolder(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace tracewell
