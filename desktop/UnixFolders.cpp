// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>
#include <cstdlib>

#include "QtValues.h"
#include "SystemFolders.h"

namespace tracewell {

namespace fs = std::filesystem;

/// As the system has it, whatever the bytes of its name.
fs::path executableFolder() {
  std::error_code failed;
  const fs::path executable = fs::read_symlink("/proc/self/exe", failed);
  return failed ? toPath(QCoreApplication::applicationDirPath()) : executable.parent_path();
}

/// Relative paths do not count there; they would mean another folder at each start.
fs::path usersFolder() {
  const auto folderIn = [](const char* name) {
    const char* const value = std::getenv(name);
    const fs::path path = value == nullptr ? "" : value;
    return path.is_absolute() ? path : fs::path();
  };
  fs::path data = folderIn("XDG_DATA_HOME");
  if (data.empty() && !folderIn("HOME").empty()) data = folderIn("HOME") / ".local" / "share";
  if (data.empty())
    data = toPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
  return data / QCoreApplication::applicationName().toStdString();
}

bool mayWriteInto(const fs::path& folder) {
  return QFileInfo(toQt(folder)).isWritable();
}

}  // namespace tracewell
