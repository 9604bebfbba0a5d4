// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChannelControls.h"

#include "KnownScales.h"
#include "Numbers.h"
#include "SlideValues.h"
#include "TriggerMarker.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

/// Volts of an offset in divisions, by the scale that the label shows.
double offsetVolts(const std::string& scale, double divisions) {
  const double number = leadingNumber(captionNumber(scale));
  return scale.ends_with("mV") ? divisions * number / 1000 : divisions * number;
}

}  // namespace

void ChannelControls::slideCH1_PointerValueChanged() {
  showSlideValue(main_, main_.slideCH1);
}

void ChannelControls::slideCH2_PointerValueChanged() {
  showSlideValue(main_, main_.slideCH2);
}

void ChannelControls::showChannel(const Channel& channel) {
  try {
    const bool isShown = channel.display.value() != 0;
    main_.ChanOn[static_cast<std::size_t>(channel.number - 1)] = isShown;
    main_.graphDSO.plot(channel.number).visible = isShown;
    main_.ChanCount = addInt16(main_.ChanCount, isShown ? 1 : -1);
    exchange_.SendDSOCmd(channel.stem() + "DISP " + (isShown ? "1" : "0"));
    channel.display.isUnread = !exchange_.wasSent();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, channel.display.name() + "_Click : ");
  }
}

void ChannelControls::commitPosition(const Channel& channel) {
  try {
    const double volts = checked(offsetVolts(channel.scale.caption(), channel.slide.value()));
    keepPosition(channel);
    exchange_.SendDSOCmd(channel.stem() + "OFFS " + formatExponent(volts));
    channel.slide.isUnread = !exchange_.wasSent() || !voltsPerDivision(main_, channel.number);
    redraw(channel, mulInt16(toInt16(channel.slide.value()), Graph::unitsPerDivision));
    UpdateTriggerMarker(main_);
    acquisition_.ResumeAcq();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, channel.slide.name() + "_PointerValueCommitted : ");
  }
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

}  // namespace tracewell
