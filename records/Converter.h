// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The instrument's converter, in the units of a sample: 50 to a division.
namespace tracewell::converter {

/// Eight bits, 25 steps to a division.
constexpr int step = 2;
/// What is at an edge, or beyond it, may have been anything there.
constexpr int lowest = -256;
constexpr int highest = 254;

}  // namespace tracewell::converter
