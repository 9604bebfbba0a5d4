// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tracewell {

/// Every remembered choice, as a table of text cells. A row is a group of settings: column 0 its
/// label, column 1 the number n of its values, columns 2 to n + 1 the values. The owner of a row
/// reads and writes the values; setup files carry rows 0 to 12.
class SetupTable {
 public:
  static constexpr int rowCount = 32;
  static constexpr int columnCount = 32;
  /// How many rows a setup file holds.
  static constexpr int fileRows = 13;
  static constexpr int firstValue = 2;

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

  /// Filled with the values that hold as long as no setup file has been read.
  SetupTable();

  /// Raises "Subscript out of range" outside the table.
  const std::string& text(int row, int column) const;
  void setText(int row, int column, std::string text);

  /// The cell as a 16-bit integer; raises "Type mismatch" or "Overflow".
  std::int16_t number(int row, int column) const;
  std::int16_t valueCount(int row) const { return number(row, 1); }

 private:
  std::array<std::array<std::string, columnCount>, rowCount> cells_;
};

}  // namespace tracewell
