// SPDX-License-Identifier: GPL-3.0-or-later
#include "TraceTable.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include "Numbers.h"
#include "WaveformRecord.h"

namespace tracewell {
namespace {

struct Column {
  std::string name;
  std::string unit;
  std::vector<double> values;
};

/// More than a sample of 16 bits and a scale of three can have between them.
constexpr int digits = 7;

/// In divisions, unless it is known what one of them is.
template <class Samples>
Column columnOf(std::string name, const Samples& samples, std::optional<double> perDivision,
                std::string unit) {
  Column column{std::move(name), perDivision ? std::move(unit) : "div", {}};
  for (const auto sample : samples)
    column.values.push_back(sample * perDivision.value_or(1) / Graph::unitsPerDivision);
  return column;
}

/// The channels share it, and so must have come under one.
std::optional<double> timeScale(const frmDSO& main) {
  std::vector<std::optional<double>> scales;
  for (const Channel& channel : main.channels)
    if (channel.plot.isShown()) scales.push_back(channel.record.madeUnder.secondsPerDivision);
  const bool isOne = !scales.empty() && std::ranges::count(scales, scales[0]) == std::ssize(scales);
  return isOne ? scales[0] : std::nullopt;
}

Column channelColumn(const Channel& channel) {
  return columnOf(channel.display.caption(), decodeSamples(channel.record.bytes, 0),
                  channel.record.madeUnder.voltsPerDivision, "V");
}

std::string tableOf(const std::vector<Column>& columns) {
  std::string table;
  for (const Column& column : columns)
    table += (table.empty() ? "" : "\t") + column.name + " (" + column.unit + ")";
  table += "\n";
  for (std::size_t row = 0; row < columns[0].values.size(); ++row) {
    for (const Column& column : columns) {
      if (&column != &columns[0]) table += "\t";
      if (row < column.values.size()) table += shortNumberText(column.values[row], digits);
    }
    table += "\n";
  }
  return table;
}

}  // namespace

std::string traceTable(const frmDSO& main) {
  std::vector<Column> channels = {columnOf("Time", main.XIndex, timeScale(main), "s")};
  for (const Channel& channel : main.channels)
    if (channel.plot.isShown()) channels.push_back(channelColumn(channel));
  std::vector<Column> loaded = {columnOf("x", main.XIndex, std::nullopt, "")};
  for (int number = ScopeGraph::firstReference; number <= ScopeGraph::plotCount; ++number) {
    const Plot& plot = main.graphDSO.plot(number);
    if (plot.isShown()) loaded.push_back(columnOf(plot.name(), plot.y(), std::nullopt, ""));
  }
  std::vector<Column> columns;
  for (std::vector<Column>* part : {&channels, &loaded})
    if (part->size() > 1) std::ranges::move(*part, std::back_inserter(columns));
  return columns.empty() ? "" : tableOf(columns);
}

}  // namespace tracewell
