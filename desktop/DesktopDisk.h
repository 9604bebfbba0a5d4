// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Disk.h"

namespace tracewell {

/// Uses the system's own call for each. Needs no Qt.
class DesktopDisk : public Disk {
 public:
  DesktopDisk();
  std::error_code flush(std::FILE& file) override;
  void takeOwner(std::FILE& file, const std::filesystem::path& like) override;
  std::error_code flushFolder(const std::filesystem::path& folder) override;
  std::error_code rename(const std::filesystem::path& from,
                         const std::filesystem::path& to) override;
  std::vector<std::string> drives() override;
};

}  // namespace tracewell
