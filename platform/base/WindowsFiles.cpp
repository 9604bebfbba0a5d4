// SPDX-License-Identifier: GPL-3.0-or-later
#include <cerrno>

#include "SystemFiles.h"

namespace tracewell {

/// The oldest C library there does not know the mode "x".
std::FILE* openNewFile(const std::filesystem::path& path) {
  std::error_code ignored;
  if (std::filesystem::exists(std::filesystem::symlink_status(path, ignored))) {
    errno = EEXIST;
    return nullptr;
  }
  return ::_wfopen(path.c_str(), L"wb");
}

std::FILE* openToAppend(const std::filesystem::path& path) {
  return ::_wfopen(path.c_str(), L"ab");
}

}  // namespace tracewell
