// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

/// Where this kind of system keeps things: UnixFolders.cpp, WindowsFolders.cpp.
namespace tracewell {

std::filesystem::path executableFolder();

/// Where the files of this program's user belong. It need not exist.
std::filesystem::path usersFolder();

bool mayWriteInto(const std::filesystem::path& folder);

}  // namespace tracewell
