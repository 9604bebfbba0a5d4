// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Whole files, as bytes.
namespace tracewell {

/// Raises "File not found: <path>" when there is none, and the system's reason with the path when
/// it cannot be read.
std::string readWholeFile(const std::filesystem::path& path);

/// Replaces the file or leaves it as it was: the bytes go to a new file beside it, which takes its
/// name only when it is complete. Follows a symbolic link. Raises pathAccess or diskFull with path
/// and reason.
void writeWholeFile(const std::filesystem::path& path, std::string_view bytes);

/// UTF-8 text of a path, and the path of such a text. The latter raises pathAccess where the system
/// can make no path of it.
std::string pathText(const std::filesystem::path& path);
std::filesystem::path pathOf(const std::string& text);

}  // namespace tracewell
