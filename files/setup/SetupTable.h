// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tracewell {

/// A row before a setup file has been read. Add values and whole rows only at the end; those of the
/// first version stay, so that its files are recognised.
struct DesignRow {
  std::string_view label;
  /// Values of the first version; none in a row that was added.
  std::vector<std::string_view> values;
  std::vector<std::string_view> added = {};
};

/// Every remembered choice, as a table of text cells. A row is a group of settings: column 0 its
/// label, column 1 the number n of its values, columns 2 to n + 1 the values. The owner of a row
/// reads and writes its values; setup files hold the rows of the design.
class SetupTable {
 public:
  static constexpr int rowCount = 32;
  static constexpr int columnCount = 32;
  static constexpr int firstValue = 2;
  /// How many rows a setup file of the first version holds.
  static constexpr int firstRows = 13;

  enum Row : int {
    link = 0,
    quickMeasurement = 1,
    voltageChannel1 = 2,
    voltageChannel2 = 3,
    timeChannel1 = 4,
    timeChannel2 = 5,
    acquire = 6,
    display = 7,
    trigger = 8,
    channel1 = 9,
    channel2 = 10,
    advancedTrigger = 11,
    language = 12,
  };
  /// Rows of channel 1 or 2.
  static constexpr int voltageRow(int channel) { return voltageChannel1 + channel - 1; }
  static constexpr int timeRow(int channel) { return timeChannel1 + channel - 1; }
  static constexpr int channelRow(int channel) { return channel1 + channel - 1; }

  /// Column of a row's values, which are counted from 0.
  static constexpr int columnOf(int value) { return firstValue + value; }

  /// Filled with the design, which outlives the table.
  explicit SetupTable(const std::vector<DesignRow>& design = shippedDesign());
  /// The same rows as the setup file that comes with the program.
  static const std::vector<DesignRow>& shippedDesign();

  /// How many rows a setup file holds.
  int fileRows() const { return static_cast<int>(design_->size()); }

  /// Raises "Subscript out of range" outside the table.
  const std::string& text(int row, int column) const;
  void setText(int row, int column, std::string text);

  /// The cell as a 16-bit integer; raises "Type mismatch" or "Overflow".
  std::int16_t number(int row, int column) const;
  std::int16_t valueCount(int row) const { return number(row, 1); }

  /// Extends a row that an earlier version wrote by the values that were added since; these keep
  /// what they have. Leaves any other count as the file has it.
  void addNewValues(int row);

 private:
  static std::size_t placeOf(int row, int column);

  const std::vector<DesignRow>* design_;
  /// Row by row.
  std::array<std::string, rowCount * columnCount> cells_;
};

}  // namespace tracewell
