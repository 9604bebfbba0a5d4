// SPDX-License-Identifier: GPL-3.0-or-later
#include "InstrumentState.h"

#include "Inquiry.h"
#include "LinkSettings.h"
#include "Numbers.h"
#include "PortNotice.h"
#include "SlideCaption.h"
#include "SlideValues.h"

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
  main_.marksDue.raise();
}

void InstrumentState::readAll() {
  Inquiry inquiry(exchange_.inquiries(), main_.fmInstrument.caption, Inquiry::Of::questions, 5);
  main_.known.reading();
  // A port that cannot be opened would leave it as it was: the first query alone decides.
  main_.LinkOK = false;
  auto& [first, second] = main_.channels;
  inquiry.next();
  first.scale.caption = trimmed(exchange_.SendDSOCmd(":CHAN1:SCAL?"));
  if (!main_.LinkOK) return;
  if (first.scale.caption().empty()) first.scale.caption = exchange_.SendDSOCmd(":CHAN1:SCAL?");
  showScaleOnly(first.kind, first.scale, first.knob);
  inquiry.next();
  second.scale.caption = scaleReply(":CHAN2:SCAL?");
  showScaleOnly(second.kind, second.scale, second.knob);
  inquiry.next();
  main_.lblTime.caption = scaleReply(":TIM:SCAL?");
  showScaleOnly(ScaleKnob::Time, main_.lblTime, main_.knobTime);
  for (Channel& channel : main_.channels) {
    inquiry.next();
    readPosition(channel);
  }
}

/// Data bits, stop bits and parity stay those of the start and of the RS-232 dialog.
void InstrumentState::applyBaudRateAndPort() {
  LineSettings& settings = main_.services().port.settings;
  const SetupTable& table = main_.gridMeasure;
  const std::int16_t baudRate = table.number(SetupTable::link, SetupTable::columnOf(baudRateValue));
  settings.baudRate = baudRate;
  settings.portNumber = table.number(SetupTable::link, SetupTable::columnOf(portValue));
  main_.state.BaudRate = baudRate;
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
  label.refresh();
  if (step) knob.value = *step;
}

/// Leaves out the cursors' read-out, which a knob refreshes last: its scales may not all be known
/// yet, and reading the instrument has not ended.
void InstrumentState::showScaleOnly(ScaleKnob kind, ValueLabel& label, Knob& knob) {
  try {
    showScale(kind, label, knob);
  } catch (const Error&) {
  }
}

/// Takes a second reply as it stands.
std::string InstrumentState::scaleReply(const std::string& query) {
  std::string reply = trimmed(exchange_.SendDSOCmd(query));
  return reply.empty() ? exchange_.SendDSOCmd(query) : reply;
}

/// Takes the second reply if the first is empty.
std::string InstrumentState::positionReply(const std::string& query) {
  std::string reply = trimmed(exchange_.SendDSOCmd(query));
  return reply.empty() ? trimmed(exchange_.SendDSOCmd(query)) : reply;
}

void InstrumentState::readPosition(Channel& channel) {
  if (isNull(channel.scale)) return;
  const double voltsPerDivision = ParseScaleCaption(channel.scale.caption());
  // These queries have no colon in front.
  const std::string reply = positionReply(channel.stem().substr(1) + "OFFS?");
  channel.position = channel.keptPosition(divide(ParseScaleCaption(reply), voltsPerDivision));
  channel.slide.value = channel.position;
  channel.positionCounts = channel.recordShift();
  noteSlideValue(main_, channel.slide);
  channel.slide.caption =
      slideTitle(channel.slide.caption()) + formatTwoDecimals(channel.position) + " Div";
}

}  // namespace tracewell
