// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramFolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include "Text.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

/// Where an installation keeps the files that a portable one has beside the executable.
fs::path shippedFolder(const fs::path& executableFolder) {
  const fs::path installed = executableFolder.parent_path() / "share" / "tracewell";
  std::error_code ignored;
  return fs::exists(installed, ignored) ? installed : executableFolder;
}

/// What cannot be copied is missed, and named, when it is first read.
void copyMissingFiles(const fs::path& from, const fs::path& to) {
  std::error_code ignored;
  fs::create_directories(to, ignored);
  for (const fs::directory_entry& entry : fs::directory_iterator(from, ignored)) {
    std::error_code failed;
    if (entry.is_regular_file(failed))
      fs::copy_file(entry.path(), to / entry.path().filename(), fs::copy_options::skip_existing,
                    failed);
  }
}

bool holdsProgramFiles(const fs::path& folder) {
  std::error_code ignored;
  return fs::exists(folder / "dso_la1.msg", ignored);
}

}  // namespace

fs::path programFolder() {
  const QString own = QCoreApplication::applicationDirPath();
  if (QFileInfo(own).isWritable() && holdsProgramFiles(toPath(own))) return toPath(own);
  const fs::path users =
      toPath(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
  copyMissingFiles(shippedFolder(toPath(own)), users);
  return users;
}

}  // namespace tracewell
