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
  /// error for a file that is none.
  void cmdLoadCSV_Click();

  /// Hides the reference traces, which are free again.
  void cmdRemove_Click();

  /// Writes the reply box to "text.csv" in the current folder without asking.
  void cmdExportCSV_Click();

 private:
  frmDSO& main_;
  Acquisition& acquisition_;
  frmSave& saveWindow_;
  frmLoad& loadWindow_;
};

}  // namespace tracewell
