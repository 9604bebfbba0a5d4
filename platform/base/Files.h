// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "FileLimits.h"

/// Whole files, as bytes.
namespace tracewell {

/// Raises "File not found: <path>" when there is none, and the reason with the path when it cannot
/// be read or has more than `limit` bytes.
std::string readWholeFile(const std::filesystem::path& path, std::uintmax_t limit);

/// The same, but reads at most the last `limit` bytes.
struct FileEnd {
  std::string bytes;
  /// The size of the whole file.
  std::uintmax_t size = 0;

  bool isWhole() const { return bytes.size() == size; }
};
FileEnd readFileEnd(const std::filesystem::path& path, std::uintmax_t limit);

/// Raises pathAccess if readWholeFile would refuse what is about to be written.
void checkReadable(const std::filesystem::path& path, std::string_view bytes, std::uintmax_t limit);

/// Replaces the file whole or leaves it as it was. The bytes go to a new file in the same folder,
/// under a name of its own and with the old file's mode. Once the disk holds it, it takes the name.
/// Follows a symbolic link. Replaces only a regular file. Raises pathAccess or diskFull with path
/// and reason.
void writeWholeFile(const std::filesystem::path& path, std::string_view bytes);

/// The same for files that belong together. All are on the disk before the first takes its name.
/// They take their names in this order; if one cannot, those before it are restored.
struct WholeFile {
  const std::filesystem::path& path;
  std::string_view bytes;
};
void writeWholeFiles(std::initializer_list<WholeFile> files);

/// Keeps the file under the first name of "<name>.bad", "<name>.bad2", ... that is free or already
/// its own. Until the file is written anew it keeps its old name too, if the file system has second
/// names and the file can be read. Does nothing if there is no file. Raises pathAccess.
void keepAside(const std::filesystem::path& path);

/// The name that keepAside would take now.
std::filesystem::path nameAside(const std::filesystem::path& path);

/// The UTF-8 text of a path, and the path of such a text. The latter raises pathAccess if the
/// system can make no path of it.
std::string pathText(const std::filesystem::path& path);
std::filesystem::path pathOf(const std::string& text);

/// For the user, who cannot know in which folder a bare name is. The path as it is where the
/// present folder is gone.
std::filesystem::path wholePath(const std::filesystem::path& path);
std::string wholePathText(const std::filesystem::path& path);

}  // namespace tracewell
