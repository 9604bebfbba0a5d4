// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderView.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "RecorderWords.h"

namespace tracewell {
namespace {

/// Both channels are fetched in turn: the other one's record is not farther than that.
constexpr RecordStore::Number farthestOther = 64;

bool isUnderSameScales(const RecordFacts& one, const RecordFacts& other) {
  return one.madeUnder.voltsPerDivision == other.madeUnder.voltsPerDivision &&
         one.madeUnder.secondsPerDivision == other.madeUnder.secondsPerDivision &&
         one.madeUnder.mathEntry == other.madeUnder.mathEntry && one.line == other.line;
}

std::string number(std::size_t count) {
  return std::to_string(count);
}

}  // namespace

void RecorderView::show(int channel) {
  channel_ = channel;
  if (const auto pointed = selected()) timeline.reveal(*pointed);
}

std::optional<RecordStore::Number> RecorderView::nextShown(Number from, int direction) const {
  Number ahead = std::clamp(from, store_.first() - 1, store_.end()) + direction;
  while (ahead >= store_.first() && ahead < store_.end()) {
    if (isShown(store_.facts(ahead).channel)) return ahead;
    ahead += direction;
  }
  return std::nullopt;
}

void RecorderView::follow(bool isFollowing) {
  selected_ = selected();
  isFollowing_ = isFollowing;
  if (isFollowing) recordKept();
}

RecorderView::Still::Still(RecorderView& view, File file)
    : view_(view), wasFollowing_(view.isFollowing_) {
  if (file == File::table && view.isMarked()) {
    const Stretch stretch = view.stretch();
    first_ = stretch.first;
    while (*first_ < stretch.end && !view.isShown(view.store_.facts(*first_).channel)) ++*first_;
  } else {
    for (const auto& number : view.saved()) {
      if (number && file == File::set)
        std::ranges::copy(view.drawnOf(*number), std::back_inserter(written_));
      else if (number)
        written_.push_back(*number);
    }
  }
  view.follow(false);
}

bool RecorderView::Still::isWhole() const {
  return first_.value_or(view_.store_.first()) >= view_.store_.first() &&
         std::ranges::all_of(written_,
                             [this](Number number) { return view_.store_.isKept(number); });
}

/// The record that the user selected may have left the store, or its channel may be hidden. The
/// nearest earlier record that shows then takes its place, else the nearest later one.
std::optional<RecordStore::Number> RecorderView::selected() const {
  if (!isFollowing_ && selected_) {
    if (store_.isKept(*selected_) && isShown(store_.facts(*selected_).channel)) return selected_;
    for (const int direction : {-1, 1})
      if (const auto nearest = nextShown(*selected_, direction)) return nearest;
  }
  if (channel_ != 0) return store_.newestOf(channel_);
  return store_.size() > 0 ? std::optional(store_.end() - 1) : std::nullopt;
}

void RecorderView::select(Number number) {
  if (!store_.isKept(number)) return;
  if (!isShown(store_.facts(number).channel)) channel_ = 0;
  isFollowing_ = false;
  selected_ = number;
  timeline.reveal(number);
}

/// Stops at the first and the last record.
void RecorderView::step(int records) {
  const auto from = selected();
  if (!from) return;
  Number reached = *from;
  for (int left = std::abs(records); left > 0; --left)
    reached = nextShown(reached, records < 0 ? -1 : 1).value_or(reached);
  select(reached);
}

void RecorderView::selectFirst() {
  if (const auto first = nextShown(store_.first() - 1, 1)) select(*first);
}

void RecorderView::selectLast() {
  if (const auto last = nextShown(store_.end(), -1)) select(*last);
}

std::optional<RecordStore::Number> RecorderView::shownOf(int channel) const {
  const auto pointed = selected();
  if (!pointed || !isShown(channel)) return std::nullopt;
  if (store_.facts(*pointed).channel == channel) return pointed;
  if (const auto partner = store_.partnerOf(*pointed)) return partner;
  const Number lowest = std::max(store_.first(), *pointed - farthestOther);
  for (Number other = std::min(*pointed, store_.end()) - 1; other >= lowest; --other) {
    const RecordFacts& facts = store_.facts(other);
    if (!(facts.line == store_.facts(*pointed).line)) break;
    if (facts.channel == channel) return other;
  }
  return std::nullopt;
}

/// What has gone out of the store cannot be marked any longer.
void RecorderView::recordKept() {
  if (!isFollowing_ && !selected_) selected_ = selected();
  if (marked_) {
    marked_->first = std::max(marked_->first, store_.first());
    if (marked_->second < marked_->first) unmark();
  }
  if (const auto pointed = selected(); isFollowing_ && pointed) timeline.reveal(*pointed);
}

void RecorderView::mark(Number one, Number other) {
  const auto [low, high] = std::minmax(one, other);
  marked_ = {std::max(low, store_.first()), std::min(high, store_.end() - 1)};
}

Stretch RecorderView::stretch() const {
  if (marked_) return {marked_->first, marked_->second + 1, channel_};
  return {store_.first(), store_.end(), channel_};
}

Stretch RecorderView::exported() const {
  const auto pointed = selected();
  if (marked_ || !pointed) return stretch();
  const auto [one, two] = saved();
  if (!one || !two) return {*pointed, *pointed + 1, store_.facts(*pointed).channel};
  const auto [low, high] = std::minmax(*one, *two);
  return {low, high + 1, 0};
}

RecordsOfSet RecorderView::saved() const {
  RecordsOfSet numbers;
  const auto pointed = selected();
  if (!pointed) return numbers;
  const bool isFirst = store_.facts(*pointed).channel == 1;
  numbers.at(isFirst ? 0 : 1) = pointed;
  if (channel_ == 0) numbers.at(isFirst ? 1 : 0) = store_.partnerOf(*pointed);
  return numbers;
}

std::vector<RecordStore::Number> RecorderView::drawnOf(Number newest) const {
  std::vector<Number> numbers = {newest};
  const int channel = store_.facts(newest).channel;
  const auto wanted = static_cast<std::size_t>(choice.behind) + 1;
  for (Number other = std::min(newest, store_.end()) - 1;
       other >= store_.first() && numbers.size() < wanted; --other) {
    const RecordFacts& facts = store_.facts(other);
    if (facts.channel != channel) continue;
    // Behind it another stretch begins.
    if (!isUnderSameScales(facts, store_.facts(newest))) break;
    numbers.push_back(other);
  }
  return numbers;
}

std::vector<DrawnRecords> RecorderView::drawn() const {
  std::vector<DrawnRecords> channels;
  for (const int channel : {1, 2})
    if (const auto newest = shownOf(channel)) channels.push_back({channel, drawnOf(*newest)});
  return channels;
}

RecorderPicture RecorderView::savedPicture() const {
  std::vector<DrawnRecords> channels;
  for (const auto& number : saved())
    if (number) channels.push_back({store_.facts(*number).channel, drawnOf(*number)});
  return tracePicture(store_, channels, choice, words_);
}

RecorderPicture RecorderView::picture() const {
  const std::vector<DrawnRecords> channels = drawn();
  RecorderPicture picture;
  picture.mode = choice.mode;
  if (channels.empty()) return picture;
  switch (choice.mode) {
    case RecorderMode::spectrum:
      return spectrumPicture(store_, channels, choice, words_);
    case RecorderMode::xy:
      return xyPicture(store_, channels, words_);
    case RecorderMode::trace:
      break;
  }
  return tracePicture(store_, channels, choice, words_);
}

std::string RecorderView::title() const {
  const auto pointed = selected();
  if (!pointed) return words_.say("No record yet: they are kept as they come");
  const RecordFacts& facts = store_.facts(*pointed);
  const std::string name = channelName(facts.channel) + "  " + timeOfDay(facts.wallTime);
  if (*pointed < store_.first()) return name + "  " + words_.say("pinned");
  return name + "  " +
         words_.say("record %1 of %2",
                    {std::to_string(*pointed - store_.first() + 1), number(store_.size())});
}

std::vector<std::string> RecorderView::details() const {
  std::vector<std::string> lines;
  std::string fetched;
  for (const int channel : {1, 2}) {
    const auto shown = shownOf(channel);
    if (!shown) continue;
    const RecordFacts& facts = store_.facts(*shown);
    if (facts.fetches > 1)
      fetched += (fetched.empty() ? "" : ", ") + channelName(channel) + " " +
                 std::to_string(facts.fetches) + "×";
    lines.push_back(channelName(channel) + ": " + circumstances(words_, facts));
    if (const std::string gap = gapText(words_, facts.gap); !gap.empty())
      lines.push_back(words_.say("Before it: %1", {gap}));
  }
  if (!fetched.empty()) lines.push_back(words_.say("The same sweep was fetched: %1", {fetched}));
  return lines;
}

std::vector<RecorderView::Line> RecorderView::measurements() const {
  std::array<std::optional<OwnMeasurements>, 2> values;
  const auto one = shownOf(1);
  const auto two = shownOf(2);
  if (one) values[0] = measure(store_.record(*one));
  if (two) values[1] = measure(store_.record(*two));
  if (one && two) {
    const OwnMeasurements both = measure(store_.record(*one), store_.record(*two));
    for (const Quantity quantity : {Quantity::phase, Quantity::delay})
      (*values[1])[quantity] = both[quantity];
  }
  std::vector<Line> lines;
  for (const QuantityName& name : quantityNames) {
    Line line{name.quantity, quantityName(words_, name.quantity), {}, {}};
    const bool isOfBoth = name.quantity >= Quantity::phase;
    if (isOfBoth && !(one && two)) continue;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (!values.at(i) || (isOfBoth && i == 0)) continue;
      const OwnValue& value = (*values.at(i))[name.quantity];
      line.values.at(i) = valueText(words_, value, name.unit);
      line.hasValue.at(i) = value.value.has_value();
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

/// The simulated instrument has a port of its own.
bool RecorderView::areOfSeveralPorts(int channel, Number first, Number last) const {
  std::optional<std::int16_t> port;
  for (Number one = std::max(first, store_.first()); one <= last; ++one) {
    const RecordFacts& facts = store_.facts(one);
    if (facts.channel != channel) continue;
    if (port.value_or(facts.line.portNumber) != facts.line.portNumber) return true;
    port = facts.line.portNumber;
  }
  return false;
}

std::string RecorderView::statisticsTitle(int channel) const {
  Stretch part = stretch();
  part.channel = channel;
  const auto result = statistics_.over(part, Quantity::maximum);
  if (result.records == 0) return "";
  const auto time = [this](Number number) {
    return timeOfDay(store_.facts(number).wallTime, false);
  };
  std::string text =
      words_.say("%1: %2, %3 to %4", {channelName(channel), recordsText(words_, result.records),
                                      time(result.first), time(result.last)});
  if (areOfSeveralPorts(channel, result.first, result.last))
    text += " " + words_.say("(of several ports)");
  if (result.measured < result.records)
    text += " " + words_.say("(%1 measured so far)", {number(result.measured)});
  return text;
}

std::vector<RecorderView::StatisticsLine> RecorderView::statistics(Quantity quantity,
                                                                   int channel) const {
  Stretch part = stretch();
  part.channel = channel;
  const Statistics values = statistics_.over(part, quantity).values;
  const std::string_view unit = unitText(nameOf(quantity).unit);
  const auto text = [&](std::optional<double> value) {
    return value ? numberWithUnit(*value, unit) : "";
  };
  return {{words_.say("Count"), number(values.count())},
          {words_.say("Mean"), text(values.mean())},
          {words_.say("Std deviation"), text(values.standardDeviation())},
          {words_.say("Lowest"), text(values.lowest())},
          {words_.say("Highest"), text(values.highest())}};
}

}  // namespace tracewell
