// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tracewell {

/// What can be wrong with the instrument or its cable. Switched on with ":SIM:NAME number":
///
///   SILENT 1    answers nothing        NONNUM 1   replies are no numbers
///   SLOW ms     thinks longer          BLANK 1    a blank stands before each line end
///   DROP n      loses every n-th byte  HANGUP n   the line is gone n bytes later
///   CUT n       records end early      OFF        all is well again
///   GARBAGE 1   bytes are noise           TRICKLE ms  each byte takes longer
///   MISS n      ignores every n-th query
struct Faults {
  bool isSilent = false;
  int slowMilliseconds = 0;
  /// Of each byte, on top of what the line takes.
  int trickleMilliseconds = 0;
  int missEvery = 0;
  int dropEvery = 0;
  int cutRecordsAt = 0;
  bool isGarbage = false;
  bool isNonNumeric = false;
  bool hasTrailingBlank = false;
  /// Counts down as bytes leave; negative when the line stays.
  long hangUpAfter = -1;

  /// Takes "NAME number" as in the table; false if it is none.
  bool set(const std::string& name, int value);
};

}  // namespace tracewell
