// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "KeptStatistics.h"
#include "RecordStore.h"
#include "RecordTimeline.h"
#include "RecorderPicture.h"
#include "SavedRecords.h"
#include "Words.h"

namespace tracewell {

/// What the recorder's window shows: which record is pointed at, what of it and of those before it
/// is drawn, and what is said of it. The window shows this and passes on what the user does.
class RecorderView {
 public:
  using Number = RecordStore::Number;

  RecorderView(const RecordStore& store, const Words& words)
      : timeline(store), store_(store), words_(words), statistics_(store) {}

  // Which record

  /// 1 or 2; 0 for both.
  int channel() const { return channel_; }
  void show(int channel);
  /// Goes with the newest record until another one is pointed at.
  bool isFollowing() const { return isFollowing_; }
  void follow(bool isFollowing);
  /// Always one that is kept, of a channel that is shown; none where there is no such record.
  std::optional<Number> selected() const;
  /// Of a channel that is not shown: then both are.
  void select(Number number);
  /// By so many records of the channels that are shown.
  void step(int records);
  void selectFirst();
  void selectLast();
  /// The record of a channel that is drawn: the one pointed at or, of the other channel, the one of
  /// the same sweep or else the last before it.
  std::optional<Number> shownOf(int channel) const;
  /// To be called when a record has been kept.
  void recordKept();

  // A stretch

  /// From one to the other, both included.
  void mark(Number one, Number other);
  void unmark() { marked_.reset(); }
  bool isMarked() const { return marked_.has_value(); }
  /// What is marked, or else all; of the channels that are shown.
  Stretch stretch() const;
  /// What is marked, or else the record pointed at and what is drawn of the other channel's.
  Stretch exported() const;

  /// The record pointed at and, where both channels are shown, the other's of the same sweep.
  RecordsOfSet saved() const;

  /// As long as it lives, the view stays at the record that it shows, so that what the user has
  /// seen is what he gets a file of.
  class Still {
   public:
    enum class File { set, table };
    Still(RecorderView& view, File file);
    ~Still() { view_.follow(wasFollowing_); }
    Still(const Still&) = delete;
    /// False once a record that would be in the file has left the store.
    bool isWhole() const;

   private:
    RecorderView& view_;
    bool wasFollowing_;
    /// Single ones, which may be pinned, and the first of a stretch, which goes first.
    std::vector<Number> written_;
    std::optional<Number> first_;
  };

  // What is drawn

  RecorderChoice choice;
  RecorderPicture picture() const;
  /// What is saved as a trace, with what is drawn behind it.
  RecorderPicture savedPicture() const;
  RecordTimeline timeline;

  // What is said

  /// "CH1, 14:29:05.250, record 12 of 340"
  std::string title() const;
  /// Its scales, and what lies between it and the one before; a line for each channel shown.
  std::vector<std::string> details() const;
  struct Line {
    Quantity quantity = Quantity::maximum;
    std::string name;
    /// Of channel 1 and 2; empty for one that is not shown.
    std::array<std::string, 2> values;
    std::array<bool, 2> hasValue{};
  };
  std::vector<Line> measurements() const;
  struct StatisticsLine {
    std::string name;
    std::string value;
  };
  /// Of the marked stretch or of all, of one channel.
  std::vector<StatisticsLine> statistics(Quantity quantity, int channel) const;
  /// "CH1: 312 records from 14:29:05 to 14:35:17"
  std::string statisticsTitle(int channel) const;
  /// Measures some more for the statistics; false when all is measured.
  bool measureMore(int most) { return statistics_.work(most); }

 private:
  /// The next record of the channels that are shown, in one direction; none at the end.
  std::optional<Number> nextShown(Number from, int direction) const;
  bool isShown(int channel) const { return channel_ == 0 || channel_ == channel; }
  bool areOfSeveralPorts(int channel, Number first, Number last) const;
  std::vector<Number> drawnOf(Number newest) const;
  std::vector<DrawnRecords> drawn() const;

  const RecordStore& store_;
  const Words& words_;
  KeptStatistics statistics_;
  int channel_ = 0;
  bool isFollowing_ = true;
  std::optional<Number> selected_;
  /// First and last.
  std::optional<std::pair<Number, Number>> marked_;
};

}  // namespace tracewell
