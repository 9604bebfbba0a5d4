// SPDX-License-Identifier: GPL-3.0-or-later
#include "SavedRecords.h"

#include <algorithm>
#include <utility>

#include "Numbers.h"
#include "PanelReference.h"
#include "Pictures.h"
#include "RecorderWords.h"
#include "WallTime.h"

namespace tracewell {

std::string noteOf(const RecordStore& store, RecordStore::Number number, const Words& words) {
  const RecordFacts& facts = store.facts(number);
  const std::string name = store.nameOf(number).value_or("");
  return name + (name.empty() ? "" : "; ") + channelName(facts.channel) + " " +
         isoTime(facts.wallTime) + ", " + circumstances(words, facts);
}

WaveformSet setOfRecords(const frmDSO& main, const RecordStore& store, const RecordsOfSet& numbers,
                         const Words& words) {
  WaveformSet set;
  set.timePosition = main.slideTime.value();
  for (const Channel& channel : main.channels) {
    const auto number = numbers.at(channel.index());
    if (!number) continue;
    ChannelRecord record = store.record(*number);
    set.description += (set.description.empty() ? "" : "; ") + noteOf(store, *number, words);
    set.traces.at(channel.index()) = {std::move(record.bytes), channel.slide.value(),
                                      captionOfVolts(record.madeUnder.voltsPerDivision)};
  }
  return set;
}

std::string nameOfSet(const RecordStore& store, const RecordsOfSet& numbers) {
  const auto first = numbers[0] ? numbers[0] : numbers[1];
  std::string digits;
  if (first)
    for (const char c : isoTime(store.facts(*first).wallTime).substr(0, 19))
      if (c != '-' && c != ':') digits += c == 'T' ? '-' : c;
  return "record-" + digits + ".png";
}

std::optional<int> pictureFormatOf(const std::string& name) {
  constexpr std::pair<std::string_view, int> formats[] = {
      {".png", Pictures::png}, {".jpg", Pictures::jpg}, {".bmp", Pictures::bmp},
      {".gif", Pictures::gif}, {".pcx", Pictures::pcx}, {".tif", Pictures::tif}};
  for (const auto& [end, format] : formats)
    if (smallLetters(name).ends_with(end)) return format;
  return std::nullopt;
}

}  // namespace tracewell
