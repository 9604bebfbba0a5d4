// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Files.h"
#include "frmDSO.h"

namespace tracewell {

/// Says something that the user should know and that waits for no answer. It stays until the next.
inline void showStatus(frmDSO& main, const std::string& text) {
  main.lblStatus.caption = text;
}

/// Says that the file could not be read whole and will be kept when it is written anew.
inline void sayKept(frmDSO& main, const std::filesystem::path& path) {
  try {
    showStatus(main, pathText(path.filename()) + " could not be read whole. It will be kept as " +
                         pathText(nameAside(path)) + " before a new one is written.");
  } catch (const Error& error) {
    showStatus(main, error.description());
  }
}

}  // namespace tracewell
