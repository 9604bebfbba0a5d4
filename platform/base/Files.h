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

/// The last `limit` bytes at most; otherwise the same.
struct FileEnd {
  std::string bytes;
  /// Of the whole file.
  std::uintmax_t size = 0;

  bool isWhole() const { return bytes.size() == size; }
};
FileEnd readFileEnd(const std::filesystem::path& path, std::uintmax_t limit);

/// Raises pathAccess where readWholeFile would refuse what is about to be written.
void checkReadable(const std::filesystem::path& path, std::string_view bytes, std::uintmax_t limit);

/// Replaces the file or leaves it as it was: the bytes go to a new file of a name of its own in the
/// same folder, with the mode of the old one; once the disk holds it, it takes the name. Follows a
/// symbolic link. Replaces a regular file or nothing. Raises pathAccess or diskFull with path and
/// reason.
void writeWholeFile(const std::filesystem::path& path, std::string_view bytes);

/// The same for files that belong together: all are on the disk before the first one takes its
/// name, they take them in this order, and where one cannot those before it are as they were again.
struct WholeFile {
  const std::filesystem::path& path;
  std::string_view bytes;
};
void writeWholeFiles(std::initializer_list<WholeFile> files);

/// Keeps the file under the first name of "<name>.bad", "<name>.bad2", ... that is free or is
/// already its own; until the file is written anew it has its old name, too, where the file system
/// has second names, unless it cannot be read. Does nothing where no file is. Raises pathAccess.
void keepAside(const std::filesystem::path& path);

/// The name that keepAside would take now.
std::filesystem::path nameAside(const std::filesystem::path& path);

/// UTF-8 text of a path, and the path of such a text. The latter raises pathAccess where the system
/// can make no path of it.
std::string pathText(const std::filesystem::path& path);
std::filesystem::path pathOf(const std::string& text);

}  // namespace tracewell
