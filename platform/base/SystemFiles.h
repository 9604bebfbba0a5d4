// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <filesystem>

/// Files opened by the system's own names for them: UnixFiles.cpp, WindowsFiles.cpp. None, with the
/// reason in errno, where that fails.
namespace tracewell {

/// Where nothing is yet.
std::FILE* openNewFile(const std::filesystem::path& path);

std::FILE* openToAppend(const std::filesystem::path& path);

}  // namespace tracewell
