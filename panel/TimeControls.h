// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Acquisition.h"

namespace tracewell {

/// Horizontal position and trigger level.
class TimeControls {
 public:
  TimeControls(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
               Acquisition& acquisition)
      : main_(main), exchange_(exchange), errorLog_(errorLog), acquisition_(acquisition) {}

  /// While dragging the captions follow, and the marker of the trigger level; nothing is sent.
  void slideTime_PointerValueChanged();
  void slideTrig_PointerValueChanged();

  /// Sends the delay with the acquisition paused. Logs its failure.
  void slideTime_PointerValueCommitted();
  /// Sends the level in volts while the acquisition runs. Traps nothing.
  void slideTrig_MouseUp();

 private:
  frmDSO& main_;
  CommandExchange& exchange_;
  ErrorLog& errorLog_;
  Acquisition& acquisition_;
};

}  // namespace tracewell
