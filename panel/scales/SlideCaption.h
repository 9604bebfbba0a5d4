// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tracewell {

/// What stands in front of a slide's value: its caption through the first ":".
std::string slideTitle(const std::string& caption);

/// The caption of a slide that is being dragged: its title through the first ":", a blank, the
/// value with two decimals, and the unit (" Div", " V").
std::string slideCaption(const std::string& caption, double value, const std::string& unit);

}  // namespace tracewell
