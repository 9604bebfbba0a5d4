// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <string>
#include <vector>

/// The console as this kind of system has it: UnixConsole.cpp, WindowsConsole.cpp.
namespace tracewell {

/// Lets the standard output carry every byte as it is, and fail where nobody reads it any longer.
/// What is written to a terminal is UTF-8 and may move its cursor.
void prepareConsole();

/// What stands behind the program's name on its command line, in UTF-8. Asked for once there is a
/// QCoreApplication.
std::vector<std::string> wordsOf(int argumentCount, char** arguments);

bool isTerminal(std::FILE* file);

}  // namespace tracewell
