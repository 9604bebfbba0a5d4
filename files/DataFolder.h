// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "StandBy.h"

namespace tracewell {

/// What the load window offers in a folder, each list in the order of the names.
struct DataFolder {
  /// Parent folder first.
  std::vector<std::string> folders;
  /// Names that end in ".csv", in small letters or capitals.
  std::vector<std::string> dataFiles;
};

inline constexpr const char* parentFolder = "..";

/// Reads `folder`. A folder may be slow, as on a network: the window answers meanwhile, and Escape
/// ends the wait. Raises "Cannot read" with the path and the system's reason.
DataFolder readDataFolder(const std::filesystem::path& folder, StandBy& standBy);

}  // namespace tracewell
