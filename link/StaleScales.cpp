// SPDX-License-Identifier: GPL-3.0-or-later
#include "StaleScales.h"

#include "StatusLine.h"
#include "TriggerMarker.h"

namespace tracewell {
namespace {

SharedState::ScaleOrigin presentOrigin(const frmDSO& main) {
  const SerialPort& port = main.services().port;
  return {port.settings.portNumber, port.openings()};
}

}  // namespace

void noteScalesRead(frmDSO& main) {
  if (main.scaleOrigin && *main.scaleOrigin != presentOrigin(main)) ForgetTriggerAndMath(main);
  main.scaleOrigin = presentOrigin(main);
  showStaleScales(main);
}

void showStaleScales(frmDSO& main) {
  const bool isStale = main.scaleOrigin && *main.scaleOrigin != presentOrigin(main);
  const bool wasStale = main.lblChan1.isStale();
  const std::string hint = main.services().words.say(
      "The scales may be those of another instrument: press %1 to read them",
      {main.cmdRS232.caption()});
  for (Control* control : std::initializer_list<Control*>{
           &main.lblChan1, &main.lblChan2, &main.lblTime, &main.knobChan1, &main.knobChan2,
           &main.knobTime, &main.slideCH1, &main.slideCH2})
    control->isStale = isStale;
  if (isStale != wasStale) UpdateTriggerMarker(main);
  if (isStale && !wasStale)
    showStatus(main, hint);
  else if (wasStale && !isStale && main.lblStatus.caption() == hint)
    showStatus(main, "");
}

}  // namespace tracewell
