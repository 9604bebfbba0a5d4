// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecordStore.h"

#include <algorithm>
#include <utility>

#include "Error.h"

namespace tracewell {
namespace {

RecordGap gapBetween(const RecordFacts& before, const RecordFacts& now) {
  RecordGap gap;
  gap.isAnotherInstrument = before.line.portNumber != now.line.portNumber;
  gap.wasUnplugged = !gap.isAnotherInstrument && before.line != now.line;
  gap.hasOtherScales = before.madeUnder.voltsPerDivision != now.madeUnder.voltsPerDivision ||
                       before.madeUnder.secondsPerDivision != now.madeUnder.secondsPerDivision ||
                       before.madeUnder.mathEntry != now.madeUnder.mathEntry;
  gap.wasStopped = before.line == now.line && before.madeUnder.stop &&
                   before.madeUnder.stop != now.madeUnder.stop;
  gap.wasSilent = now.sweepAt - before.fetchedAt > RecordStore::longestPause;
  return gap;
}

}  // namespace

RecordStore::Kept& RecordStore::slot(Number number) {
  const auto place = static_cast<std::size_t>(number) % capacity;
  if (place / blockSize == blocks_.size())
    blocks_.push_back(std::make_unique_for_overwrite<std::array<Kept, blockSize>>());
  return (*blocks_[place / blockSize])[place % blockSize];
}

const RecordStore::Kept* RecordStore::find(Number number) const {
  if (number >= first_ && number < end_) {
    const auto place = static_cast<std::size_t>(number) % capacity;
    return &(*blocks_[place / blockSize])[place % blockSize];
  }
  const auto held = pinned_.find(number);
  return held == pinned_.end() ? nullptr : &held->second.kept;
}

const RecordStore::Kept& RecordStore::at(Number number) const {
  const Kept* const kept = find(number);
  if (kept == nullptr) throw subscriptError();
  return *kept;
}

std::optional<RecordStore::Number> RecordStore::keep(int channel, const ChannelRecord& record,
                                                     const Moment& moment) {
  if (record.bytes.empty()) return std::nullopt;
  const std::string_view bytes =
      std::string_view(record.bytes).substr(0, WaveformRecord::byteCount);
  if (record.madeUnder.stop && record.madeUnder.isOther) disprove(*record.madeUnder.stop);
  const auto newest = newestOf(channel);
  RecordFacts* const before = newest ? &slot(*newest).facts : nullptr;
  if (before != nullptr && before->line == record.line && bytesOf(*newest) == bytes) {
    // What it was made under stays what it was; behind which stop it is fetched may be new.
    before->madeUnder.stop = record.madeUnder.stop;
    before->madeUnder.isOther = record.madeUnder.isOther;
    before->fetchedAt = record.fetchedAt;
    ++before->fetches;
    return newest;
  }
  RecordFacts facts;
  facts.channel = channel;
  facts.line = record.line;
  facts.madeUnder = record.madeUnder;
  // One that came back takes its place behind the one in between.
  facts.sweepAt = record.fetchedAt;
  facts.fetchedAt = record.fetchedAt;
  facts.wallTime = moment.wallTime;
  facts.isSimulated = moment.isSimulated;
  const auto [lowest, highest] = std::ranges::minmax(decodeSamples(bytes, 0));
  facts.lowest = lowest;
  facts.highest = highest;
  if (before != nullptr) facts.gap = gapBetween(*before, facts);
  Kept& kept = slot(end_);
  kept = {facts, PackedRecord::of(bytes)};
  if (!kept.packed) unpacked_.emplace(end_, bytes);
  newest_.at(static_cast<std::size_t>(channel - 1)) = end_++;
  forgetOldest();
  return end_ - 1;
}

void RecordStore::disprove(std::int64_t stop) {
  const auto take = [stop](RecordFacts& facts) {
    if (facts.madeUnder.stop == stop) facts.madeUnder.isOther = true;
  };
  for (Number number = first_; number < end_; ++number) take(slot(number).facts);
  for (auto& [number, held] : pinned_) take(held.kept.facts);
}

void RecordStore::forgetOldest() {
  first_ = std::max(first_, end_ - static_cast<Number>(capacity));
  if (unpacked_.size() > mostUnpacked) first_ = std::max(first_, unpacked_.begin()->first + 1);
  unpacked_.erase(unpacked_.begin(), unpacked_.lower_bound(first_));
}

std::size_t RecordStore::bytes() const {
  constexpr std::size_t ofUnpacked =
      sizeof(decltype(unpacked_)::value_type) + WaveformRecord::byteCount;
  return blocks_.size() * sizeof(*blocks_[0]) + unpacked_.size() * ofUnpacked +
         pinned_.size() * sizeof(Pinned);
}

const RecordFacts& RecordStore::facts(Number number) const {
  return at(number).facts;
}

const std::string& RecordStore::unpacked(Number number) const {
  return number >= first_ ? unpacked_.at(number) : pinned_.at(number).unpacked;
}

Samples RecordStore::samples(Number number) const {
  const auto& packed = at(number).packed;
  return packed ? packed->samples() : decodeSamples(unpacked(number), 0);
}

std::string RecordStore::bytesOf(Number number) const {
  const auto& packed = at(number).packed;
  return packed ? packed->bytes() : unpacked(number);
}

ChannelRecord RecordStore::record(Number number) const {
  const RecordFacts& known = facts(number);
  return {bytesOf(number), known.line, known.madeUnder, known.sweepAt, known.fetchedAt};
}

/// One that has fallen out of the ring is none.
std::optional<RecordStore::Number> RecordStore::newestOf(int channel) const {
  const auto newest = newest_.at(static_cast<std::size_t>(channel - 1));
  return newest && *newest >= first_ ? newest : std::nullopt;
}

RecordStore::Number RecordStore::firstSince(std::int64_t sweepAt) const {
  Number low = first_;
  Number high = end_;
  while (low < high) {
    const Number middle = low + (high - low) / 2;
    if (facts(middle).sweepAt < sweepAt)
      low = middle + 1;
    else
      high = middle;
  }
  return low;
}

/// Both channels are fetched in turn, and the same sweep is kept once: it cannot be far.
std::optional<RecordStore::Number> RecordStore::partnerOf(Number number) const {
  constexpr Number farthest = 64;
  const RecordFacts& wanted = facts(number);
  if (!wanted.madeUnder.stop) return std::nullopt;
  const Number lowest = std::max(first_, number - farthest);
  for (Number other = std::min(end_, number + farthest) - 1; other >= lowest; --other) {
    const RecordFacts& known = facts(other);
    if (known.channel != wanted.channel && areOfOneSweep(known.madeUnder, wanted.madeUnder))
      return other;
  }
  return std::nullopt;
}

bool RecordStore::pin(Number number, std::string name) {
  const auto held = pinned_.find(number);
  if (held != pinned_.end()) {
    held->second.name = std::move(name);
    return true;
  }
  const Kept* const kept = find(number);
  if (kept == nullptr || pinned_.size() >= mostPinned) return false;
  const std::string bytes = kept->packed ? std::string() : unpacked(number);
  pinned_.emplace(number, Pinned{std::move(name), *kept, bytes});
  return true;
}

std::optional<std::string> RecordStore::nameOf(Number number) const {
  const auto held = pinned_.find(number);
  return held == pinned_.end() ? std::nullopt : std::optional(held->second.name);
}

std::vector<std::pair<RecordStore::Number, std::string>> RecordStore::pinned() const {
  std::vector<std::pair<Number, std::string>> names;
  for (const auto& [number, held] : pinned_) names.emplace_back(number, held.name);
  return names;
}

}  // namespace tracewell
