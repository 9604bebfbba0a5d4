// SPDX-License-Identifier: GPL-3.0-or-later
#include "Error.h"

#include <utility>

namespace tracewell {

Error::Error(int number, std::string source, std::string description)
    : number_(number), source_(std::move(source)), description_(std::move(description)) {}

Error overflowError() {
  return {overflow, "Tracewell", "Overflow"};
}

Error typeMismatchError() {
  return {typeMismatch, "Tracewell", "Type mismatch"};
}

Error subscriptError() {
  return {subscriptOutOfRange, "Tracewell", "Subscript out of range"};
}

Error divisionByZeroError() {
  return {divisionByZero, "Tracewell", "Division by zero"};
}

Error invalidCallError() {
  return {invalidProcedureCall, "Tracewell", "Invalid procedure call or argument"};
}

}  // namespace tracewell
