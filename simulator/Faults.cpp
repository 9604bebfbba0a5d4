// SPDX-License-Identifier: GPL-3.0-or-later
#include "Faults.h"

namespace tracewell {

bool Faults::set(const std::string& name, int value) {
  if (name == "OFF")
    *this = Faults();
  else if (name == "SILENT")
    isSilent = value != 0;
  else if (name == "SLOW")
    slowMilliseconds = value;
  else if (name == "TRICKLE")
    trickleMilliseconds = value;
  else if (name == "MISS")
    missEvery = value;
  else if (name == "DROP")
    dropEvery = value;
  else if (name == "CUT")
    cutRecordsAt = value;
  else if (name == "GARBAGE")
    isGarbage = value != 0;
  else if (name == "NONNUM")
    isNonNumeric = value != 0;
  else if (name == "BLANK")
    hasTrailingBlank = value != 0;
  else if (name == "HANGUP")
    hangUpAfter = value;
  else
    return false;
  return true;
}

}  // namespace tracewell
