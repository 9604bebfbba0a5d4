// SPDX-License-Identifier: GPL-3.0-or-later
#include "InstrumentState.h"

#include "Inquiry.h"
#include "LinkSettings.h"
#include "Numbers.h"
#include "PortNotice.h"
#include "SlideCaption.h"
#include "SlideValues.h"
#include "StaleScales.h"
#include "TriggerMarker.h"

namespace tracewell {
namespace {

std::string trimmed(const std::string& reply) {
  return std::string(trimBlanks(reply));
}

bool isNull(const ValueLabel& scale) {
  return trimBlanks(scale.caption()) == "Null";
}

}  // namespace

void InstrumentState::InitDSO() {
  try {
    applyBaudRateAndPort();
    readAll();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "InitDSO : ");
  }
  showStaleScales(main_);
  UpdateTriggerMarker(main_);
}

void InstrumentState::readAll() {
  Inquiry inquiry(exchange_.inquiries(), main_.fmInstrument.caption, Inquiry::Of::questions, 5);
  markAllUnread();
  inquiry.next();
  main_.lblChan1.caption = trimmed(exchange_.SendDSOCmd(":CHAN1:SCAL?"));
  if (!main_.LinkOK) return;
  // What it does not answer from here on is marked as that.
  noteScalesRead(main_);
  if (main_.lblChan1.caption().empty())
    main_.lblChan1.caption = exchange_.SendDSOCmd(":CHAN1:SCAL?");
  showScaleOnly(ScaleKnob::Chan1, main_.lblChan1, main_.knobChan1);
  inquiry.next();
  main_.lblChan2.caption = scaleReply(":CHAN2:SCAL?");
  showScaleOnly(ScaleKnob::Chan2, main_.lblChan2, main_.knobChan2);
  inquiry.next();
  main_.lblTime.caption = scaleReply(":TIM:SCAL?");
  showScaleOnly(ScaleKnob::Time, main_.lblTime, main_.knobTime);
  inquiry.next();
  readChannel1Position();
  inquiry.next();
  readChannel2Position();
}

/// Data bits, stop bits and parity stay those of the start and of the RS-232 dialog.
void InstrumentState::applyBaudRateAndPort() {
  LineSettings& settings = main_.services().port.settings;
  const SetupTable& table = main_.gridMeasure;
  const std::int16_t baudRate = table.number(SetupTable::link, linkColumn(baudRateValue));
  settings.baudRate = baudRate;
  settings.portNumber = table.number(SetupTable::link, linkColumn(portValue));
  main_.BaudRate = baudRate;
  showPort(main_, settings.portNumber);
  showDifferingLink(main_);
}

void InstrumentState::readScale(const std::string& query, ScaleKnob kind, ValueLabel& label,
                                Knob& knob) {
  label.caption = trimmed(exchange_.SendDSOCmd(query));
  showScale(kind, label, knob);
}

void InstrumentState::showScale(ScaleKnob kind, ValueLabel& label, Knob& knob) {
  const auto step = ScaleStepForReply(kind, label.caption());
  label.isUnread = label.caption().empty();
  knob.isUnread = !step;
  label.refresh();
  UpdateTriggerMarker(main_);
  if (step) knob.value = *step;
}

/// Without the read-out of the cursors, which a knob refreshes as its last act: not all of its
/// scales may be known yet, and reading the instrument goes on.
void InstrumentState::showScaleOnly(ScaleKnob kind, ValueLabel& label, Knob& knob) {
  try {
    showScale(kind, label, knob);
  } catch (const Error&) {
  }
}

/// Until each has its answer. Delay, trigger level and math are not asked for: they are known where
/// they have been set here, on this line.
void InstrumentState::markAllUnread() {
  for (Control* control : std::initializer_list<Control*>{
           &main_.lblChan1, &main_.lblChan2, &main_.lblTime, &main_.knobChan1, &main_.knobChan2,
           &main_.knobTime, &main_.slideCH1, &main_.slideCH2})
    control->isUnread = true;
  if (!main_.TriggerLevelSet) main_.slideTrig.isUnread = true;
  if (!main_.MathEntry) main_.cbMath.isUnread = true;
  if (!main_.scaleOrigin) main_.slideTime.isUnread = true;
  main_.graphDSO.notifyChanged();
}

/// A second reply counts as it stands.
std::string InstrumentState::scaleReply(const std::string& query) {
  std::string reply = trimmed(exchange_.SendDSOCmd(query));
  return reply.empty() ? exchange_.SendDSOCmd(query) : reply;
}

/// The second reply where the first is empty.
std::string InstrumentState::positionReply(const std::string& query) {
  std::string reply = trimmed(exchange_.SendDSOCmd(query));
  return reply.empty() ? trimmed(exchange_.SendDSOCmd(query)) : reply;
}

double InstrumentState::readPosition(const std::string& query, const ValueLabel& scale,
                                     Slide& slide) {
  const double voltsPerDivision = ParseScaleCaption(scale.caption());
  const std::string reply = positionReply(query);
  const double divisions = divide(ParseScaleCaption(reply), voltsPerDivision);
  slide.isUnread = !beginsWithNumber(captionNumber(reply));
  return divisions;
}

void InstrumentState::showPosition(Slide& slide, double divisions) {
  slide.value = divisions;
  noteSlideValue(main_, slide);
  slide.caption = slideTitle(slide.caption()) + formatTwoDecimals(divisions) + " Div";
}

void InstrumentState::readChannel1Position() {
  if (isNull(main_.lblChan1)) return;
  main_.Ch1Pos = readPosition("CHAN1:OFFS?", main_.lblChan1, main_.slideCH1);
  showPosition(main_.slideCH1, main_.Ch1Pos);
  main_.Ch1PosCounts = toInt16(main_.Ch1Pos * Graph::unitsPerDivision);
}

/// Channel 2 keeps whole divisions, unlike channel 1.
void InstrumentState::readChannel2Position() {
  if (isNull(main_.lblChan2)) return;
  main_.Ch2Pos = toInt16(readPosition("CHAN2:OFFS?", main_.lblChan2, main_.slideCH2));
  showPosition(main_.slideCH2, main_.Ch2Pos);
  main_.Ch2PosCounts = mulInt16(main_.Ch2Pos, Graph::unitsPerDivision);
}

}  // namespace tracewell
