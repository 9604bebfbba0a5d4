// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelMarks.h"

#include <algorithm>
#include <utility>

#include "Numbers.h"
#include "ScreenMarks.h"
#include "TraceMarks.h"
#include "TriggerMarker.h"

namespace tracewell {
namespace {

using enum Setting;

/// Before an instrument has been read nothing of it is expected.
Trust trustOf(const KnownInstrument& known, Setting setting, bool isShown) {
  switch (known.doubt(setting)) {
    case Doubt::none:
      return isShown ? Trust::holds : Trust::unread;
    case Doubt::neverRead:
    case Doubt::anotherInstrument:
      return known.isRead() ? Trust::unread : Trust::stale;
    default:
      return Trust::unread;
  }
}

}  // namespace

PanelMarks::PanelMarks(frmDSO& main) : main_(main) {
  for (Channel& channel : main.channels) {
    const int number = channel.number;
    trustScale(ofChannel(scale1, number), channel.scale, channel.knob, channel.kind);
    trustSlide(channel.slide, ofChannel(position1, number));
    trust(channel.display, ofChannel(display1, number), [&main, &channel, number] {
      return main.known.number(ofChannel(display1, number)) == channel.display.value();
    });
    channel.plot.pale = [&main, &channel] { return isPale(main, channel); };
  }
  trustScale(timeBase, main.lblTime, main.knobTime, ScaleKnob::Time);
  trustSlide(main.slideTime, delay);
  trustSlide(main.slideTrig, triggerLevel);
  trust(main.cbMath, math, [&main] { return main.known.number(math) == main.cbMath.listIndex(); });
  trust(main.cmdLock, lock,
        [&main] { return (main.known.number(lock) == 1) == main.cmdLock.value(); });
  // The button says what it would do next; its caption of the start says nothing of the instrument.
  trust(main.cmdRunStop, running, [&main] {
    return main.known.isStopped() == (main.shownMessages.cmdRunStop == frmDSO::ShownMessages::run);
  });
  main.cmdRunStop.trust = [&main, asked = main.cmdRunStop.trust] {
    return main.shownMessages.cmdRunStop == 0 ? Trust::holds : asked();
  };
  main.graphDSO.axis("XAxis").pale = [&main] { return isReadoutPale(main); };
  main.graphDSO.marks = [&main] { return screenMarks(main); };
  main.graphDSO.valuesAt = [&main](double x, double y) { return valuesAt(main, x, y); };
}

void PanelMarks::trust(Control& control, Setting setting, std::function<bool()> isShown) {
  control.trust = [&known = main_.known, setting, isShown = std::move(isShown)] {
    return trustOf(known, setting, isShown());
  };
}

void PanelMarks::trustScale(Setting setting, ValueLabel& label, Knob& knob, ScaleKnob kind) {
  trust(label, setting, [&known = main_.known, &label, setting] {
    return known.caption(setting) == trimBlanks(label.caption());
  });
  trust(knob, setting, [&known = main_.known, &knob, setting, kind] {
    return known.caption(setting) == scaleCaptionForKnob(kind, knob.value());
  });
}

/// A slide in the user's hand shows what he wants.
void PanelMarks::trustSlide(Slide& slide, Setting setting) {
  trust(slide, setting,
        [&known = main_.known, &slide, setting] { return showsKnown(slide, known, setting); });
  slide.trust = [&slide, asked = slide.trust] { return slide.isHeld() ? Trust::holds : asked(); };
}

void PanelMarks::show() {
  showKnown();
  main_.showMarks();
  showTraces();
  showHint();
  main_.status.tellAgain();
}

/// What was typed is shown where a control has it.
void PanelMarks::showKnown() {
  if (const auto entry = main_.known.number(math); entry && *entry != main_.cbMath.listIndex()) {
    const auto index = static_cast<std::int16_t>(*entry);
    main_.cbMath.listIndex.setQuietly(index);
    main_.cbMath.text.setQuietly(main_.cbMath.items().at(static_cast<std::size_t>(index)));
  }
  if (const auto isLocked = main_.known.number(lock)) main_.cmdLock.value = *isLocked == 1;
}

void PanelMarks::showTraces() {
  showTriggerMarker(main_);
  main_.lblAge.caption = traceAges(main_);
  main_.graphDSO.note = simulatedNote(main_);
  for (const Channel& channel : main_.channels)
    if (channel.plot.isPale() != channel.plot.isPaintedPale) channel.plot.notifyChanged();
  const Axis& readout = main_.graphDSO.axis("XAxis");
  if (readout.isPale() != readout.isPaintedPale) readout.notifyChanged();
  if (screenMarks(main_) != main_.graphDSO.paintedMarks) main_.graphDSO.notifyChanged();
}

void PanelMarks::showHint() {
  bool isOfAnother = false;
  for (const Setting scale : {scale1, scale2, timeBase})
    isOfAnother = isOfAnother || main_.known.doubt(scale) == Doubt::anotherInstrument;
  if (std::exchange(isHintTold_, isOfAnother) == isOfAnother) return;
  if (!isOfAnother) return main_.status.withdraw(StatusLine::staleScales);
  main_.status.tell(StatusLine::staleScales, [&main = main_](const Words& words) {
    return words.say("The scales may be those of another instrument: press %1 to read them",
                     {main.cmdRS232.caption()});
  });
}

}  // namespace tracewell
