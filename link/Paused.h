// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Acquisition.h"

namespace tracewell {

/// Pauses the acquisition as long as it lives, and resumes it also when something has gone wrong.
class Paused {
 public:
  Paused(const frmDSO& main, Acquisition& acquisition) : main_(main), acquisition_(acquisition) {
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
