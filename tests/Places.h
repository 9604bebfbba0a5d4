// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tracewell {

/// Paths of this clone and build. They stand in one source that CMake writes, so that a compiler
/// cache takes all others from any clone.
extern const char* const dataFolder;
extern const char* const scriptFolder;
extern const char* const simulatorProgram;

}  // namespace tracewell
