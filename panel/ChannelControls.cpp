// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChannelControls.h"

#include "Inquiry.h"
#include "Numbers.h"
#include "SlideCaption.h"
#include "WaitingNotice.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

/// Volts of an offset in divisions, by the scale that the label shows.
double offsetVolts(const std::string& scale, double divisions) {
  const double number = leadingNumber(captionNumber(scale));
  return scale.ends_with("mV") ? divisions * number / 1000 : divisions * number;
}

std::string channelStem(int number) {
  return ":CHAN" + std::to_string(number) + ":";
}

}  // namespace

ChannelControls::ChannelControls(frmDSO& main, CommandExchange& exchange, ErrorLog& errorLog,
                                 InstrumentState& instrument, Acquisition& acquisition,
                                 SettingsBurst& burst, frmChannel& channelDialog, frmChDiv& picker)
    : main_(main),
      exchange_(exchange),
      errorLog_(errorLog),
      instrument_(instrument),
      acquisition_(acquisition),
      burst_(burst),
      channelDialog_(channelDialog),
      picker_(picker),
      channel1_{1,           main.cbCh1,  main.slideCH1, main.lblChan1,        main.knobChan1,
                main.mnbCh1, main.Ch1Raw, ChanQuery1,    SetupTable::channel1, ScaleKnob::Chan1},
      channel2_{2,           main.cbCh2,  main.slideCH2, main.lblChan2,        main.knobChan2,
                main.mnbCh2, main.Ch2Raw, ChanQuery2,    SetupTable::channel2, ScaleKnob::Chan2} {}

/// Runs a handler that logs its failure under its own name and leaves the rest undone.
template <class Step>
void ChannelControls::logged(const std::string& tag, Step step) {
  try {
    step();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, tag);
  }
}

void ChannelControls::showChannel(const Channel& channel) {
  const std::string number = std::to_string(channel.number);
  logged("cbCh" + number + "_Click : ", [&] {
    const bool isShown = channel.display.value() != 0;
    main_.ChanOn[static_cast<std::size_t>(channel.number - 1)] = isShown;
    main_.graphDSO.plot(channel.number).visible = isShown;
    main_.ChanCount = addInt16(main_.ChanCount, isShown ? 1 : -1);
    exchange_.SendDSOCmd(channelStem(channel.number) + "DISP " + (isShown ? "1" : "0"));
  });
}

void ChannelControls::showPosition(const Channel& channel) {
  channel.slide.caption = slideCaption(channel.slide.caption(), channel.slide.value(), " Div");
}

void ChannelControls::commitPosition(const Channel& channel) {
  const std::string number = std::to_string(channel.number);
  logged("slideCH" + number + "_PointerValueCommitted : ", [&] {
    const double volts = checked(offsetVolts(channel.scale.caption(), channel.slide.value()));
    keepPosition(channel);
    exchange_.SendDSOCmd(channelStem(channel.number) + "OFFS " + formatExponent(volts));
    redraw(channel, mulInt16(toInt16(channel.slide.value()), SharedState::unitsPerDivision));
    UpdateTriggerMarker(main_);
    acquisition_.ResumeAcq();
  });
}

/// Channel 1 keeps the slide's value as it is, channel 2 rounded.
void ChannelControls::keepPosition(const Channel& channel) {
  const double divisions = channel.slide.value();
  if (channel.number == 1)
    main_.Ch1Pos = divisions;
  else
    main_.Ch2Pos = toInt16(divisions);
}

/// Before the first record of a channel there is nothing to redraw.
void ChannelControls::redraw(const Channel& channel, std::int16_t shift) {
  if (channel.record.empty()) return;
  main_.graphDSO.plot(channel.number).plotXvsY(main_.XIndex, shiftSamples(channel.record, shift));
}

void ChannelControls::editSettings(const Channel& channel) {
  const std::string number = std::to_string(channel.number);
  logged("cmdCh" + number + "_Click : ", [&] {
    readSettings(channel);
    channelDialog_.showModal();
    if (channelDialog_.tag == "1")
      burst_.writeAndVerify(channelDialog_.caption(), channel.queries, channel.setupRow, 1);
    acquisition_.RunAcq();
    instrument_.readScale(channelStem(channel.number) + "SCAL?", channel.kind, channel.scale,
                          channel.knob);
  });
}

void ChannelControls::readSettings(const Channel& channel) {
  const WaitingNotice notice(main_);
  Inquiry inquiry(exchange_.inquiries(), channel.menuEntry.caption(), Inquiry::Of::questions, 5);
  channelDialog_.setupRow = channel.setupRow;
  for (int i = 0; i < 5; ++i) {
    inquiry.next();
    const std::string query(channel.queries[static_cast<std::size_t>(i)]);
    channelDialog_.show(i, exchange_.SendDSOCmd(query + "?"));
  }
  channelDialog_.caption = channel.menuEntry.caption();
}

void ChannelControls::pickScale(const char* channelNumber) {
  picker_.tag = channelNumber;
  picker_.showModal();
}

}  // namespace tracewell
