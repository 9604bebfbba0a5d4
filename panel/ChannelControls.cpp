// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChannelControls.h"

#include "Numbers.h"
#include "SlideValues.h"
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

void ChannelControls::showChannel(Channel& channel) {
  try {
    const bool isShown = channel.display.value() != 0;
    channel.isDisplayed = isShown;
    channel.plot.visible = isShown;
    main_.state.ChanCount = addInt16(main_.state.ChanCount, isShown ? 1 : -1);
    exchange_.SendDSOCmd(channel.stem() + "DISP " + (isShown ? "1" : "0"));
  } catch (const Error& error) {
    errorLog_.ErrLog(error, channel.display.name() + "_Click : ");
  }
}

void ChannelControls::commitPosition(Channel& channel) {
  try {
    const double volts = checked(offsetVolts(channel.scale.caption(), channel.slide.value()));
    channel.position = channel.keptPosition(channel.slide.value());
    exchange_.SendDSOCmd(channel.stem() + "OFFS " + formatExponent(volts));
    redraw(channel, mulInt16(toInt16(channel.slide.value()), Graph::unitsPerDivision));
    main_.marksDue.raise();
    acquisition_.ResumeAcq();
  } catch (const Error& error) {
    errorLog_.ErrLog(error, channel.slide.name() + "_PointerValueCommitted : ");
  }
}

/// Before the first record of a channel there is nothing to redraw.
void ChannelControls::redraw(Channel& channel, std::int16_t shift) {
  if (channel.record.bytes.empty()) return;
  channel.plot.plotXvsY(main_.XIndex, shiftSamples(channel.record.bytes, shift));
  channel.drawn(shift, main_.known);
}

}  // namespace tracewell
