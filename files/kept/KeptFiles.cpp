// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeptFiles.h"

#include <algorithm>

#include "Files.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

/// Also where there is no file any more.
fs::path canonicalPath(const fs::path& path) {
  std::error_code failed;
  const fs::path canonical = fs::weakly_canonical(wholePath(path), failed);
  return failed ? wholePath(path) : canonical;
}

auto findNoted(frmDSO& main, const fs::path& path) {
  return std::ranges::find_if(main.filesToKeep,
                              [whole = canonicalPath(path)](const fs::path& noted) {
                                std::error_code ignored;
                                return noted == whole || fs::equivalent(noted, whole, ignored);
                              });
}

/// Without a folder if it is kept in its own. Where a link is followed, it is kept beside the file.
std::string asideText(const fs::path& path, const fs::path& aside) {
  const bool isBeside = aside.parent_path() == canonicalPath(wholePath(path).parent_path());
  return pathText(isBeside ? aside.filename() : aside);
}

std::string notice(const Words& words, const fs::path& path) {
  try {
    return words.say("%1 could not be read whole and will be kept as %2",
                     {pathText(path.filename()), asideText(path, nameAside(path))});
  } catch (const Error& error) {
    return error.description();
  }
}

}  // namespace

void showFilesToKeep(frmDSO& main) {
  std::string text;
  main.lblNotice.sentences.clear();
  // Those that are written unasked; the others are kept when the user saves over them.
  for (const char* name : {setupFile, errorLogFile}) {
    const fs::path path = main.services().programFolder / name;
    if (!isToBeKept(main, path)) continue;
    const std::string said = notice(main.services().words, path);
    main.lblNotice.sentences.push_back({said, true});
    text += (text.empty() ? "" : "; ") + said;
  }
  main.lblNotice.visible = !text.empty();
  main.lblNotice.caption = text;
}

bool isToBeKept(frmDSO& main, const fs::path& path) {
  return findNoted(main, path) != main.filesToKeep.end();
}

void noteFileToKeep(frmDSO& main, const fs::path& path) {
  if (findNoted(main, path) == main.filesToKeep.end())
    main.filesToKeep.push_back(canonicalPath(path));
  showFilesToKeep(main);
}

void forgetFileToKeep(frmDSO& main, const fs::path& path) {
  const auto noted = findNoted(main, path);
  if (noted == main.filesToKeep.end()) return;
  main.filesToKeep.erase(noted);
  showFilesToKeep(main);
}

void keepNotedFile(frmDSO& main, const fs::path& path) {
  if (findNoted(main, path) == main.filesToKeep.end()) return;
  keepAside(path);
  forgetFileToKeep(main, path);
}

StatusLine::Sentence willBeKept(frmDSO& main, const fs::path& path) {
  std::error_code ignored;
  if (!isToBeKept(main, path) || !fs::exists(path, ignored)) return {};
  return [name = pathText(path.filename()),
          kept = asideText(path, nameAside(path))](const Words& words) {
    return words.say("The old %1 is kept as %2", {name, kept});
  };
}

StatusLine::Sentence changedMeanwhile(const fs::path& path, const fs::path& aside) {
  return [name = pathText(path.filename()), kept = asideText(path, aside)](const Words& words) {
    return words.say("%1 was changed by another program, and that is kept as %2", {name, kept});
  };
}

void tellOfFolder(frmDSO& main, const std::vector<std::string>& newFiles,
                  const std::string& failure) {
  std::string names;
  for (const std::string& name : newFiles) names += (names.empty() ? "" : ", ") + name;
  if (!names.empty())
    main.status.tell(StatusLine::happened, [names](const Words& words) {
      return words.say("This version has new files beside those that you have changed: %1",
                       {names});
    });
  if (!failure.empty())
    main.status.tell(StatusLine::nothingKept, [failure](const Words& words) {
      return words.say("Nothing will be kept. %1", {failure});
    });
}

}  // namespace tracewell
