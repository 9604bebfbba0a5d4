// SPDX-License-Identifier: GPL-3.0-or-later
#include "Connect.h"

#include "ConnectionIndicator.h"
#include "Waiting.h"
#include "WaitingNotice.h"

namespace tracewell {

void Connect::cmdStart_Click() {
  try {
    startOrStop();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, error.source());
  }
}

void Connect::startOrStop() {
  if (!main_.Initialised && !connectFirst()) return;
  if (!main_.LinkOK) {
    main_.status.tell(StatusLine::linkLost, [this](const Words& words) {
      return words.say("The last question had no answer: press %1", {main_.cmdRS232.caption()});
    });
    return;
  }
  main_.tmDSO.enabled = !main_.tmDSO.enabled();
  if (main_.tmDSO.enabled()) main_.status.withdraw(StatusLine::stoppedByError);
  waitToShow(main_.tmDSO.enabled());
  showAcquisition();
}

void Connect::waitToShow(bool hasStarted) {
  struct Wait {
    std::optional<bool>& hasStarted;
    ~Wait() { hasStarted.reset(); }
  };
  hasStarted_ = hasStarted;
  const Wait wait{hasStarted_};
  Delay(main_, 1000);
}

/// A dialog that pauses the acquisition has it go on.
void Connect::showEarly() {
  if (!hasStarted_) return;
  const bool isPaused =
      *hasStarted_ && main_.doing && !main_.status.says(StatusLine::stoppedByError);
  main_.tmDSO.enabled() || isPaused ? showRunning(main_) : showStopped(main_);
}

bool Connect::connectFirst() {
  {
    const WaitingNotice notice(main_);
    instrument_.InitDSO();
  }
  if (!main_.LinkOK) {
    showConnectFailed(main_);
    return false;
  }
  main_.Initialised = true;
  main_.tmDSO.enabled = false;
  return true;
}

/// Goes by the timer as it is after the wait: another handler may have changed it meanwhile.
void Connect::showAcquisition() {
  if (main_.tmDSO.enabled()) {
    showRunning(main_);
  } else {
    showStopped(main_);
    exchange_.LoadSetup();
  }
}

void Connect::cmdRS232_Click() {
  instrument_.InitDSO();
  if (!main_.LinkOK) return showConnectFailed(main_);
  cmdStart_Click();
}

}  // namespace tracewell
