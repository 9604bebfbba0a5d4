// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

namespace tracewell {

/// What reads bytes from outside, by the names that the fuzz program goes by.
extern const std::map<std::string, void (*)(const std::string&)> fuzzTargets;

void forgetTraces();

}  // namespace tracewell
