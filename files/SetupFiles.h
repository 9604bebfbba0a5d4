// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "frmDSO.h"

namespace tracewell {

/// Setup files: the character "R", then a line per row of the setup table, "label,count,value,...",
/// each ended by CR LF. Nothing is quoted.
class SetupFiles {
 public:
  explicit SetupFiles(frmDSO& main) : main_(main) {}

  /// Where the program keeps its own setup.
  std::filesystem::path defaultPath() const;

  /// Fills the table. Stops at the first error without a box: rows read so far are new, the
  /// others as they were. The status line says when the file holds more than was taken.
  void ReadSetupFile(const std::filesystem::path& path);

  /// Writes rows 0 to 12; does nothing for an empty path. A file that ReadSetupFile could not take
  /// whole is kept aside first. Raises "Type mismatch" when a row's count is no number, and the
  /// file system's reason; the old file is whole then.
  void WriteSetupFile(const std::filesystem::path& path);

  void mnbLoadSetup_Click();
  void mnbSaveSetup_Click();

 private:
  void fillTable(const std::filesystem::path& path);
  bool isTakenWhole(const std::filesystem::path& path) const;

  frmDSO& main_;
  /// A file of which the table does not hold everything; empty for none.
  std::filesystem::path notTakenWhole_;
};

}  // namespace tracewell
