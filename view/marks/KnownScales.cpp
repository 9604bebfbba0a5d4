// SPDX-License-Identifier: GPL-3.0-or-later
#include "KnownScales.h"

#include "TrueUnits.h"

namespace tracewell {
namespace {

std::optional<double> knownScale(const ValueLabel& label, std::string_view unit) {
  if (label.isUnread() || label.isStale()) return std::nullopt;
  return trueScale(label.caption(), unit);
}

bool isOther(const std::optional<double>& ofRecord, const std::optional<double>& present) {
  return ofRecord && present && *ofRecord != *present;
}

}  // namespace

std::optional<double> voltsPerDivision(const frmDSO& main, int channel) {
  return knownScale(channel == 1 ? main.lblChan1 : main.lblChan2, "V");
}

std::optional<double> secondsPerDivision(const frmDSO& main) {
  return knownScale(main.lblTime, "s");
}

std::optional<double> voltsOfTrace(const frmDSO& main, int channel) {
  const std::optional<double> present = voltsPerDivision(main, channel);
  const auto& record = main.RecordScales[channel == 1 ? 0 : 1];
  const bool isOfAnother =
      main.graphDSO.plot(channel).isShown() && isOther(record.voltsPerDivision, present);
  return isOfAnother ? std::nullopt : present;
}

std::optional<double> secondsOfTraces(const frmDSO& main) {
  const std::optional<double> present = secondsPerDivision(main);
  for (const int channel : {1, 2}) {
    const auto& record = main.RecordScales[channel == 1 ? 0 : 1];
    if (main.graphDSO.plot(channel).isShown() && isOther(record.secondsPerDivision, present))
      return std::nullopt;
  }
  return present;
}

int mathChannel(const frmDSO& main) {
  constexpr int reverseDifference = 2;
  const auto off = static_cast<int>(main.cbMath.items().size()) - 1;
  if (!main.MathEntry || main.lblTime.isStale() || *main.MathEntry >= off) return 0;
  return *main.MathEntry == reverseDifference ? 2 : 1;
}

}  // namespace tracewell
