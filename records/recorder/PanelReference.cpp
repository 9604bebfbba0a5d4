// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelReference.h"

#include <algorithm>

#include "ScaleTables.h"
#include "TrueNumbers.h"
#include "WaveformRecord.h"

namespace tracewell {

std::string captionOfVolts(std::optional<double> perDivision) {
  const auto* const found = std::ranges::find_if(
      VoltDivText, [&](std::string_view text) { return trueScale(text, "V") == perDivision; });
  return perDivision && found != VoltDivText.end() ? std::string(*found) : "";
}

bool showAsReference(frmDSO& main, int channel, const ChannelRecord& record,
                     const std::string& name) {
  int number = ScopeGraph::firstReference;
  while (number <= ScopeGraph::plotCount && main.graphDSO.plot(number).visible()) ++number;
  if (number > ScopeGraph::plotCount) {
    main.status.tell(StatusLine::happened, [&main](const Words& words) {
      return words.say("No reference is free: press %1 first", {main.cmdRemove.caption()});
    });
    return false;
  }
  Plot& plot = main.graphDSO.plot(number);
  plot.plotXvsY(main.XIndex, decodeSamples(record.bytes, main.channel(channel).drawnShift));
  plot.origin = name;
  plot.scale = captionOfVolts(record.madeUnder.voltsPerDivision);
  plot.visible = true;
  main.status.tell(StatusLine::happened, [name = plot.label()](const Words& words) {
    return words.say("A record of the recorder is %1", {name});
  });
  return true;
}

}  // namespace tracewell
