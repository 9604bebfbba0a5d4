// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

#include "Error.h"

namespace tracewell {

/// "what: whole path (reason)".
Error fileError(int number, const std::string& what, const std::filesystem::path& path,
                const std::error_code& reason = {});

/// Why the last call of the C library failed.
inline std::error_code lastFailure() {
  return {errno, std::generic_category()};
}

Error cannotRead(const std::filesystem::path& path, const std::error_code& reason = lastFailure());
/// `number` is pathAccess or, where the disk did not take it, diskFull.
Error cannotWrite(const std::filesystem::path& path, const std::error_code& reason = lastFailure(),
                  int number = pathAccess);
Error notAFile(const std::filesystem::path& path);

}  // namespace tracewell
