// SPDX-License-Identifier: GPL-3.0-or-later
#include "SetupTable.h"

#include <string_view>
#include <utility>
#include <vector>

#include "Error.h"
#include "Numbers.h"

namespace tracewell {
namespace {

struct DesignRow {
  std::string_view label;
  std::vector<std::string_view> values;
};

/// The same rows as the setup file that comes with the program.
const std::array<DesignRow, SetupTable::fileRows> designRows = {{
    {"RS232", {"19200", "8", "1", "None", "0"}},
    {"Quick measurement", {"1", "0", "0", "0", "0", "0", "0"}},
    {"Channel 1 voltage", {"1", "0", "0", "0", "0", "0", "0", "0"}},
    {"Channel 2 voltage", {"1", "0", "0", "0", "0", "0", "0", "0"}},
    {"Channel 1 time", {"1", "0", "0", "0", "0", "0", "0"}},
    {"Channel 2 time", {"1", "0", "0", "0", "0", "0", "0"}},
    {"Acquire", {"0", "0", "0"}},
    {"Display", {"50", "50", "0"}},
    {"Trigger", {"0", "1", "0", "1", "0", "0"}},
    {"Channel 1", {"1", "0", "0", "1", "0"}},
    {"Channel 2", {"0", "0", "0", "1", "0"}},
    {"Advanced trigger", {"0", "0", "1", "0", "0"}},
    {"Language", {"1"}},
}};

void checkCell(int row, int column) {
  if (row < 0 || row >= SetupTable::rowCount || column < 0 || column >= SetupTable::columnCount)
    throw subscriptError();
}

}  // namespace

SetupTable::SetupTable() {
  for (int row = 0; row < fileRows; ++row) {
    const DesignRow& design = designRows[static_cast<std::size_t>(row)];
    setText(row, 0, std::string(design.label));
    setText(row, 1, std::to_string(design.values.size()));
    int column = firstValue;
    for (const std::string_view value : design.values) setText(row, column++, std::string(value));
  }
}

const std::string& SetupTable::text(int row, int column) const {
  checkCell(row, column);
  return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void SetupTable::setText(int row, int column, std::string text) {
  checkCell(row, column);
  cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = std::move(text);
}

std::int16_t SetupTable::number(int row, int column) const {
  return toInt16(text(row, column));
}

}  // namespace tracewell
