// SPDX-License-Identifier: GPL-3.0-or-later
#include "Autoset.h"

#include "Doing.h"
#include "Waiting.h"

namespace tracewell {

Autoset::Autoset(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
                 Acquisition& acquisition, InstrumentState& instrument, frmMsg& message)
    : main_(main),
      exchange_(exchange),
      errorLog_(errorLog),
      acquisition_(acquisition),
      instrument_(instrument),
      message_(message) {}

void Autoset::cmdAutoset_Click() {
  try {
    message_.lblMsg.caption = main_.state.Msg[1];
    message_.show();
    const Doing autoset(main_, [](const Words& words) { return words.say("Autoset"); });
    acquisition_.StopAcq();
    exchange_.SendDSOCmd(":AUT");
    message_.showProgress(autosetDuration);
    waitUntilItIsOver();
    instrument_.InitDSO();
    acquisition_.ResumeAcq();
    hideMessage();
    message_.refresh();
  } catch (const Error& error) {
    hideMessage();
    errorLog_.ErrLog(error, "cmdAutoset_Click : ");
  }
}

void Autoset::waitUntilItIsOver() {
  struct Upset {
    KnownInstrument& known;
    std::int16_t port = known.presentLine().portNumber;
    ~Upset() { known.upsetIsOver(port); }
  };
  main_.known.upset();
  const Upset upset{main_.known};
  Delay(main_, autosetDuration);
}

void Autoset::hideMessage() {
  message_.hide();
  main_.status.withdraw(StatusLine::refused);
}

bool Autoset::isUnderWay(const Property<std::string>& caption) const {
  if (!message_.isVisible()) return false;
  main_.status.tell(StatusLine::refused, [&caption](const Words& words) {
    return words.say("%1: wait until the autoset is over", {caption()});
  });
  return true;
}

}  // namespace tracewell
