// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <QCoreApplication>
#include <QStandardPaths>

#include "QtValues.h"
#include "SystemFolders.h"

namespace tracewell {

namespace fs = std::filesystem;

fs::path executableFolder() {
  return toPath(QCoreApplication::applicationDirPath());
}

fs::path usersFolder() {
  return toPath(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
}

/// The rights of a folder do not say it all. A file that goes with its handle does.
bool mayWriteInto(const fs::path& folder) {
  const fs::path probe = folder / (".tracewell-" + std::to_string(::GetCurrentProcessId()));
  const HANDLE file = ::CreateFileW(probe.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  ::CloseHandle(file);
  return true;
}

}  // namespace tracewell
