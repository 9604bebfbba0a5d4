// SPDX-License-Identifier: GPL-3.0-or-later
#include "ProgramFolder.h"

#include <algorithm>
#include <array>

#include "Error.h"
#include "Files.h"
#include "ShippedFiles.h"
#include "SystemFolders.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

/// Where an installation keeps the files that a portable one has beside the executable.
fs::path shippedFolder(const fs::path& executableFolder) {
  const fs::path installed = executableFolder.parent_path() / "share" / "tracewell";
  std::error_code ignored;
  return fs::exists(installed, ignored) ? installed : executableFolder;
}

/// What lies beside the executable of a portable program is not all a part of it.
bool isProgramFile(const fs::path& path) {
  constexpr std::array<std::string_view, 5> kinds = {".cap", ".msg", ".dso", ".sit", ".cmd"};
  return path.filename() == "about.jpg" ||
         std::ranges::find(kinds, path.extension().string()) != kinds.end();
}

bool holdsProgramFiles(const fs::path& folder) {
  std::error_code ignored;
  return fs::exists(folder / "dso_la1.msg", ignored);
}

bool isPortable(const fs::path& own) {
  return mayWriteInto(own) && holdsProgramFiles(own);
}

/// Calls `take` with name and content of each program file that can be read.
template <class Take>
void forEachProgramFile(const fs::path& folder, Take take) {
  std::error_code unread;
  for (fs::directory_iterator entry(folder, unread), end; !unread && entry != end;
       entry.increment(unread)) {
    std::error_code failed;
    if (!isProgramFile(entry->path()) || !entry->is_regular_file(failed)) continue;
    try {
      take(pathText(entry->path().filename()), readWholeFile(entry->path(), fileLimit::shipped));
    } catch (const Error&) {
      // The user's own copy, if there is one, serves.
    }
  }
}

bool isThere(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

std::vector<std::string> copyShippedFiles(const fs::path& from, const fs::path& to) {
  std::vector<std::string> offered;
  ShippedFiles files(to);
  forEachProgramFile(from, [&](const std::string& name, const std::string& content) {
    const bool isUsersSetup = name.ends_with(".dso") && isThere(to / name);
    if (!isUsersSetup && files.bring(name, content)) offered.push_back(name + ".new");
  });
  files.keep();
  std::ranges::sort(offered);
  return offered;
}

/// The reason with which the system refuses a file that is not there; empty if all are.
std::string refusal(const fs::path& from, const fs::path& to) {
  std::string reason;
  forEachProgramFile(from, [&](const std::string& name, const std::string& content) {
    if (!reason.empty() || isThere(to / name)) return;
    try {
      writeWholeFile(to / name, content);
    } catch (const Error& error) {
      reason = ": " + error.description();
    }
  });
  return reason;
}

}  // namespace

ProgramFolder filledFolder(const fs::path& from, const fs::path& to) {
  std::error_code failed;
  fs::create_directories(to, failed);
  const bool wasFilled = holdsProgramFiles(to) && isThere(to / "default.dso");
  ProgramFolder users{to, copyShippedFiles(from, to)};
  const std::string reason = failed ? " (" + failed.message() + ")" : refusal(from, to);
  if (reason.empty() || wasFilled) return users;
  return {from, {}, "Cannot use " + pathText(to) + reason};
}

fs::path folderOfPorts() {
  const fs::path own = executableFolder();
  return isPortable(own) ? own : usersFolder();
}

ProgramFolder programFolder() {
  const fs::path own = executableFolder();
  if (isPortable(own)) return {own};
  return filledFolder(shippedFolder(own), usersFolder());
}

}  // namespace tracewell
