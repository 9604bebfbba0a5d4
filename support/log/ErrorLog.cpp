// SPDX-License-Identifier: GPL-3.0-or-later
#include "ErrorLog.h"

namespace tracewell {

void ErrorLog::ErrLog(const Error& error, const std::string& tag) {
  if (main_.tmDSO.enabled())
    main_.status.tell(StatusLine::stoppedByError,
                      [reason = error.description()](const Words& words) {
                        return words.say("The acquisition has stopped: %1", {reason});
                      });
  main_.tmDSO.enabled = false;
  window_.load();
  const std::string line = main_.services().clock.dateAndTime() + "  " + error.source() + " - " +
                           tag + error.description() + "\r\n";
  window_.txtErrLog.text = window_.txtErrLog.text() + line;
  window_.showNewLines(window_.newLogLines + 1);
}

}  // namespace tracewell
