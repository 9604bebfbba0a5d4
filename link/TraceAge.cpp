// SPDX-License-Identifier: GPL-3.0-or-later
#include "TraceAge.h"

#include <algorithm>

#include "RecordScales.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

std::string ageText(const frmDSO& main, const std::string& channel, std::int64_t milliseconds) {
  const std::int64_t seconds = milliseconds / 1000;
  const Words& words = main.services().words;
  return seconds < 120
             ? words.say("%1: last record %2 s ago", {channel, std::to_string(seconds)})
             : words.say("%1: last record %2 min ago", {channel, std::to_string(seconds / 60)});
}

}  // namespace

void noteRecord(frmDSO& main, std::int16_t channel) {
  if (channel != 1 && channel != 2) return;
  main.RecordTime[static_cast<std::size_t>(channel - 1)] = main.services().clock.milliseconds();
  showTraceAges(main);
}

std::int64_t recordPeriod(const frmDSO& main) {
  const LineSettings& line = main.services().port.settings;
  const int bits = 1 + line.dataBits + (line.parity == 0 ? 0 : 1) + (line.stopBits == 0 ? 1 : 2);
  const int record = 1000 * WaveformRecord::byteCount * bits / std::max<int>(line.baudRate, 1);
  const auto channels = std::ranges::count(main.ChanOn, true);
  return std::max<std::int64_t>(channels, 1) * std::max(record, frmDSO::tickInterval);
}

void showTraceAges(frmDSO& main) {
  const std::int64_t now = main.services().clock.milliseconds();
  const Words& words = main.services().words;
  std::string text;
  for (const std::size_t i : {0U, 1U}) {
    const auto& time = main.RecordTime[i];
    Plot& plot = main.graphDSO.plot(static_cast<int>(i) + 1);
    const bool isOld = !time || now - *time > 3 * recordPeriod(main);
    const bool isDimmed = isOld || hasOtherScales(main, static_cast<std::int16_t>(i + 1));
    plot.isOld = isDimmed && !plot.y().empty();
    if (!main.ChanOn[i] || (!main.Initialised && !time)) continue;
    const std::string& channel = (i == 0 ? main.cbCh1 : main.cbCh2).caption();
    if (!text.empty()) text += "    ";
    text += !time                            ? words.say("%1: no record yet", {channel})
            : !isOld && main.tmDSO.enabled() ? words.say("%1: live", {channel})
                                             : ageText(main, channel, now - *time);
  }
  main.lblAge.caption = text;
}

}  // namespace tracewell
