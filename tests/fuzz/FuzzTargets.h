// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

/// One function per kind of bytes that come from outside. An Error is an answer; anything else that
/// leaves one of them is a fault.
namespace tracewell {

void captions(const std::string& bytes);
void commands(const std::string& bytes);
void data(const std::string& bytes);
void description(const std::string& bytes);
void messages(const std::string& bytes);
void record(const std::string& bytes);
void reply(const std::string& bytes);
void report(const std::string& bytes);
void setup(const std::string& bytes);

/// What one input has left behind in the program is gone before the next one.
void forgetTraces();

}  // namespace tracewell
