// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "RecordStore.h"

namespace tracewell {

/// The kept records along their time: which stretch of it is seen, and what stands in each column
/// of pixels.
class RecordTimeline {
 public:
  using Number = RecordStore::Number;

  explicit RecordTimeline(const RecordStore& store) : store_(store) {}

  /// Zooms by a factor, below 1 for closer; what is at `fraction` of the width stays there.
  void zoom(double factor, double fraction);
  /// By a share of the width, to later times.
  void pan(double share);
  void showAll() { shown_.reset(); }
  bool showsAll() const { return !shown_; }
  /// Moves what is seen, if it must, so that the record is in it.
  void reveal(Number number);

  /// The record of the channel (0: any) whose time is nearest to a place from 0 to 1.
  std::optional<Number> at(double fraction, int channel) const;

  struct Column {
    bool isAny = false;
    /// Units.
    std::int16_t lowest = 0;
    std::int16_t highest = 0;
  };
  struct Place {
    int column = 0;
    Number number = 0;
    std::string name;
  };
  struct Picture {
    /// Of channel 1 and 2.
    std::array<std::vector<Column>, 2> columns;
    /// Where a record stands behind a gap; the name is empty.
    std::vector<Place> gaps;
    std::vector<Place> pins;
    std::vector<Place> times;
    /// Pixels that a record may take without touching the next one of its channel.
    int barWidth = 1;
  };
  Picture picture(int width) const;
  /// In which column a record is; it may be outside of the width.
  int columnOf(Number number, int width) const;

 private:
  /// Milliseconds of Clock.
  struct Range {
    double from = 0;
    double to = 1;
    double length() const { return to - from; }
  };
  Range all() const;
  Range range() const { return shown_.value_or(all()); }
  void keepWithin(Range range);
  void addTimes(Picture& picture, int width) const;

  const RecordStore& store_;
  /// None for all.
  std::optional<Range> shown_;
};

}  // namespace tracewell
