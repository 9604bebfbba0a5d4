// SPDX-License-Identifier: GPL-3.0-or-later
#include "SlideCaption.h"

#include "Numbers.h"

namespace tracewell {

std::string slideTitle(const std::string& caption) {
  return caption.substr(0, caption.find(':') + 1);
}

std::string slideCaption(const std::string& caption, double value, const std::string& unit) {
  // Connecting leaves no blank behind the ":", so one is written rather than kept.
  return slideTitle(caption) + " " + formatTwoDecimals(value) + unit;
}

}  // namespace tracewell
