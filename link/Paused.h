// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Acquisition.h"
#include "Doing.h"

namespace tracewell {

/// Pauses the acquisition as long as it lives, and resumes it also when something has gone wrong,
/// unlike a SettingsDialog. What the user has had done before is no longer said.
class Paused {
 public:
  /// The banner calls it by `caption`.
  Paused(frmDSO& main, Acquisition& acquisition, const Property<std::string>& caption)
      : main_(main), acquisition_(acquisition), pause_(main, sayPaused(main, caption)) {
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
  Doing pause_;
};

}  // namespace tracewell
