// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Acquisition.h"

namespace tracewell {

/// Pauses the acquisition as long as it lives, and resumes it also when something has gone wrong,
/// unlike a SettingsDialog. What the user has had done before is no longer said.
class Paused {
 public:
  Paused(frmDSO& main, Acquisition& acquisition) : main_(main), acquisition_(acquisition) {
    main.status.withdraw(StatusLine::happened);
    acquisition_.StopAcq();
  }
  ~Paused() {
    if (!main_.services().gate.isClosed()) acquisition_.ResumeAcq();
  }
  Paused(const Paused&) = delete;

 private:
  const frmDSO& main_;
  Acquisition& acquisition_;
};

}  // namespace tracewell
