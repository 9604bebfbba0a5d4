// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "frmDSO.h"

/// Files that hold more than the program took from them. Each is kept aside before it is written
/// anew; until then a notice beside the status line names it.
namespace tracewell {

/// What the program writes in its folder without being asked.
constexpr const char* setupFile = "default.dso";
constexpr const char* errorLogFile = "dso.err";

void noteFileToKeep(frmDSO& main, const std::filesystem::path& path);
bool isToBeKept(frmDSO& main, const std::filesystem::path& path);

/// It was taken whole, or is of no account any more.
void forgetFileToKeep(frmDSO& main, const std::filesystem::path& path);

/// Keeps the file aside if it is one of them, by whatever path it is named. Raises pathAccess.
void keepNotedFile(frmDSO& main, const std::filesystem::path& path);

/// What to say when it has been written anew; none if there is nothing to keep. Raises pathAccess.
StatusLine::Sentence willBeKept(frmDSO& main, const std::filesystem::path& path);

/// What to say of a file that another program has changed since it was read, and of its new name.
StatusLine::Sentence changedMeanwhile(const std::filesystem::path& path,
                                      const std::filesystem::path& aside);

/// Of a start that has put files beside the user's own, or cannot keep anything and why.
void tellOfFolder(frmDSO& main, const std::vector<std::string>& newFiles,
                  const std::string& failure);

/// The notice, in the language in force.
void showFilesToKeep(frmDSO& main);

}  // namespace tracewell
