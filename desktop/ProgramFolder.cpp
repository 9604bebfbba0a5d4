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

}  // namespace

/// What cannot be copied is missed, and named, when it is first read.
std::vector<std::string> fillProgramFolder(const fs::path& from, const fs::path& to) {
  std::error_code ignored;
  fs::create_directories(to, ignored);
  std::vector<std::string> offered;
  ShippedFiles files(to);
  std::error_code unread;
  for (fs::directory_iterator entry(from, unread), end; !unread && entry != end;
       entry.increment(unread)) {
    std::error_code failed;
    const fs::path& path = entry->path();
    if (!isProgramFile(path) || !entry->is_regular_file(failed)) continue;
    const std::string name = pathText(path.filename());
    const bool isSetup = path.extension() == ".dso";
    if (isSetup && fs::exists(fs::symlink_status(to / name, failed))) continue;
    try {
      if (files.bring(name, readWholeFile(path, fileLimit::shipped)))
        offered.push_back(name + ".new");
    } catch (const Error&) {
      // The user's own copy, if there is one, serves.
    }
  }
  files.keep();
  std::ranges::sort(offered);
  return offered;
}

fs::path folderOfPorts() {
  const fs::path own = executableFolder();
  return isPortable(own) ? own : usersFolder();
}

ProgramFolder programFolder() {
  const fs::path own = executableFolder();
  if (isPortable(own)) return {own};
  const fs::path shipped = shippedFolder(own);
  ProgramFolder users{usersFolder()};
  std::error_code failed;
  fs::create_directories(users.path, failed);
  users.offered = fillProgramFolder(shipped, users.path);
  if (holdsProgramFiles(users.path) || !holdsProgramFiles(shipped)) return users;
  const std::string reason = failed ? " (" + failed.message() + ")" : "";
  return {shipped, {}, "Cannot use " + pathText(users.path) + reason};
}

}  // namespace tracewell
