// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include "SystemFiles.h"

namespace tracewell {

/// The oldest C library there does not know the mode "x".
std::FILE* openNewFile(const std::filesystem::path& path) {
  const int file =
      ::_wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
  return file < 0 ? nullptr : ::_fdopen(file, "wb");
}

std::FILE* openToAppend(const std::filesystem::path& path) {
  return ::_wfopen(path.c_str(), L"ab");
}

}  // namespace tracewell
