// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers and their texts. Integer state is 16-bit, and every operation on it is checked. Texts
/// have "." as the point, whatever the desktop's locale is.
namespace tracewell {

/// Nearest integer, ties to even. Raises "Overflow" outside -32768..32767 and for a NaN.
std::int16_t toInt16(double value);
/// The same for the number in `text`; raises "Type mismatch" unless isNumeric(text).
std::int16_t toInt16(std::string_view text);

/// Checked 16-bit arithmetic: raises "Overflow" if the exact result does not fit.
std::int16_t addInt16(std::int16_t a, std::int16_t b);
std::int16_t mulInt16(std::int16_t a, std::int16_t b);

/// Nearest 32-bit integer, ties to even; raises "Overflow" when it does not fit.
std::int32_t toInt32(double value);

/// `value` itself; raises "Overflow" unless it is finite.
double checked(double value);
/// a / b. Raises "Division by zero", and "Overflow" for 0 / 0 and for an infinite result.
double divide(double a, double b);

/// True for one number: digits with at most one point. Blanks around it, one sign and an exponent
/// are allowed, nothing else.
bool isNumeric(std::string_view text);
/// The number in `text`; nothing unless isNumeric(text), or if it is too large.
std::optional<double> finiteNumber(std::string_view text);
/// The same; raises "Type mismatch" unless isNumeric(text), "Overflow" if too large.
double toDouble(std::string_view text);
/// The longest number at the start of `text`: leading blanks are skipped, a blank or a letter ends
/// it (so there is no exponent). 0 if there is none.
double leadingNumber(std::string_view text);

/// `text` without the blanks (not tabs, not line ends) at both ends.
std::string_view trimBlanks(std::string_view text);

/// Pattern "0.###########E-": 0.4 is "4E-1", -3 is "-3E0", 0.125 is "1.25E-1", 0 is "0E0".
std::string formatExponent(double value);
/// Pattern "0.00": two decimals of the number at 15 significant digits, half away from zero, never
/// "-0.00".
std::string formatTwoDecimals(double value);
/// The same with `decimals` decimals; without any there is no point.
std::string formatDecimals(double value, int decimals);
/// The shortest decimal text that reads back as the same number, without an exponent.
std::string numberText(double value);
/// The shortest text of a number with so many digits that count, as 1.5e-06.
std::string shortNumberText(double value, int digits);

/// A finite number without a fraction.
bool isWholeNumber(std::string_view text);

/// With small letters for A to Z, whatever the locale is.
std::string smallLetters(std::string text);

}  // namespace tracewell
