// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ChannelRecord.h"
#include "PackedRecord.h"
#include "WaveformRecord.h"

namespace tracewell {

/// What lies between a record and the one of its channel before it.
struct RecordGap {
  /// Another port: another instrument.
  bool isAnotherInstrument = false;
  /// The port was opened anew: it was unplugged, or closed.
  bool wasUnplugged = false;
  /// The scales are not those of before, or are known only of one of the two.
  bool hasOtherScales = false;
  /// The instrument was stopped and ran again; what it did on another line nobody knows.
  bool wasStopped = false;
  /// Nothing was fetched for longer than RecordStore::longestPause.
  bool wasSilent = false;

  bool isAny() const {
    return isAnotherInstrument || wasUnplugged || hasOtherScales || wasStopped || wasSilent;
  }
  bool operator==(const RecordGap&) const = default;
};

/// What is known of a record that is kept.
struct RecordFacts {
  /// 1 or 2.
  int channel = 0;
  InstrumentLine line;
  MadeUnder madeUnder;
  /// Milliseconds of Clock: when it arrived, for the first time or back again, and when it was last
  /// fetched.
  std::int64_t sweepAt = 0;
  std::int64_t fetchedAt = 0;
  /// Milliseconds since 1970 when it came first, of the clock on the wall.
  std::int64_t wallTime = 0;
  bool isSimulated = false;
  /// How often the sweep was fetched.
  int fetches = 1;
  /// Units; of all samples.
  std::int16_t lowest = 0;
  std::int16_t highest = 0;
  /// None in front of the first of a channel.
  RecordGap gap;
};

/// The last records of both channels in their order, and those that have been pinned. Memory grows
/// in blocks up to the capacity, 9 MB, and no further; what it costs to keep a record does not
/// depend on how many there are, unless it is another sweep behind a stop.
class RecordStore {
 public:
  static constexpr std::size_t capacity = 10000;
  /// Milliseconds; two channels at the lowest rate take less.
  static constexpr std::int64_t longestPause = 5000;
  static constexpr std::size_t mostPinned = 1000;
  /// Of records that cannot be packed, which no converter makes, so many: those before the first of
  /// more go.
  static constexpr std::size_t mostUnpacked = 500;
  /// Counts the records from 0 on, for ever.
  using Number = std::int64_t;

  struct Moment {
    std::int64_t wallTime = 0;
    bool isSimulated = false;
  };
  /// Keeps a record of a channel, 1 or 2, and tells its number; of the sweep that the channel's
  /// newest record is, only the count. Bytes beyond a whole record are left out, and nothing is
  /// kept without bytes.
  std::optional<Number> keep(int channel, const ChannelRecord& record, const Moment& moment);

  /// Those that are kept have the numbers from first() to below end(); what is pinned may be older.
  Number first() const { return first_; }
  Number end() const { return end_; }
  std::size_t size() const { return static_cast<std::size_t>(end_ - first_); }
  bool isKept(Number number) const { return find(number) != nullptr; }
  /// How much memory the records take.
  std::size_t bytes() const;

  /// Raise "Subscript out of range" for one that is not kept. What facts() refers to lasts until
  /// the next record is kept.
  const RecordFacts& facts(Number number) const;
  /// Of one that is cut as decodeSamples has it.
  Samples samples(Number number) const;
  /// For measurements, the graph and files.
  ChannelRecord record(Number number) const;

  /// The newest one of a channel; none before the first.
  std::optional<Number> newestOf(int channel) const;
  /// The first whose sweep came at a time of Clock or later; end() if none did.
  Number firstSince(std::int64_t sweepAt) const;
  /// The one of the other channel that is of the same sweep: both were fetched behind the same
  /// stop, and no other sweep of it was.
  std::optional<Number> partnerOf(Number number) const;

  /// Stays whatever comes, until it is let go; another name for one that is pinned renames it.
  /// False where mostPinned are, or it is not kept.
  bool pin(Number number, std::string name);
  void letGo(Number number) { pinned_.erase(number); }
  /// None where it is not pinned.
  std::optional<std::string> nameOf(Number number) const;
  /// By rising number.
  std::vector<std::pair<Number, std::string>> pinned() const;

 private:
  struct Kept {
    RecordFacts facts;
    /// None for one that is in unpacked_, or beside a pinned one.
    std::optional<PackedRecord> packed;
  };
  struct Pinned {
    std::string name;
    Kept kept;
    std::string unpacked;
  };
  static constexpr std::size_t blockSize = 250;

  Kept& slot(Number number);
  const Kept* find(Number number) const;
  const Kept& at(Number number) const;
  std::string bytesOf(Number number) const;
  const std::string& unpacked(Number number) const;
  void forgetOldest();
  /// What was fetched behind that stop is of several sweeps.
  void disprove(std::int64_t stop);

  /// A ring: number n is in place n % capacity.
  std::vector<std::unique_ptr<std::array<Kept, blockSize>>> blocks_;
  Number first_ = 0;
  Number end_ = 0;
  std::array<std::optional<Number>, 2> newest_;
  std::map<Number, std::string> unpacked_;
  std::map<Number, Pinned> pinned_;
};

}  // namespace tracewell
