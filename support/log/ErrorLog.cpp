// SPDX-License-Identifier: GPL-3.0-or-later
#include "ErrorLog.h"

#include "StatusLine.h"

namespace tracewell {

void ErrorLog::ErrLog(const Error& error, const std::string& tag) {
  if (main_.tmDSO.enabled())
    showStatus(main_, main_.services().words.say("The acquisition has stopped: %1",
                                                 {error.description()}));
  main_.tmDSO.enabled = false;
  window_.load();
  const std::string line = main_.services().clock.dateAndTime() + "  " + error.source() + " - " +
                           tag + error.description() + "\r\n";
  window_.txtErrLog.text = window_.txtErrLog.text() + line;
  window_.showNewLines(main_.NewLogLines + 1);
}

}  // namespace tracewell
