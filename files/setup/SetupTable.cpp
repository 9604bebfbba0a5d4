// SPDX-License-Identifier: GPL-3.0-or-later
#include "SetupTable.h"

#include <utility>

#include "Error.h"
#include "Numbers.h"

namespace tracewell {

const std::vector<DesignRow>& SetupTable::shippedDesign() {
  static const std::vector<DesignRow> design{
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
  };
  return design;
}

SetupTable::SetupTable(const std::vector<DesignRow>& design) : design_(&design) {
  for (int row = 0; row < fileRows(); ++row) {
    const DesignRow& designed = design[static_cast<std::size_t>(row)];
    setText(row, 0, std::string(designed.label));
    setText(row, 1, std::to_string(designed.values.size() + designed.added.size()));
    int column = firstValue;
    for (const auto& values : {designed.values, designed.added})
      for (const std::string_view value : values) setText(row, column++, std::string(value));
  }
}

void SetupTable::addNewValues(int row) {
  if (row >= fileRows()) return;
  const DesignRow& designed = (*design_)[static_cast<std::size_t>(row)];
  for (std::size_t i = 0; i < designed.added.size(); ++i)
    if (text(row, 1) == std::to_string(designed.values.size() + i))
      setText(row, 1, std::to_string(designed.values.size() + designed.added.size()));
}

const std::string& SetupTable::text(int row, int column) const {
  return cells_[placeOf(row, column)];
}

void SetupTable::setText(int row, int column, std::string text) {
  cells_[placeOf(row, column)] = std::move(text);
}

std::size_t SetupTable::placeOf(int row, int column) {
  const auto line = static_cast<std::size_t>(row);
  const auto place = static_cast<std::size_t>(column);
  // Also what is below zero is outside.
  if (line >= rowCount || place >= columnCount) throw subscriptError();
  return line * columnCount + place;
}

std::int16_t SetupTable::number(int row, int column) const {
  return toInt16(text(row, column));
}

}  // namespace tracewell
