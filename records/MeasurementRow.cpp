// SPDX-License-Identifier: GPL-3.0-or-later
#include "MeasurementRow.h"

#include <algorithm>

#include "Error.h"
#include "Numbers.h"
#include "TrueNumbers.h"
#include "WallTime.h"

namespace tracewell {

bool MeasurementLimit::isPassed(const OwnMeasurements& values) const {
  const OwnValue& own = values[quantity];
  const auto& bound = isUpper ? own.atLeast : own.atMost;
  const auto& told = own.value ? own.value : bound;
  return told && (isUpper ? *told > value : *told < value);
}

bool MeasurementLimit::isDecided(const OwnMeasurements& values) const {
  const OwnValue& own = values[quantity];
  const bool isRuledOut =
      isUpper ? own.atMost && *own.atMost <= value : own.atLeast && *own.atLeast >= value;
  return own.value || isRuledOut || isPassed(values);
}

/// None for what is no number, or larger than one can be.
static std::optional<double> numberWithUnit(std::string_view text, std::string_view unit) {
  try {
    const auto value = trueNumber(text, unit);
    return value ? value : std::optional(toDouble(text));
  } catch (const Error&) {
    return std::nullopt;
  }
}

std::optional<MeasurementLimit> limitOf(std::string_view text) {
  const std::size_t sign = text.find_first_of("<>");
  if (sign == std::string_view::npos) return std::nullopt;
  const std::string_view name = trimBlanks(text.substr(0, sign));
  const std::string_view number = trimBlanks(text.substr(sign + 1));
  const auto quantity = quantityNamed(name);
  if (!quantity) return std::nullopt;
  const auto value = numberWithUnit(number, unitText(nameOf(*quantity).unit));
  if (!value) return std::nullopt;
  std::string shown = std::string(name) + " " + text[sign] + " " + std::string(number);
  return MeasurementLimit{*quantity, text[sign] == '>', *value, std::move(shown)};
}

std::optional<std::vector<Quantity>> quantitiesOf(std::string_view text, std::string& wrong) {
  std::vector<Quantity> quantities;
  while (true) {
    const std::size_t comma = text.find(',');
    const std::string_view name = trimBlanks(text.substr(0, comma));
    const auto quantity = quantityNamed(name);
    if (!quantity) {
      wrong = name;
      return std::nullopt;
    }
    quantities.push_back(*quantity);
    if (comma == std::string_view::npos) return quantities;
    text.remove_prefix(comma + 1);
  }
}

std::string MeasurementColumns::heading() const {
  std::string text = "time,channel";
  for (const Quantity quantity : quantities) {
    const QuantityName& name = nameOf(quantity);
    text.append(",").append(name.shortName).append(" (").append(unitText(name.unit)).append(")");
  }
  return text + ",limits\n";
}

std::string MeasurementColumns::row(std::int64_t wallTime, int channel,
                                    const OwnMeasurements& values) const {
  constexpr int digits = 7;
  std::string text = isoTime(wallTime) + "," + std::to_string(channel);
  for (const Quantity quantity : quantities) {
    text += ",";
    if (values[quantity].value) text += shortNumberText(*values[quantity].value, digits);
  }
  return text + "," + passed(values) + "\n";
}

bool MeasurementColumns::isRow(std::string_view line) const {
  if (std::ranges::count(line, ',') != std::ranges::count(heading(), ',')) return false;
  // Of a row with limits the last ones may be lost.
  if (line.ends_with(',')) return limits.empty();
  const auto isLast = [line](const MeasurementLimit& limit) {
    return line.ends_with("," + limit.text) || line.ends_with("; " + limit.text);
  };
  const auto last = std::ranges::find_if(limits, isLast);
  if (last == limits.end()) return false;
  return std::ranges::count_if(limits, [&last](const MeasurementLimit& limit) {
           return limit.text.starts_with(last->text);
         }) == 1;
}

std::string MeasurementColumns::passed(const OwnMeasurements& values) const {
  std::string text;
  for (const MeasurementLimit& limit : limits)
    if (limit.isPassed(values)) text += (text.empty() ? "" : "; ") + limit.text;
  return text;
}

bool MeasurementColumns::areDecided(const OwnMeasurements& values) const {
  return std::ranges::all_of(
      limits, [&values](const MeasurementLimit& limit) { return limit.isDecided(values); });
}

}  // namespace tracewell
