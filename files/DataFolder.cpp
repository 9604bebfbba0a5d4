// SPDX-License-Identifier: GPL-3.0-or-later
#include "DataFolder.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>

#include "Error.h"
#include "Files.h"

namespace tracewell {
namespace {

namespace fs = std::filesystem;

Error cannotRead(const fs::path& folder, const std::string& reason) {
  return {pathAccess, "Tracewell", "Cannot read: " + pathText(folder) + " (" + reason + ")"};
}

DataFolder read(const fs::path& folder) {
  std::error_code failed;
  DataFolder content{{parentFolder}, {}};
  for (fs::directory_iterator entry(folder, failed); !failed && entry != fs::directory_iterator();
       entry.increment(failed)) {
    std::error_code ignored;
    const std::string name = pathText(entry->path().filename());
    if (entry->is_directory(ignored))
      content.folders.push_back(name);
    else if (name.ends_with(".csv") || name.ends_with(".CSV"))
      content.dataFiles.push_back(name);
  }
  if (failed) throw cannotRead(folder, failed.message());
  std::sort(content.folders.begin() + 1, content.folders.end());
  std::ranges::sort(content.dataFiles);
  return content;
}

}  // namespace

/// The system's own call cannot be interrupted, so nobody waits for the thread of one that was
/// given up.
DataFolder readDataFolder(const fs::path& folder, StandBy& standBy) {
  constexpr std::chrono::milliseconds slice(StandBy::longestGap);
  const StandBy::Burst burst(standBy);
  std::packaged_task<DataFolder()> task([folder] { return read(folder); });
  std::future<DataFolder> result = task.get_future();
  std::thread(std::move(task)).detach();
  while (result.wait_for(slice) != std::future_status::ready) {
    standBy.turn();
    if (standBy.isGivenUp()) throw cannotRead(folder, "given up");
  }
  return result.get();
}

}  // namespace tracewell
