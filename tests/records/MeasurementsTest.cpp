// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <numbers>

#include "Converter.h"
#include "OwnMeasurements.h"
#include "Places.h"
#include "Played.h"

namespace tracewell {
namespace {

/// A row of records.csv, by the names of its columns; make_table.py says what they mean.
using Row = std::map<std::string, std::string>;

std::vector<Row> rowsOf(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  const Lines names = split(line, ",");
  std::vector<Row> rows;
  while (std::getline(file, line)) {
    const Lines values = split(line, ",");
    for (Row& row = rows.emplace_back(); const std::string& name : names)
      row[name] = values.at(row.size());
  }
  return rows;
}

Samples samplesOf(const Row& row) {
  Samples samples;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const int steps = std::stoi(row.at("samples").substr(2 * i, 2), nullptr, 16);
    samples[i] = static_cast<std::int16_t>(converter::lowest + converter::step * steps);
  }
  return samples;
}

/// Of periods: 0.1 % or half a sample; of edges 5 % or a sample; of heights a step of the
/// converter.
double allowed(const QuantityName& name, double truth, double period, double height) {
  switch (name.unit) {
    case QuantityUnit::volts:
      return converter::step;
    case QuantityUnit::seconds:
      return name.quantity == Quantity::period ? std::max(0.5, 0.001 * truth)
                                               : std::max(1.0, 0.05 * truth);
    default:
      return name.quantity == Quantity::duty ? 100 / period : 100 * converter::step / height;
  }
}

}  // namespace

/// TRACEWELL_RECORDS names another table of make_table.py.
TEST(OwnMeasurements, AgreeWithTheTableOrHaveNoValueWhereNoneIsDefined) {
  const char* const other = std::getenv("TRACEWELL_RECORDS");
  const auto rows =
      rowsOf(other != nullptr ? other : std::string(scriptFolder) + "/../records/records.csv");
  ASSERT_GE(rows.size(), 200U);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const OwnMeasurements found = measureSamples(samplesOf(rows[i]));
    for (const QuantityName& name : quantityNames) {
      const auto cell = rows[i].find("true " + std::string(name.shortName));
      if (cell == rows[i].end() || cell->second == "?") continue;
      const OwnValue& own = found[name.quantity];
      const std::string what = std::string(name.shortName) + " of line " + std::to_string(i + 2) +
                               " is " + cell->second + ", " + std::string(reasonText(own.reason));
      if (cell->second == "-" || cell->second == "<") {
        EXPECT_FALSE(own.value) << what << " " << *own.value;
        EXPECT_EQ(own.atMost && own.reason == NoValue::tooFewSamples, cell->second == "<") << what;
        continue;
      }
      const bool mayBeNone = cell->second.starts_with("~");
      EXPECT_TRUE(own.value || mayBeNone) << what;
      if (!own.value) continue;
      const double truth = std::stod(cell->second.substr(mayBeNone ? 1 : 0));
      const double limit = allowed(name, truth, std::stod(rows[i].at("period")),
                                   2 * std::stod(rows[i].at("amplitude")));
      EXPECT_NEAR(*own.value, truth, limit) << what;
    }
  }
}

TEST(OwnMeasurements, HaveUnitsWhereScalesAreKnownAndDelaysWithinASweep) {
  const auto sine = [](double phase) {
    return makeRecord([phase](int i) {
      return 2 * static_cast<int>(
                     std::lround(50 * std::sin(2 * std::numbers::pi * (i / 100.0 - phase))));
    });
  };
  const MadeUnder made{0.5, 1e-3, std::nullopt, 7};
  ChannelRecord first{sine(0), {33, 1}, made, 0, 0};
  ChannelRecord second{sine(0.2), {33, 1}, made, 0, 0};
  const OwnMeasurements both = measure(first, second);
  EXPECT_NEAR(both[Quantity::amplitude].value.value(), 2, 0.01);
  EXPECT_NEAR(both[Quantity::frequency].value.value(), 500, 0.1);
  EXPECT_NEAR(both[Quantity::delay].value.value(), 4e-4, 1e-6);
  EXPECT_NEAR(both[Quantity::phase].value.value(), 72, 0.2);
  second.madeUnder.stop = 8;
  EXPECT_EQ(measure(first, second)[Quantity::delay].reason, NoValue::otherSweep);
  first.madeUnder.voltsPerDivision.reset();
  EXPECT_EQ(measure(first)[Quantity::rms].reason, NoValue::scaleNotKnown);
  EXPECT_NEAR(measure(first)[Quantity::duty].value.value(), 50, 0.1);
  first.bytes.pop_back();
  EXPECT_EQ(measure(first)[Quantity::duty].reason, NoValue::incomplete);
}

TEST(OwnMeasurements, StatisticsHoldWithALargeMean) {
  Statistics statistics;
  EXPECT_FALSE(statistics.mean() || statistics.standardDeviation());
  for (const double value : {1e9 + 4, 1e9 + 7, 1e9 + 13, 1e9 + 16})
    statistics.add(OwnValue::of(value));
  statistics.add(OwnValue::no(NoValue::flat));
  EXPECT_EQ(statistics.count(), 4U);
  EXPECT_DOUBLE_EQ(statistics.mean().value(), 1e9 + 10);
  EXPECT_DOUBLE_EQ(statistics.standardDeviation().value(), std::sqrt(30));
  EXPECT_DOUBLE_EQ(statistics.lowest().value(), 1e9 + 4);
  EXPECT_DOUBLE_EQ(statistics.highest().value(), 1e9 + 16);
}

}  // namespace tracewell
