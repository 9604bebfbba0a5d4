// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramFolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <array>

#include "Error.h"
#include "Files.h"
#include "QtValues.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

/// Where an installation keeps the files that a portable one has beside the executable.
fs::path shippedFolder(const fs::path& executableFolder) {
  const fs::path installed = executableFolder.parent_path() / "share" / "tracewell";
  std::error_code ignored;
  return fs::exists(installed, ignored) ? installed : executableFolder;
}

constexpr const char* versionFile = "shipped-version";

bool isOfThisVersion(const fs::path& folder) {
  try {
    return readWholeFile(folder / versionFile, fileLimit::shippedVersion) == TRACEWELL_VERSION;
  } catch (const Error&) {
    return false;
  }
}

/// What lies beside the executable of a portable program is not all a part of it.
bool isProgramFile(const fs::path& path) {
  constexpr std::array<std::string_view, 5> kinds = {".cap", ".msg", ".dso", ".sit", ".cmd"};
  return path.filename() == "about.jpg" ||
         std::ranges::find(kinds, path.extension().string()) != kinds.end();
}

/// The language files belong to a version of the program, everything else to the user.
bool isLanguageFile(const fs::path& path) {
  return path.extension() == ".cap" || path.extension() == ".msg";
}

/// Where that fails, the next start copies again.
void noteVersion(const fs::path& folder) {
  try {
    writeWholeFile(folder / versionFile, TRACEWELL_VERSION);
  } catch (const Error&) {
  }
}

/// False when it could not be done.
bool copyWhole(const fs::path& from, const fs::path& to) {
  try {
    writeWholeFile(to, readWholeFile(from, fileLimit::shipped));
    return true;
  } catch (const Error&) {
    return false;
  }
}

bool holdsProgramFiles(const fs::path& folder) {
  std::error_code ignored;
  return fs::exists(folder / "dso_la1.msg", ignored);
}

}  // namespace

/// What cannot be copied is missed, and named, when it is first read.
void fillProgramFolder(const fs::path& from, const fs::path& to) {
  std::error_code ignored;
  fs::create_directories(to, ignored);
  const bool isUpToDate = isOfThisVersion(to);
  bool isComplete = true;
  std::error_code unread;
  for (fs::directory_iterator entry(from, unread), end; !unread && entry != end;
       entry.increment(unread)) {
    std::error_code failed;
    if (!isProgramFile(entry->path()) || !entry->is_regular_file(failed)) continue;
    const fs::path copy = to / entry->path().filename();
    const bool isReplaced = !isUpToDate && isLanguageFile(entry->path());
    if (isReplaced || !fs::exists(fs::symlink_status(copy, failed)))
      isComplete = copyWhole(entry->path(), copy) && isComplete;
  }
  if (!isUpToDate && isComplete && !unread) noteVersion(to);
}

fs::path programFolder() {
  const QString own = QCoreApplication::applicationDirPath();
  if (QFileInfo(own).isWritable() && holdsProgramFiles(toPath(own))) return toPath(own);
  fs::path users = toPath(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
  fillProgramFolder(shippedFolder(toPath(own)), users);
  return users;
}

}  // namespace tracewell
