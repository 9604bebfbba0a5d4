// SPDX-License-Identifier: GPL-3.0-or-later
#include "KeptStatistics.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tracewell {
namespace {

std::size_t placeOf(RecordStore::Number number) {
  return static_cast<std::size_t>(number) % RecordStore::capacity;
}

}  // namespace

bool KeptStatistics::work(int most) {
  if (measured_.empty()) measured_.resize(RecordStore::capacity);
  next_ = std::max(next_, store_.first());
  for (; most > 0 && next_ < store_.end(); --most, ++next_) {
    Measured& measured = measured_[placeOf(next_)];
    measured.channel = store_.facts(next_).channel;
    const OwnMeasurements values = measure(store_.record(next_));
    for (std::size_t i = 0; i < ofOneRecord; ++i)
      measured.values.at(i) = static_cast<float>(values[static_cast<Quantity>(i)].value.value_or(
          std::numeric_limits<double>::quiet_NaN()));
  }
  return next_ < store_.end();
}

KeptStatistics::Result KeptStatistics::over(const Stretch& stretch, Quantity quantity) const {
  Result result;
  const auto index = static_cast<std::size_t>(quantity);
  const auto end = std::min(stretch.end, store_.end());
  for (auto number = std::max(stretch.first, store_.first()); number < end; ++number) {
    const bool isMeasured = number < next_;
    const int channel =
        isMeasured ? measured_[placeOf(number)].channel : store_.facts(number).channel;
    if (channel != stretch.channel) continue;
    if (result.records++ == 0) result.first = number;
    result.last = number;
    if (!isMeasured) continue;
    ++result.measured;
    if (index >= ofOneRecord) continue;
    const float value = measured_[placeOf(number)].values.at(index);
    if (!std::isnan(value)) result.values.add(OwnValue::of(value));
  }
  return result;
}

}  // namespace tracewell
