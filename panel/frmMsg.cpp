// SPDX-License-Identifier: GPL-3.0-or-later
#include "frmMsg.h"

#include <algorithm>

namespace tracewell {

frmMsg::frmMsg(frmDSO& main) : Window("frmMsg", "Message", main.services()) {
  tmMsg_.timer = [this] { tmMsg_Timer(); };
  // The notice closes when the instrument is done, and not before.
  formClose = [] {};
}

void frmMsg::showProgress(int milliseconds) {
  startedAt_ = services().clock.milliseconds();
  duration_ = milliseconds;
  prgMsg.percent = 0;
  tmMsg_.enabled = true;
}

void frmMsg::tmMsg_Timer() {
  const std::int64_t elapsed = services().clock.milliseconds() - startedAt_;
  prgMsg.percent = static_cast<int>(std::clamp<std::int64_t>(100 * elapsed / duration_, 0, 100));
  if (!isVisible()) tmMsg_.enabled = false;
}

}  // namespace tracewell
