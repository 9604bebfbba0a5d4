// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

namespace tracewell {

/// A file that grows at its end, piece by piece, and may be cut.
class AppendedFile {
 public:
  /// Opens the regular file, or makes it; `path` is kept. Raises pathAccess.
  explicit AppendedFile(std::filesystem::path path);

  const std::filesystem::path& path() const { return path_; }
  std::uintmax_t size() const { return size_; }

  /// At once, without a buffer of its own. After an error a part of it may have been written.
  std::error_code append(std::string_view bytes);
  /// Waits until the disk itself holds all that was appended, and the name of a new file.
  std::error_code flush();
  std::error_code cutTo(std::uintmax_t size);
  /// Whether the name still means a file of that size. Another program may have removed, replaced
  /// or changed it.
  bool isAsWritten() const;

 private:
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::filesystem::path path_;
  std::unique_ptr<std::FILE, Close> file_;
  std::uintmax_t size_ = 0;
  bool isNew_ = false;
};

}  // namespace tracewell
