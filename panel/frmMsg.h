// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Controls.h"
#include "Timer.h"
#include "frmDSO.h"

namespace tracewell {

/// A notice beside the main window while the instrument is at work, with the time that it takes.
class frmMsg : public Window {
 public:
  explicit frmMsg(frmDSO& main);

  ValueLabel lblMsg{*this, "lblMsg", ""};
  Progress prgMsg{*this, "prgMsg"};

  /// Begins to fill the bar, which will be full in so many milliseconds. It fills as long as the
  /// window shows.
  void showProgress(int milliseconds);

 private:
  void tmMsg_Timer();

  static constexpr int tickInterval = 250;
  Timer tmMsg_{*this, tickInterval};
  std::int64_t startedAt_ = 0;
  std::int64_t duration_ = 1;
};

}  // namespace tracewell
