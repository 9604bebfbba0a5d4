// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// The two measuring cursors and their read-out in the caption of the graph's x axis.
class Cursors {
 public:
  explicit Cursors(frmDSO& main) : main_(main) {}

  void opOff_Click();
  void opTime_Click();
  void opVoltage_Click();
  void cbCurChan_Click();
  void graphDSO_CursorMoved();
  /// Steps the mode: Off, Time, Voltage, Off.
  void cmdCursor_Click();

 private:
  /// Writes "Time", or both positions and their difference in volts or in the unit of the time
  /// scale. Raises "Type mismatch" when the time scale is not known yet.
  void UpdateCursorReadout();
  void showCursors(bool areVisible);
  std::string voltageReadout(const std::string& scale);
  std::string timeReadout(const std::string& scale);

  frmDSO& main_;
  /// True while the cursors measure time.
  bool CursorTimeMode = false;
  /// Last position read from each cursor, in graph units.
  double Cur1Pos = 0;
  double Cur2Pos = 0;
};

}  // namespace tracewell
