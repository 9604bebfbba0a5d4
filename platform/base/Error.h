// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <string>

namespace tracewell {

/// Numbers that the program itself compares or raises. They are the classic run-time error numbers,
/// so that a log line means the same to a service engineer as it always did.
enum ErrorNumber : int {
  invalidProcedureCall = 5,
  overflow = 6,
  subscriptOutOfRange = 9,
  divisionByZero = 11,
  typeMismatch = 13,
  fileNotFound = 53,
  deviceError = 57,
  diskFull = 61,
  pathAccess = 75,
  invalidPropertyValue = 380,
  portReadTimeOut = 30312,
};

/// The one exception type of the program: all that an error line or an error box needs.
class Error : public std::exception {
 public:
  Error(int number, std::string source, std::string description);

  int number() const { return number_; }
  /// Who reports it: "Tracewell" for the program itself, "RS232" for the port, "Printer".
  const std::string& source() const { return source_; }
  const std::string& description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  int number_;
  std::string source_;
  std::string description_;
};

/// Thrown out of every wait, and by everything that would begin something, when the program has
/// ended or is about to. The handler that meets it is over. Deliberately no Error, so no trap logs
/// it; the event dispatcher swallows it.
struct ProgramEnded {};

Error overflowError();
Error typeMismatchError();
Error subscriptError();
Error divisionByZeroError();
Error invalidCallError();

}  // namespace tracewell
