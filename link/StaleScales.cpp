// SPDX-License-Identifier: GPL-3.0-or-later
#include "StaleScales.h"

#include "TraceAge.h"
#include "TriggerMarker.h"

namespace tracewell {
namespace {

SharedState::ScaleOrigin presentOrigin(const frmDSO& main) {
  const SerialPort& port = main.services().port;
  return {port.settings.portNumber, port.openings()};
}

void tellHint(frmDSO& main) {
  main.status.tell(StatusLine::staleScales, [&main](const Words& words) {
    return words.say("The scales may be those of another instrument: press %1 to read them",
                     {main.cmdRS232.caption()});
  });
}

}  // namespace

bool areScalesStale(const frmDSO& main) {
  return main.scaleOrigin && *main.scaleOrigin != presentOrigin(main);
}

/// Traces of the instrument before do not stand on the scales of this one, and what this one is not
/// asked for was set on the other.
void noteScalesRead(frmDSO& main) {
  if (areScalesStale(main)) {
    main.RecordTime = {};
    ForgetUnaskedSettings(main);
  }
  main.scaleOrigin = presentOrigin(main);
  showStaleScales(main);
}

void showStaleScales(frmDSO& main) {
  const bool isStale = areScalesStale(main);
  const bool wasStale = main.lblChan1.isStale();
  for (Control* control : std::initializer_list<Control*>{
           &main.lblChan1, &main.lblChan2, &main.lblTime, &main.knobChan1, &main.knobChan2,
           &main.knobTime, &main.slideCH1, &main.slideCH2, &main.slideTime, &main.slideTrig,
           &main.cbMath})
    control->isStale = isStale;
  if (!isStale) {
    main.status.withdraw(StatusLine::staleScales);
  } else if (!wasStale) {
    // These stay so until they are measured anew.
    for (ValueLabel& result : main.lblMeasure) result.isStale = !result.caption().empty();
    main.RecordTime = {};
    showTraceAges(main);
    tellHint(main);
  }
}

}  // namespace tracewell
