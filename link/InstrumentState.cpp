// SPDX-License-Identifier: GPL-3.0-or-later
#include "InstrumentState.h"

#include "Numbers.h"
#include "PortNotice.h"
#include "SlideCaption.h"
#include "TriggerMarker.h"

namespace tracewell {
namespace {

std::string trimmed(const std::string& reply) {
  return std::string(trimBlanks(reply));
}

bool isNull(const ValueLabel& scale) {
  return trimBlanks(scale.caption()) == "Null";
}

void showPosition(Slide& slide, double divisions) {
  slide.caption = slideTitle(slide.caption()) + formatTwoDecimals(divisions) + " Div";
}

}  // namespace

void InstrumentState::InitDSO() {
  try {
    applyLinkSettings();
    main_.lblChan1.caption = trimmed(exchange_.SendDSOCmd(":CHAN1:SCAL?"));
    if (!main_.LinkOK) return;
    if (main_.lblChan1.caption().empty())
      main_.lblChan1.caption = exchange_.SendDSOCmd(":CHAN1:SCAL?");
    showScale(ScaleKnob::Chan1, main_.lblChan1, main_.knobChan1);
    main_.lblChan2.caption = scaleReply(":CHAN2:SCAL?");
    showScale(ScaleKnob::Chan2, main_.lblChan2, main_.knobChan2);
    main_.lblTime.caption = scaleReply(":TIM:SCAL?");
    showScale(ScaleKnob::Time, main_.lblTime, main_.knobTime);
    readChannel1Position();
    readChannel2Position();
    UpdateTriggerMarker(main_);
  } catch (const Error& error) {
    errorLog_.ErrLog(error, "InitDSO : ");
  }
}

void InstrumentState::applyLinkSettings() {
  LineSettings& settings = main_.services().port.settings;
  const std::int16_t baudRate = main_.gridMeasure.number(SetupTable::link, 2);
  settings.baudRate = baudRate;
  settings.portNumber = main_.gridMeasure.number(SetupTable::link, 6);
  main_.BaudRate = baudRate;
  showPort(main_, settings.portNumber);
}

void InstrumentState::readScale(const std::string& query, ScaleKnob kind, ValueLabel& label,
                                Knob& knob) {
  label.caption = trimmed(exchange_.SendDSOCmd(query));
  showScale(kind, label, knob);
}

void InstrumentState::showScale(ScaleKnob kind, ValueLabel& label, Knob& knob) {
  label.refresh();
  if (const auto step = ScaleStepForReply(kind, label.caption())) knob.value = *step;
}

/// A second reply counts as it stands.
std::string InstrumentState::scaleReply(const std::string& query) {
  std::string reply = trimmed(exchange_.SendDSOCmd(query));
  return reply.empty() ? exchange_.SendDSOCmd(query) : reply;
}

std::string InstrumentState::askTwice(const std::string& query) {
  std::string reply = exchange_.SendDSOCmd(query);
  return reply.empty() ? exchange_.SendDSOCmd(query) : reply;
}

double InstrumentState::readPosition(const std::string& query, const ValueLabel& scale) {
  const double voltsPerDivision = ParseScaleCaption(scale.caption());
  return divide(ParseScaleCaption(askTwice(query)), voltsPerDivision);
}

void InstrumentState::readChannel1Position() {
  if (isNull(main_.lblChan1)) return;
  main_.Ch1Pos = readPosition("CHAN1:OFFS?", main_.lblChan1);
  main_.slideCH1.value = main_.Ch1Pos;
  main_.Ch1PosCounts = toInt16(main_.Ch1Pos * SharedState::unitsPerDivision);
  showPosition(main_.slideCH1, main_.Ch1Pos);
}

/// Channel 2 keeps whole divisions, unlike channel 1.
void InstrumentState::readChannel2Position() {
  if (isNull(main_.lblChan2)) return;
  main_.Ch2Pos = toInt16(readPosition("CHAN2:OFFS?", main_.lblChan2));
  main_.slideCH2.value = main_.Ch2Pos;
  main_.Ch2PosCounts = mulInt16(main_.Ch2Pos, SharedState::unitsPerDivision);
  showPosition(main_.slideCH2, main_.Ch2Pos);
}

}  // namespace tracewell
