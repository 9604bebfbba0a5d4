// SPDX-License-Identifier: GPL-3.0-or-later
#include "SystemFiles.h"

namespace tracewell {

std::FILE* openNewFile(const std::filesystem::path& path) {
  return std::fopen(path.c_str(), "wbx");
}

std::FILE* openToAppend(const std::filesystem::path& path) {
  return std::fopen(path.c_str(), "ab");
}

}  // namespace tracewell
