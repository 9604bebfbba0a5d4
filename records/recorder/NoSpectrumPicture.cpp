// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecorderPicture.h"

/// Where there is no library for it.
namespace tracewell {

bool hasSpectra() {
  return false;
}

RecorderPicture spectrumPicture(const RecordStore& /*store*/,
                                std::span<const DrawnRecords> /*channels*/,
                                const RecorderChoice& /*choice*/, const Words& /*words*/) {
  return {};
}

}  // namespace tracewell
