// SPDX-License-Identifier: GPL-3.0-or-later
#include <io.h>
#include <windows.h>

#include <cerrno>

#include "DesktopDisk.h"

namespace tracewell {

/// A drive without a disk in it is an error like any other; the system shows no box about it.
DesktopDisk::DesktopDisk() {
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

std::error_code DesktopDisk::flush(std::FILE& file) {
  if (::_commit(::_fileno(&file)) == 0) return {};
  return {errno, std::generic_category()};
}

/// A new file belongs there to whom its folder says.
void DesktopDisk::takeOwner(std::FILE&, const std::filesystem::path&) {}

/// A folder is no file there; the renaming itself has waited.
std::error_code DesktopDisk::flushFolder(const std::filesystem::path&) {
  return {};
}

/// Who looks for viruses, or makes an index, has every new file open for a moment.
std::error_code DesktopDisk::rename(const std::filesystem::path& from,
                                    const std::filesystem::path& to) {
  constexpr int tries = 10;
  constexpr DWORD pause = 50;
  DWORD error = ERROR_SUCCESS;
  for (int i = 0; i < tries; ++i) {
    if (::MoveFileExW(from.c_str(), to.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
      return {};
    error = ::GetLastError();
    if (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED) break;
    ::Sleep(pause);
  }
  return {static_cast<int>(error), std::system_category()};
}

std::vector<std::string> DesktopDisk::drives() {
  std::vector<std::string> found;
  const DWORD letters = ::GetLogicalDrives();
  for (char letter = 'A'; letter <= 'Z'; ++letter)
    if (((letters >> (letter - 'A')) & 1) != 0) found.push_back(std::string(1, letter) + ":\\");
  return found;
}

}  // namespace tracewell
