// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Acquisition.h"
#include "frmLoad.h"
#include "frmSave.h"

namespace tracewell {

/// The main window's buttons that save and load waveforms.
class WaveformButtons {
 public:
  WaveformButtons(frmDSO& main, Acquisition& acquisition, frmSave& saveWindow, frmLoad& loadWindow)
      : main_(main), acquisition_(acquisition), saveWindow_(saveWindow), loadWindow_(loadWindow) {}

  /// Each of the three pauses the acquisition, and resumes it whether it ran or not.
  void cmdSave_Click();
  void cmdLoad_Click();
  /// Draws the first column of a data file into Load1, at the height of its numbers. Raises an
  /// error if the file is no data file.
  void cmdLoadCSV_Click();
  /// The same for a file that was dropped on the graph.
  void graphDSO_FileDropped(const std::filesystem::path& path);

  /// Copies the picture as it would be saved, the values of the shown traces, or both to other
  /// programs.
  void graphDSO_Copied(Graph::Copied what);

  /// Hides the reference traces and frees them.
  void cmdRemove_Click();
  void graphDSO_ReferenceRemoved(int number);

  /// Writes the reply box to "text.csv" in the current folder without asking.
  void cmdExportCSV_Click();

 private:
  void loadCSV(const std::filesystem::path& path);
  /// False without points.
  bool drawReference(const std::filesystem::path& path, const std::vector<double>& points);
  Image picture() const;

  frmDSO& main_;
  Acquisition& acquisition_;
  frmSave& saveWindow_;
  frmLoad& loadWindow_;
};

}  // namespace tracewell
