// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "frmDSO.h"

namespace tracewell {

/// Setup files: the character "R", then a line per row of the setup table, "label,count,value,...",
/// each ended by CR LF. Nothing is quoted.
class SetupFiles {
 public:
  explicit SetupFiles(frmDSO& main) : main_(main) {}

  /// Where the program keeps its own setup.
  std::filesystem::path defaultPath() const;

  /// Fills the table. Stops at the first error without a box: rows read so far are new, the others
  /// unchanged. Notes a file that holds more than was taken as one to keep.
  void ReadSetupFile(const std::filesystem::path& path);

  /// Writes rows 0 to 12; does nothing for an empty path. First keeps aside a file that was not
  /// taken whole, and a default setup that another program has changed since it was read; for the
  /// latter, returns the sentence to say. Raises "Type mismatch" if a row's count is no number,
  /// pathAccess for a text that could not be read again, and the file system's reason; the old file
  /// is whole then.
  StatusLine::Sentence WriteSetupFile(const std::filesystem::path& path);

  /// Called when a file has been read into the table, also as far as an error.
  std::function<void()> tableRead;

  void mnbLoadSetup_Click();
  void mnbSaveSetup_Click();

 private:
  /// Raises the reason if a part could not be read; what was taken is noted even then. Whether
  /// there was a line to take.
  bool loadFile(const std::filesystem::path& path);
  /// The number of values that each line of a file states.
  using Counts = std::vector<std::string>;
  void fillTable(const std::filesystem::path& path, Counts& counts);
  void noteWhatWasTaken(const std::filesystem::path& path, const Counts& counts);
  bool isTakenWhole(const std::filesystem::path& path, const Counts& counts) const;
  bool isDefault(const std::filesystem::path& path) const;
  bool isOfAnother(const std::filesystem::path& path, const std::string& text) const;

  frmDSO& main_;
  /// The default setup as it was last read or written here.
  std::string known_;
};

}  // namespace tracewell
