// SPDX-License-Identifier: GPL-3.0-or-later
#include "TimeControls.h"

#include "Numbers.h"
#include "ScaleTables.h"
#include "SlideValues.h"

namespace tracewell {
namespace {

/// Seconds of a position in divisions, by the time scale that the label shows.
double delaySeconds(const std::string& scale, double divisions) {
  const double units = leadingNumber(captionNumber(scale)) * divisions;
  if (scale.ends_with("ns")) return units * 1e-9;
  if (scale.ends_with("us")) return units * 1e-6;
  if (scale.ends_with("ms")) return units * 1e-3;
  return units;
}

}  // namespace

void TimeControls::slideTime_PointerValueChanged() {
  showSlideValue(main_, main_.slideTime);
}

void TimeControls::slideTime_PointerValueCommitted() {
  try {
    acquisition_.StopAcq();
    const double delay = checked(delaySeconds(main_.lblTime.caption(), main_.slideTime.value()));
    exchange_.SendDSOCmd(":TIM:DEL " + formatExponent(delay));
    acquisition_.ResumeAcq();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "slideTime_PointerValueCommitted ");
  }
}

void TimeControls::slideTrig_PointerValueChanged() {
  showSlideValue(main_, main_.slideTrig);
  // The marker follows the slide while it is dragged.
  main_.marksDue.raise();
}

void TimeControls::slideTrig_MouseUp() {
  exchange_.SendDSOCmd(":TRIG:LEV " + formatExponent(main_.slideTrig.value()));
}

}  // namespace tracewell
