// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frmDSO.h"

namespace tracewell {

/// Shows "Waiting" in the main window while the instrument is being read.
class WaitingNotice {
 public:
  explicit WaitingNotice(frmDSO& main) : main_(main) {
    main_.lblTest.visible = true;
    main_.lblTest.refresh();
  }
  ~WaitingNotice() { main_.lblTest.visible = false; }
  WaitingNotice(const WaitingNotice&) = delete;

 private:
  frmDSO& main_;
};

}  // namespace tracewell
