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

constexpr const char* firstFile = "dso_la1.msg";

bool holdsProgramFiles(const fs::path& folder) {
  std::error_code ignored;
  return fs::exists(folder / firstFile, ignored);
}

bool isPortable(const fs::path& own) {
  return mayWriteInto(own) && holdsProgramFiles(own);
}

/// The reason with which the system refuses the first file that is read; empty where it does not.
std::string refusal(const fs::path& from, const fs::path& to) {
  try {
    writeWholeFile(to / firstFile, readWholeFile(from / firstFile, fileLimit::shipped));
    return "";
  } catch (const Error& error) {
    return ": " + error.description();
  }
}

/// What cannot be copied is missed, and named, when it is first read.
std::vector<std::string> copyShippedFiles(const fs::path& from, const fs::path& to) {
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

}  // namespace

ProgramFolder filledFolder(const fs::path& from, const fs::path& to) {
  std::error_code failed;
  fs::create_directories(to, failed);
  ProgramFolder users{to, copyShippedFiles(from, to)};
  if (holdsProgramFiles(to) || !holdsProgramFiles(from)) return users;
  const std::string reason = failed ? " (" + failed.message() + ")" : refusal(from, to);
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
