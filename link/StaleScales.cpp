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

std::string hint(const frmDSO& main) {
  return main.services().words.say(
      "The scales may be those of another instrument: press %1 to read them",
      {main.cmdRS232.caption()});
}

/// Also where a complaint has been put behind it.
void withdraw(frmDSO& main, const std::string& said) {
  std::string status = main.lblStatus.caption();
  if (!status.starts_with(said)) return;
  status.erase(0, said.size());
  if (status.starts_with("; ")) status.erase(0, 2);
  showStatus(main, status);
}

}  // namespace

bool areScalesStale(const frmDSO& main) {
  return main.scaleOrigin && *main.scaleOrigin != presentOrigin(main);
}

/// Traces of the instrument before do not stand on the scales of this one.
void noteScalesRead(frmDSO& main) {
  if (areScalesStale(main)) main.RecordTime = {};
  main.scaleOrigin = presentOrigin(main);
  showStaleScales(main);
}

void showStaleScales(frmDSO& main) {
  const bool isStale = areScalesStale(main);
  const bool wasStale = main.lblChan1.isStale();
  for (Control* control : std::initializer_list<Control*>{
           &main.lblChan1, &main.lblChan2, &main.lblTime, &main.knobChan1, &main.knobChan2,
           &main.knobTime, &main.slideCH1, &main.slideCH2})
    control->isStale = isStale;
  if (!isStale) {
    withdraw(main, hint(main));
  } else if (!wasStale) {
    // These stay so until they are measured anew.
    for (ValueLabel& result : main.lblMeasure) result.isStale = !result.caption().empty();
    sayStaleScales(main);
  }
}

void sayStaleScales(frmDSO& main) {
  if (main.lblChan1.isStale()) showStatus(main, hint(main));
}

}  // namespace tracewell
