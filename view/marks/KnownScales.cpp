// SPDX-License-Identifier: GPL-3.0-or-later
#include "KnownScales.h"

#include "TrueUnits.h"

namespace tracewell {
namespace {

std::optional<double> knownScale(const ValueLabel& label, std::string_view unit) {
  if (label.isUnread() || label.isStale()) return std::nullopt;
  return trueScale(label.caption(), unit);
}

}  // namespace

std::optional<double> voltsPerDivision(const frmDSO& main, int channel) {
  return knownScale(channel == 1 ? main.lblChan1 : main.lblChan2, "V");
}

std::optional<double> secondsPerDivision(const frmDSO& main) {
  return knownScale(main.lblTime, "s");
}

int mathChannel(const frmDSO& main) {
  constexpr int reverseDifference = 2;
  const auto off = static_cast<int>(main.cbMath.items().size()) - 1;
  if (!main.MathEntry || main.lblTime.isStale() || *main.MathEntry >= off) return 0;
  return *main.MathEntry == reverseDifference ? 2 : 1;
}

}  // namespace tracewell
